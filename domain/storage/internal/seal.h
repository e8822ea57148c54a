// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace kiv::storage::internal {

/// The parts of a budget file: an SQLite database, and what the version tells about
/// itself. Views of the file's bytes.
struct SealedParts {
    QByteArrayView image;
    QByteArrayView label;
};

/// The file with both parts and, as its last 64 bytes, the seal:
///
///     offset  bytes
///          0      8  "kivbseal"
///          8      8  the size of the image, big-endian as all numbers
///         16      8  the size of the label
///         24      8  zero
///         32     32  the SHA-256 of all bytes of the file before these
[[nodiscard]] QByteArray sealed(QByteArrayView image, QByteArrayView label);

/// The parts of a file whose seal is whole; its digest is not computed. Nothing
/// when the sizes do not fit.
[[nodiscard]] std::optional<SealedParts> sealedParts(QByteArrayView file) noexcept;
/// The parts of a file. Throws ContentFault when it is not, byte for byte, what was
/// sealed.
[[nodiscard]] SealedParts unsealed(QByteArrayView file);

/// The size of a seal.
inline constexpr qsizetype sealSize = 64;
/// How many bytes before the file's end the label begins, from its last bytes (at
/// least a seal), so that it can be read without the rest; nothing without a seal.
[[nodiscard]] std::optional<qsizetype> labelBegin(QByteArrayView end) noexcept;

} // namespace kiv::storage::internal
