// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include <vector>

namespace kiv::desktop {

/// Makes the pages in the order of the list at the left. The caller owns them.
[[nodiscard]] std::vector<Page *> makePages(Desk &desk);

} // namespace kiv::desktop
