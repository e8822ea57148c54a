// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCryptographicHash>

#include <cstdint>

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
    explicit Seal(std::uint32_t version);

    void beginTable(const char *name);
    void null() { m_dump.append('-'); }
    void integer(std::int64_t value);
    void text(QByteArrayView value);
    void endRow();
    /// In hexadecimal digits.
    [[nodiscard]] QByteArray result();

private:
    void appendNumber(char kind, std::int64_t value, char end);

    QCryptographicHash m_hash;
    QByteArray m_dump; ///< what is not hashed yet
};

} // namespace kiv::storage::internal
