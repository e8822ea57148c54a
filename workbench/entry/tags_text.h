// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "tagging/tags.h"

#include <QtCore/QStringList>

namespace kiv::workbench {

/// The names in a text with commas between them: "car, home". A name that has a comma or a
/// double quotation mark stands between such marks, and its own marks are doubled.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList namesOf(const QString &text);
/// The text of which namesOf() makes these names.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString namesText(const QStringList &names);

/// namesOf() for tags.
[[nodiscard]] KIV_WORKBENCH_EXPORT tagging::Tags tagsOf(const QString &text);
/// namesText() for tags.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString tagsText(const tagging::Tags &tags);

} // namespace kiv::workbench
