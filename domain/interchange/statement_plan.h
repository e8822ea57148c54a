// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/statement.h"

#include "accounting/account.h"
#include "accounting/transaction.h"

#include <functional>
#include <set>

/// What a bank statement would post to a ledger.
namespace kiv::interchange {

/// What the user should know about a statement or one of its entries.
struct StatementNotice {
    /// The subjects of notices.
    enum class Kinds {
        Pending,       ///< entries that the bank has not booked yet are skipped
        Nothing,       ///< an entry with amount zero is skipped
        ToItself,      ///< an entry from the account to itself is skipped
        OtherAccount,  ///< the ledger has no such other account, so another one is used
        BeforeOpening, ///< older than the opening balance, which may already include it
        MaybeTransfer, ///< the other account's statement may already have posted it
        OfTheFile,     ///< what the reader mended or left out, and balances that do not fit
    };
    Kinds kind;   ///< for front ends with their own wording
    Place place;  ///< of the entry; line 0 for the whole statement
    QString text; ///< a sentence for the user; entries may share it
};

/// What chose an entry's counter-account.
enum class ChosenBy {
    Nobody,   ///< it is still to be chosen
    Rule,     ///< a rule that matches the entry's text
    Category, ///< the entry's category, which is the name of an account
    Default,  ///< the account for all others
};

/// An entry that can be posted.
struct PlannedEntry {
    StatementEntry entry; ///< as the bank wrote it
    /// What would be posted. The counter-account is invalid as long as nobody chose it.
    accounting::Transaction transaction;
    ChosenBy chosenBy = ChosenBy::Nobody;      ///< the other account
    bool isDuplicate = false;                  ///< whether the ledger already has it
    std::vector<StatementNotice> notices = {}; ///< to be told when it is posted
};

/// All that a statement would post.
struct StatementPlan {
    std::vector<PlannedEntry> entries;    ///< in the order of the file
    std::vector<StatementNotice> notices; ///< what was left out
};

/// The ledger that a statement is imported into.
struct StatementBooks {
    accounting::AccountCode account;             ///< that the statement is about
    numira::Currency currency;                   ///< of that account
    std::optional<QDate> openedOn;               ///< the day of its opening balance, if it has one
    std::set<accounting::Account> accounts;      ///< all that there are
    std::vector<accounting::Transaction> posted; ///< all that there are
    std::set<accounting::AccountNumber> kept;    ///< accounts that banks send statements of
};

/// How counter-accounts are chosen. Accounts are given by number, name or path.
struct StatementChoices {
    std::vector<AccountRule> rules; ///< the first that matches counts
    /// The counter-account of entries that no rule and no category matches.
    std::optional<QString> otherwise;
    /// Finds an account. It is called only for accounts that entries need; its exceptions
    /// pass through.
    std::function<accounting::AccountCode(const QString &)> find;
};

/// Plans each entry as a transaction between the statement's account and a counter-account,
/// and finds duplicates. Throws ImportError for an entry in another currency than the
/// account's.
[[nodiscard]] KIV_INTERCHANGE_EXPORT StatementPlan planStatement(Statement statement,
                                                                 const StatementBooks &books,
                                                                 const StatementChoices &choices);

} // namespace kiv::interchange
