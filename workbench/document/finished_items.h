// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

/// Goals that are reached and debts that are paid off.
namespace kiv::workbench {

/// What was done with an item that came to its end.
struct Finished {
    std::optional<accounting::TransactionNumber> number; ///< that moved what its account held
    bool isClosed = false;                               ///< whether its account was closed
    QString whyOpen = {};                                ///< why it was not
};

/// Moves what the goal's account holds to `to`, which may be an expense account or that of an
/// item; without it, to the bank account under which it lies. The goal then recurs no longer,
/// and its account is closed. Throws a Refusal if there is no such goal or no such account.
KIV_WORKBENCH_EXPORT Finished finishGoal(Document &document, const QString &goal,
                                         const std::optional<accounting::AccountNumber> &to,
                                         QDate day);
/// The debt recurs no longer, and its account is closed. Throws a Refusal if there is no such
/// debt, or if anything is owed either way.
KIV_WORKBENCH_EXPORT Finished finishDebt(Document &document, const QString &debt);

/// "Finished the goal Trip."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed finishDeed(const budgeting::BudgetItemIdentifier &item);
/// What was done, a sentence for each thing.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList toldOf(Requests &requests, const Finished &done,
                                                      const budgeting::BudgetItemIdentifier &item);

} // namespace kiv::workbench
