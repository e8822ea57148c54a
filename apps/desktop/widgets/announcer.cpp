// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/announcer.h"

#include <QtGui/QAccessible>

namespace kiv::desktop {

Announcer::Announcer(QWidget *parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("announcer"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Announcer::say(const QString &sentence)
{
    setText(sentence);
    setToolTip(sentence);
    setAccessibleName(sentence);
    // Qt 6.8 has an event of its own for announcements; until then an alert is read.
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace kiv::desktop
