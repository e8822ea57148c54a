// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/pipeline.h"

#include <QtCore/QByteArray>

#include <nettle/sha2.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace kiv::storage::internal {

/// The SHA-256 over a dump of all rows that is the same for the same rows,
/// wherever SQLite puts them:
///
///     kiv-budget VERSION LF
///     for each table:  "table " NAME LF
///       for each row:  its values, LF
///
/// A value is "-" when it is null, "i" DIGITS ";" for an integer, and "t" BYTES
/// ":" TEXT for a text of so many bytes.
class Seal {
public:
    /// All texts together have at most `textsMax` bytes. More than the image has
    /// can only come from rows that share the same bytes.
    explicit Seal(std::uint32_t version, qint64 textsMax = std::numeric_limits<qint64>::max());

    void beginTable(const char *name);
    void null() { append('-'); }
    void integer(std::int64_t value) { appendNumber('i', value, ';'); }
    /// Throws ContentFault when it is one too many.
    void text(QByteArrayView value)
    {
        m_textsLeft -= value.size();
        if (m_textsLeft < 0)
            refuseText();
        appendNumber('t', value.size(), ':');
        append(value);
    }
    void endRow() { append('\n'); }
    /// In hexadecimal digits.
    [[nodiscard]] QByteArray result();

private:
    void append(char byte)
    {
        *room(1) = byte;
        ++m_at;
    }
    void append(QByteArrayView bytes) { m_at = std::ranges::copy(bytes, room(bytes.size())).out; }
    void appendNumber(char kind, std::int64_t value, char end);
    /// Where the next bytes go; there is room for so many.
    char *room(qsizetype size)
    {
        if (size > m_end - m_at)
            makeRoom(size);
        return m_at;
    }
    void makeRoom(qsizetype size);
    [[noreturn]] static void refuseText();
    void hash(const std::vector<char> &bytes) noexcept;

    // Nettle's, because it uses the processor's SHA instructions.
    sha256_ctx m_hash;
    qint64 m_textsLeft;
    std::vector<char> m_dump; ///< what is not hashed yet, up to m_at, and room for more
    char *m_at;
    char *m_end;
    /// The dump of a full budget is hashed while the rest of it is made.
    Pipeline<std::vector<char>> m_hashing;
};

} // namespace kiv::storage::internal
