// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/errors.h"

#include "numira/money.h"

#include <stdexcept>

/// Every sentence with which this library refuses something: one function each, which gives the
/// exception to throw.
namespace kiv::surveying::internal {

[[nodiscard]] foundation::Error negativeChange(const numira::Money &amount);
[[nodiscard]] SurveyError completedOnNoDay(const banking::BankAccount &account);
/// A mistake of the calling program.
[[nodiscard]] std::logic_error itemTypeUnknown();

} // namespace kiv::surveying::internal
