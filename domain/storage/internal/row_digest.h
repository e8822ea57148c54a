// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/image_database.h"

namespace kiv::storage::internal {

/// The checksum of a file of the first edition, in hexadecimal digits: the SHA-256 over
/// a dump of all rows that is the same for the same rows, wherever SQLite puts them:
///
///     kiv-budget 1 LF
///     for each table:  "table " NAME LF
///       for each row:  its values, LF
///
/// A value is "-" when it is null, "i" DIGITS ";" for an integer, and "t" BYTES
/// ":" TEXT for a text of so many bytes.
[[nodiscard]] QByteArray rowDigest(ImageDatabase &database);

} // namespace kiv::storage::internal
