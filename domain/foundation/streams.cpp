// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/streams.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kiv::foundation {
namespace {

struct CodePoints {
    char16_t first;
    char16_t last;
};

/// What a terminal or a line-wise reader obeys instead of showing it: control
/// characters, line and paragraph separators, the formatting characters of
/// Unicode's bidirectional algorithm (UAX #9), the byte order mark, and
/// surrogates, which stand here only when they lack their other half.
constexpr std::array<CodePoints, 9> unsafe{{{0x0000, 0x001F},
                                            {0x007F, 0x009F},
                                            {0x061C, 0x061C},
                                            {0x200E, 0x200F},
                                            {0x2028, 0x2029},
                                            {0x202A, 0x202E},
                                            {0x2066, 0x2069},
                                            {0xD800, 0xDFFF},
                                            {0xFEFF, 0xFEFF}}};

bool isUnsafe(char16_t unit) noexcept
{
    if (unit >= u' ' && unit <= u'~') // nearly all
        return false;
    return std::ranges::any_of(unsafe, [unit](const CodePoints &range) {
        return unit >= range.first && unit <= range.last;
    });
}

} // namespace

QString escaped(const QString &text)
{
    if (std::ranges::none_of(text, [](QChar unit) { return isUnsafe(unit.unicode()); }))
        return text;
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text[at];
        const bool isPair =
            unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (isPair)
            result += text.mid(at++, 2);
        else if (isUnsafe(unit.unicode()))
            result += QStringLiteral("\\u{%1}").arg(
                QString::number(unit.unicode(), 16).toUpper().rightJustified(4, u'0'));
        else
            result += unit;
    }
    return result;
}

std::string escapedUtf8(const QString &text)
{
    return escaped(text).toStdString();
}

} // namespace kiv::foundation
