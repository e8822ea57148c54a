// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/mistakes.h"

namespace kiv::accounting::internal {

std::logic_error typeWithoutSide()
{
    return std::logic_error(
        "An unknown account type has no side on which its balance is positive.");
}

std::logic_error typeWithoutName()
{
    return std::logic_error("An unknown account type has no name.");
}

std::logic_error typeWithoutText()
{
    return std::logic_error("An unknown account type has no text.");
}

std::logic_error statusWithoutName()
{
    return std::logic_error("An unknown transaction status has no name.");
}

std::logic_error statusNotPostable()
{
    return std::logic_error("An unknown transaction status cannot be posted.");
}

std::logic_error openStatesUnknown()
{
    return std::logic_error("Accounts are open, closed or either.");
}

std::logic_error recordToChangeMissing()
{
    return std::logic_error("There is no such transaction to change.");
}

} // namespace kiv::accounting::internal
