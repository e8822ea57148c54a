// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_key.h"

#include <optional>

namespace kiv::storage::internal {

/// The first bytes of an encrypted file.
inline constexpr QByteArrayView encryptedMagic("kivbudget locked", 16);
/// The size of what stands before the label.
inline constexpr qsizetype encryptedHeaderSize = 184;

/// An encrypted budget file:
///
///     offset  bytes
///          0     16  "kivbudget locked"
///         16      4  1, the form; big-endian as all numbers
///         20    100  the wrap: passes (4), memory (8), salt (16), nonce (24), wrapped key (48)
///        120     24  the header of the stream
///        144      4  the size of the locked label
///        148      4  zero
///        152     32  the SHA-256 of all bytes before
///        184      …  the locked label: nonce (24), content, tag (16)
///          …      …  the stream, which is the budget file: pieces of 64 KiB with 17 bytes more
///
/// A view of its bytes, of which those of the label are enough to read that.
class EncryptedFile {
public:
    /// Throws ContentFault when the header is not as it was written, or asks for more memory
    /// or time than any file may.
    explicit EncryptedFile(QByteArrayView bytes);

    /// What a file would have to begin with to be newer than this program.
    [[nodiscard]] static bool isNewer(QByteArrayView bytes) noexcept;
    /// How many bytes of a file with this beginning reach to the label's end; nothing when it
    /// has no whole header.
    [[nodiscard]] static std::optional<qsizetype> labelEnd(QByteArrayView begin) noexcept;

    /// The wrap in a header; nothing when there is none.
    [[nodiscard]] static std::optional<Wrap> wrapIn(QByteArrayView begin) noexcept;

    [[nodiscard]] const Wrap &wrap() const noexcept { return m_wrap; }
    /// Whether the label was written with this key.
    [[nodiscard]] bool isUnder(const Secret &key) const;
    /// The label, which is empty when the file has none. Throws ContentFault when it is
    /// damaged, or was written with another key.
    [[nodiscard]] QByteArray label(const Secret &key) const;
    /// The budget file in it. Throws ContentFault when it is not, byte for byte, what was
    /// encrypted with this key.
    [[nodiscard]] QByteArray content(const Secret &key) const;
    /// The same file under another wrap of its key.
    [[nodiscard]] QByteArray under(const Wrap &wrap) const;

private:
    [[nodiscard]] std::optional<QByteArray> openedLabel(const Secret &key) const;

    QByteArrayView m_bytes;
    QByteArrayView m_label;
    Wrap m_wrap;
};

/// A budget file encrypted. The label stands in it once more, so that it can be read alone.
[[nodiscard]] QByteArray encrypted(QByteArrayView file, QByteArrayView label,
                                   const Encryption &encryption);

} // namespace kiv::storage::internal
