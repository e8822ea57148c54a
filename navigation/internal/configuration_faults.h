// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

#include <QtCore/QString>

#include <stdexcept>

/// What is found fault with in settings and starter budgets: one function for each, which gives
/// the exception to throw.
namespace kiv::navigation::internal::faults {

// ---- for the user ----------------------------------------------------------------

[[nodiscard]] foundation::Error workHoursOutOfRange();
[[nodiscard]] foundation::Error workDaysOutOfRange();
/// `codes` are joined by "', '".
[[nodiscard]] foundation::Error currenciesInUse(const QString &codes);
[[nodiscard]] foundation::Error notifyDueWithinOutOfRange();
[[nodiscard]] foundation::Error surveyWindowOutOfRange();

// ---- for the programmer ----------------------------------------------------------

[[nodiscard]] std::logic_error unknownStrongValue(const QString &value, const QString &target);
[[nodiscard]] std::logic_error unknownWeakValue(const QString &value, const QString &target);
[[nodiscard]] std::logic_error unknownWayToDisplayCurrency();
[[nodiscard]] std::logic_error unknownWayCurrencyWasDisplayed();
[[nodiscard]] std::logic_error unknownCurrencySymbol();
[[nodiscard]] std::logic_error noStarterBudget();
[[nodiscard]] std::logic_error unknownStarterItem();

} // namespace kiv::navigation::internal::faults
