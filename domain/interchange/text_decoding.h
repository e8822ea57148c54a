// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// The encoding that files have unless something else is said.
inline const QString utf8Name = QStringLiteral("UTF-8");

/// The file's bytes as text, without a byte order mark. `encoding` is any name
/// that ICU knows, such as "UTF-8", "ISO-8859-1" or "windows-1252"; what begins with the
/// byte order mark of UTF-16 is that unless another one than UTF-8 is named.
///
/// Throws ImportError, with the line of the first byte that is not valid, when
/// the bytes are something else, and when they hold a zero byte.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString decoded(const QByteArray &bytes, const QString &file,
                                                     const QString &encoding = utf8Name);

/// No line of a file, and no text of an entry, has more characters.
inline constexpr qsizetype lineMax = qsizetype{64} * 1024;

/// Goes through a text line by line, without the line ends (LF, CR LF or CR).
class KIV_INTERCHANGE_EXPORT LineCursor {
public:
    /// The text must outlive the cursor.
    LineCursor(QStringView text, QString file) : m_text(text), m_place{std::move(file), 0} {}

    /// Moves on to the next line; false at the end. Throws ImportError for a
    /// line that is longer than any statement or journal has one.
    bool next();
    /// Without its end; as long as the text is there.
    [[nodiscard]] QStringView line() const noexcept { return m_line; }
    /// Where the line behind this one begins.
    [[nodiscard]] qsizetype offset() const noexcept { return m_at; }
    /// Where the line stands.
    [[nodiscard]] const Place &place() const noexcept { return m_place; }

private:
    QStringView m_text;
    QStringView m_line;
    qsizetype m_at = 0;
    Place m_place;
};

} // namespace kiv::interchange
