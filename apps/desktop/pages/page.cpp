// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/page.h"

namespace kiv::desktop {

Page::Page(Desk &desk, const QString &id, const QString &title)
    : m_desk(desk), m_id(id), m_title(title)
{
    setObjectName(id);
    setAccessibleName(title);
    connect(&desk, &Desk::refreshWanted, this, [this] {
        m_isStale = true;
        if (isVisible())
            bringUpToDate();
    });
}

Page::~Page() = default;

void Page::goTo(const QString &) {}

QString Page::detail() const
{
    return {};
}

QStringList Page::parts() const
{
    return {};
}

QWidget *Page::entry()
{
    QWidget *const first = firstFocus();
    return first->isVisibleTo(this) && first->isEnabled() ? first : this;
}

void Page::forgetFile() {}

Explain Page::explanation()
{
    return {};
}

void Page::bringUpToDate()
{
    if (!std::exchange(m_isStale, false) || m_desk.document().file().isEmpty())
        return;
    const QString notice = QStringLiteral("page ") + m_id;
    m_desk.notices().remove(notice);
    const auto work = [this] {
        const int opening = m_desk.document().opening();
        if (std::exchange(m_shown, opening) != opening)
            forgetFile();
        refresh();
    };
    if (const auto refused = refusalOf(work))
        m_desk.notices().add(
            {notice, tr("The page “%1” cannot be shown: %2").arg(m_title, *refused), {}});
}

void Page::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    bringUpToDate();
}

} // namespace kiv::desktop
