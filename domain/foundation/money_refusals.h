// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

#include "numira/error.h"

namespace kiv::foundation {

/// Calls `action` and gives what it gives. What the money library refuses, or the converter of the
/// domain behind it, is thrown as the error that `toError` makes of this cause: no numira::Error
/// leaves the domain.
template <typename Action, typename ToError>
decltype(auto) withMoneyRefusals(Action &&action, ToError &&toError)
{
    try {
        return action();
    } catch (const numira::Error &cause) {
        throw toError(cause);
    } catch (const Error &cause) {
        throw toError(cause);
    }
}

} // namespace kiv::foundation
