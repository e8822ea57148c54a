// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_contents.h"

#include "interchange/internal/csv_notices.h"
#include "interchange/internal/digits.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

// ---- days --------------------------------------------------------------------

std::vector<QDate> daysIn(const std::vector<CsvRecord> &rows, qsizetype column,
                          const DateFormat &form)
{
    std::vector<QDate> days;
    for (const CsvRecord &row : rows) {
        if (const auto day = readDay(row.cells.value(column), form))
            days.push_back(*day);
    }
    return days;
}

/// Whether at least three days rise, or fall, from line to line.
bool isInOrder(std::vector<QDate> days)
{
    if (!std::ranges::is_sorted(days) && !std::ranges::is_sorted(days, std::greater()))
        return false;
    constexpr auto daysMin = 3;
    return std::unique(days.begin(), days.end()) - days.begin() >= daysMin;
}

// ---- decimal marks -----------------------------------------------------------

/// Whether all that stands behind the first mark are groups of three digits.
bool isGrouped(QStringView number, QChar mark)
{
    const auto groups = number.split(mark).mid(1);
    return std::ranges::all_of(groups, [](QStringView group) {
        return group.size() == 3 && std::ranges::all_of(group, isDigit);
    });
}

/// The decimal mark that a number shows by itself.
std::optional<DecimalMark> markOf(QStringView number)
{
    using enum DecimalMark;
    const qsizetype point = number.lastIndexOf(u'.');
    const qsizetype comma = number.lastIndexOf(u',');
    if (point < 0 && comma < 0)
        return std::nullopt;
    const DecimalMark last = point > comma ? Point : Comma;
    const DecimalMark other = point > comma ? Comma : Point;
    const QChar mark(static_cast<char16_t>(last));
    if (number.count(mark) > 1) // it groups
        return isGrouped(number, mark) ? std::optional(other) : std::nullopt;
    qsizetype end = number.size();
    while (end > 0 && !isDigit(number[end - 1]))
        --end;
    const qsizetype at = std::max(point, comma);
    const qsizetype begin = std::ranges::find_if(number, isDigit) - number.begin();
    const bool couldGroup = end - at == 4 && at - begin >= 1 && at - begin <= 3 &&
                            number[begin] != u'0' && std::min(point, comma) < 0;
    return end <= at || couldGroup ? std::nullopt : std::optional(last);
}

// ---- signs -------------------------------------------------------------------

/// The different words of a column, each with the first row that has it.
struct ColumnWords {
    std::map<QString, const CsvRecord *> out;
    std::map<QString, const CsvRecord *> in;
    bool hasOther = false;
    bool hasEmpty = false;
};

/// Nothing for a column of too many different words.
std::optional<ColumnWords> wordsOf(const std::vector<CsvRecord> &rows, qsizetype column)
{
    constexpr qsizetype wordsMax = 60;
    QSet<QString> seen;
    ColumnWords found;
    for (const CsvRecord &row : rows) {
        const QString cell = row.cells.value(column).trimmed();
        if (seen.contains(cell))
            continue;
        seen.insert(cell);
        if (seen.size() > wordsMax)
            return std::nullopt;
        const QString word = words::plainWord(cell);
        if (words::saysOut(word))
            found.out.emplace(cell, &row);
        else if (words::saysIn(word))
            found.in.emplace(cell, &row);
        else if (cell.isEmpty())
            found.hasEmpty = true;
        else
            found.hasOther = true;
    }
    return found;
}

bool isAmong(const std::map<QString, const CsvRecord *> &cells,
             std::initializer_list<const char *> plain)
{
    return std::ranges::any_of(cells, [&plain](const auto &cell) {
        return std::ranges::any_of(plain, [word = words::plainWord(cell.first)](const char *one) {
            return word == QLatin1String(one);
        });
    });
}

/// The words for what went out, where the column tells the sign of each amount.
std::optional<QStringList> outWordsOf(const ColumnWords &found, qsizetype column)
{
    // What is marked came in, as on the statements of cards.
    if (found.out.empty()) {
        const bool isMarkedIn = found.in.size() == 1 && found.hasEmpty && !found.hasOther &&
                                isAmong(found.in, {"cr", "c", "credit"});
        return isMarkedIn ? std::optional(QStringList{QString()}) : std::nullopt;
    }
    // Other kinds of entries, such as checks, may stand among both; "-" alone often stands
    // for nothing.
    const auto &[word, row] = *std::ranges::min_element(
        found.out, {}, [](const auto &cell) { return cell.second->place.line; });
    if (found.in.empty() && (word == u"-" || found.hasOther))
        return std::nullopt;
    // A deposit is a D as well as a debit.
    const bool isUnclear = isAmong(found.out, {"d"}) && !isAmong(found.in, {"c", "cr", "k"});
    if (found.hasOther || found.hasEmpty || isUnclear)
        throw faults::signsNotNamed(row->place, column + 1, word);
    QStringList negative;
    for (const auto &cell : found.out)
        negative += cell.first;
    return negative;
}

} // namespace

DayForms dayFormsOf(const std::vector<CsvRecord> &rows, const CsvColumns &columns,
                    QStringList &notices)
{
    DayForms forms;
    bool isRead = false;
    for (const auto &column : {std::optional(columns.date), columns.valueDate}) {
        for (const CsvRecord &row : rows) {
            if (!column || !forms.isOpen())
                break;
            const QString cell = row.cells.value(*column).trimmed();
            if (cell.isEmpty() || words::saysPending(cell))
                continue;
            if (!forms.narrow(cell)) // reading the entry will refuse it
                break;
            isRead = true;
        }
    }
    std::vector<std::pair<DateFormat, std::vector<QDate>>> different;
    for (const DateFormat &form : forms.fitting()) {
        auto days = isRead ? daysIn(rows, columns.date, form) : std::vector<QDate>();
        if (std::ranges::none_of(different, [&](const auto &one) { return one.second == days; }))
            different.emplace_back(form, std::move(days));
    }
    const auto isOrdered = [](const auto &one) { return isInOrder(one.second); };
    if (different.size() == 1) {
        forms.choose(different.front().first);
    } else if (std::ranges::count_if(different, isOrdered) == 1) {
        forms.choose(std::ranges::find_if(different, isOrdered)->first);
        notices += notices::orderOfDays(forms.fitting().front().text());
    }
    return forms;
}

std::optional<DecimalMark> decimalMarkOf(const std::vector<CsvRecord> &rows,
                                         const CsvColumns &columns)
{
    std::optional<DecimalMark> found;
    for (const CsvRecord &row : rows) {
        for (const auto &column : {columns.amount, columns.in, columns.out}) {
            const QString cell = column ? row.cells.value(*column) : QString();
            const auto mark = markOf(cell);
            if (mark && found && *mark != *found)
                throw faults::ambiguousNumber(row.place, cell.trimmed());
            found = mark ? mark : found;
        }
    }
    for (const auto &column : {columns.balance, columns.fee}) {
        for (const CsvRecord &row : rows) {
            if (!found && column)
                found = markOf(row.cells.value(*column));
        }
    }
    return found;
}

bool hasMinus(const std::vector<CsvRecord> &rows, qsizetype column)
{
    return std::ranges::any_of(rows, [column](const CsvRecord &row) {
        const QString cell = row.cells.value(column);
        return cell.contains(u'-') || cell.contains(u'(') || cell.contains(QChar(0x2212));
    });
}

std::optional<SignColumn> signColumnOf(const std::vector<CsvRecord> &rows,
                                       const CsvColumns &columns)
{
    for (qsizetype column = 0; column < columns.headings.size(); ++column) {
        if (column == columns.date || column == columns.amount)
            continue;
        const auto found = wordsOf(rows, column);
        if (auto negative = found ? outWordsOf(*found, column) : std::nullopt)
            return SignColumn{column, std::move(*negative)};
    }
    return std::nullopt;
}

} // namespace kiv::interchange::internal
