// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/errors.h"
#include "budgeting/item_traits.h"

#include "foundation/debug_stream.h"

#include <map>
#include <ostream>

namespace kiv::budgeting {

/// The budget's items of one kind by their sources; the key is always the
/// item's own source. Every refusal is a BudgetItemError and leaves the map
/// unchanged, with one exception in update().
template <BudgetItem T>
class BudgetedMoneyMap {
public:
    /// Goes over pairs of source and item in the order of sources.
    using const_iterator = typename std::map<BudgetSource, T>::const_iterator;

    /// Whether there is no item.
    [[nodiscard]] bool isEmpty() const noexcept { return m_items.empty(); }
    /// How many items there are.
    [[nodiscard]] std::size_t size() const noexcept { return m_items.size(); }
    /// The first item.
    [[nodiscard]] const_iterator begin() const noexcept { return m_items.begin(); }
    /// Behind the last item.
    [[nodiscard]] const_iterator end() const noexcept { return m_items.end(); }
    /// The item of this name, or end().
    [[nodiscard]] const_iterator find(const BudgetSource &source) const
    {
        return m_items.find(source);
    }
    /// Whether there is an item of this name.
    [[nodiscard]] bool contains(const BudgetSource &source) const
    {
        return m_items.contains(source);
    }
    /// Throws std::out_of_range when there is none.
    [[nodiscard]] const T &at(const BudgetSource &source) const { return m_items.at(source); }
    /// The same, to be changed in all but its name.
    [[nodiscard]] T &at(const BudgetSource &source) { return m_items.at(source); }
    /// The names of all items.
    [[nodiscard]] std::set<BudgetSource> sources() const
    {
        std::set<BudgetSource> sources;
        for (const auto &[source, item] : m_items)
            sources.insert(sources.end(), source);
        return sources;
    }
    /// The sum of the amounts in `currency`, each restated per `frequency`. Throws
    /// std::logic_error for a frequency above the known ones, and what a missing
    /// exchange rate throws.
    [[nodiscard]] numira::Money total(const numira::Currency &currency,
                                      EventFrequency frequency) const
    {
        const EventFrequency per = known(frequency); // also without any item
        return numira::math::sum(currency, m_items, [per](const auto &entry) {
            return accumulateOver(per, entry.second.amount(), entry.second.period());
        });
    }

    /// Refused: an empty name, a name in use.
    void add(T item);

    /// Refused: no item of this name.
    void remove(const BudgetSource &source);

    /// Replaces the item of the same source. With another currency it is
    /// removed and added again, so that the checks of add run again; when those
    /// refuse it (its source is empty, since it was renamed to that), the item
    /// is gone.
    void update(T item);

    /// Renaming onto the own name is refused like any other name in use; an
    /// empty new name is accepted.
    void rename(const BudgetSource &from, BudgetSource to);

    friend bool operator==(const BudgetedMoneyMap &, const BudgetedMoneyMap &) = default;

private:
    std::map<BudgetSource, T> m_items;
};

extern template class KIV_BUDGETING_EXPORT BudgetedMoneyMap<Bill>;
extern template class KIV_BUDGETING_EXPORT BudgetedMoneyMap<Debt>;
extern template class KIV_BUDGETING_EXPORT BudgetedMoneyMap<Goal>;
extern template class KIV_BUDGETING_EXPORT BudgetedMoneyMap<Nontrack>;
extern template class KIV_BUDGETING_EXPORT BudgetedMoneyMap<Wage>;

// Classes of their own rather than aliases: the names under which they cross
// signals and slots.
class KIV_BUDGETING_EXPORT BillMap final : public BudgetedMoneyMap<Bill> {};
class KIV_BUDGETING_EXPORT DebtMap final : public BudgetedMoneyMap<Debt> {};
class KIV_BUDGETING_EXPORT GoalMap final : public BudgetedMoneyMap<Goal> {};
class KIV_BUDGETING_EXPORT NontrackMap final : public BudgetedMoneyMap<Nontrack> {};
class KIV_BUDGETING_EXPORT WageMap final : public BudgetedMoneyMap<Wage> {};

/// The items' own forms between parentheses, ", " between them.
template <BudgetItem T>
std::ostream &operator<<(std::ostream &out, const BudgetedMoneyMap<T> &map)
{
    out << '(';
    const char *separator = "";
    for (const auto &[source, item] : map) {
        out << separator << item;
        separator = ", ";
    }
    return out << ')';
}

using foundation::operator<<;

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::BillMap)
Q_DECLARE_METATYPE(kiv::budgeting::DebtMap)
Q_DECLARE_METATYPE(kiv::budgeting::GoalMap)
Q_DECLARE_METATYPE(kiv::budgeting::NontrackMap)
Q_DECLARE_METATYPE(kiv::budgeting::WageMap)
