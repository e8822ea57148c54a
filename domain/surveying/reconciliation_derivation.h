// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/completed_surveys.h"
#include "surveying/reconciliation.h"

/// Where reconciliations come from: they are derived from the books, so that nothing that
/// surveys an account has to know of them.
namespace kiv::surveying {

/// The parts of a version of the books from which reconciliations are derived.
struct SurveyedBooks {
    const CompletedSurveys &surveys;         ///< the last one of each bank account
    const accounting::GeneralLedger &ledger; ///< with the accounts that were surveyed
};

/// One reconciliation for each survey that has a day, for books that kept none: with the
/// transactions up to that day whose side of the account, or of an account directly below
/// it, is reconciled.
[[nodiscard]] KIV_SURVEYING_EXPORT Reconciliations firstReconciliations(const SurveyedBooks &books);

/// The reconciliations of a version, from those of the version before and both books:
///
/// - A survey with another day or balance adds one, with the transactions up to its day of
///   which a side became reconciled since: the account's, or that of an account below it.
/// - A survey with the same day and balance adds one if sides of its own account became
///   reconciled otherwise.
/// - A survey that stands under another bank account now, with equal day and balance,
///   takes its reconciliations along.
/// - An account that is gone, while its transactions stand on a new one, was recoded: its
///   number changes everywhere.
///
/// Looks only at the surveys and at what differs between the ledgers, see
/// changedTransactions; with no difference there, the cost does not depend on `kept`.
[[nodiscard]] KIV_SURVEYING_EXPORT Reconciliations reconciliationsAfter(Reconciliations kept,
                                                                        const SurveyedBooks &before,
                                                                        const SurveyedBooks &after);

} // namespace kiv::surveying
