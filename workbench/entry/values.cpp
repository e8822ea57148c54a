// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/values.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/similar.h"
#include "workbench/entry/user_locale.h"
#include "workbench/internal/faults.h"

#include "foundation/local_dates.h"
#include "foundation/presentation.h"
#include "numira/error.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

#include <limits>

namespace kiv::workbench {

namespace {

template <typename Integer>
Integer toInteger(const QString &text, Integer lowest,
                  Integer highest = std::numeric_limits<Integer>::max())
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber || number < qint64{lowest} || number > qint64{highest})
        throw notANumber(text, qint64{lowest}, qint64{highest});
    return static_cast<Integer>(number);
}

/// The enumerator between `lowest` and `highest` with this English name.
template <typename Enumeration, typename Name>
Enumeration toEnumerator(const QString &text, Enumeration lowest, Enumeration highest, Name name)
{
    const QString plain = text.toLower().replace(u'-', u' ');
    QStringList choices;
    for (auto value = static_cast<int>(lowest); value <= static_cast<int>(highest); ++value) {
        const auto candidate = static_cast<Enumeration>(value);
        const QString known = name(candidate);
        if (known == plain)
            return candidate;
        choices += QString(known).replace(u' ', u'-');
    }
    throw notAChoice(text, choices);
}

/// The amount in `plain`; `word` is the text as typed.
Amount amountOf(const QString &word, const QString &plain)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(?:([A-Za-z]{3}) ?)?([+-]?\d+(?:\.(\d+))?)(?: ?([A-Za-z]{3}))?\z)"));
    const QRegularExpressionMatch match = form.match(plain);
    if (!match.hasMatch() || (match.hasCaptured(1) && match.hasCaptured(4)))
        throw internal::notAnAmount(word);
    Amount amount;
    amount.text = word;
    amount.digits = static_cast<unsigned>(match.capturedLength(3));
    for (const int place : {1, 4}) {
        if (match.hasCaptured(place))
            readValue(match.captured(place), amount.currency);
    }
    try {
        amount.number = numira::Decimal::fromText(match.captured(2).toStdString());
    } catch (const numira::OverflowError &) {
        throw internal::amountTooLarge(word);
    } catch (const numira::Error &) {
        throw internal::notAnAmount(word);
    }
    return amount;
}

} // namespace

numira::Money Amount::in(const numira::Currency &otherwise) const
{
    const numira::Currency code = currency.value_or(otherwise);
    const unsigned digitsMax = numira::minorUnitDigits(code);
    if (digits > digitsMax)
        throw internal::tooManyDigits(text, foundation::toQString(code), digitsMax);
    return {code, number};
}

void readValue(const QString &text, QString &value)
{
    value = text;
}

void readValue(const QString &text, NewName &value)
{
    if (text.trimmed().isEmpty())
        throw internal::emptyName();
    value.text = text;
}

void readPlain(const QString &text, QDate &value)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    // Qt reads more forms than the one that it writes.
    if (!date.isValid() || date.toString(Qt::ISODate) != text)
        throw internal::notADate(text);
    value = date;
}

void readValue(const QString &text, QDate &value)
{
    const QDate date = foundation::dateFromLocalText(text);
    if (date.isValid())
        value = date;
    else
        readPlain(text, value);
}

void readValue(const QString &text, numira::Currency &value)
{
    try {
        const numira::Currency currency = numira::toCurrency(text.toUpper().toStdString());
        if (currency != numira::Currency()) {
            value = currency;
            return;
        }
    } catch (const numira::Error &) {
        // Reported below, as for "no currency".
    }
    QStringList codes;
    QStringList byName;
    for (const numira::Currency &currency : numira::activeCurrencies()) {
        codes += foundation::toQString(currency);
        const QString name = QString::fromStdString(numira::currencyName(currency));
        if (text.size() > codes.back().size() && !similarTo(text, {name}).isEmpty())
            byName += codes.back();
    }
    throw internal::notACurrency(text,
                                 byName.isEmpty() ? similarTo(text, codes) : byName.mid(0, 3));
}

void readPlain(const QString &text, Amount &value)
{
    value = amountOf(text, text);
}

void readValue(const QString &text, Amount &value)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A([A-Za-z]{3})?[ \x{A0}]?([^A-Za-z]*\d)[ \x{A0}]?([A-Za-z]{3})?\z)"));
    const QRegularExpressionMatch match = form.match(text);
    const QString number = match.captured(2);
    const QString plain = plainNumber(number);
    // A plain number keeps its blanks, so that they are checked.
    value = amountOf(text, plain == number ? text : match.captured(1) + plain + match.captured(3));
}

void readValue(const QString &text, budgeting::EventFrequency &value)
{
    using enum budgeting::EventFrequency;
    value = toEnumerator(text, None, EveryTenYears,
                         [](auto frequency) { return budgeting::toQString(frequency); });
}

void readValue(const QString &text, accounting::AccountTypes &value)
{
    using enum accounting::AccountTypes;
    value =
        toEnumerator(text, Asset, Income, [](auto type) { return accounting::toQString(type); });
}

void readValue(const QString &text, banking::BankAccountTypes &value)
{
    using enum banking::BankAccountTypes;
    value = toEnumerator(text, Checking, Cash, [](auto type) { return banking::toQString(type); });
}

void readValue(const QString &text, budgeting::BudgetItemTypes &value)
{
    using enum budgeting::BudgetItemTypes;
    value = toEnumerator(text, Bill, Wage, kindWord);
}

void readValue(const QString &text, accounting::AccountNumber &value)
{
    value = accounting::AccountNumber(toInteger<std::uint32_t>(text, 1));
}

void readValue(const QString &text, accounting::TransactionNumber &value)
{
    value = accounting::TransactionNumber(toInteger<std::uint16_t>(text, 1));
}

int readWhole(const QString &text, int lowest, int highest)
{
    return toInteger<int>(text, lowest, highest);
}

void readValue(const QString &text, std::chrono::days &value)
{
    value = std::chrono::days(readWhole(text, 0, 36600));
}

void readValue(const QString &text, std::chrono::hours &value)
{
    value = std::chrono::hours(readWhole(text, 0, 100000));
}

void readValue(const QString &text, foundation::Percentage &value)
{
    static const QRegularExpression form(QStringLiteral(R"(\A(\d+(?:\.\d{1,6})?)\z)"));
    const QString number = text.endsWith(u'%') ? text.chopped(1).trimmed() : text;
    const QRegularExpressionMatch match = form.match(plainNumber(number));
    bool isNumber = false;
    const double rate = match.captured(1).toDouble(&isNumber);
    if (!isNumber)
        throw internal::notAPercentage(text);
    value = foundation::Percentage(rate, 6);
}

std::pair<QString, QString> assignment(const QString &text)
{
    const qsizetype at = text.lastIndexOf(u'=');
    if (at <= 0 || at + 1 == text.size())
        throw notAnAssignment(text);
    return {text.first(at), text.sliced(at + 1)};
}

} // namespace kiv::workbench
