// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QChar>

namespace kiv::interchange::internal {

/// Whether it is one of 0 to 9; the digits of other scripts are none.
[[nodiscard]] constexpr bool isDigit(QChar unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}

} // namespace kiv::interchange::internal
