// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/quantity_reader.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/journal_faults.h"

#include "foundation/presentation.h"

namespace kiv::interchange::internal {

namespace {

bool takeSign(QStringView &rest, bool &isNegative)
{
    if (!rest.startsWith(u'-') && !rest.startsWith(u'+'))
        return false;
    isNegative = rest.startsWith(u'-');
    rest = rest.sliced(1);
    return true;
}

QString takeNumber(QStringView &rest)
{
    qsizetype length = 0;
    while (length < rest.size() && ((rest[length] >= u'0' && rest[length] <= u'9') ||
                                    rest[length] == u'.' || rest[length] == u','))
        ++length;
    QString number = rest.first(length).toString();
    rest = rest.sliced(length);
    return number;
}

QString takeCommodity(QStringView &rest, const Place &place)
{
    if (rest.startsWith(u'"')) {
        const qsizetype end = rest.indexOf(u'"', 1);
        if (end < 0)
            throw faults::notClosed(place, rest.toString());
        QString name = rest.sliced(1, end - 1).toString();
        rest = rest.sliced(end + 1);
        return name;
    }
    static const QString reserved = QStringLiteral("0123456789.,;:?!-+*/^&|=<>@{}[]()\"#~\\'");
    qsizetype length = 0;
    while (length < rest.size() && !rest[length].isSpace() && !reserved.contains(rest[length]))
        ++length;
    QString name = rest.first(length).toString();
    rest = rest.sliced(length);
    return name;
}

} // namespace

QString presentationText(const Quantity &quantity)
{
    return QString::fromStdString(quantity.number.toText()) + u' ' + quantity.commodity;
}

void skipBlanks(QStringView &rest)
{
    while (!rest.isEmpty() && rest.front().isSpace())
        rest = rest.sliced(1);
}

QuantityReader::Written QuantityReader::split(QStringView &rest, const Place &place)
{
    const QStringView whole = rest;
    Written written;
    bool hasSign = takeSign(rest, written.isNegative);
    skipBlanks(rest);
    written.commodity = takeCommodity(rest, place);
    skipBlanks(rest);
    if (!hasSign)
        hasSign = takeSign(rest, written.isNegative);
    skipBlanks(rest);
    written.number = takeNumber(rest);
    if (written.commodity.isEmpty()) {
        QStringView behind = rest;
        skipBlanks(behind);
        written.commodity = takeCommodity(behind, place);
        if (!written.commodity.isEmpty())
            rest = behind;
    }
    if (written.number.isEmpty())
        throw faults::notAnAmount(place, whole.trimmed().toString());
    return written;
}

QString QuantityReader::named(const QString &commodity) const
{
    if (commodity.isEmpty() && !m_settings.usesDefault)
        return {};
    if (commodity.isEmpty())
        return m_settings.commodity.isEmpty() && m_options.currency
                   ? foundation::toQString(*m_options.currency)
                   : m_settings.commodity;
    const auto given = m_options.commodities.find(commodity);
    const auto currency = given == m_options.commodities.end()
                              ? readCurrency(commodity, m_options.preferred)
                              : std::optional(given->second);
    return currency ? foundation::toQString(*currency) : commodity;
}

QString QuantityReader::declare(QStringView sample, const Place &place)
{
    QStringView rest = sample;
    const Written written = split(rest, place);
    if (!rest.trimmed().isEmpty())
        throw faults::notAnAmount(place, sample.toString());
    QString commodity = named(written.commodity);
    const QString &number = written.number;
    const qsizetype points = number.count(u'.');
    const qsizetype commas = number.count(u',');
    const qsizetype last = std::max(number.lastIndexOf(u'.'), number.lastIndexOf(u','));
    std::optional<QChar> mark;
    if (points + commas > 1 && (points == 0 || commas == 0)) // groups alone
        mark = points > 0 ? u',' : u'.';
    // The comma of "1,000" may group or be the decimal mark.
    else if (last >= 0 && number.count(number[last]) == 1 &&
             (number.size() - last != 4 || points > 0))
        mark = number[last];
    if (mark)
        m_marks.insert_or_assign(commodity, static_cast<DecimalMark>(mark->unicode()));
    return commodity;
}

Quantity QuantityReader::read(QStringView &rest, const Place &place)
{
    const Written written = split(rest, place);
    const QString commodity = named(written.commodity);
    std::optional<DecimalMark> mark =
        m_options.decimalMark ? m_options.decimalMark : m_settings.mark;
    if (const auto declared = m_marks.find(commodity); !mark && declared != m_marks.end())
        mark = declared->second;
    if (!mark) {
        // Where amounts have a decimal comma, "1.234" may be a thousand.
        const qsizetype point = written.number.lastIndexOf(u'.');
        const qsizetype comma = written.number.indexOf(u',');
        if (comma < 0 && point >= 0 && written.number.size() - point == 4 &&
            m_withComma.contains(commodity))
            throw faults::ambiguousNumber(place, written.number);
        if (comma > point && written.number.count(u',') == 1)
            m_withComma.insert(commodity);
    }
    const numira::Decimal number = readNumber(written.number, mark, place);
    return {written.isNegative ? -number : number, commodity};
}

} // namespace kiv::interchange::internal
