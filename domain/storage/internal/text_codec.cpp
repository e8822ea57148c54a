// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/text_codec.h"

#include <algorithm>
#include <bit>

namespace kiv::storage::internal {
namespace {

void appendEncoded(QByteArray &bytes, char32_t character)
{
    const auto append = [&bytes](char32_t byte) { bytes.append(static_cast<char>(byte)); };
    if (character < 0x80) {
        append(character);
        return;
    }
    // How many bytes follow the first one, each with six bits.
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    append(((0xFF00U >> (following + 1)) & 0xFFU) | character >> (6 * following));
    for (int left = following - 1; left >= 0; --left)
        append(0x80U | ((character >> (6 * left)) & 0x3FU));
}

/// Reads leniently; the caller compares the result's stored form.
QString decoded(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (auto at = bytes.begin(); at != bytes.end();) {
        const auto first = static_cast<unsigned char>(*at++);
        const int following = std::max(std::countl_one(first) - 1, 0);
        char32_t character = following == 0 ? first : first & (0x3FU >> following);
        for (int left = following; left > 0 && at != bytes.end(); --left)
            character = character << 6U | (static_cast<unsigned char>(*at++) & 0x3FU);
        if (QChar::requiresSurrogates(character)) {
            text.append(QChar(QChar::highSurrogate(character)));
            text.append(QChar(QChar::lowSurrogate(character)));
        } else {
            text.append(QChar(static_cast<char16_t>(character)));
        }
    }
    return text;
}

} // namespace

QByteArray toStoredText(QStringView text)
{
    if (text.isValidUtf16())
        return text.toUtf8();
    QByteArray bytes;
    bytes.reserve(3 * text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t character = text.at(i).unicode();
        if (QChar::isHighSurrogate(character) && i + 1 < text.size() &&
            text.at(i + 1).isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            ++i;
        }
        appendEncoded(bytes, character);
    }
    return bytes;
}

std::optional<QString> fromStoredText(QByteArrayView bytes)
{
    QString text;
    return appendStoredText(text, bytes) ? std::optional(text) : std::nullopt;
}

bool appendStoredText(QString &text, QByteArrayView bytes)
{
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    if (std::ranges::all_of(bytes, isAscii)) {
        text.append(QLatin1String(bytes));
        return true;
    }
    const QString read = decoded(bytes);
    text.append(read);
    return toStoredText(read) == bytes;
}

} // namespace kiv::storage::internal
