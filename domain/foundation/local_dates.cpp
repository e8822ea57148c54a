// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/local_dates.h"

#include <QtCore/QLocale>

#include <unicode/dtptngen.h>

#include <memory>

namespace kiv::foundation {
namespace {

/// Which Qt understands, too; empty for ISO 8601.
QString &pattern()
{
    static QString thePattern;
    return thePattern;
}

/// The locale's pattern for a date in digits, or nothing when it has none or
/// one with names.
QString patternOf(const std::string &localeName)
{
    icu::Locale locale = icu::Locale::createCanonical(localeName.c_str());
    const std::string language = locale.getLanguage();
    if (language.empty() || language == "c" || language == "posix")
        return {};
    UErrorCode status = U_ZERO_ERROR;
    // Days are counted alike in files and on statements, so years are, too.
    locale.setKeywordValue("calendar", "gregorian", status);
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_FAILURE(status))
        return {};
    const icu::UnicodeString best =
        generator->getBestPattern(u"yyyyMMdd", UDATPG_MATCH_ALL_FIELDS_LENGTH, status);
    const QString found = QString::fromUtf16(best.getBuffer(), best.length());
    const bool hasAllFields = found.count(QStringLiteral("yyyy")) == 1 && found.count(u'M') == 2 &&
                              found.count(u'd') == 2;
    return U_SUCCESS(status) && hasAllFields ? found : QString();
}

/// What Qt writes by way of printf, which long lists would wait for.
QString isoForm(QDate date)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 1 || year > 9999) // ISO 8601 has no form for it
        return date.toString(Qt::ISODate);
    QString text = QStringLiteral("0000-00-00");
    for (const auto &[value, last] : {std::pair(year, 3), {month, 6}, {day, 9}}) {
        int rest = value;
        for (qsizetype at = last; rest > 0; --at, rest /= 10)
            text[at] = QChar(u'0' + rest % 10);
    }
    return text;
}

} // namespace

void setDateLocale(const std::string &localeName)
{
    pattern() = patternOf(localeName);
}

bool hasDateLocale()
{
    return !pattern().isEmpty();
}

QString isoText(QDate date)
{
    return date.isValid() ? isoForm(date) : QStringLiteral("no date");
}

QString localText(QDate date)
{
    return hasDateLocale() ? QLocale::c().toString(date, pattern()) : isoForm(date);
}

QDate dateFromLocalText(const QString &text)
{
    const QDate date = hasDateLocale() ? QLocale::c().toDate(text, pattern())
                                       : QDate::fromString(text, Qt::ISODate);
    // Qt reads more forms than the one that it writes.
    return localText(date) == text ? date : QDate();
}

} // namespace kiv::foundation
