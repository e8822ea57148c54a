// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/balances.h"

#include "accounting/internal/faults.h"

#include "foundation/presentation.h"

#include "numira/error.h"

#include <boost/multiprecision/cpp_dec_float.hpp>

namespace kiv::accounting {
namespace {

numira::Money adjusted(const AccountCode &account, const numira::Money &balance,
                       const Transaction &transaction, bool increases)
{
    if (!transaction.involves(account.number()))
        return balance;
    const numira::Money &amount = transaction.amountFor(account.number());
    try {
        return increases ? balance + amount : balance - amount;
    } catch (const numira::Error &cause) {
        throw internal::balanceNotAdjusted(account, balance, amount, cause);
    } catch (const foundation::Error &cause) {
        throw internal::balanceNotAdjusted(account, balance, amount, cause);
    }
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
    try {
        return isWithin(calculated, window, reference);
    } catch (const numira::Error &cause) {
        throw internal::notComparable(calculated, reference, cause);
    } catch (const foundation::Error &cause) {
        throw internal::notComparable(calculated, reference, cause);
    }
}

} // namespace kiv::accounting
