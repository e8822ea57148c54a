// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/streams.h"

namespace kiv::interchange::internal {

/// A text of an HTML or SVG element or of an attribute in double quotes: nothing
/// in it is markup, and nothing turns the line around.
[[nodiscard]] inline QString htmlText(const QString &text)
{
    return foundation::escaped(text).toHtmlEscaped();
}

} // namespace kiv::interchange::internal
