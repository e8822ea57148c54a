// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/passphrase.h"

#include <QtCore/QStringList>

/// What the user is told about encrypted budgets.
namespace kiv::workbench {

/// Why the passphrase is easy to guess; empty if it is long enough.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString weaknessOf(const storage::Passphrase &passphrase);
/// What to know once a budget is encrypted, each a sentence. `wasReadable` tells whether it
/// was not encrypted before.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList afterEncrypting(bool wasReadable);
/// Which versions stay under another passphrase; empty without any.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString leftVersions(const QStringList &paths);
/// That a file which was written from an encrypted budget is not encrypted.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString outputIsReadable();

} // namespace kiv::workbench
