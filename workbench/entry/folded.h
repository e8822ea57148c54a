// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace kiv::workbench {

/// The text without case and accents, for comparing: "Café" and "CAFE" become "cafe".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString folded(QStringView text);

} // namespace kiv::workbench
