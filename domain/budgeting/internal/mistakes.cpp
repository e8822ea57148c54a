// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/internal/mistakes.h"

namespace kiv::budgeting::internal {

std::logic_error itemTypeUnknown()
{
    return std::logic_error("An unknown budget item type was supplied.");
}

std::logic_error frequencyUnknown()
{
    return std::logic_error("An unknown event frequency was supplied.");
}

} // namespace kiv::budgeting::internal
