// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/errors.h"

#include "accounting/account_number.h"
#include "budgeting/identifiers.h"

#include "foundation/streams.h"

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
    IndexedIncreaseDecreases(Amounts increases, Amounts decreases)
        : m_increases(std::move(increases)), m_decreases(std::move(decreases))
    {
        for (const Amounts *amounts : {&m_increases, &m_decreases}) {
            for (const auto &[key, amount] : *amounts) {
                if (amount.isNegative())
                    throw negativeChange(amount);
            }
        }
    }

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

/// "(+ 1200=>5.00 USD, - 1300=>2.50 USD)": increases, then decreases.
KIV_SURVEYING_EXPORT std::ostream &
operator<<(std::ostream &out,
           const IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier> &changes);
/// Writes increases and decreases on one line, for logs.
KIV_SURVEYING_EXPORT std::ostream &
operator<<(std::ostream &out, const IndexedIncreaseDecreases<accounting::AccountNumber> &changes);

template <typename Key>
QDebug operator<<(QDebug debug, const IndexedIncreaseDecreases<Key> &changes)
{
    return foundation::streamed(debug, changes);
}

} // namespace kiv::surveying

Q_DECLARE_METATYPE(kiv::surveying::IndexedIncreaseDecreases<kiv::budgeting::BudgetItemIdentifier>)
Q_DECLARE_METATYPE(kiv::surveying::IndexedIncreaseDecreases<kiv::accounting::AccountNumber>)
