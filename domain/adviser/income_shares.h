// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "adviser/export.h"

#include "budgeting/budget_totals.h"

#include <QtCore/QString>

#include <cstdint>
#include <string>
#include <vector>

namespace kiv::adviser {

/// What takes a part of the income.
enum class IncomePart : std::uint8_t {
    Planned = 1, ///< all that goes out
    Needs = 2,   ///< bills and debts
    Debts = 3,
    Spending = 4, ///< non-tracked items
    Goals = 5,
};

/// The word for programs: "planned", "needs", "debts", "spending" or "goals".
[[nodiscard]] KIV_ADVISER_EXPORT QString toQString(IncomePart part);
/// The kinds of items that it holds.
[[nodiscard]] KIV_ADVISER_EXPORT std::vector<budgeting::BudgetItemTypes> kindsOf(IncomePart part);

/// How much of the income a part takes, and whether that is sound.
struct IncomeShare {
    IncomePart part{};    ///< which part
    numira::Money amount; ///< that it takes
    numira::Money income; ///< all of it
    int limit = 0;        ///< in percent; goals should get so much, the others take no more
    bool isSound = true;  ///< whether the limit is kept
    /// In percent, with one digit behind the point at most. It is rounded so that a missed
    /// limit never reads as if it were met.
    std::string percent;
};

/// The shares of all parts, in their order. The wages must be positive (std::logic_error).
/// Throws what adding the totals throws.
[[nodiscard]] KIV_ADVISER_EXPORT std::vector<IncomeShare>
incomeShares(const budgeting::BudgetTotals &totals);

/// "Debts take 40 % of the income; up to 36 % is sound.", for the user.
[[nodiscard]] KIV_ADVISER_EXPORT QString presentationText(const IncomeShare &share);
/// The same in English, with plain numbers.
[[nodiscard]] KIV_ADVISER_EXPORT QString toQString(const IncomeShare &share);

} // namespace kiv::adviser
