// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/balances.h"

#include "accounting/internal/faults.h"

#include "foundation/money_refusals.h"

#include <boost/multiprecision/cpp_dec_float.hpp>

namespace kiv::accounting {
namespace {

numira::Money adjusted(const AccountCode &account, const numira::Money &balance,
                       const Transaction &transaction, bool increases)
{
    if (!transaction.involves(account.number()))
        return balance;
    const numira::Money &amount = transaction.amountFor(account.number());
    return foundation::withMoneyRefusals(
        [&] { return increases ? balance + amount : balance - amount; },
        [&](const std::exception &cause) {
            return internal::balanceNotAdjusted(account, balance, amount, cause);
        });
}

/// Holds every product of an amount (37 digits) and a percentage exactly.
using Exact = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<100>,
                                            boost::multiprecision::et_off>;

Exact exactly(const numira::Decimal &decimal)
{
    return Exact(decimal.toText());
}

bool isWithin(const numira::Money &calculated, const foundation::Percentage &window,
              const numira::Money &reference)
{
    const numira::Money comparable = calculated.convertedTo(reference.code());
    const Exact distance = abs(exactly(comparable.amount()) - exactly(reference.amount()));
    return distance <= abs(exactly(reference.amount())) * exactly(window.fraction());
}

} // namespace

bool shouldIncreaseAsset(const Transaction &transaction, AccountNumber account) noexcept
{
    return transaction.debiting().number() == account;
}

bool shouldIncreaseLiability(const Transaction &transaction, AccountNumber account) noexcept
{
    return transaction.crediting().number() == account;
}

numira::Money adjustAssetBalance(const AccountCode &account, const numira::Money &balance,
                                 const Transaction &transaction)
{
    return adjusted(account, balance, transaction,
                    shouldIncreaseAsset(transaction, account.number()));
}

numira::Money adjustLiabilityBalance(const AccountCode &account, const numira::Money &balance,
                                     const Transaction &transaction)
{
    return adjusted(account, balance, transaction,
                    shouldIncreaseLiability(transaction, account.number()));
}

bool isWithinWindow(const numira::Money &calculated, const foundation::Percentage &window,
                    const numira::Money &reference, ByMajorUnit /*both sides would be scaled*/)
{
    return foundation::withMoneyRefusals([&] { return isWithin(calculated, window, reference); },
                                         [&](const std::exception &cause) {
                                             return internal::notComparable(calculated, reference,
                                                                            cause);
                                         });
}

} // namespace kiv::accounting
