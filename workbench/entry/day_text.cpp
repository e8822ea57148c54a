// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/day_text.h"

#include "workbench/entry/values.h"
#include "workbench/internal/faults.h"

#include "foundation/local_dates.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

#include <optional>

namespace kiv::workbench {
namespace {

/// In a leap year a day of February can be eight years away.
constexpr int yearsMost = 8;

std::optional<QDate> namedDay(const QString &word, QDate today)
{
    if (word == u"t" || word == u"today" || word == QObject::tr("today").toLower())
        return today;
    if (word == u"y" || word == u"yesterday" || word == QObject::tr("yesterday").toLower())
        return today.addDays(-1);
    return std::nullopt;
}

/// The newest day that is not after today, with this month if one is given.
std::optional<QDate> newest(std::optional<int> month, int day, QDate today)
{
    for (QDate first(today.year(), today.month(), 1);
         first.isValid() && first.year() >= today.year() - yearsMost; first = first.addMonths(-1)) {
        const QDate found(first.year(), first.month(), day);
        if ((!month || *month == first.month()) && found.isValid() && found <= today)
            return found;
    }
    return std::nullopt;
}

/// Whether the locale writes the day before the month.
bool isDayFirst()
{
    // Only the third part of this date can be read as a day.
    const QString text = foundation::localText(QDate(2000, 11, 22));
    return text.indexOf(QStringLiteral("22")) < text.indexOf(QStringLiteral("11"));
}

} // namespace

QDate dayOf(const QString &text, QDate today)
{
    static const QRegularExpression shift(QStringLiteral(R"(\A([+\-\x{2212}])(\d{1,5})\z)"));
    static const QRegularExpression parts(
        QStringLiteral(R"(\A(\d{1,2})(?:[-./](?:(\d{1,2})\.?)?)?\z)"));
    const QString typed = text.trimmed();
    if (const auto day = namedDay(typed.toLower(), today))
        return *day;
    if (const auto match = shift.match(typed); match.hasMatch()) {
        const int days = match.captured(2).toInt();
        const QDate day = today.addDays(match.captured(1) == u"+" ? days : -days);
        if (day.isValid())
            return day;
    }
    if (const auto match = parts.match(typed); match.hasMatch()) {
        const int first = match.captured(1).toInt();
        const std::optional<int> second =
            match.hasCaptured(2) ? std::optional(match.captured(2).toInt()) : std::nullopt;
        const bool isDay = !second || isDayFirst();
        const auto day = newest(second ? std::optional(isDay ? *second : first) : std::nullopt,
                                isDay ? first : *second, today);
        if (!day)
            throw internal::notADay(text);
        return *day;
    }
    QDate day;
    try {
        readValue(typed, day);
    } catch (const EntryError &) {
        throw internal::notADay(text);
    }
    return day;
}

} // namespace kiv::workbench
