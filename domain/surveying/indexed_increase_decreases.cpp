// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/indexed_increase_decreases.h"

#include "surveying/internal/faults.h"

namespace kiv::surveying {
namespace {

template <typename Key>
std::ostream &streamChanges(std::ostream &out, const IndexedIncreaseDecreases<Key> &changes)
{
    out << '(';
    const char *separator = "";
    const auto streamAll = [&](char sign, const auto &amounts) {
        for (const auto &[key, amount] : amounts) {
            out << separator << sign << ' ' << key << "=>" << amount;
            separator = ", ";
        }
    };
    streamAll('+', changes.increases());
    streamAll('-', changes.decreases());
    return out << ')';
}

} // namespace

template <typename Key>
IndexedIncreaseDecreases<Key>::IndexedIncreaseDecreases(Amounts increases, Amounts decreases)
    : m_increases(std::move(increases)), m_decreases(std::move(decreases))
{
    for (const Amounts *amounts : {&m_increases, &m_decreases}) {
        for (const auto &[key, amount] : *amounts) {
            if (amount.isNegative())
                throw internal::negativeChange(amount);
        }
    }
}

template class IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier>;
template class IndexedIncreaseDecreases<accounting::AccountNumber>;

std::ostream &operator<<(std::ostream &out,
                         const IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier> &changes)
{
    return streamChanges(out, changes);
}

std::ostream &operator<<(std::ostream &out,
                         const IndexedIncreaseDecreases<accounting::AccountNumber> &changes)
{
    return streamChanges(out, changes);
}

} // namespace kiv::surveying
