// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>

#include <cstdint>
#include <ostream>

namespace kiv::navigation {

/// The households for which the first-time wizard has a starter budget.
enum class BudgetWizardTemplates : std::uint8_t {
    None = 0,  ///< an empty budget
    Child = 1, ///< has no starter budget and is refused
    Teenager = 2,
    AdultSingle = 3,
    AdultMarriedSingleIncome = 4,
    AdultMarriedDoubleIncome = 5,
};

/// Such as "Adult, married, single income".
KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, BudgetWizardTemplates household);
using foundation::operator<<;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::BudgetWizardTemplates)
