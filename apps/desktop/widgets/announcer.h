// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/spoken_label.h"

namespace kiv::desktop {

/// Says what happened in a sentence: shows it in the status line, and tells screen
/// readers.
class Announcer final : public SpokenLabel {
    Q_OBJECT

public:
    explicit Announcer(QWidget *parent = nullptr);

    /// Says it. The sentence stays until the next one.
    void say(const QString &sentence);
};

} // namespace kiv::desktop
