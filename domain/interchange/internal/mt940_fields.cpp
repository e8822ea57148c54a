// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/mt940_fields.h"

#include "interchange/internal/digits.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/written_values.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

bool isCapital(QChar letter)
{
    return letter >= u'A' && letter <= u'Z';
}

/// Takes parts off the front of a field.
class FieldCursor {
public:
    FieldCursor(QStringView text, const char *form, const Place &place)
        : m_text(text), m_rest(text), m_form(form), m_place(place)
    {
    }

    [[nodiscard]] QStringView rest() const noexcept { return m_rest; }
    [[nodiscard]] bool beginsWith(QStringView letters) const noexcept
    {
        return !m_rest.isEmpty() && letters.contains(m_rest.front());
    }
    [[nodiscard]] bool hasDigits(qsizetype count) const
    {
        return m_rest.size() >= count && std::ranges::all_of(m_rest.first(count), isDigit);
    }
    QStringView take(qsizetype count)
    {
        require(m_rest.size() >= count);
        const QStringView taken = m_rest.first(count);
        m_rest = m_rest.sliced(count);
        return taken;
    }
    QStringView takeWhile(auto &&isPart)
    {
        return take(std::ranges::find_if_not(m_rest, isPart) - m_rest.begin());
    }
    void skipBlanks()
    {
        takeWhile([](QChar letter) { return letter == u' '; });
    }
    void require(bool isWellFormed) const
    {
        if (!isWellFormed)
            throw faults::brokenField(m_place, m_text.toString(), QLatin1String(m_form));
    }

    /// A number with a comma for its decimals; the comma alone may stand at its end.
    numira::Money takeAmount(const numira::Currency &currency)
    {
        QString number = takeWhile([](QChar c) { return isDigit(c) || c == u','; }).toString();
        require(number.count(u',') <= 1 && number != u"," && !number.isEmpty());
        if (number.endsWith(u','))
            number.chop(1);
        return statementAmount(number, currency, DecimalMark::Comma, m_place);
    }

private:
    QStringView m_text;
    QStringView m_rest;
    const char *m_form;
    const Place &m_place;
};

QDate dayOf(QStringView digits)
{
    static const DateFormat format(QStringLiteral("YYMMDD"), {});
    return format.read(digits).value_or(QDate());
}

/// The booking day has no year: it is the one next to the value day, which may be in the year
/// before or after. Without a valid value day, its year counts.
QDate bookedNear(const QDate &valueDate, int year, QStringView monthAndDay)
{
    const int month = monthAndDay.first(2).toInt();
    const int day = monthAndDay.last(2).toInt();
    QDate nearest;
    for (int offset : {0, -1, 1}) {
        const QDate date(year + offset, month, day);
        if (!date.isValid() || (!valueDate.isValid() && offset != 0))
            continue;
        if (!nearest.isValid() ||
            std::abs(valueDate.daysTo(date)) < std::abs(valueDate.daysTo(nearest)))
            nearest = date;
    }
    return nearest;
}

QString withoutPlaceholder(const QString &reference)
{
    static const QStringList none{QStringLiteral("NONREF"), QStringLiteral("EREF"),
                                  QStringLiteral("PREF"),   QStringLiteral("KREF"),
                                  QStringLiteral("KREF+"),  QStringLiteral("MARF"),
                                  QStringLiteral("IKREF+"), QStringLiteral("EREF+")};
    return none.contains(reference) ? QString() : reference;
}

} // namespace

Mt940Entry readMt940Entry(QStringView text, const numira::Currency &currency, const Place &place)
{
    static constexpr char form[] = "2601310131D12,34NTRFNONREF";
    FieldCursor cursor(text, form, place);
    Mt940Entry entry;
    cursor.require(cursor.hasDigits(6));
    const QStringView value = cursor.take(6);
    entry.valueDate = dayOf(value);
    entry.booked = entry.valueDate;
    if (cursor.hasDigits(4)) {
        const QStringView booked = cursor.take(4);
        const int year = dayOf(value.first(2).toString() + QStringLiteral("0101")).year();
        entry.booked = bookedNear(entry.valueDate, year, booked);
        if (!entry.booked.isValid())
            throw faults::notADate(place, booked.toString(), QStringLiteral("MMDD"));
    } else if (!entry.booked.isValid()) {
        throw faults::notADate(place, value.toString(), QStringLiteral("YYMMDD"));
    }
    cursor.skipBlanks();
    const bool isReversal = cursor.beginsWith(u"R");
    entry.isExpected = cursor.beginsWith(u"E");
    if (isReversal || entry.isExpected)
        cursor.take(1);
    cursor.require(cursor.beginsWith(u"CD"));
    const bool isDebit = cursor.take(1) == u"D";
    if (!cursor.rest().isEmpty() && isCapital(cursor.rest().front()))
        cursor.take(1); // of the currency, such as the R of EUR
    const numira::Money amount = cursor.takeAmount(currency);
    // A reversed debit comes in.
    entry.amount = isDebit != isReversal ? -amount : amount;
    cursor.skipBlanks();
    if (cursor.rest().isEmpty())
        return entry;
    cursor.require(cursor.beginsWith(u"NFS"));
    cursor.take(std::min<qsizetype>(4, cursor.rest().size())); // the kind, as NTRF or S051
    const QString references = cursor.rest().toString();
    entry.reference = withoutPlaceholder(references.section(QStringLiteral("//"), 0, 0).trimmed());
    entry.bankReference = withoutPlaceholder(references.section(QStringLiteral("//"), 1).trimmed());
    return entry;
}

ToldBalance readMt940Balance(QStringView text, const numira::Currency &currency, const Place &place)
{
    FieldCursor cursor(text, "C260131EUR1234,56", place);
    cursor.require(cursor.beginsWith(u"CD"));
    const bool isDebit = cursor.take(1) == u"D";
    cursor.require(cursor.hasDigits(6));
    ToldBalance balance{place, {}, dayOf(cursor.take(6))};
    const QString code = cursor.takeWhile(isCapital).toString();
    const auto found = code.isEmpty() ? std::optional(currency) : readCurrency(code, {});
    if (!found || (!code.isEmpty() && code.size() != 3))
        throw faults::notACurrency(place, code);
    if (currency != numira::Currency())
        requireCurrency(*found, currency, place);
    balance.amount = cursor.takeAmount(*found);
    cursor.require(cursor.rest().trimmed().isEmpty());
    if (isDebit)
        balance.amount = -balance.amount;
    return balance;
}

} // namespace kiv::interchange::internal
