// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_guess.h"

#include "interchange/internal/csv_checks.h"
#include "interchange/internal/csv_entries.h"
#include "interchange/internal/day_forms.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::interchange {

namespace {

using internal::CsvLayout;
using internal::CsvSheet;

QString delimiterName(QChar delimiter)
{
    switch (delimiter.unicode()) {
    case u',':
        return QObject::tr("commas");
    case u';':
        return QObject::tr("semicolons");
    case u'\t':
        return QObject::tr("tabs");
    default:
        return u'\'' + QString(delimiter) + u'\'';
    }
}

/// The day of the file that only one order of day and month allows; empty where there is
/// none, or no other order.
QString proofOf(const CsvSheet &sheet, const CsvLayout &layout)
{
    const QString form = layout.dayForms.front().text();
    if (form.contains(u"MMM") || form.startsWith(u'Y'))
        return {};
    QString swapped = form;
    swapped.replace(u'D', u'\1').replace(u'M', u'D').replace(u'\1', u'M');
    const DateFormat other(swapped, {});
    for (const CsvRecord &row : sheet.rows) {
        const QString cell = row.cells.value(layout.columns.date).trimmed();
        if (dayOf(row.cells, layout) && !internal::readDay(cell, other))
            return faults::quoted(cell);
    }
    return {};
}

QString datePart(const CsvSheet &sheet, const CsvLayout &layout)
{
    const QString column = faults::quoted(layout.profile.dateColumn);
    if (!layout.profile.dateFormat)
        return QObject::tr("date '%1'").arg(column);
    const QString form = layout.profile.dateFormat->text();
    const QString proof = proofOf(sheet, layout);
    return proof.isEmpty() ? QObject::tr("date '%1' as %2").arg(column, form)
                           : QObject::tr("date '%1' as %2 (%3 proves it)").arg(column, form, proof);
}

QStringList columnParts(const CsvProfile &profile)
{
    QStringList parts;
    const auto add = [&parts](const QString &form, const QString &column) {
        if (!column.isEmpty() && column != u"-")
            parts += form.arg(faults::quoted(column));
    };
    add(QObject::tr("amount '%1'"), profile.amountColumn);
    add(QObject::tr("money in '%1'"), profile.inColumn);
    add(QObject::tr("money out '%1'"), profile.outColumn);
    add(QObject::tr("sign '%1'"), profile.signColumn);
    add(QObject::tr("fee '%1'"), profile.feeColumn);
    add(QObject::tr("payee '%1'"), profile.payeeColumn);
    for (const QString &column : profile.textColumns)
        add(QObject::tr("text '%1'"), column);
    add(QObject::tr("balance '%1'"), profile.balanceColumn);
    add(QObject::tr("account '%1'"), profile.accountColumn);
    return parts;
}

QString summaryOf(const CsvSheet &sheet, const CsvLayout *layout)
{
    const CsvProfile &profile = layout ? layout->profile : sheet.profile;
    QStringList parts{profile.encoding, delimiterName(*profile.delimiter)};
    parts += *profile.hasHeadings
                 ? QObject::tr("headings on line %1").arg(sheet.headings.place.line)
                 : QObject::tr("no headings");
    if (layout) {
        parts += datePart(sheet, *layout);
        parts += columnParts(profile);
        if (profile.decimalMark == DecimalMark::Comma)
            parts += QObject::tr("decimal comma");
    }
    return QObject::tr("Read as: %1").arg(parts.join(QStringLiteral(", ")));
}

/// The first day that the forms read differently, in each of them.
std::vector<DayReading> readingsOf(const CsvSheet &sheet, const CsvLayout &layout)
{
    const auto read = [&](const CsvRecord &row, const DateFormat &form) {
        return internal::readDay(row.cells.value(layout.columns.date), form);
    };
    const auto differs = [&](const CsvRecord &row) {
        const auto first = read(row, layout.dayForms.front());
        return first && std::ranges::any_of(layout.dayForms, [&](const DateFormat &form) {
                   return read(row, form) != first;
               });
    };
    auto row = std::ranges::find_if(sheet.rows, differs);
    if (row == sheet.rows.end())
        row = std::ranges::find_if(
            sheet.rows, [&](const CsvRecord &one) { return dayOf(one.cells, layout).has_value(); });
    std::vector<DayReading> readings;
    for (const DateFormat &form : layout.dayForms) {
        if (row != sheet.rows.end())
            readings.push_back({form, row->cells.value(layout.columns.date).trimmed(),
                                read(*row, form).value_or(QDate())});
    }
    return readings;
}

} // namespace

CsvGuess guessCsv(const QByteArray &bytes, const QString &file, const CsvOptions &options)
{
    constexpr std::size_t previewMax = 20;
    const CsvSheet sheet = internal::sheetOf(bytes, file, options.profile, options.currency);
    CsvGuess guess{sheet.profile, {}, {}, sheet.headings.cells, {}, {}};
    const auto shown = static_cast<std::ptrdiff_t>(std::min(sheet.rows.size(), previewMax));
    guess.rows.assign(sheet.rows.begin(), sheet.rows.begin() + shown);
    try {
        const CsvLayout layout = internal::layoutOf(sheet, options.currency);
        guess.profile = layout.profile;
        guess.dayReadings = readingsOf(sheet, layout);
        guess.summary = summaryOf(sheet, &layout);
        internal::requireHeadings(sheet, layout);
        if (layout.dayForms.size() > 1)
            throw faults::ambiguousDates(sheet.rows.front().place);
    } catch (const ImportError &error) {
        guess.missing = error.message();
        if (guess.summary.isEmpty())
            guess.summary = summaryOf(sheet, nullptr);
    }
    return guess;
}

} // namespace kiv::interchange
