// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/account.h"
#include "navigation/currency_display.h"

#include <QtCore/QString>

#include <map>

/// What accounts hold, on any day, alone and together.
namespace kiv::workbench {

/// What the transaction adds to the balance of the account, which is one of its two: positive
/// on the own side of the account's type.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money
changeOf(const accounting::Transaction &transaction, const accounting::Account &account);
/// The balance of the account at the end of the day.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money balanceOn(const accounting::Account &account,
                                                           QDate day);

/// Sums of amounts, each currency by itself.
using Sums = std::map<numira::Currency, numira::Money>;
/// Adds the amount to the sum of its currency.
KIV_WORKBENCH_EXPORT void add(Sums &sums, const numira::Money &amount);
/// "$5.00 and €3.00"
[[nodiscard]] KIV_WORKBENCH_EXPORT QString sumsText(const Sums &sums,
                                                    navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
