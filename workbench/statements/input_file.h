// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

namespace kiv::workbench {

/// Reads a file to its end. Throws a Refusal when it cannot be opened or read, and when
/// it is larger than 64 MiB.
[[nodiscard]] KIV_WORKBENCH_EXPORT QByteArray readFile(const QString &path);

/// Reads an open file, such as standard input, to its end. `name` is for messages. Throws
/// as readFile() does, also for a file that is not open.
[[nodiscard]] KIV_WORKBENCH_EXPORT QByteArray readWhole(QFile &file, const QString &name);

} // namespace kiv::workbench
