// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "budgeting/budget.h"

#include <map>
#include <set>

namespace kiv::workbench {

/// A budget item that may be paid with an entry of a statement.
struct PayableItem {
    budgeting::BudgetItemIdentifier id; ///< its kind and name
    numira::Money amount;               ///< that is expected each time
    accounting::AccountNumber account;  ///< that is posted
    budgeting::EventFrequency period = budgeting::EventFrequency::None; ///< how often it recurs
    QDate next;                                                         ///< when it is due next
    int dayOfMonth = 1; ///< the day of the month that it was given

    /// Whether money comes in with it: a wage.
    [[nodiscard]] bool comesIn() const { return id.type == budgeting::BudgetItemTypes::Wage; }
};

/// The open budget, as a statement of one of its accounts is compared with it.
struct StatementBooks {
    accounting::AccountCode account; ///< that the statement is about
    numira::Currency currency;       ///< of that account
    /// What opened the account, if it had a balance then.
    std::optional<accounting::TransactionNumber> opening = std::nullopt;
    std::set<accounting::Account> accounts = {};      ///< all that there are
    std::vector<accounting::Transaction> posted = {}; ///< all that there are
    std::set<accounting::AccountNumber> kept = {};    ///< of which banks send statements
    std::vector<PayableItem> items = {};              ///< that recur or are due once
    /// The identifiers with which a statement told transactions whose descriptions could not
    /// take them, since the other side was reconciled.
    std::map<accounting::TransactionNumber, QString> told = {};
};

/// The open budget for a statement of this account. Throws what the Navigator's slots throw.
[[nodiscard]] KIV_WORKBENCH_EXPORT StatementBooks
statementBooks(Requests &requests, const accounting::Account &account);

/// The accounts of which banks send statements, with their banks' names.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::map<accounting::AccountNumber, QString>
accountsWithStatements(Requests &requests);

} // namespace kiv::workbench
