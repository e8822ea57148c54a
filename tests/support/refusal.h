// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

namespace kiv::test {

/// Why the call is refused; empty when it is not.
template <typename Call>
QString refusalOf(Call &&call)
{
    try {
        call();
    } catch (const foundation::Error &error) {
        return error.message();
    }
    return {};
}

} // namespace kiv::test
