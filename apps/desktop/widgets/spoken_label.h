// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/delay.h"

#include <QtWidgets/QLabel>

namespace kiv::desktop {

/// A text that screen readers say when it appears or changes, wherever the focus is. They
/// know it as a notification.
class SpokenLabel : public QLabel {
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget *parent = nullptr);

    /// Shows the text, and has it said a moment later, even if it is the same as before.
    void speak(const QString &text);

private:
    Delay m_soon;
};

} // namespace kiv::desktop
