// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QWidget>

#include <optional>

namespace kiv::desktop {

/// Allows a button or a field, or says why it cannot be used now.
inline void allow(QWidget &widget, const std::optional<QString> &whyNot)
{
    widget.setEnabled(!whyNot);
    widget.setToolTip(whyNot.value_or(QString()));
    // Screen readers skip what they are told when they are told too much at once.
    if (widget.accessibleDescription() != whyNot.value_or(QString()))
        widget.setAccessibleDescription(whyNot.value_or(QString()));
}

} // namespace kiv::desktop
