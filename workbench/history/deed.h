// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace kiv::workbench {

/// A change as the user sees it.
struct Deed {
    QString line;   ///< a sentence for lists: "Paid Rent."
    QString undone; ///< completes "Undo …": "paying “Rent”"; empty if only the line is known
    QString place;  ///< where it happened, in the front end's own words; may be empty

    friend bool operator==(const Deed &, const Deed &) = default;
};

/// A state of the budget in this session.
struct Step {
    Deed deed;              ///< that led to it; none for the state at opening
    QDateTime at;           ///< when, in UTC
    bool isPresent = false; ///< whether it is the budget in memory
};

} // namespace kiv::workbench
