// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

/// The Navigator posts on the real day; these move what it posted to the day that the
/// user chose.
namespace kiv::workbench {

/// Moves a transaction to another day and keeps the rest of it; without a day nothing
/// changes. Throws a Refusal when there is no such transaction or the Navigator refuses
/// the change.
KIV_WORKBENCH_EXPORT void moveTo(Requests &requests, accounting::TransactionNumber number,
                                 const std::optional<QDate> &day);

/// Moves the transaction that opened the account to another day; an account that was
/// opened without one stays as it is. Throws as moveTo() does.
KIV_WORKBENCH_EXPORT void openOn(Requests &requests, accounting::AccountNumber account,
                                 const std::optional<QDate> &day);

/// Calls `add`, and moves the openings of all accounts that it opens to another day.
/// Throws what `add` throws, and as moveTo() does.
KIV_WORKBENCH_EXPORT void openNewOn(Requests &requests, const std::optional<QDate> &day,
                                    const std::function<void()> &add);

} // namespace kiv::workbench
