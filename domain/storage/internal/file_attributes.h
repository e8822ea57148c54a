// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_descriptor.h"

namespace kiv::storage::internal {

/// Gives a file the owner, group, mode and extended attributes (access control
/// lists among them) of another. False when that failed; errno tells why.
///
/// What the process has no right to give away it cannot give: then the file
/// stays its own, but nobody gets a right that he did not have. Of the
/// attributes, only those that belong to the system are left out.
[[nodiscard]] bool copyFileAttributes(const FileDescriptor &from, const FileDescriptor &to);

} // namespace kiv::storage::internal
