// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_entries.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_words.h"

#include "foundation/presentation.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

/// "$" where Australian dollars are used, whose full sign is "A$".
bool isSignOf(const numira::Currency &currency, const QString &text)
{
    const auto symbol = numira::currencySymbol(currency);
    return text == u"$" && symbol && symbol->ends_with('$');
}

/// The number alone, where its own currency stands beside it.
QString withoutCurrency(QString text, const numira::Currency &currency)
{
    const QString code = foundation::toQString(currency);
    QStringList names{code};
    if (const auto symbol = numira::currencySymbol(currency)) {
        // "A$" is "AU$" and "$" as well, where Australian dollars are used.
        const QString sign = QString::fromStdString(*symbol);
        if (sign.endsWith(u'$'))
            names += {code.left(2) + u'$', sign, QStringLiteral("$")};
        else
            names += sign;
    }
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    for (const QString &name : names) {
        const qsizetype at = text.indexOf(name);
        if (at >= 0 &&
            (!text.left(at).contains(digit) || !text.mid(at + name.size()).contains(digit)))
            text.remove(at, name.size());
    }
    return text.trimmed();
}

numira::Money moneyOf(const QString &text, const numira::Currency &currency, const Place &place,
                      const CsvLayout &layout)
{
    return statementAmount(withoutCurrency(text, currency), currency, layout.profile.decimalMark,
                           place);
}

numira::Currency currencyOf(const CsvRecord &row, const CsvLayout &layout)
{
    if (!layout.columns.currency)
        return layout.currency;
    const QString code = row.cells[*layout.columns.currency].trimmed();
    if (code.isEmpty() || isSignOf(layout.currency, code))
        return layout.currency;
    const auto read = readCurrency(code.toUpper(), layout.currency);
    if (!read)
        throw faults::notACurrency(row.place, code);
    return *read;
}

/// By the signs that the profile names, or by the common ones.
bool isOut(const QString &sign, const CsvProfile &profile, const Place &place)
{
    if (!profile.negativeSigns.isEmpty())
        return profile.negativeSigns.contains(sign, Qt::CaseInsensitive);
    const bool isOut = words::wentOut.contains(sign, Qt::CaseInsensitive);
    // A deposit is a D as well as a debit.
    if ((!isOut && !words::cameIn.contains(sign, Qt::CaseInsensitive) && !sign.isEmpty()) ||
        sign.compare(u"D", Qt::CaseInsensitive) == 0)
        throw faults::signUnknown(place, sign);
    return isOut;
}

struct Amount {
    numira::Money money;
    std::optional<bool> hasMinusOut = {}; ///< as in CsvEntry
};

/// From the two columns of what came in and what went out.
Amount amountInOrOut(const QString &cameIn, const QString &wentOut,
                     const numira::Currency &currency, const Place &place, const CsvLayout &layout)
{
    const auto read = [&](const QString &text) {
        return text.isEmpty() ? numira::Money(currency) : moneyOf(text, currency, place, layout);
    };
    const numira::Money in = read(cameIn);
    const numira::Money out = read(wentOut);
    if (in.isNegative())
        throw faults::negativeIn(place);
    if (!in.isZero() && !out.isZero())
        throw faults::bothWays(place);
    if (cameIn.isEmpty() && wentOut.isEmpty())
        throw faults::missingAmount(place);
    if (out.isZero())
        return {in};
    return {-out.abs(), out.isNegative()};
}

Amount amountOf(const CsvRecord &row, const CsvLayout &layout)
{
    const CsvColumns &columns = layout.columns;
    const auto cell = [&row](const std::optional<qsizetype> &column) {
        return column ? row.cells[*column].trimmed() : QString();
    };
    const numira::Currency currency = currencyOf(row, layout);
    Amount amount =
        columns.amount
            ? Amount{moneyOf(cell(columns.amount), currency, row.place, layout)}
            : amountInOrOut(cell(columns.in), cell(columns.out), currency, row.place, layout);
    if (columns.sign && isOut(cell(columns.sign), layout.profile, row.place))
        amount.money = -amount.money.abs();
    if (layout.profile.isNegated)
        amount.money = -amount.money;
    return amount;
}

QString textOf(const CsvRecord &row, const CsvLayout &layout)
{
    QStringList texts;
    for (const qsizetype column : layout.columns.texts)
        texts += row.cells.value(column).simplified();
    texts.removeAll(QString());
    return texts.join(u' ');
}

} // namespace

std::optional<QDate> dayOf(const QStringList &cells, const CsvLayout &layout)
{
    const DateFormat &format = layout.profile.dateFormat;
    QString date = cells.value(layout.columns.date).trimmed();
    // Some banks write the time of day after the date.
    if (!format.text().contains(u' '))
        date.truncate(
            std::ranges::find_if(date, [](QChar unit) { return unit == u' ' || unit == u'T'; }) -
            date.cbegin());
    return format.read(date);
}

bool isPending(const CsvRecord &row, const CsvLayout &layout)
{
    const auto &column = layout.columns.status;
    const QStringList said =
        column ? row.cells.value(*column).simplified().split(u' ') : QStringList();
    return std::ranges::any_of(said, [](const QString &word) {
        return words::pending.contains(word, Qt::CaseInsensitive);
    });
}

std::optional<numira::Money> balanceOf(const CsvRecord &row, const CsvLayout &layout)
{
    const auto &column = layout.columns.balance;
    const QString text = column ? row.cells.value(*column).trimmed() : QString();
    if (text.isEmpty())
        return std::nullopt;
    try {
        return moneyOf(text, layout.currency, row.place, layout);
    } catch (const ImportError &) {
        if (!layout.profile.balanceColumn.isEmpty())
            throw;
        return std::nullopt;
    }
}

CsvEntry entryOf(const CsvRecord &row, const CsvLayout &layout)
{
    const CsvColumns &columns = layout.columns;
    const auto day = dayOf(row.cells, layout);
    if (!day)
        throw faults::notInDateFormat(row.place, row.cells[columns.date].trimmed(),
                                      layout.profile.dateFormat.text());
    const auto [money, hasMinusOut] = amountOf(row, layout);
    StatementEntry entry{row.place, *day, money, textOf(row, layout)};
    if (columns.id)
        entry.bankId = row.cells.value(*columns.id).simplified();
    return {std::move(entry), hasMinusOut};
}

} // namespace kiv::interchange::internal
