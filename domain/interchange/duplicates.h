// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"
#include "interchange/statement.h"

#include "accounting/transaction.h"

#include <map>
#include <vector>

namespace kiv::interchange {

/// The description with the bank's identifier at its end: "Bakery [id 2026-0815]". Without
/// an identifier it is the text alone.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString withBankId(const QString &text, const QString &bankId);
/// The identifier that a description ends with; empty when there is none.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString bankIdOf(const QString &description);
/// The description without the identifier that it ends with.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QStringView withoutBankId(QStringView description);

/// The most days between a transaction and the same one in a later statement: some banks give
/// an identifier again after longer.
inline constexpr qint64 sameIdDaysMax = 15;

/// Clears identifiers that do not identify: placeholders such as "0" or "NOTPROVIDED", and
/// ones shared by entries that differ in day, amount or text.
KIV_INTERCHANGE_EXPORT void forgetSharedIds(std::vector<StatementEntry> &entries);

/// Finds out whether the ledger already has a transaction that is being imported.
///
/// Where both have the bank's identifier, they are the same if the amounts are equal and
/// the days at most sameIdDaysMax apart. Otherwise day, amount and text decide. Each known
/// transaction matches once, so two coffees on one day stay two.
class KIV_INTERCHANGE_EXPORT Duplicates {
public:
    /// Compares with these transactions.
    explicit Duplicates(const std::vector<accounting::Transaction> &present);

    /// Whether the transaction is a duplicate. It counts as known afterwards.
    [[nodiscard]] bool take(const accounting::Transaction &transaction);

private:
    [[nodiscard]] bool takeId(const QString &id, const QDate &day);

    std::multimap<QString, QDate> m_ids;
    std::map<QString, int> m_withId;
    std::map<QString, int> m_withoutId;
};

} // namespace kiv::interchange
