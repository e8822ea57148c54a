// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/internal/rates_reply.h"

#include "conversion/internal/faults.h"

#include "foundation/money_refusals.h"
#include "networking/json_reply.h"

#include <QtCore/QJsonObject>
#include <QtCore/QLocale>

#include <cmath>

namespace kiv::conversion::internal {

namespace {

/// The last second of the year 9999.
constexpr double timestampMax = 253402300799.0;

numira::Currency readCurrency(const QString &code)
{
    const auto currency = foundation::withMoneyRefusals(
        [&] { return numira::toCurrency(code.toStdString()); },
        [&](const std::exception &) { return replyUnknownCurrency(code); });
    if (currency == numira::Currency())
        throw replyUnknownCurrency(code);
    return currency;
}

QDateTime readTimestamp(const QJsonValue &value)
{
    const double seconds = value.toDouble(0.0);
    if (!(seconds > 0.0 && seconds <= timestampMax) || seconds != std::floor(seconds))
        throw replyMalformed(QStringLiteral("timestamp"));
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds), Qt::UTC);
}

numira::FloatingPoint readRate(const QString &code, const QJsonValue &value)
{
    if (!value.isDouble())
        throw replyMalformed(code);
    // The shortest text that means this double is the one that was sent.
    return numira::FloatingPoint(
        QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest).toStdString());
}

} // namespace

ConversionMap readRates(const networking::Response &response)
{
    const QJsonObject reply = networking::readJson(response).object();
    const QJsonValue base = reply.value(QStringLiteral("base"));
    const QJsonValue quotes = reply.value(QStringLiteral("rates"));
    if (!base.isString())
        throw replyMalformed(QStringLiteral("base"));
    if (!quotes.isObject())
        throw replyMalformed(QStringLiteral("rates"));
    ConversionMap::Rates rates;
    const QJsonObject byCode = quotes.toObject();
    for (auto quote = byCode.begin(); quote != byCode.end(); ++quote)
        rates.emplace(readCurrency(quote.key()), readRate(quote.key(), quote.value()));
    return {readCurrency(base.toString()), readTimestamp(reply.value(QStringLiteral("timestamp"))),
            std::move(rates)};
}

} // namespace kiv::conversion::internal
