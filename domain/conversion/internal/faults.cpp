// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/internal/faults.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::conversion::internal {

using foundation::presentationText;

ConversionError rateOutOfRange(const numira::Currency &currency)
{
    return ConversionError(
        QObject::tr("The exchange rate of '%1' must be a positive number between 10^-12 and 10^12.")
            .arg(presentationText(currency)));
}

ConversionError baseRateNotOne(const numira::Currency &base)
{
    return ConversionError(QObject::tr("The exchange rate of the base currency '%1' must be 1.")
                               .arg(presentationText(base)));
}

ConversionError tableWithoutBase()
{
    return ConversionError(QObject::tr("Exchange rates need a base currency."));
}

ConversionError tableWithoutTime()
{
    return ConversionError(QObject::tr("Exchange rates need the time when they were fetched."));
}

ConversionError rateMissing(const numira::Currency &from, const numira::Currency &to)
{
    return ConversionError(
        QObject::tr(
            "There is no exchange rate from '%1' to '%2'; fetch the rates, or set it by hand.")
            .arg(presentationText(from), presentationText(to)));
}

ConversionError replyMalformed(const QString &member)
{
    return ConversionError(
        QObject::tr("The member '%1' of the reply is missing or invalid.").arg(member));
}

ConversionError replyUnknownCurrency(const QString &code)
{
    return ConversionError(QObject::tr("The reply contains the unknown currency '%1'.").arg(code));
}

QString fetchTimedOut()
{
    return QObject::tr("No answer came in time.");
}

QString sourceGone()
{
    return QObject::tr("The source of the rates was closed before it answered.");
}

QString senderGone()
{
    return QObject::tr("Requests can no longer be sent.");
}

ConversionError noWantedRates()
{
    return ConversionError(QObject::tr("The reply has none of the wanted rates."));
}

ConversionError ratesOutdated(const QDateTime &given, const QDateTime &known)
{
    return ConversionError(
        QObject::tr("The rates of the reply are from %1, older than the known ones from %2.")
            .arg(given.toString(Qt::ISODate), known.toString(Qt::ISODate)));
}

} // namespace kiv::conversion::internal
