// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

namespace kiv::navigation::internal {

/// Makes every type that crosses the Navigator's signals and slots known to
/// Qt's meta-object system by its full name, so that queued connections and
/// signal spies can copy, compare and print it. Once is enough for a process;
/// more does no harm.
KIV_NAVIGATION_EXPORT void registerMetaTypes();

} // namespace kiv::navigation::internal
