// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/scoped_balances.h"

#include "interchange/internal/journal_faults.h"
#include "interchange/internal/quantity_reader.h"

namespace kiv::interchange::internal {

void ScopedBalances::add(Sums &sums, const Quantity &amount)
{
    numira::Decimal &sum = sums[amount.commodity];
    sum += amount.number;
    if (sum.sign() == 0)
        sums.erase(amount.commodity);
}

void ScopedBalances::add(const QString &account, const Quantity &amount)
{
    add(m_own[account], amount);
    if (m_parents.empty())
        return;
    for (qsizetype end = account.size(); end > 0; end = account.lastIndexOf(u':', end - 1)) {
        const QString parent = account.left(end);
        if (m_parents.contains(parent))
            add(m_withChildren[parent], amount);
    }
}

void ScopedBalances::require(const QString &account, const Quantity &asserted, AssertionScope scope,
                             const Place &place) const
{
    const auto &balances = scope.withChildren ? m_withChildren : m_own;
    const auto found = balances.find(account);
    static const Sums none;
    const Sums &present = found == balances.end() ? none : found->second;
    const auto sum = present.find(asserted.commodity);
    const numira::Decimal number = sum == present.end() ? numira::Decimal() : sum->second;
    const std::size_t others = present.size() - (sum == present.end() ? 0 : 1);
    if (number != asserted.number)
        throw faults::assertionFailed(place, account, presentationText(asserted),
                                      presentationText(Quantity{number, asserted.commodity}));
    if (scope.isSole && others > 0)
        throw faults::otherCommodities(place, account, asserted.commodity);
}

} // namespace kiv::interchange::internal
