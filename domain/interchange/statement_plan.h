// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/statement.h"

#include "accounting/account.h"
#include "accounting/transaction.h"

#include <functional>
#include <set>

/// What a bank statement comes to in a ledger, before anything is posted.
namespace kiv::interchange {

/// What the user should know of a statement or one of its entries.
struct StatementNotice {
    /// What can be told of an entry or of a statement.
    enum class Kinds {
        Pending,       ///< entries are left out that the bank has not booked yet
        Nothing,       ///< an entry of the amount zero is left out
        ToItself,      ///< an entry is left out that moves from the account to itself
        OtherAccount,  ///< the other side is no account of the ledger, and the money goes elsewhere
        BeforeOpening, ///< older than the opening balance, which may hold it already
        MaybeTransfer, ///< may be there already from the statement of its other account
    };
    Kinds kind;   ///< for those who tell it in another way
    Place place;  ///< of the entry; line 0 for the statement as a whole
    QString text; ///< a sentence for the user; entries may share it
};

/// What chose the account on the other side of an entry.
enum class ChosenBy {
    Nobody,   ///< it is still to be chosen
    Rule,     ///< a rule whose text the entry holds
    Category, ///< the name that another program gave, which is that of an account
    Default,  ///< the account for all others
};

/// An entry as it can be posted.
struct PlannedEntry {
    StatementEntry entry; ///< as the bank tells it
    /// The same between two accounts; the other one is invalid while nobody chose it.
    accounting::Transaction transaction;
    ChosenBy chosenBy = ChosenBy::Nobody;      ///< the other account
    bool isDuplicate = false;                  ///< whether it is there already
    std::vector<StatementNotice> notices = {}; ///< to be told when it is posted
};

/// All that a statement comes to.
struct StatementPlan {
    std::vector<PlannedEntry> entries;    ///< in the order of the file
    std::vector<StatementNotice> notices; ///< what was left out
};

/// The ledger that a statement is planned for.
struct StatementBooks {
    accounting::AccountCode account;             ///< that the statement is about
    numira::Currency currency;                   ///< of that account
    std::optional<QDate> openedOn;               ///< the day of its opening balance, if it has one
    std::set<accounting::Account> accounts;      ///< all that there are
    std::vector<accounting::Transaction> posted; ///< all that there are
    std::set<accounting::AccountNumber> kept;    ///< accounts that banks send statements of
};

/// Where the entries of a statement go. Accounts are named by number, name or path.
struct StatementChoices {
    std::vector<AccountRule> rules; ///< the first that fits counts
    /// The other account of entries that neither a rule nor a category knows.
    std::optional<QString> otherwise;
    /// Finds an account that is named. It is asked only for those that entries need, and
    /// what it throws passes through.
    std::function<accounting::AccountCode(const QString &)> find;
};

/// Plans to post each entry between the statement's account and another one, and
/// finds those that are there already. Throws ImportError for an entry in another
/// currency than the account's.
[[nodiscard]] KIV_INTERCHANGE_EXPORT StatementPlan planStatement(Statement statement,
                                                                 const StatementBooks &books,
                                                                 const StatementChoices &choices);

} // namespace kiv::interchange
