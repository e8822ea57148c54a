// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/day_forms.h"

#include "interchange/internal/digits.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

/// With dots, everybody writes the day before the month.
const std::vector<DateFormat> &commonForms()
{
    static const std::vector<DateFormat> forms = [] {
        std::vector<DateFormat> made;
        for (const char *text :
             {"YYYY-MM-DD",   "YYYY/MM/DD",  "YYYY.MM.DD",   "YYYY.MM.DD.",  "YYYY. MM. DD.",
              "YYYYMMDD",     "DD.MM.YYYY",  "DD.MM.YY",     "DD.MM.YYYY.",  "DD. MM. YYYY",
              "DD/MM/YYYY",   "MM/DD/YYYY",  "DD/MM/YY",     "MM/DD/YY",     "DD-MM-YYYY",
              "MM-DD-YYYY",   "DD-MM-YY",    "MM-DD-YY",     "YY-MM-DD",     "DD MM YYYY",
              "MM DD YYYY",   "DDMMYYYY",    "MMDDYYYY",     "DDMMYY",       "MMDDYY",
              "YYMMDD",       "DD MMM YYYY", "DD MMM YY",    "DD-MMM-YYYY",  "DD-MMM-YY",
              "DD/MMM/YYYY",  "DD/MMM/YY",   "DD.MMM.YYYY",  "DD. MMM YYYY", "DD.MMM YYYY",
              "MMM DD, YYYY", "MMM DD YYYY", "DD MMM, YYYY", "DDMMMYYYY",    "DDMMMYY",
              "YYYY-MMM-DD",  "YYYY/M/D",    "YYYY.M.D.",    "YYYY. M. D.",  "D.M.YYYY",
              "D.M.YY",       "D. M. YYYY",  "D/M/YYYY",     "M/D/YYYY",     "D/MM/YYYY",
              "D/M/YY",       "M/D/YY",      "D/MM/YY",      "D-M-YYYY",     "M-D-YYYY",
              "D-M-YY",       "M-D-YY",      "D MMM YYYY",   "D MMM YY",     "D-MMM-YYYY",
              "D-MMM-YY",     "D/MMM/YYYY",  "D. MMM YYYY",  "D.MMM YYYY",   "MMM D, YYYY",
              "MMM D YYYY",   "D MMM, YYYY"})
            made.emplace_back(QLatin1String(text), Place());
        return made;
    }();
    return forms;
}

/// Whether a number has a zero in front that the form leaves out. Days of one table are
/// written alike: where only some have zeros, a digit may be lost.
bool isPadded(QStringView written, const QString &form)
{
    const QChar *at = written.begin();
    for (qsizetype letter = 0; letter < form.size();) {
        const QChar kind = form[letter];
        const qsizetype begin = letter;
        while (letter < form.size() && form[letter] == kind)
            ++letter;
        const qsizetype count = letter - begin;
        if (!QStringLiteral("YMD").contains(kind) || (kind == u'M' && count == 3))
            continue;
        const QChar *const number = std::find_if(at, written.end(), isDigit);
        at = std::find_if_not(number, written.end(), isDigit);
        if (count == 1 && at - number == 2 && *number == u'0')
            return true;
    }
    return false;
}

/// What stands before a time of day such as "12:30".
QStringView withoutTime(QStringView text)
{
    text = text.trimmed();
    qsizetype hour = text.indexOf(u':');
    while (hour > 0 && isDigit(text[hour - 1]))
        --hour;
    if (hour > 1 && (text[hour - 1] == u' ' || text[hour - 1] == u'T'))
        text.truncate(hour - 1);
    const qsizetype mark = text.indexOf(u'T');
    if (mark > 0 && mark + 1 < text.size() && isDigit(text[mark - 1]) && isDigit(text[mark + 1]))
        text.truncate(mark);
    while (text.endsWith(u',') || text.endsWith(u' '))
        text.chop(1);
    return text;
}

QStringView firstWord(QStringView text)
{
    const qsizetype blank = text.indexOf(u' ');
    return blank < 0 ? text : text.first(blank);
}

/// Tells whether the day has the form; the text in both ways is found only once.
class WrittenDay {
public:
    explicit WrittenDay(QStringView written) : m_day(withoutTime(written)), m_word(firstWord(m_day))
    {
    }
    [[nodiscard]] std::optional<QDate> read(const DateFormat &format) const
    {
        return format.read(partFor(format));
    }
    [[nodiscard]] bool fits(const DateFormat &format) const
    {
        return read(format) && !isPadded(partFor(format), format.text());
    }

private:
    /// Where the form has no blank, nothing behind one counts.
    [[nodiscard]] QStringView partFor(const DateFormat &format) const
    {
        return format.text().contains(u' ') ? m_day : m_word;
    }

    QStringView m_day;
    QStringView m_word;
};

} // namespace

std::optional<QDate> readDay(QStringView written, const DateFormat &format)
{
    return WrittenDay(written).read(format);
}

DayForms::DayForms() : m_fitting(commonForms()) {}

bool DayForms::isDay(QStringView written)
{
    constexpr qsizetype lettersMax = 40;
    if (written.size() > lettersMax || !std::ranges::any_of(written, isDigit))
        return false;
    const WrittenDay day(written);
    return std::ranges::any_of(commonForms(),
                               [&day](const DateFormat &form) { return day.fits(form); });
}

bool DayForms::isDayLike(QStringView written)
{
    qsizetype marks = 0; // between two digits
    for (qsizetype at = 1; at + 1 < written.size(); ++at) {
        const bool isMark = QStringLiteral(".-/").contains(written[at]);
        marks += isMark && isDigit(written[at - 1]) && isDigit(written[at + 1]) ? 1 : 0;
    }
    return marks > 1 || isDay(written);
}

bool DayForms::narrow(QStringView written)
{
    const WrittenDay day(written);
    std::vector<DateFormat> left;
    std::ranges::copy_if(m_fitting, std::back_inserter(left),
                         [&day](const DateFormat &form) { return day.fits(form); });
    if (left.empty())
        return false;
    m_fitting = std::move(left);
    return true;
}

} // namespace kiv::interchange::internal
