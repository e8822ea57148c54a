// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "accounting/account.h"

#include <map>
#include <vector>

/// What another program's data comes to in a ledger, before anything is posted.
namespace kiv::interchange {

/// No budget holds more: transaction numbers have 16 bits.
inline constexpr qsizetype transactionsMax = 65'535;

/// An account of the other program: its kind and the names on the way from
/// that kind's root to it. What it holds in another currency is an account of
/// its own.
struct DraftAccount {
    accounting::AccountTypes type = accounting::AccountTypes::Unknown; ///< its kind
    QStringList names;                                                 ///< at least one, none empty
    numira::Currency currency; ///< the one that it is kept in
    /// The number that it should get if that is free.
    std::optional<accounting::AccountNumber> number = std::nullopt;

    friend bool operator==(const DraftAccount &, const DraftAccount &) = default;
};

/// A transaction between two of the draft's accounts, which are named by their
/// places in it. The amount is positive and in the currency of both.
struct DraftTransaction {
    QDate date;             ///< the day
    std::size_t debit = 0;  ///< the account that is debited
    std::size_t credit = 0; ///< the account that is credited
    numira::Money amount;   ///< what moves
    QString text;           ///< the description; often empty
    /// How far the debited side has come.
    accounting::TransactionStatuses debitStatus = accounting::TransactionStatuses::None;
    /// How far the credited side has come.
    accounting::TransactionStatuses creditStatus = accounting::TransactionStatuses::None;
    Place place = {}; ///< where it begins in its file
};

/// All that a file comes to.
struct Draft {
    std::vector<DraftAccount> accounts;         ///< in the order in which they are met
    std::vector<DraftTransaction> transactions; ///< in the order of the file
    /// What was left out or is kept otherwise, in sentences for the user.
    QStringList notices;
};

/// How a draft's accounts meet those of a ledger.
struct AccountPlan {
    /// What is to be opened, each after its parent, with nothing in it.
    std::vector<accounting::Account> missing;
    /// The code of each account of the draft.
    std::vector<accounting::AccountCode> codes;
};

/// Finds each account of the draft in the ledger by its path (see accountPaths),
/// and plans to open it with its parents when there is none. An account that is
/// there in another currency gets a sibling with the currency's code behind its
/// name: "Checking (EUR)".
[[nodiscard]] KIV_INTERCHANGE_EXPORT AccountPlan
planAccounts(const Draft &draft, const std::set<accounting::Account> &existing);

} // namespace kiv::interchange
