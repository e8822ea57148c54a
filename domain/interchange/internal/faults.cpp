// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/faults.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

namespace kiv::interchange {

namespace faults {

QString quoted(const QString &text)
{
    constexpr qsizetype shownMax = 60;
    return foundation::escaped(text.size() > shownMax ? text.left(shownMax) + QChar(0x2026) : text);
}

// ---- any file ----------------------------------------------------------------

ImportError unknownEncoding(const Place &place, const QString &encoding)
{
    return {place, QObject::tr("'%1' is not a known encoding; use one like windows-1252 or UTF-16.")
                       .arg(quoted(encoding))};
}

ImportError wrongEncoding(const Place &place, const QString &encoding)
{
    return {place, QObject::tr("The file is not valid %1 here; name its encoding with --encoding.")
                       .arg(quoted(encoding))};
}

ImportError lineTooLong(const Place &place, qsizetype charactersMax)
{
    return {place, QObject::tr("The line has more than %1 characters.").arg(charactersMax)};
}

ImportError textTooLong(const Place &place, qsizetype charactersMax)
{
    return {place,
            QObject::tr("The entry has more than %1 characters up to here.").arg(charactersMax)};
}

ImportError descriptionsTooLong(const Place &place, qsizetype charactersMax)
{
    return {
        place,
        QObject::tr(
            "All descriptions up to here have more than %1 characters together; split the file.")
            .arg(charactersMax)};
}

ImportError tooManyTransactions(const Place &place, qsizetype most)
{
    return {place, QObject::tr("A budget holds no more than %1 transactions.").arg(most)};
}

ImportError notADate(const Place &place, const QString &text, const QString &format)
{
    return {place, QObject::tr("'%1' is not a date in the form %2.").arg(quoted(text), format)};
}

ImportError notInDateFormat(const Place &place, const QString &text, const QString &format)
{
    return {place,
            QObject::tr("'%1' is not a date in the form %2; name another form with --date-format.")
                .arg(quoted(text), format)};
}

ImportError notANumber(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not a number.").arg(quoted(text))};
}

ImportError ambiguousNumber(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' can be read in two ways; name the decimal mark with "
                               "--decimal.")
                       .arg(quoted(text))};
}

ImportError tooLarge(const Place &place, const std::exception &cause)
{
    return {place, QObject::tr("An amount here is too large to be kept exactly."), cause};
}

ImportError tooManyDigits(const Place &place, const QString &text, const QString &currency,
                          unsigned digitsMax)
{
    return {place, QObject::tr("'%1' has more decimal places than %3, which has %2.")
                       .arg(quoted(text), QString::number(digitsMax), currency)};
}

ImportError notACurrency(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not the ISO 4217 code of a currency.").arg(quoted(text))};
}

ImportError withoutCurrency(const Place &place, const QString &text)
{
    return {
        place,
        QObject::tr("'%1' has no currency; name one with --currency.").arg(quoted(text.trimmed()))};
}

ImportError unsupported(const Place &place, const QString &what)
{
    return {place, QObject::tr("'%1' cannot be imported.").arg(quoted(what))};
}

ImportError missingAmount(const Place &place)
{
    return {place, QObject::tr("The entry has no amount.")};
}

ImportError nestedTooDeeply(const Place &place)
{
    return {place, QObject::tr("Tags are nested too deeply.")};
}

// ---- reports -----------------------------------------------------------------

foundation::Error reportEndsFirst()
{
    return foundation::Error(QObject::tr("A report cannot end before it begins."));
}

foundation::Error reportTooLong(std::size_t spansMax)
{
    return foundation::Error(
        QObject::tr("A report has at most %1 spans; choose a later first day or longer spans.")
            .arg(spansMax));
}

foundation::Error reportWithoutPaydays()
{
    return foundation::Error(
        QObject::tr("No wage has come in by the last day; choose other spans than paydays."));
}

} // namespace faults

} // namespace kiv::interchange
