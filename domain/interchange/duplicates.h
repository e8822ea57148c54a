// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"
#include "interchange/statement.h"

#include "accounting/transaction.h"

#include <map>
#include <set>
#include <vector>

namespace kiv::interchange {

/// A description with the bank's identifier of the transaction at its end:
/// "Bakery [id 2026-0815]". Without an identifier it is the text alone.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString withBankId(const QString &text, const QString &bankId);
/// The identifier that a description ends with; empty when there is none.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString bankIdOf(const QString &description);

/// Takes identifiers away that tell none from another: "0", "NOTPROVIDED" and their
/// like, and those that entries of one file share that differ in day, amount or text.
KIV_INTERCHANGE_EXPORT void forgetSharedIds(std::vector<StatementEntry> &entries);

/// Knows the transactions of a ledger, and finds out whether one that is to be
/// imported is there already.
///
/// By the bank's identifier, when both have one: it is the same transaction if
/// its amount is the same too, and its day no more than fifteen days away, since
/// some banks give the same identifiers again. Otherwise by day, amount and text; as many are
/// known as there are, so that two coffees on one day are two. An account that
/// is being looked at alone has its other sides left out of the comparison,
/// since the household may have moved them.
class KIV_INTERCHANGE_EXPORT Duplicates {
public:
    /// Knows those of the ledger, or of one account. `kept` are the accounts of
    /// banks, which have statements too.
    explicit Duplicates(const std::vector<accounting::Transaction> &present,
                        std::optional<accounting::AccountNumber> account = std::nullopt,
                        std::set<accounting::AccountNumber> kept = {});

    /// Whether the transaction is a duplicate; it counts as present afterwards.
    [[nodiscard]] bool take(const accounting::Transaction &transaction);
    /// Whether it may be a transfer that is there from the statement of its other
    /// account, which tells it in words and with an identifier of its own: day, amount
    /// and both accounts are the same, as those of a second transfer would be, too. To
    /// be asked once all have been taken, of those that are new.
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
