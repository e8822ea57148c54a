// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/written_values.h"

#include "interchange/internal/digits.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/month_names.h"
#include "interchange/internal/statement_faults.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <array>
#include <tuple>

namespace kiv::interchange {

using internal::isDigit;

namespace {

/// The number without its sign; nothing when it has several signs.
std::optional<std::pair<QString, bool>> withoutSign(const QString &text)
{
    QString digits = text.trimmed();
    digits.replace(QChar(0x2212), u'-'); // typographic minus
    bool isNegative = false;
    if (digits.startsWith(u'(') && digits.endsWith(u')')) {
        isNegative = true;
        digits = digits.mid(1, digits.size() - 2).trimmed();
    } else if (digits.startsWith(u'-') || digits.startsWith(u'+')) {
        isNegative = digits.startsWith(u'-');
        digits = digits.mid(1).trimmed();
    } else if (digits.endsWith(u'-') || digits.endsWith(u'+')) {
        isNegative = digits.endsWith(u'-');
        digits = digits.chopped(1).trimmed();
    }
    if (digits.isEmpty() || digits.contains(u'-') || digits.contains(u'+'))
        return std::nullopt;
    return std::pair(digits, isNegative);
}

/// Whether the mark may group thousands, as in "1.234".
bool couldGroup(const QString &digits, qsizetype at)
{
    return digits.size() - at == 4 && at > 0 && at <= 3 && digits[0] != u'0';
}

/// The decimal mark that the digits show; nothing when they show none.
std::optional<QChar> markOf(const QString &digits, const QString &text, const Place &place)
{
    const qsizetype point = digits.lastIndexOf(u'.');
    const qsizetype comma = digits.lastIndexOf(u',');
    const qsizetype last = std::max(point, comma);
    if (last < 0)
        return std::nullopt;
    const QChar mark = digits[last];
    if (digits.count(mark) > 1)
        return std::nullopt; // it groups
    const bool hasOther = std::min(point, comma) >= 0;
    if (mark == u',' && !hasOther && couldGroup(digits, last))
        throw faults::ambiguousNumber(place, text);
    return mark;
}

/// The digits before the mark without grouping; nothing when the groups do not have three
/// digits (or two before the last, the Indian way).
std::optional<QString> ungrouped(const QString &whole)
{
    QString plain;
    qsizetype groups = 0;
    qsizetype sinceSeparator = 0;
    QChar separator;
    for (const QChar character : whole) {
        if (isDigit(character)) {
            plain += character;
            ++sinceSeparator;
            continue;
        }
        const bool isSeparator = QStringLiteral(".,' ’\u00A0\u202F").contains(character);
        if (!isSeparator || plain.isEmpty() || (!separator.isNull() && character != separator) ||
            (groups > 0 ? sinceSeparator != 3 && sinceSeparator != 2 : sinceSeparator > 3))
            return std::nullopt;
        separator = character;
        ++groups;
        sinceSeparator = 0;
    }
    if (groups > 0 && sinceSeparator != 3)
        return std::nullopt;
    return plain;
}

} // namespace

numira::Decimal readNumber(const QString &text, std::optional<DecimalMark> mark, const Place &place)
{
    const auto parts = withoutSign(text);
    if (!parts)
        throw faults::notANumber(place, text);
    const auto &[digits, isNegative] = *parts;
    const std::optional<QChar> point =
        mark ? std::optional(QChar(static_cast<char16_t>(*mark))) : markOf(digits, text, place);
    const qsizetype at = point ? digits.indexOf(*point) : -1;
    const QString fraction = at < 0 ? QString() : digits.mid(at + 1);
    const auto whole = ungrouped(at < 0 ? digits : digits.left(at));
    if (!whole || (whole->isEmpty() && fraction.isEmpty()) ||
        !std::ranges::all_of(fraction, isDigit))
        throw faults::notANumber(place, text);
    const QString plain = (isNegative ? QStringLiteral("-") : QString()) +
                          (whole->isEmpty() ? QStringLiteral("0") : *whole) +
                          (fraction.isEmpty() ? QString() : u'.' + fraction);
    try {
        return numira::Decimal::fromText(plain.toStdString());
    } catch (const numira::Error &cause) {
        throw faults::tooLarge(place, cause);
    }
}

DateFormat::DateFormat() : m_text(QStringLiteral("YYYY-MM-DD")) {}

DateFormat::DateFormat(QString text, const Place &place) : m_text(std::move(text))
{
    // The format must write the date exactly as it was read.
    QString sample = m_text;
    for (const auto &[letters, digits] : {std::pair("YYYY", "2026"),
                                          {"YY", "26"},
                                          {"MMM", "Nov"},
                                          {"MM", "11"},
                                          {"M", "11"},
                                          {"DD", "23"},
                                          {"D", "23"}}) {
        const qsizetype at = sample.indexOf(QLatin1String(letters));
        if (at >= 0)
            sample.replace(at, static_cast<qsizetype>(std::strlen(letters)), QLatin1String(digits));
    }
    if (read(sample) != QDate(2026, 11, 23))
        throw faults::notADateFormat(place, m_text);
}

std::optional<QDate> DateFormat::read(QStringView text) const
{
    int year = -1;
    int month = -1;
    int day = -1;
    qsizetype at = 0;
    const auto number = [&](qsizetype least, qsizetype most, int &value) {
        qsizetype count = 0;
        int read = 0;
        while (count < most && at < text.size() && isDigit(text[at])) {
            read = read * 10 + (text[at++].unicode() - u'0');
            ++count;
        }
        if (count < least || value >= 0)
            return false;
        value = read;
        return true;
    };
    const auto name = [&] {
        const qsizetype begin = at;
        while (at < text.size() && (text[at].isLetter() || text[at].isMark()))
            ++at;
        const bool isFirst =
            std::exchange(month, internal::monthNamed(text.sliced(begin, at - begin))) < 0;
        return isFirst && month > 0;
    };
    for (qsizetype letter = 0; letter < m_text.size();) {
        const QChar kind = m_text[letter];
        qsizetype count = 1;
        while (letter + count < m_text.size() && m_text[letter + count] == kind)
            ++count;
        bool fits = true;
        // Other numbers of letters match no digits.
        if (kind == u'Y') {
            fits = number(count, count, year);
            if (count == 2)
                year += year < 70 ? 2000 : 1900;
        } else if (kind == u'M' && count == 3) {
            fits = name();
            // A name that is cut often has a dot.
            const bool isDotNext = letter + count < m_text.size() && m_text[letter + count] == u'.';
            if (fits && !isDotNext && at < text.size() && text[at] == u'.')
                ++at;
        } else if (kind == u'M') {
            fits = number(count, 2, month);
        } else if (kind == u'D') {
            fits = number(count, 2, day);
        } else {
            count = 1;
            fits = at < text.size() && text[at++] == kind;
        }
        if (!fits)
            return std::nullopt;
        letter += count;
    }
    const QDate date(year, month, day);
    return at == text.size() && year > 0 && date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<numira::Currency> readCurrency(const QString &text, const numira::Currency &preferred)
{
    // Signs that mean the same currency everywhere, and the dollar.
    static const std::map<QString, const char *> signs{
        {QStringLiteral("$"), "USD"},   {QStringLiteral("€"), "EUR"},
        {QStringLiteral("£"), "GBP"},   {QStringLiteral("¥"), "JPY"},
        {QStringLiteral("₹"), "INR"},   {QStringLiteral("₩"), "KRW"},
        {QStringLiteral("₽"), "RUB"}, {QStringLiteral("₺"), "TRY"},
        {QStringLiteral("₴"), "UAH"},   {QStringLiteral("₪"), "ILS"},
        {QStringLiteral("zł"), "PLN"},  {QStringLiteral("Kč"), "CZK"},
        {QStringLiteral("R$"), "BRL"},  {QStringLiteral("US$"), "USD"}};
    if (const auto sign = numira::currencySymbol(preferred);
        sign && text == QString::fromStdString(*sign))
        return preferred;
    const auto found = signs.find(text);
    try {
        const numira::Currency currency =
            numira::toCurrency(found == signs.end() ? text.toStdString() : found->second);
        return currency == numira::Currency() ? std::nullopt : std::optional(currency);
    } catch (const numira::Error &) {
        return std::nullopt;
    }
}

numira::Money statementAmount(const QString &text, const numira::Currency &currency,
                              std::optional<DecimalMark> mark, const Place &place)
{
    const numira::Decimal number = readNumber(text, mark, place);
    const unsigned digitsMax = numira::minorUnitDigits(currency);
    // Three decimals are no cents, even if they are zeros: "1.500" may mean thousands.
    const QString digits = mark || digitsMax > 2 ? QString() : withoutSign(text)->first;
    if (couldGroup(digits, digits.indexOf(u'.')))
        throw faults::ambiguousNumber(place, text);
    if (number.digits() > digitsMax)
        throw faults::tooManyDigits(place, text, foundation::toQString(currency), digitsMax);
    return {currency, number};
}

} // namespace kiv::interchange
