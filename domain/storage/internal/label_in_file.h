// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_descriptor.h"
#include "storage/version_mark.h"

#include <optional>

namespace kiv::storage {
class KeyRing;
}

namespace kiv::storage::internal {

/// What a budget file tells about itself in a few of its bytes.
struct LabelInFile {
    std::optional<VersionMark> mark; ///< nothing where there is no whole label
    bool isLocked = false;           ///< whether that is because no key opens it
};

/// Reads no more of the file than its label. Without `keys` no encrypted one is opened.
[[nodiscard]] LabelInFile labelIn(const FileDescriptor &file, const KeyRing *keys);

} // namespace kiv::storage::internal
