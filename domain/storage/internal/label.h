// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/version_mark.h"

namespace kiv::storage::internal {

/// The largest label.
inline constexpr qsizetype labelSizeMax = qsizetype{16} * 1024;

/// The mark as the label of a budget file: one JSON object without line breaks.
[[nodiscard]] QByteArray toLabel(const VersionMark &mark);
/// Throws ContentFault when no mark was written so.
[[nodiscard]] VersionMark fromLabel(QByteArrayView label);

} // namespace kiv::storage::internal
