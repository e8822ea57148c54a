// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/debug_stream.h"
#include "foundation/export.h"

#include "numira/money.h"

#include <QtCore/QString>

#include <map>
#include <optional>
#include <ostream>
#include <set>

/// How values get into logs and dumps: parts of the operators<< on std::ostream.
namespace kiv::foundation {

/// The text with every control, line-breaking and bidirectional-formatting character,
/// byte order mark and lone surrogate written as `\u{XXXX}`. A dump so stays on one line, and no
/// name can control a terminal.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString escaped(const QString &text);

/// The escaped text in UTF-8.
[[nodiscard]] KIV_FOUNDATION_EXPORT std::string escapedUtf8(const QString &text);

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

// The money library knows nothing of Qt. For its types, look-up finds the debug stream here.
namespace numira {
using kiv::foundation::operator<<;
} // namespace numira
