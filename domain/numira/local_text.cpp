// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/local_text.h"

#include <unicode/dcfmtsym.h>
#include <unicode/numberformatter.h>

#include <map>
#include <utility>
#include <vector>

namespace numira {
namespace {

icu::number::LocalizedNumberFormatter makeFormatter(const Currency &currency,
                                                    UNumberUnitWidth width)
{
    const auto digits = static_cast<int32_t>(minorUnitDigits(currency));
    icu::number::UnlocalizedNumberFormatter formatter =
        icu::number::NumberFormatter::with()
            .precision(icu::number::Precision::minMaxFraction(
                digits, static_cast<int32_t>(Decimal::scaleDigits)))
            .roundingMode(UNUM_ROUND_HALFEVEN)
            .unitWidth(width);
    if (currency != Currency()) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::CurrencyUnit unit(
            icu::StringPiece(currency.code().data(), static_cast<int32_t>(currency.code().size())),
            status);
        formatter = formatter.unit(unit);
    }
    return formatter.locale(icu::Locale(libraryLocale().c_str()));
}

/// The formatter for the currency in the library's locale. Making one takes
/// ICU far longer than using it.
const icu::number::LocalizedNumberFormatter &formatterFor(const Currency &currency,
                                                          UNumberUnitWidth width)
{
    using Key = std::pair<UNumberUnitWidth, Currency>;
    thread_local std::string locale;
    thread_local std::map<Key, icu::number::LocalizedNumberFormatter> formatters;
    if (locale != libraryLocale()) {
        formatters.clear();
        locale = libraryLocale();
    }
    auto found = formatters.find({width, currency});
    if (found == formatters.end())
        found = formatters.emplace(Key{width, currency}, makeFormatter(currency, width)).first;
    return found->second;
}

/// Nothing when the locale's data is missing.
std::optional<std::string> formatted(const icu::number::LocalizedNumberFormatter &formatter,
                                     const Decimal &number)
{
    const std::string plain = number.toText();
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    formatter
        .formatDecimal(icu::StringPiece(plain.data(), static_cast<int32_t>(plain.size())), status)
        .toString(status)
        .toUTF8String(text);
    return U_SUCCESS(status) ? std::optional(text) : std::nullopt;
}

/// Without the locale's data an amount is still shown, and shown exactly.
std::string localText(const Money &money, UNumberUnitWidth width)
{
    return formatted(formatterFor(money.code(), width), money.amount())
        .value_or(toText(money) + ' ' + toStdString(money.code()));
}

/// The bytes of `text` before its first character that is no ASCII digit.
std::size_t digitsAt(std::string_view text)
{
    const std::size_t end = text.find_first_not_of("0123456789");
    return end == std::string_view::npos ? text.size() : end;
}

bool skip(std::string_view &text, const std::vector<std::string> &marks)
{
    for (const std::string &mark : marks) {
        if (!mark.empty() && text.starts_with(mark)) {
            text.remove_prefix(mark.size());
            return true;
        }
    }
    return false;
}

/// What separates groups, and what people have on their keyboards for it.
std::vector<std::string> groupMarks(const std::string &mark)
{
    if (mark == "\u2019")
        return {mark, "'"};
    if (mark == "\u00a0" || mark == "\u202f")
        return {"\u00a0", "\u202f", " "};
    return {mark};
}

std::string symbol(const icu::DecimalFormatSymbols &symbols,
                   icu::DecimalFormatSymbols::ENumberFormatSymbol which)
{
    std::string text;
    symbols.getConstSymbol(which).toUTF8String(text);
    return text;
}

} // namespace

std::string toLocalText(const Money &money)
{
    return localText(money, UNUM_UNIT_WIDTH_SHORT);
}

std::string toLocalTextWithCode(const Money &money)
{
    return localText(money, UNUM_UNIT_WIDTH_ISO_CODE);
}

std::string toLocalText(const Decimal &number)
{
    const auto formatter =
        icu::number::NumberFormatter::withLocale(icu::Locale(libraryLocale().c_str()))
            .precision(
                icu::number::Precision::maxFraction(static_cast<int32_t>(Decimal::scaleDigits)))
            .grouping(UNUM_GROUPING_OFF);
    return formatted(formatter, number).value_or(number.toText());
}

std::optional<std::string> fromLocalText(std::string_view text)
{
    using Symbols = icu::DecimalFormatSymbols;
    UErrorCode status = U_ZERO_ERROR;
    const Symbols symbols(icu::Locale(libraryLocale().c_str()), status);
    if (U_FAILURE(status))
        return std::nullopt;
    const std::vector<std::string> groups =
        groupMarks(symbol(symbols, Symbols::kGroupingSeparatorSymbol));
    constexpr std::size_t groupSize = 3;

    std::string plain;
    if (skip(text, {"-", symbol(symbols, Symbols::kMinusSignSymbol), "\u2212"}))
        plain = '-';
    std::size_t digits = digitsAt(text);
    if (digits == 0)
        return std::nullopt;
    while (true) {
        plain += text.substr(0, digits);
        text.remove_prefix(digits);
        if (!skip(text, groups))
            break;
        // The first group may be shorter, all others are whole.
        const std::size_t next = digitsAt(text);
        if (next != groupSize || digits > groupSize)
            return std::nullopt;
        digits = next;
    }
    if (!skip(text, {symbol(symbols, Symbols::kDecimalSeparatorSymbol)}))
        return std::nullopt;
    digits = digitsAt(text);
    if (digits == 0 || digits != text.size())
        return std::nullopt;
    return plain + '.' + std::string(text);
}

} // namespace numira
