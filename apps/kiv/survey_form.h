// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session.h"

#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

#include <QtCore/QJsonObject>

namespace kiv::app {

/// The survey of a bank account as a person fills it in: what the Navigator
/// proposes, and what the person makes of it.
struct SurveyForm {
    banking::BankAccount account;
    QDate date;
    surveying::MappingSurvey proposal;

    numira::Money balance; ///< of the statement
    std::set<accounting::TransactionNumber> reconciled;
    /// Money that the statement shows and the books do not, by what it changed
    /// the balance.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> items;
    std::map<accounting::AccountNumber, numira::Money> extras;
    surveying::Distribution distribution;
    numira::Money nonDistributed;

    /// The proposal, filled in as if the statement agreed with it. Throws a
    /// Refusal when there is no such bank or the bank does not keep the
    /// account, and what the Navigator's slot throws.
    [[nodiscard]] static SurveyForm propose(Session &session, const QString &bank,
                                            const QString &account, QDate date);
    /// A new proposal, filled in as an edited document says: its balance,
    /// reconciled, items, accounts and distribution count.
    [[nodiscard]] static SurveyForm fromJson(Session &session, const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson(Session &session) const;

    /// "Rent=-20.00", or "bill:Rent=-20.00" where names repeat.
    void addItem(Session &session, const QString &text);
    /// "Interest=1.25": an account's number or name.
    void addExtra(Session &session, const QString &text);
    /// "Holiday=300.00".
    void distribute(Session &session, const QString &text);
    /// A goal's distribution is what its account holds, and nothing else is
    /// accepted.
    void settleGoals(Session &session);

    /// Whether the balance is a debt, as that of a credit card, of which nothing can be
    /// set aside.
    [[nodiscard]] bool isOwed() const;
    /// The balance without what is distributed.
    [[nodiscard]] numira::Money left() const;
    [[nodiscard]] surveying::IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier>
    itemChanges() const;
    [[nodiscard]] surveying::IndexedIncreaseDecreases<accounting::AccountNumber>
    accountChanges() const;
};

} // namespace kiv::app
