// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

/// Mistakes of the calling program: one function each, which gives the exception to throw. They
/// stand apart from the faults, so that the simplest types need nothing else.
namespace kiv::banking::internal {

[[nodiscard]] std::logic_error bankAccountTypeUnknown();

} // namespace kiv::banking::internal
