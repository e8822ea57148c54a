// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"

#include <functional>
#include <set>

namespace kiv::interchange {

/// Hands each transaction of a ledger to a visitor, once and in any order. Sums need no copy of
/// them all.
using TransactionSource =
    std::function<void(const std::function<void(const accounting::Transaction &)> &visit)>;

/// All transactions of the accounts of a whole ledger, which the caller keeps; those from a first
/// to a last day, if there are such.
[[nodiscard]] KIV_INTERCHANGE_EXPORT TransactionSource
transactionsOf(const std::set<accounting::Account> &accounts, QDate first = {}, QDate last = {});

/// The day of the earliest transaction of the accounts, or of any that is not after the day
/// `enough`, which spares looking further; not valid without any.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QDate firstDayOf(const std::set<accounting::Account> &accounts,
                                                      QDate enough);

} // namespace kiv::interchange
