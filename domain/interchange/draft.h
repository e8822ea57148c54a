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

/// An account of the other program: its kind and its path below that kind. An account with
/// several currencies becomes one such account per currency.
struct DraftAccount {
    accounting::AccountTypes type = accounting::AccountTypes::Unknown; ///< its kind
    QStringList names;                                                 ///< at least one, none empty
    numira::Currency currency;                                         ///< in which it is kept
    /// The number that it gets if that is free.
    std::optional<accounting::AccountNumber> number = std::nullopt;

    friend bool operator==(const DraftAccount &, const DraftAccount &) = default;
};

/// A transaction between two of the draft's accounts, given as indexes. The amount is
/// positive, in the currency of both accounts.
struct DraftTransaction {
    QDate date;             ///< the day
    std::size_t debit = 0;  ///< the account that is debited
    std::size_t credit = 0; ///< the account that is credited
    numira::Money amount;   ///< what moves
    QString text;           ///< the description; often empty
    /// The status of the debited side.
    accounting::TransactionStatuses debitStatus = accounting::TransactionStatuses::None;
    /// The status of the credited side.
    accounting::TransactionStatuses creditStatus = accounting::TransactionStatuses::None;
    Place place = {}; ///< where it begins in its file
};

/// All that a file contains.
struct Draft {
    std::vector<DraftAccount> accounts;         ///< in the order of their first use
    std::vector<DraftTransaction> transactions; ///< in the order of the file
    /// Sentences for the user about what was skipped or changed.
    QStringList notices;
};

/// The account under Equity:Conversion through which one side of an exchange between
/// currencies goes, so that both sides stay as they were booked.
[[nodiscard]] KIV_INTERCHANGE_EXPORT DraftAccount
conversionAccount(const numira::Currency &currency);

/// How a draft's accounts map to those of a ledger.
struct AccountPlan {
    /// Accounts to open, empty, each after its parent.
    std::vector<accounting::Account> missing;
    /// The code of each account of the draft.
    std::vector<accounting::AccountCode> codes;
};

/// Finds each account of the draft in the ledger by its path (see accountPaths). Plans to
/// open missing accounts and their parents. Where the ledger has the account in another
/// currency, a sibling is planned with the currency in its name: "Checking (EUR)".
[[nodiscard]] KIV_INTERCHANGE_EXPORT AccountPlan
planAccounts(const Draft &draft, const std::set<accounting::Account> &existing);

} // namespace kiv::interchange
