// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/spoken_label.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

#include <chrono>

namespace kiv::desktop {
namespace {

class SpokenInterface final : public QAccessibleWidget {
public:
    explicit SpokenInterface(SpokenLabel &label)
        : QAccessibleWidget(&label, QAccessible::Notification)
    {
    }
    QString text(QAccessible::Text part) const override
    {
        const auto *label = qobject_cast<const QLabel *>(widget());
        return part == QAccessible::Name && label ? label->text() : QAccessibleWidget::text(part);
    }
};

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *label = qobject_cast<SpokenLabel *>(object);
    return label ? new SpokenInterface(*label) : nullptr;
}

/// A change of the budget changes much of the page, and of so much news screen readers drop a
/// part. What is said comes after it.
constexpr std::chrono::milliseconds afterChanges{100};

void tell(SpokenLabel &label)
{
    if (!label.isVisible())
        return; // it was withdrawn before it could be said
    // Qt 6.8 has an event of its own for announcements. Until then, on Linux a notification is
    // read when it appears, and alerts are not passed on; elsewhere alerts are read.
    for (const QAccessible::Event type : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(&label, type);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace

SpokenLabel::SpokenLabel(QWidget *parent)
    : QLabel(parent), m_soon(afterChanges, this, [this] { tell(*this); })
{
    static const bool isKnown = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(isKnown)
    setTextFormat(Qt::PlainText);
}

void SpokenLabel::speak(const QString &text)
{
    setText(text);
    m_soon.start();
}

} // namespace kiv::desktop
