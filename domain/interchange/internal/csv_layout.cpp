// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_layout.h"

#include "interchange/internal/csv_contents.h"
#include "interchange/internal/csv_notices.h"

#include "foundation/presentation.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

/// The currency that stands in each row; the account's where they differ.
numira::Currency currencyIn(const CsvSheet &sheet, const CsvColumns &columns,
                            const numira::Currency &currency)
{
    QString only;
    for (const CsvRecord &row : sheet.rows) {
        const QString code = columns.currency && !isContinued(row, columns)
                                 ? row.cells.value(*columns.currency).trimmed()
                                 : only;
        if (code.isEmpty() || (!only.isEmpty() && code != only))
            return currency;
        only = code;
    }
    // "$" alone is that of the account where its full sign ends so.
    const bool isOwn = only == u"$" && namesOf(currency).contains(only);
    return isOwn ? currency : readCurrency(only.toUpper(), currency).value_or(currency);
}

/// Whether some amounts have "CR" behind them, and the others no sign at all.
bool isMarkedIn(const std::vector<CsvRecord> &rows, qsizetype column)
{
    const auto endsWith = [column](const CsvRecord &row, QLatin1String mark) {
        return row.cells.value(column).trimmed().endsWith(mark, Qt::CaseInsensitive);
    };
    return std::ranges::any_of(
               rows, [&](const CsvRecord &row) { return endsWith(row, QLatin1String("CR")); }) &&
           std::ranges::none_of(
               rows, [&](const CsvRecord &row) { return endsWith(row, QLatin1String("DR")); });
}

/// Whether it is an account number of the international form, by its check digits.
bool isIban(QString text)
{
    text.remove(u' ');
    if (text.size() < 15 || text.size() > 34 || !text[0].isUpper() || !text[1].isUpper())
        return false;
    int rest = 0;
    for (const QChar unit : text.mid(4) + text.left(4)) {
        const bool isLetter = unit >= u'A' && unit <= u'Z';
        if (!isLetter && (unit < u'0' || unit > u'9'))
            return false;
        const int value = isLetter ? unit.unicode() - u'A' + 10 : unit.unicode() - u'0';
        rest = (rest * (isLetter ? 100 : 10) + value) % 97;
    }
    return rest == 1;
}

} // namespace

QStringList namesOf(const numira::Currency &currency)
{
    QStringList names{foundation::toQString(currency)};
    if (const auto symbol = numira::currencySymbol(currency)) {
        const QString sign = QString::fromStdString(*symbol);
        // "A$" is "AU$" and "$" as well, where Australian dollars are used.
        if (sign.endsWith(u'$'))
            names += {names.front().left(2) + u'$', sign, QStringLiteral("$")};
        else
            names += sign;
    }
    return names;
}

bool isContinued(const CsvRecord &row, const CsvColumns &columns)
{
    for (qsizetype column = 0; column < row.cells.size(); ++column) {
        // Only where its empty day is seen, it is no entry that is cut off.
        const bool isText = column > columns.date &&
                            std::ranges::find(columns.texts, column) != columns.texts.end();
        if (!isText && !row.cells[column].trimmed().isEmpty())
            return false;
    }
    return true;
}

QString accountIn(const std::vector<CsvRecord> &above)
{
    constexpr auto digitsMin = 4;
    const auto isNumber = [](const QString &text) {
        return std::ranges::count_if(text, [](QChar unit) { return unit.isDigit(); }) >= digitsMin;
    };
    for (const CsvRecord &row : above) {
        QStringList parts; // "IBAN: …" may stand in one cell
        for (const QString &cell : row.cells)
            parts += cell.split(u':');
        for (qsizetype at = 0; at < parts.size(); ++at) {
            const QString part = parts[at].trimmed();
            if (isIban(part))
                return QString(part).remove(u' ');
            const QString next = parts.value(at + 1).trimmed();
            if (words::isHeading(words::plainWord(part), {words::Column::Account}) &&
                isNumber(next))
                return isIban(next) ? QString(next).remove(u' ') : next;
        }
    }
    return {};
}

CsvLayout layoutOf(const CsvSheet &sheet, const numira::Currency &currency)
{
    CsvColumns columns = columnsOf(sheet, currency);
    CsvLayout layout{withColumns(sheet.profile, columns),
                     currencyIn(sheet, columns, currency),
                     {},
                     columns,
                     {},
                     false,
                     sheet.notices};
    CsvProfile &profile = layout.profile;
    layout.currencyNames = namesOf(layout.currency);
    layout.dayForms = profile.dateFormat
                          ? std::vector{*profile.dateFormat}
                          : dayFormsOf(sheet.rows, columns, layout.notices).fitting();
    if (layout.dayForms.size() == 1)
        profile.dateFormat = layout.dayForms.front();
    if (!profile.decimalMark)
        profile.decimalMark = decimalMarkOf(sheet.rows, columns);
    if (!columns.amount || columns.sign || profile.isNegated ||
        hasMinus(sheet.rows, *columns.amount))
        return layout;
    layout.isMarkedIn = isMarkedIn(sheet.rows, *columns.amount);
    if (const auto signs = signColumnOf(sheet.rows, columns)) {
        layout.columns.sign = signs->column;
        if (!signs->negative.contains(QString()))
            layout.columns.needed = std::max(layout.columns.needed, signs->column + 1);
        profile.negativeSigns = signs->negative;
        profile = withColumns(profile, layout.columns);
    }
    if (layout.isMarkedIn || profile.negativeSigns == QStringList{QString()})
        layout.notices += notices::markedIn();
    return layout;
}

} // namespace kiv::interchange::internal
