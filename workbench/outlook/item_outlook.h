// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/outlook/payoff.h"
#include "workbench/requests/item_figures.h"

#include "navigation/currency_display.h"

namespace kiv::workbench {

/// How far a goal or a debt has come, and when a debt is paid off.
struct KIV_WORKBENCH_EXPORT ItemOutlook {
    budgeting::BudgetItemIdentifier item; ///< the goal or debt
    ItemProgress progress;                ///< what is saved, or still owed
    std::optional<Payoff> payoff;         ///< of a debt that is paid regularly and has an end
    bool isEnded = false;                 ///< the goal is reached, or the debt paid off
    bool recurs = false;                  ///< whether it becomes due again
    bool isOpen = false;                  ///< whether its account is
    QString sentence;                     ///< all of it, in the user's language

    /// Whether it still becomes due though there is nothing left to save or to pay.
    [[nodiscard]] bool shouldEnd() const { return isEnded && recurs; }
    /// Whether finishGoal() or finishDebt() has something to do.
    [[nodiscard]] bool canEnd() const { return isEnded && (recurs || isOpen); }
};

/// The outlook of a goal or a debt; nothing for other items, and without an account.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<ItemOutlook>
outlookOf(const storage::BudgetStorage::Data &data, const budgeting::BudgetedMoney &item,
          navigation::CurrencyDisplayOptions displayAs);

/// The outlooks of all goals, and then of all debts.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<ItemOutlook>
outlooksOf(const storage::BudgetStorage::Data &data, navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
