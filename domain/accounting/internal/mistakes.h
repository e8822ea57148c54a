// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

/// Mistakes of the calling program: one function each, which gives the exception to throw. They
/// stand apart from the faults, so that the simplest types need nothing else.
namespace kiv::accounting::internal {

[[nodiscard]] std::logic_error typeWithoutSide();
[[nodiscard]] std::logic_error typeWithoutName();
[[nodiscard]] std::logic_error typeWithoutText();
[[nodiscard]] std::logic_error statusWithoutName();
[[nodiscard]] std::logic_error statusNotPostable();
[[nodiscard]] std::logic_error openStatesUnknown();
[[nodiscard]] std::logic_error recordToChangeMissing();

} // namespace kiv::accounting::internal
