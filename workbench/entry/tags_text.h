// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "tagging/tags.h"

namespace kiv::workbench {

/// The tags of a text with commas between them: "car, home". A tag that has a comma or a
/// double quotation mark stands between such marks, and its own marks are doubled.
[[nodiscard]] KIV_WORKBENCH_EXPORT tagging::Tags tagsOf(const QString &text);
/// The text of which tagsOf() makes these tags.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString tagsText(const tagging::Tags &tags);

} // namespace kiv::workbench
