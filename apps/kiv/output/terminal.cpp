// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/terminal.h"

#include "messages/errors.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

namespace kiv::app {
namespace {

int columnsOf(char32_t code)
{
    const auto character = static_cast<UChar32>(code);
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return 0;
    default:
        break;
    }
    const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

} // namespace

Terminal::Terminal()
{
    if (::isatty(STDOUT_FILENO) == 0)
        return;
    bool isNumber = false;
    int columns = qEnvironmentVariableIntValue("COLUMNS", &isNumber);
    winsize size{};
    if ((!isNumber || columns <= 0) && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
        columns = size.ws_col;
    m_width = columns > 0 ? columns : 80;
    m_hasColours = qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

QString Terminal::styled(const QString &text, const char *code) const
{
    return m_hasColours ? QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QLatin1String(code), text) : text;
}

void Terminal::write(const QByteArray &bytes) const
{
    writeLater(bytes);
    if (std::fflush(stdout) != 0)
        throw cannotWriteOutput(QString::fromLocal8Bit(std::strerror(errno)));
}

void Terminal::writeLater(const QByteArray &bytes) const
{
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size)
        throw cannotWriteOutput(QString::fromLocal8Bit(std::strerror(errno)));
}

int displayWidth(const QString &text)
{
    // Nearly every text, and much faster.
    if (std::ranges::all_of(text, [](QChar unit) { return unit >= u' ' && unit <= u'~'; }))
        return static_cast<int>(text.size());
    int width = 0;
    for (const char32_t code : text.toUcs4())
        width += columnsOf(code);
    return width;
}

QString elided(const QString &text, int width)
{
    if (displayWidth(text) <= width)
        return text;
    const std::u32string codes = text.toStdU32String();
    int used = 1; // the ellipsis
    // The text is wider than `width`, so the loop ends before the text does.
    std::size_t kept = 0;
    while ((used += columnsOf(codes[kept])) <= width)
        ++kept;
    return QString::fromStdU32String(codes.substr(0, kept)) + QChar(0x2026);
}

} // namespace kiv::app
