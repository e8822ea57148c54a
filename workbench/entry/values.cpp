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
#include <QtCore/QStringDecoder>

#include <limits>

namespace kiv::workbench {

namespace {

QString decoded(const std::string &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString result = decoder(QByteArrayView(text));
    if (decoder.hasError())
        throw internal::notUtf8();
    return result;
}

template <typename Integer>
Integer toInteger(const std::string &text, Integer lowest,
                  Integer highest = std::numeric_limits<Integer>::max())
{
    const QString word = decoded(text);
    bool isNumber = false;
    const qint64 number = word.toLongLong(&isNumber);
    if (!isNumber || number < qint64{lowest} || number > qint64{highest})
        throw notANumber(word, qint64{lowest}, qint64{highest});
    return static_cast<Integer>(number);
}

/// The enumerator from `lowest` to `highest` whose English name was written.
template <typename Enumeration, typename Name>
Enumeration toEnumerator(const std::string &text, Enumeration lowest, Enumeration highest,
                         Name name)
{
    const QString word = decoded(text);
    const QString plain = word.toLower().replace(u'-', u' ');
    QStringList choices;
    for (auto value = static_cast<int>(lowest); value <= static_cast<int>(highest); ++value) {
        const auto candidate = static_cast<Enumeration>(value);
        const QString known = name(candidate);
        if (known == plain)
            return candidate;
        choices += QString(known).replace(u' ', u'-');
    }
    throw notAChoice(word, choices);
}

/// What `plain` says; `word` is how it was written.
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
            readValue(match.captured(place).toStdString(), amount.currency);
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

void readValue(const std::string &text, QString &value)
{
    value = decoded(text);
}

void readValue(const std::string &text, NewName &value)
{
    const QString name = decoded(text);
    if (name.trimmed().isEmpty())
        throw internal::emptyName();
    value.text = name;
}

void readPlain(const std::string &text, QDate &value)
{
    const QString word = decoded(text);
    const QDate date = QDate::fromString(word, Qt::ISODate);
    // Qt reads more forms than the one that it writes.
    if (!date.isValid() || date.toString(Qt::ISODate) != word)
        throw internal::notADate(word);
    value = date;
}

void readValue(const std::string &text, QDate &value)
{
    const QDate date = foundation::dateFromLocalText(decoded(text));
    if (date.isValid())
        value = date;
    else
        readPlain(text, value);
}

void readValue(const std::string &text, numira::Currency &value)
{
    const QString word = decoded(text);
    try {
        const numira::Currency currency = numira::toCurrency(word.toUpper().toStdString());
        if (currency != numira::Currency()) {
            value = currency;
            return;
        }
    } catch (const numira::Error &) {
        // Worded below, as for "no currency".
    }
    QStringList codes;
    QStringList byName;
    for (const numira::Currency &currency : numira::activeCurrencies()) {
        codes += foundation::toQString(currency);
        const QString name = QString::fromStdString(numira::currencyName(currency));
        if (word.size() > codes.back().size() && !similarTo(word, {name}).isEmpty())
            byName += codes.back();
    }
    throw internal::notACurrency(word,
                                 byName.isEmpty() ? similarTo(word, codes) : byName.mid(0, 3));
}

void readPlain(const std::string &text, Amount &value)
{
    const QString word = decoded(text);
    value = amountOf(word, word);
}

void readValue(const std::string &text, Amount &value)
{
    const QString word = decoded(text);
    static const QRegularExpression form(
        QStringLiteral(R"(\A([A-Za-z]{3})?[ \x{A0}]?([^A-Za-z]*\d)[ \x{A0}]?([A-Za-z]{3})?\z)"));
    const QRegularExpressionMatch match = form.match(word);
    const QString number = match.captured(2);
    const QString plain = plainNumber(number);
    // What is plain already keeps its blanks, which are then judged.
    value = amountOf(word, plain == number ? word : match.captured(1) + plain + match.captured(3));
}

void readValue(const std::string &text, budgeting::EventFrequency &value)
{
    using enum budgeting::EventFrequency;
    value = toEnumerator(text, None, EveryTenYears,
                         [](auto frequency) { return budgeting::toQString(frequency); });
}

void readValue(const std::string &text, accounting::AccountTypes &value)
{
    using enum accounting::AccountTypes;
    value =
        toEnumerator(text, Asset, Income, [](auto type) { return accounting::toQString(type); });
}

void readValue(const std::string &text, banking::BankAccountTypes &value)
{
    using enum banking::BankAccountTypes;
    value = toEnumerator(text, Checking, Cash, [](auto type) { return banking::toQString(type); });
}

void readValue(const std::string &text, budgeting::BudgetItemTypes &value)
{
    using enum budgeting::BudgetItemTypes;
    value = toEnumerator(text, Bill, Wage, kindWord);
}

void readValue(const std::string &text, accounting::AccountNumber &value)
{
    value = accounting::AccountNumber(toInteger<std::uint32_t>(text, 1));
}

void readValue(const std::string &text, accounting::TransactionNumber &value)
{
    value = accounting::TransactionNumber(toInteger<std::uint16_t>(text, 1));
}

void readValue(const std::string &text, std::chrono::days &value)
{
    value = std::chrono::days(toInteger<int>(text, 0, 36600));
}

void readValue(const std::string &text, std::chrono::hours &value)
{
    value = std::chrono::hours(toInteger<int>(text, 0, 100000));
}

void readValue(const std::string &text, foundation::Percentage &value)
{
    const QString word = decoded(text);
    static const QRegularExpression form(QStringLiteral(R"(\A(\d+(?:\.\d{1,6})?)\z)"));
    const QString number = word.endsWith(u'%') ? word.chopped(1).trimmed() : word;
    const QRegularExpressionMatch match = form.match(plainNumber(number));
    bool isNumber = false;
    const double rate = match.captured(1).toDouble(&isNumber);
    if (!isNumber)
        throw internal::notAPercentage(word);
    value = foundation::Percentage(rate, 6);
}

} // namespace kiv::workbench
