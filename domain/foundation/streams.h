// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include "numira/money.h"

#include <QtCore/QDebug>
#include <QtCore/QString>

#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>

/// How values get into logs and dumps. Each type has one text form: its
/// operator<< on std::ostream; the QDebug form forwards to it with streamed().
namespace kiv::foundation {

/// The text with every control, line-breaking and bidirectional-formatting character,
/// byte order mark and lone surrogate written as `\u{XXXX}`, so that a dump stays on one
/// line and a terminal obeys nobody's name.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString escaped(const QString &text);

/// The escaped text in UTF-8.
[[nodiscard]] KIV_FOUNDATION_EXPORT std::string escapedUtf8(const QString &text);

/// Writes to a debug stream what the value's std::ostream operator writes.
template <typename T>
QDebug streamed(QDebug debug, const T &value)
{
    std::ostringstream out;
    out << value;
    QDebugStateSaver saver(debug);
    debug.nospace().noquote() << QString::fromStdString(out.str());
    return debug;
}

/// Writes "(a, b, c)".
template <typename Range>
std::ostream &streamRange(std::ostream &out, const Range &range)
{
    out << '(';
    const char *separator = "";
    for (const auto &element : range) {
        out << separator << element;
        separator = ", ";
    }
    return out << ')';
}

} // namespace kiv::foundation

// The money library knows nothing of Qt. These stand in its namespace, where look-up
// finds them for its types.
namespace numira {
KIV_FOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Currency &currency);
KIV_FOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Money &money);
} // namespace numira
