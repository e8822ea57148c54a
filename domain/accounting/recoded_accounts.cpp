// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/recoded_accounts.h"

#include <algorithm>
#include <set>

namespace kiv::accounting {

namespace {

std::set<AccountNumber> numbersOnlyIn(const GeneralLedger &one, const GeneralLedger &other)
{
    std::set<AccountNumber> numbers;
    for (const AccountCode &code : one.accountCodes()) {
        if (!other.hasLedger(code))
            numbers.insert(code.number());
    }
    return numbers;
}

} // namespace

std::map<AccountNumber, AccountNumber>
recodedAccounts(const GeneralLedger &before, const GeneralLedger &after,
                const std::vector<TransactionNumber> &changed)
{
    std::map<AccountNumber, AccountNumber> recoded;
    const std::set<AccountNumber> gone = numbersOnlyIn(before, after);
    if (gone.empty())
        return recoded;
    const auto follow = [&](AccountNumber from, AccountNumber to) {
        if (from == to || !gone.contains(from) || before.hasLedger(to))
            return;
        // One whose transactions went to several accounts was not recoded.
        const auto [found, isFirst] = recoded.try_emplace(from, to);
        if (!isFirst && found->second != to)
            found->second = from;
    };
    for (const TransactionNumber number : changed) {
        const auto was = before.lookUpOutline(number);
        const auto is = after.lookUpOutline(number);
        if (was && is) {
            follow(was->debit, is->debit);
            follow(was->credit, is->credit);
        }
    }
    const std::set<AccountNumber> added = numbersOnlyIn(after, before);
    for (const AccountNumber from : gone) {
        if (recoded.contains(from) || !before.ledger(from).transactions().empty())
            continue;
        const QString name = before.accountCode(from).name();
        const auto isNamesake = [&](AccountNumber to) {
            return after.accountCode(to).name() == name;
        };
        if (std::ranges::count_if(added, isNamesake) == 1)
            recoded.emplace(from, *std::ranges::find_if(added, isNamesake));
    }
    std::erase_if(recoded, [](const auto &pair) { return pair.first == pair.second; });
    return recoded;
}

} // namespace kiv::accounting
