// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_entries.h"

#include "interchange/internal/day_forms.h"
#include "interchange/internal/digits.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include "foundation/presentation.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

/// The number alone, where its own currency stands beside it.
QString withoutCurrency(QString text, const QStringList &names)
{
    const auto isPlain = [](QChar unit) {
        return isDigit(unit) || unit == u'.' || unit == u',' || unit == u'-';
    };
    if (std::ranges::all_of(text, isPlain)) // as most are
        return text;
    for (const QString &name : names) {
        const qsizetype at = text.indexOf(name);
        if (at >= 0 && (std::none_of(text.cbegin(), text.cbegin() + at, isDigit) ||
                        std::none_of(text.cbegin() + at + name.size(), text.cend(), isDigit)))
            text.remove(at, name.size());
    }
    return text.trimmed();
}

/// "CR" or "DR" behind an amount, in either case; nothing where there is none.
std::optional<bool> takeMark(QString &text)
{
    for (const auto &[mark, isIn] : {std::pair("CR", true), {"DR", false}}) {
        if (text.endsWith(QLatin1String(mark), Qt::CaseInsensitive)) {
            text.chop(2);
            text = text.trimmed();
            return isIn;
        }
    }
    return std::nullopt;
}

numira::Money moneyOf(const QString &text, const numira::Currency &currency, const Place &place,
                      const CsvLayout &layout)
{
    QString number = withoutCurrency(text, currency == layout.currency ? layout.currencyNames
                                                                       : namesOf(currency));
    const auto isIn = takeMark(number);
    const numira::Money money =
        statementAmount(number, currency, layout.profile.decimalMark, place);
    if (isIn && money.isNegative())
        throw faults::notANumber(place, text);
    return isIn.value_or(true) ? money : -money;
}

numira::Currency currencyOf(const CsvRecord &row, const CsvLayout &layout)
{
    if (!layout.columns.currency)
        return layout.currency;
    const QString code = row.cells[*layout.columns.currency].trimmed();
    if (code.isEmpty() || layout.currencyNames.contains(code))
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
    const QString word = words::plainWord(sign);
    const bool isOut = words::saysOut(word);
    // A deposit is a D as well as a debit.
    if ((!isOut && !words::saysIn(word) && !sign.isEmpty()) || word == u"d")
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
        return column ? row.cells.value(*column).trimmed() : QString();
    };
    const numira::Currency currency = currencyOf(row, layout);
    Amount amount =
        columns.amount
            ? Amount{moneyOf(cell(columns.amount), currency, row.place, layout)}
            : amountInOrOut(cell(columns.in), cell(columns.out), currency, row.place, layout);
    const bool isBare = layout.isMarkedIn &&
                        !cell(columns.amount).endsWith(QLatin1String("CR"), Qt::CaseInsensitive);
    if (isBare)
        amount.money = -amount.money;
    if (columns.sign && isOut(cell(columns.sign), layout.profile, row.place))
        amount.money = -amount.money.abs();
    if (layout.profile.isNegated)
        amount.money = -amount.money;
    return amount;
}

} // namespace

QString textOf(const CsvRecord &row, const CsvLayout &layout)
{
    QStringList texts;
    for (const qsizetype column : layout.columns.texts)
        texts += row.cells.value(column).simplified();
    texts.removeAll(QString());
    return texts.join(u' ');
}

std::optional<QDate> dayOf(const QStringList &cells, const CsvLayout &layout)
{
    return readDay(cells.value(layout.columns.date), layout.dayForms.front());
}

EntryState stateOf(const CsvRecord &row, const CsvLayout &layout)
{
    const auto &column = layout.columns.status;
    const QString state = column ? row.cells.value(*column).trimmed() : QString();
    if (words::saysPending(state))
        return EntryState::Pending;
    if (words::saysUndone(state))
        return EntryState::Undone;
    // Some banks write so in place of the day.
    const QString day = row.cells.value(layout.columns.date).trimmed();
    return !day.isEmpty() && !day[0].isDigit() && words::saysPending(day) ? EntryState::Pending
                                                                          : EntryState::Booked;
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
        return std::nullopt; // "n/a", or empty in other ways
    }
}

CsvEntry entryOf(const CsvRecord &row, const CsvLayout &layout)
{
    const CsvColumns &columns = layout.columns;
    const auto day = dayOf(row.cells, layout);
    if (row.cells.value(columns.date).trimmed().isEmpty())
        throw faults::missingDate(row.place);
    if (!day)
        throw faults::notInDateFormat(row.place, row.cells[columns.date].trimmed(),
                                      layout.dayForms.front().text());
    const auto [money, hasMinusOut] = amountOf(row, layout);
    StatementEntry entry{row.place, *day, money, textOf(row, layout)};
    const auto cell = [&row](const std::optional<qsizetype> &column) {
        return column ? row.cells.value(*column).simplified() : QString();
    };
    entry.bankId = cell(columns.id);
    entry.payee = cell(columns.payee);
    if (columns.valueDate)
        entry.valueDate =
            readDay(row.cells.value(*columns.valueDate), layout.dayForms.front()).value_or(QDate());
    const QString fee = cell(columns.fee);
    return {std::move(entry), hasMinusOut,
            fee.isEmpty() ? numira::Money(money.code())
                          : moneyOf(fee, money.code(), row.place, layout)};
}

} // namespace kiv::interchange::internal
