// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>

namespace kiv::storage::internal {
namespace {

constexpr qsizetype yearDigitsMin = 4;
/// What stands behind the year: "-03-31".
constexpr qsizetype monthAndDaySize = 6;

void appendPadded(QByteArray &text, int value, qsizetype digitsMin)
{
    std::array<char, 16> digits{};
    const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    const qsizetype size = end - digits.data();
    text.append(std::max(digitsMin - size, qsizetype(0)), '0').append(digits.data(), size);
}

/// Digits and nothing else; no more than an int holds.
std::optional<int> number(QByteArrayView digits) noexcept
{
    int value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value);
    const bool isWhole = error == std::errc() && end == digits.end() && digits.front() != '-';
    return isWhole ? std::optional(value) : std::nullopt;
}

} // namespace

QByteArray toStoredDate(QDate date)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    QByteArray text;
    text.reserve(16);
    if (year < 0)
        text.append('-');
    appendPadded(text, std::abs(year), yearDigitsMin);
    appendPadded(text.append('-'), month, 2);
    appendPadded(text.append('-'), day, 2);
    return text;
}

QDate fromStoredDate(QByteArrayView text)
{
    const bool isBeforeChrist = text.startsWith('-');
    if (isBeforeChrist)
        text = text.sliced(1);
    const qsizetype yearSize = text.size() - monthAndDaySize;
    if (yearSize < yearDigitsMin || (yearSize > yearDigitsMin && text.front() == '0') ||
        text[yearSize] != '-' || text[yearSize + 3] != '-')
        return {};
    const std::optional<int> year = number(text.first(yearSize));
    const std::optional<int> month = number(text.sliced(yearSize + 1, 2));
    const std::optional<int> day = number(text.last(2));
    if (!year || !month || !day)
        return {};
    return {isBeforeChrist ? -*year : *year, *month, *day};
}

} // namespace kiv::storage::internal
