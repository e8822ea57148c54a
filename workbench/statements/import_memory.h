// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_rules.h"

#include "interchange/csv_profile.h"
#include "storage/notes.h"

#include <functional>
#include <map>

namespace kiv::workbench {

/// What a budget remembers of imports, beside its books: rules, what the household said about
/// payees, and how each account's bank writes its files.
struct KIV_WORKBENCH_EXPORT ImportMemory {
    /// What is remembered of the statements of one account.
    struct Account {
        QString bankNumber; ///< as the bank's files write the account; empty if they do not
        /// How the bank writes its tables; nothing if it is found in each.
        std::optional<interchange::CsvProfile> profile;
        /// Identifiers of transactions, see StatementBooks::told.
        std::map<accounting::TransactionNumber, QString> told = {};
    };

    std::vector<ImportRule> rules; ///< the first that fits counts
    /// What entries of a payee are for, by payeeKey(); the oldest first.
    std::vector<std::pair<QString, accounting::AccountNumber>> learned;
    std::map<accounting::AccountNumber, Account> accounts; ///< by the budget's own account

    /// Reads the notes of a budget. What is damaged there is left out.
    [[nodiscard]] static ImportMemory of(const storage::Notes &notes);
    /// The notes with this in them. Throws a Refusal when there are too many rules. When too
    /// much was learned, the oldest goes.
    [[nodiscard]] storage::Notes keptIn(storage::Notes notes) const;

    /// Learns what entries of the payee are for, in place of what was known.
    void learn(const QString &payeeKey, accounting::AccountNumber target);
    /// Gives the accounts other numbers. What is about accounts for which there is none goes.
    void renumber(
        const std::function<std::optional<accounting::AccountNumber>(accounting::AccountNumber)>
            &numberNow);
};

/// What stays the same in each entry of a payee: the first words of the payee or, without
/// one, of the text; without case, accents and all words with digits. Empty if nothing is left.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString payeeKey(const QString &payee, const QString &text);

} // namespace kiv::workbench
