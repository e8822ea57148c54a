// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/streams.h"

namespace kiv::interchange::internal {

/// The text escaped for an HTML or SVG element or for an attribute in double quotes,
/// without characters that change the writing direction.
[[nodiscard]] inline QString htmlText(const QString &text)
{
    return foundation::escaped(text).toHtmlEscaped();
}

} // namespace kiv::interchange::internal
