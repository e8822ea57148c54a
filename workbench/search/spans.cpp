// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/search/spans.h"

#include "workbench/entry/folded.h"
#include "workbench/entry/values.h"
#include "workbench/internal/faults.h"

#include "foundation/local_dates.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

#include <array>

namespace kiv::workbench {

namespace {

const QLatin1String between("..");

constexpr std::array monthNames{
    QT_TRANSLATE_NOOP("QObject", "January"),   QT_TRANSLATE_NOOP("QObject", "February"),
    QT_TRANSLATE_NOOP("QObject", "March"),     QT_TRANSLATE_NOOP("QObject", "April"),
    QT_TRANSLATE_NOOP("QObject", "May"),       QT_TRANSLATE_NOOP("QObject", "June"),
    QT_TRANSLATE_NOOP("QObject", "July"),      QT_TRANSLATE_NOOP("QObject", "August"),
    QT_TRANSLATE_NOOP("QObject", "September"), QT_TRANSLATE_NOOP("QObject", "October"),
    QT_TRANSLATE_NOOP("QObject", "November"),  QT_TRANSLATE_NOOP("QObject", "December"),
};

DaySpan oneDay(QDate day)
{
    return {day, day};
}

DaySpan monthOf(QDate day)
{
    return {QDate(day.year(), day.month(), 1), QDate(day.year(), day.month(), day.daysInMonth())};
}

DaySpan yearOf(QDate day)
{
    return {QDate(day.year(), 1, 1), QDate(day.year(), 12, 31)};
}

/// Days that are named by their distance from today.
struct Phrase {
    const char *words;
    DaySpan (*days)(QDate today);
};

constexpr std::array phrases{
    Phrase{QT_TRANSLATE_NOOP("QObject", "today"), [](QDate today) { return oneDay(today); }},
    Phrase{QT_TRANSLATE_NOOP("QObject", "yesterday"),
           [](QDate today) { return oneDay(today.addDays(-1)); }},
    Phrase{QT_TRANSLATE_NOOP("QObject", "this month"), [](QDate today) { return monthOf(today); }},
    Phrase{QT_TRANSLATE_NOOP("QObject", "last month"),
           [](QDate today) { return monthOf(today.addMonths(-1)); }},
    Phrase{QT_TRANSLATE_NOOP("QObject", "this year"), [](QDate today) { return yearOf(today); }},
    Phrase{QT_TRANSLATE_NOOP("QObject", "last year"),
           [](QDate today) { return yearOf(today.addYears(-1)); }},
};

/// Whether the folded text is the name, in English or in the user's language.
bool isNamed(const QString &text, const char *name)
{
    return text == folded(QString::fromLatin1(name)) || text == folded(QObject::tr(name));
}

std::optional<DaySpan> namedDays(const QString &text, QDate today)
{
    const QString name = folded(text.simplified());
    for (const Phrase &phrase : phrases) {
        if (isNamed(name, phrase.words))
            return phrase.days(today);
    }
    static const QRegularExpression monthAndYear(QStringLiteral(R"(\A(\D+?)(?: (\d{4}))?\z)"));
    const QRegularExpressionMatch match = monthAndYear.match(name);
    for (std::size_t at = 0; match.hasMatch() && at < monthNames.size(); ++at) {
        if (!isNamed(match.captured(1), monthNames[at]))
            continue;
        const int month = static_cast<int>(at) + 1;
        const int year = match.hasCaptured(2) ? match.captured(2).toInt()
                                              : today.year() - (month > today.month() ? 1 : 0);
        const QDate first(year, month, 1);
        return first.isValid() ? std::optional(monthOf(first)) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<DaySpan> writtenDays(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(R"(\A(\d{4})-(\d\d?)(?:-(\d\d?))?\z)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        const QDate local = foundation::dateFromLocalText(text);
        return local.isValid() ? std::optional(oneDay(local)) : std::nullopt;
    }
    const bool isDay = match.hasCaptured(3);
    const QDate day(match.captured(1).toInt(), match.captured(2).toInt(),
                    isDay ? match.captured(3).toInt() : 1);
    if (!day.isValid())
        throw internal::notADayFilter(text);
    return isDay ? oneDay(day) : monthOf(day);
}

std::optional<DaySpan> singleSpan(const QString &text, QDate today)
{
    const std::optional<DaySpan> written = writtenDays(text);
    return written ? written : namedDays(text, today);
}

numira::Decimal readAmount(const QString &text, const QString &part, AmountSpan &span)
{
    Amount amount;
    try {
        readValue(text, amount);
    } catch (const EntryError &) {
        throw internal::notAnAmountFilter(part);
    }
    if (amount.currency)
        span.currency = amount.currency;
    return amount.number;
}

} // namespace

bool DaySpan::holds(QDate day) const
{
    return (!first || *first <= day) && (!last || day <= *last);
}

bool AmountSpan::holds(const numira::Money &amount) const
{
    const numira::Decimal &number = amount.amount();
    if (currency && amount.code() != *currency)
        return false;
    if (isStrict)
        return (!lowest || *lowest < number) && (!highest || number < *highest);
    return (!lowest || *lowest <= number) && (!highest || number <= *highest);
}

std::optional<DaySpan> daySpan(const QString &text, QDate today)
{
    const qsizetype at = text.indexOf(between);
    if (at < 0)
        return singleSpan(text, today);
    const QString begin = text.first(at);
    const QString end = text.sliced(at + between.size());
    const auto from = singleSpan(begin, today);
    const auto to = singleSpan(end, today);
    if ((begin.isEmpty() && end.isEmpty()) || (!begin.isEmpty() && !from) ||
        (!end.isEmpty() && !to))
        return std::nullopt;
    const DaySpan span{from ? from->first : std::nullopt, to ? to->last : std::nullopt};
    if (span.first && span.last && *span.last < *span.first)
        throw internal::filterEndsFirst(text);
    return span;
}

bool beginsDays(const QString &word)
{
    const QString name = folded(word) + u' ';
    return std::ranges::any_of(phrases, [&name](const Phrase &phrase) {
        return folded(QString::fromLatin1(phrase.words)).startsWith(name) ||
               folded(QObject::tr(phrase.words)).startsWith(name);
    });
}

std::optional<AmountSpan> amountSpan(const QString &text)
{
    AmountSpan span;
    if (text.startsWith(u'>') || text.startsWith(u'<') || text.startsWith(u'=')) {
        const bool isStrict = text.at(0) != u'=' && !text.sliced(1).startsWith(u'=');
        const numira::Decimal number =
            readAmount(text.sliced(isStrict || text.at(0) == u'=' ? 1 : 2), text, span);
        span.isStrict = isStrict;
        if (text.at(0) != u'<')
            span.lowest = number;
        if (text.at(0) != u'>')
            span.highest = number;
        return span;
    }
    const qsizetype at = text.indexOf(between);
    if (at < 0)
        return std::nullopt;
    const QString begin = text.first(at);
    const QString end = text.sliced(at + between.size());
    const auto isNumber = [](const QString &side) { return !side.isEmpty() && side[0].isDigit(); };
    if (!isNumber(begin) && !isNumber(end))
        return std::nullopt;
    if (!begin.isEmpty())
        span.lowest = readAmount(begin, text, span);
    if (!end.isEmpty())
        span.highest = readAmount(end, text, span);
    if (span.lowest && span.highest && *span.highest < *span.lowest)
        throw internal::filterEndsFirst(text);
    return span;
}

} // namespace kiv::workbench
