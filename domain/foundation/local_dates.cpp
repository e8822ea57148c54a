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
    return date.isValid() ? date.toString(Qt::ISODate) : QStringLiteral("no date");
}

QString localText(QDate date)
{
    return hasDateLocale() ? QLocale::c().toString(date, pattern()) : date.toString(Qt::ISODate);
}

QDate dateFromLocalText(const QString &text)
{
    const QDate date = hasDateLocale() ? QLocale::c().toDate(text, pattern())
                                       : QDate::fromString(text, Qt::ISODate);
    // Qt reads more forms than the one that it writes.
    return localText(date) == text ? date : QDate();
}

} // namespace kiv::foundation
