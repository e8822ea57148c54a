// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/announcer.h"

namespace kiv::desktop {

Announcer::Announcer(QWidget *parent) : SpokenLabel(parent)
{
    setObjectName(QStringLiteral("announcer"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Announcer::say(const QString &sentence)
{
    setToolTip(sentence);
    speak(sentence);
}

} // namespace kiv::desktop
