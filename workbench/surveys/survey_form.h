// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/deed.h"
#include "workbench/requests/requests.h"

#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

namespace kiv::workbench {

/// The survey of a bank account: the Navigator's proposal, and what the user enters.
struct KIV_WORKBENCH_EXPORT SurveyForm {
    banking::BankAccount account; ///< the surveyed account
    /// The surveyed account and those directly under it.
    std::set<accounting::AccountNumber> accounts;
    QDate date;                        ///< of the statement
    surveying::MappingSurvey proposal; ///< the Navigator's
    /// What the proposal lacks since a survey of another account reconciled it, see
    /// reconciledElsewhere().
    std::vector<accounting::Transaction> elsewhere;

    numira::Money balance; ///< of the statement
    /// The transactions on the statement.
    std::set<accounting::TransactionNumber> reconciled;
    /// Money on the statement that is not in the books yet, as its effect on the
    /// balance.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> items;
    /// The same for accounts that do not belong to an item.
    std::map<accounting::AccountNumber, numira::Money> extras;
    surveying::Distribution distribution; ///< amounts set aside for items
    numira::Money nonDistributed;         ///< the amount that is not distributed

    /// The proposal, filled in as if the statement agreed with it. Throws a Refusal if
    /// the bank or its account does not exist, and what the slot throws.
    [[nodiscard]] static SurveyForm propose(Requests &requests, const QString &bank,
                                            const QString &account, QDate date);
    /// Sets nothing aside at the account any more: its last statement once more, without
    /// ticks and with an empty distribution. The account may be closed. Throws a Refusal if it
    /// was never reconciled.
    [[nodiscard]] static SurveyForm drop(Requests &requests, const QString &bank,
                                         const QString &account);
    /// Adds unbooked money of an item: "Rent=-20.00", or "bill:Rent=-20.00" if several
    /// items have the name.
    void addItem(Requests &requests, const QString &text);
    /// Adds unbooked money of an account: "Interest=1.25".
    void addExtra(Requests &requests, const QString &text);
    /// Sets money aside for an item: "Holiday=300.00".
    void distribute(Requests &requests, const QString &text);
    /// Sets the distribution of each goal to the balance of its account; no other value
    /// is accepted.
    void settleGoals(Requests &requests);
    /// Completes the survey. Throws a Refusal with the Navigator's reason.
    void complete(Requests &requests) const;

    /// Whether the balance is a debt, as of a credit card. Nothing can be set aside of
    /// it.
    [[nodiscard]] bool isOwed() const;
    /// The transactions of the proposal, and those it lacks, by day and number.
    [[nodiscard]] std::vector<accounting::Transaction> transactions() const;
    /// What the transaction does to the balance of the surveyed account; if it only touches
    /// accounts under that one, to theirs.
    [[nodiscard]] numira::Money changeBy(const accounting::Transaction &transaction) const;
    /// The account at the other side of the surveyed ones.
    [[nodiscard]] accounting::AccountNumber
    otherOf(const accounting::Transaction &transaction) const;
    /// Whether it moves money among the surveyed accounts: the statement's balance stays.
    [[nodiscard]] bool isWithin(const accounting::Transaction &transaction) const;
    /// What the balance of the statement has beyond the last one, the ticked transactions of
    /// the proposal and what is not booked yet: zero if they agree. Throws what a missing
    /// exchange rate throws.
    [[nodiscard]] numira::Money missing() const;
    /// The name of completing it, without a place.
    [[nodiscard]] Deed deed(Requests &requests) const;
    /// The balance minus the distribution.
    [[nodiscard]] numira::Money left() const;
    /// `items` by their effect on the balance.
    [[nodiscard]] surveying::IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier>
    itemChanges() const;
    /// `extras` by their effect on the balance.
    [[nodiscard]] surveying::IndexedIncreaseDecreases<accounting::AccountNumber>
    accountChanges() const;
};

} // namespace kiv::workbench
