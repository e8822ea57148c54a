// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/internal/mistakes.h"

namespace kiv::banking::internal {

std::logic_error bankAccountTypeUnknown()
{
    return std::logic_error("An unknown bank account type was supplied.");
}

} // namespace kiv::banking::internal
