// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/element.h"

namespace kiv::interchange::internal {

/// Reads the document's elements; values that no statement needs are left out. Throws
/// ImportError for a tag that is broken, never closed or closed in the wrong place, for a
/// value that appears twice in one element, and for text outside the document.
[[nodiscard]] Element readOfxTree(const QString &text, const QString &file);

} // namespace kiv::interchange::internal
