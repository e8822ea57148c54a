// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"
#include "interchange/statement.h"

#include "accounting/transaction.h"

#include <map>
#include <set>
#include <vector>

namespace kiv::interchange {

/// The description with the bank's identifier at its end: "Bakery [id 2026-0815]". Without
/// an identifier it is the text alone.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString withBankId(const QString &text, const QString &bankId);
/// The identifier that a description ends with; empty when there is none.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString bankIdOf(const QString &description);
/// The description without the identifier that it ends with.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QStringView withoutBankId(QStringView description);

/// Clears identifiers that do not identify: placeholders such as "0" or "NOTPROVIDED", and
/// ones shared by entries that differ in day, amount or text.
KIV_INTERCHANGE_EXPORT void forgetSharedIds(std::vector<StatementEntry> &entries);

/// Finds out whether the ledger already has a transaction that is being imported.
///
/// Where both have the bank's identifier, they are the same if the amounts are equal and
/// the days at most fifteen days apart: some banks reuse identifiers. Otherwise day, amount
/// and text decide. Each known transaction matches once, so two coffees on one day stay
/// two. When only one account is compared, the other sides do not count: the household may
/// have moved them.
class KIV_INTERCHANGE_EXPORT Duplicates {
public:
    /// Compares with these transactions, or only with those of `account`. `kept` are the
    /// accounts for which banks send statements.
    explicit Duplicates(const std::vector<accounting::Transaction> &present,
                        std::optional<accounting::AccountNumber> account = std::nullopt,
                        std::set<accounting::AccountNumber> kept = {});

    /// Whether the transaction is a duplicate. It counts as known afterwards.
    [[nodiscard]] bool take(const accounting::Transaction &transaction);
    /// Whether it may be a transfer that the other account's statement already posted, with
    /// another text and identifier: day, amount and both accounts are the same. A second
    /// transfer looks the same, so this is only a guess. Ask it for new transactions, after
    /// take() was called for all.
    [[nodiscard]] bool takeTransfer(const accounting::Transaction &transaction);

private:
    [[nodiscard]] bool isLookedAt(const accounting::Transaction &transaction) const;
    [[nodiscard]] QString amountKey(const accounting::Transaction &transaction) const;
    [[nodiscard]] QString contentKey(const accounting::Transaction &transaction) const;
    [[nodiscard]] QString idKey(const accounting::Transaction &transaction) const;

    [[nodiscard]] QString transferKey(const accounting::Transaction &transaction) const;
    [[nodiscard]] bool takeId(const QString &id, const QDate &day);
    void claim(const QString &transfer, const QString &id, const QString &content);

    /// A transfer that was there before, by what it would be known otherwise.
    struct Transfer {
        QString id;
        QString content;
    };

    std::optional<accounting::AccountNumber> m_account;
    std::set<accounting::AccountNumber> m_kept;
    std::multimap<QString, Transfer> m_transfers; ///< that no entry was found to be
    std::multimap<QString, QDate> m_ids;
    std::map<QString, int> m_withId;
    std::map<QString, int> m_withoutId;
};

} // namespace kiv::interchange
