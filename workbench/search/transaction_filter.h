// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/search/filter_part.h"

#include "accounting/transaction.h"

#include <memory>

namespace kiv::workbench {

/// A search for transactions, such as `groceries >50 march not:reconciled`. All parts must
/// fit; an empty search fits everything.
///
/// - Words are looked for in the payee, the reason and the plain names of both accounts,
///   ignoring case and accents. "Quoted words" stay together.
/// - `>50`, `>=50`, `<20`, `<=20`, `=12.30` and `50..80` compare the amount, as typed in the
///   locale or with a point. A currency can follow: `>50EUR`.
/// - Days and months: `2026-03-05`, `2026-03`, `march 2026`, and ranges of those with `..`,
///   in which a side may be missing. `march` alone is the newest one that has begun. Also
///   `today`, `yesterday`, and `this` or `last` with `month` or `year`. These names can be in
///   English or in the user's language.
/// - `is:reconciled`, `is:cleared`, `is:open`, and `not:` for the opposite. A transaction has
///   the higher mark of its two sides, and is open without any. If the search names accounts,
///   only their sides count.
/// - `account:`, `item:` and `payee:` look at that alone. An account or item is the one with
///   that name, or else all with it in their names.
/// - A `-` before a part excludes what it fits.
class KIV_WORKBENCH_EXPORT TransactionFilter {
public:
    /// Reads the search. Throws an EntryError or a Refusal that names the part that cannot be
    /// understood, or that names no account or item of the index.
    TransactionFilter(const QString &text, const AccountIndex &index, QDate today);
    /// The same for parts.
    TransactionFilter(std::vector<FilterPart> parts, const AccountIndex &index, QDate today);
    ~TransactionFilter();
    TransactionFilter(TransactionFilter &&) noexcept;
    TransactionFilter &operator=(TransactionFilter &&) noexcept;

    /// Whether all parts fit. It is asked for each of tens of thousands of transactions, so
    /// what can be prepared was prepared before.
    [[nodiscard]] bool matches(const accounting::Transaction &transaction) const;
    /// The parts, as typed.
    [[nodiscard]] const std::vector<FilterPart> &parts() const noexcept { return m_parts; }

private:
    struct Prepared;

    std::vector<FilterPart> m_parts;
    std::unique_ptr<const Prepared> m_prepared;
};

} // namespace kiv::workbench
