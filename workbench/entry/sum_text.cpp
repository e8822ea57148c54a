// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/sum_text.h"

#include "workbench/entry/user_locale.h"
#include "workbench/internal/faults.h"

#include "foundation/presentation.h"
#include "numira/error.h"
#include "numira/local_text.h"

namespace kiv::workbench {

using numira::Decimal;

namespace {

/// A number with the operator before it.
struct Term {
    char16_t before = u'+';
    QString text;
};

/// The operator that the letter stands for; 0 if it is none.
char16_t operatorOf(QChar letter)
{
    switch (letter.unicode()) {
    case u'+':
    case u'-':
    case u'*':
    case u'/':
        return letter.unicode();
    case u'\u2212':
        return u'-';
    case u'\u00d7':
        return u'*';
    case u'\u00f7':
        return u'/';
    default:
        return 0;
    }
}

/// A sign where a number is expected belongs to the number.
std::vector<Term> termsOf(const QString &text)
{
    std::vector<Term> terms(1);
    for (const QChar letter : text) {
        const char16_t sign = operatorOf(letter);
        QString &number = terms.back().text;
        if (sign == 0)
            number += letter;
        else if (!number.trimmed().isEmpty())
            terms.push_back({sign, {}});
        else
            number = QString(QChar(sign));
    }
    return terms;
}

/// `one` divided by `other`, if that comes out even.
std::optional<Decimal> quotient(const Decimal &one, const Decimal &other)
{
    const unsigned digits = other.digits();
    const std::optional<std::int64_t> units = other.unitsOf(digits);
    const std::optional<std::int64_t> scale = Decimal(1).unitsOf(digits);
    if (!units || *units == 0 || !scale)
        return std::nullopt;
    const Decimal result = one.scaled(*scale, *units);
    const bool isExact = result.digits() + digits <= Decimal::scaleDigits && result * other == one;
    return isExact ? std::optional(result) : std::nullopt;
}

Decimal combined(const Decimal &one, const Decimal &other, char16_t sign, const QString &text)
{
    switch (sign) {
    case u'+':
        return one + other;
    case u'-':
        return one - other;
    case u'*':
        if (one.digits() + other.digits() > Decimal::scaleDigits)
            throw internal::notAnAmount(text);
        return one * other;
    default:
        if (const std::optional<Decimal> result = quotient(one, other))
            return *result;
        throw internal::notAnEvenDivision(text);
    }
}

/// Adds up; products and quotients are ready when the next `+` or `-` comes.
Amount sumOf(const QString &text, const std::vector<Term> &terms)
{
    Amount sum;
    sum.text = text;
    Decimal done;
    Decimal product;
    char16_t before = u'+';
    for (const Term &term : terms) {
        Amount number;
        readValue(term.text.trimmed(), number);
        if (number.currency && sum.currency && *number.currency != *sum.currency)
            throw internal::twoCurrencies(text);
        if (number.currency)
            sum.currency = number.currency;
        if (term.before == u'*' || term.before == u'/') {
            product = combined(product, number.number, term.before, text);
            continue;
        }
        done = combined(done, product, before, text);
        product = number.number;
        before = term.before;
    }
    sum.number = combined(done, product, before, text);
    sum.digits = sum.number.digits();
    return sum;
}

} // namespace

bool isSum(const QString &text)
{
    return termsOf(text.trimmed()).size() > 1;
}

void readSum(const QString &text, Amount &value)
{
    const QString typed = text.trimmed();
    const std::vector<Term> terms = termsOf(typed);
    if (terms.size() == 1) {
        readValue(typed, value);
        return;
    }
    try {
        value = sumOf(typed, terms);
    } catch (const numira::OverflowError &) {
        throw internal::amountTooLarge(typed);
    }
}

QString typedText(const numira::Money &amount, const numira::Currency &usual)
{
    QString text = QString::fromStdString(numira::toText(amount));
    if (hasNumberLocale()) {
        // The mark between two digits, as the locale writes it.
        const QString mark = QString::fromStdString(numira::toLocalText(Decimal::fromUnits(11, 1)));
        text.replace(u'.', mark.mid(1).chopped(1));
    }
    return amount.code() == usual ? text : text + u' ' + foundation::toQString(amount.code());
}

} // namespace kiv::workbench
