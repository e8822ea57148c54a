// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

/// Mistakes of the calling program: one function each, which gives the exception to throw. They
/// stand apart from the faults, so that the simplest types need nothing else.
namespace kiv::budgeting::internal {

[[nodiscard]] std::logic_error itemTypeUnknown();
[[nodiscard]] std::logic_error frequencyUnknown();

} // namespace kiv::budgeting::internal
