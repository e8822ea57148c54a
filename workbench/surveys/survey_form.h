// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

namespace kiv::workbench {

/// The survey of a bank account as a person fills it in: what the Navigator
/// proposes, and what the person makes of it.
struct KIV_WORKBENCH_EXPORT SurveyForm {
    banking::BankAccount account;      ///< that is surveyed
    QDate date;                        ///< of the statement
    surveying::MappingSurvey proposal; ///< the Navigator's

    numira::Money balance; ///< of the statement
    /// The transactions that the statement shows.
    std::set<accounting::TransactionNumber> reconciled;
    /// Money that the statement shows and the books do not, by what it changed
    /// the balance.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> items;
    /// The same for accounts that are no item's.
    std::map<accounting::AccountNumber, numira::Money> extras;
    surveying::Distribution distribution; ///< what is set aside for items
    numira::Money nonDistributed;         ///< what is set aside for nothing

    /// The proposal, filled in as if the statement agreed with it. Throws a
    /// Refusal when there is no such bank or the bank does not keep the
    /// account, and what the Navigator's slot throws.
    [[nodiscard]] static SurveyForm propose(Requests &requests, const QString &bank,
                                            const QString &account, QDate date);
    /// "Rent=-20.00", or "bill:Rent=-20.00" where names repeat.
    void addItem(Requests &requests, const QString &text);
    /// "Interest=1.25": an account's number or name.
    void addExtra(Requests &requests, const QString &text);
    /// "Holiday=300.00".
    void distribute(Requests &requests, const QString &text);
    /// A goal's distribution is what its account holds, and nothing else is
    /// accepted.
    void settleGoals(Requests &requests);
    /// Completes the survey. Throws a Refusal with the Navigator's reason.
    void complete(Requests &requests) const;

    /// Whether the balance is a debt, as that of a credit card, of which nothing can be
    /// set aside.
    [[nodiscard]] bool isOwed() const;
    /// The balance without what is distributed.
    [[nodiscard]] numira::Money left() const;
    /// `items` by what they did to the balance.
    [[nodiscard]] surveying::IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier>
    itemChanges() const;
    /// `extras` likewise.
    [[nodiscard]] surveying::IndexedIncreaseDecreases<accounting::AccountNumber>
    accountChanges() const;
};

} // namespace kiv::workbench
