// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_descriptor.h"

namespace kiv::storage::internal {

/// Gives a file the owner, group, mode and extended attributes (access control
/// lists among them) of another. False when that failed; errno tells why.
///
/// Without the right to change owner or group, the process keeps the file, and
/// nobody gets a right that they did not have. Only attributes of the system are
/// left out.
[[nodiscard]] bool copyFileAttributes(const FileDescriptor &from, const FileDescriptor &to);

} // namespace kiv::storage::internal
