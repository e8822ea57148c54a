// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "accounting/account_number.h"
#include "budgeting/identifiers.h"
#include "foundation/debug_stream.h"
#include "numira/money.h"

#include <map>

namespace kiv::surveying {

/// Money that a statement shows and the ledger does not: by what it raised and
/// lowered the bank account's balance, per budget item or per ledger account on
/// the other side. No amount is negative, and one of zero changes nothing.
template <typename Key>
class IndexedIncreaseDecreases {
public:
    /// Amounts by what stands on the other side.
    using Amounts = std::map<Key, numira::Money>;

    IndexedIncreaseDecreases() = default;
    /// Throws foundation::Error when an amount is negative.
    IndexedIncreaseDecreases(Amounts increases, Amounts decreases);

    /// What raised the balance.
    [[nodiscard]] const Amounts &increases() const noexcept { return m_increases; }
    /// What lowered the balance.
    [[nodiscard]] const Amounts &decreases() const noexcept { return m_decreases; }

    friend bool operator==(const IndexedIncreaseDecreases &,
                           const IndexedIncreaseDecreases &) = default;

private:
    Amounts m_increases;
    Amounts m_decreases;
};

extern template class KIV_SURVEYING_EXPORT
    IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier>;
extern template class KIV_SURVEYING_EXPORT IndexedIncreaseDecreases<accounting::AccountNumber>;

/// "(+ 1200=>5.00 USD, - 1300=>2.50 USD)": increases, then decreases.
KIV_SURVEYING_EXPORT std::ostream &
operator<<(std::ostream &out,
           const IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier> &changes);
/// Writes increases and decreases on one line, for logs.
KIV_SURVEYING_EXPORT std::ostream &
operator<<(std::ostream &out, const IndexedIncreaseDecreases<accounting::AccountNumber> &changes);

using foundation::operator<<;

} // namespace kiv::surveying

Q_DECLARE_METATYPE(kiv::surveying::IndexedIncreaseDecreases<kiv::budgeting::BudgetItemIdentifier>)
Q_DECLARE_METATYPE(kiv::surveying::IndexedIncreaseDecreases<kiv::accounting::AccountNumber>)
