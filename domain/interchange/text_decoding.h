// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// The encoding of files unless another one is named.
inline const QString utf8Name = QStringLiteral("UTF-8");

/// The file's bytes as text, without a byte order mark. `encoding` is any name that ICU
/// knows, such as "UTF-8", "ISO-8859-1" or "windows-1252". With "UTF-8", a file that begins
/// with the byte order mark of UTF-16 is read as UTF-16.
///
/// Throws ImportError, with the line of the first invalid byte, when the bytes do not fit
/// the encoding or contain a zero byte.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString decoded(const QByteArray &bytes, const QString &file,
                                                     const QString &encoding = utf8Name);

/// The encoding that the bytes show: by their byte order mark; UTF-8 where they are valid;
/// UTF-16 where every other byte is zero; else the one of western or central Europe, or of
/// Greek, Turkish or Cyrillic letters, that fits the text best. Bytes that are mostly valid
/// UTF-8 count as damaged UTF-8.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString guessedEncoding(const QByteArray &bytes);

/// The longest line of a file and the longest text of an entry, in characters.
inline constexpr qsizetype lineMax = qsizetype{64} * 1024;

/// Goes through a text line by line, without the line ends (LF, CR LF or CR).
class KIV_INTERCHANGE_EXPORT LineCursor {
public:
    /// The text must outlive the cursor.
    LineCursor(QStringView text, QString file) : m_text(text), m_place{std::move(file), 0} {}

    /// Moves to the next line; false at the end. Throws ImportError for a line longer than
    /// lineMax.
    bool next();
    /// The line without its line break. It is valid as long as the text is.
    [[nodiscard]] QStringView line() const noexcept { return m_line; }
    /// Where the next line begins in the text.
    [[nodiscard]] qsizetype offset() const noexcept { return m_at; }
    /// The file and the line's number.
    [[nodiscard]] const Place &place() const noexcept { return m_place; }

private:
    QStringView m_text;
    QStringView m_line;
    qsizetype m_at = 0;
    Place m_place;
};

} // namespace kiv::interchange
