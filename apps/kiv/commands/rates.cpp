// SPDX-License-Identifier: GPL-3.0-or-later
// rates show|fetch|set
#include "commands/commands.h"

#include "messages/message_log.h"
#include "output/json.h"

#include "workbench/entry/user_locale.h"
#include "workbench/requests/exchange_rates.h"

#include "conversion/conversion_map.h"
#include "foundation/presentation.h"
#include <unistd.h>

namespace kiv::app {

using conversion::ConversionMap;
using conversion::RateOrigin;
using conversion::RateSource;

namespace {

/// A currency and its rate: "EUR=0.92".
struct RateArgument {
    workbench::TypedRate rate;
};

void readValue(const QString &text, RateArgument &value)
{
    const qsizetype at = text.indexOf(u'=');
    if (at < 1)
        throw notARate(text);
    workbench::readValue(text.first(at), value.rate.currency);
    value.rate.rate = workbench::rateOf(text.sliced(at + 1));
}

/// The rate in the form of the locale.
QString rateText(const QJsonValue &rate)
{
    return workbench::rateText(numira::FloatingPoint(rate.toString().toStdString()));
}

QString sourceText(const QJsonValue &source)
{
    return source.toString() == QLatin1String(wordOf(RateSource::Typed)) ? QObject::tr("typed")
                                                                         : QObject::tr("fetched");
}

Report ratesReport(const ConversionMap &map)
{
    QJsonArray rows;
    for (const auto &[currency, rate] : map.rates()) {
        const RateOrigin &origin = map.origins().at(currency);
        rows.append(QJsonObject{
            {QStringLiteral("currency"), foundation::toQString(currency)},
            {QStringLiteral("rate"), QString::fromStdString(rate.str(12, std::ios::fmtflags()))},
            {QStringLiteral("day"), origin.day.toString(Qt::ISODate)},
            {QStringLiteral("source"), QLatin1String(wordOf(origin.source))}});
    }
    const QString base = map.isEmpty() ? QString() : foundation::toQString(map.base());
    const auto known = [&map](const QString &text) {
        return map.isEmpty() ? QJsonValue() : QJsonValue(text);
    };
    Report report(
        QJsonObject{{QStringLiteral("base"), known(base)},
                    {QStringLiteral("fetchedAt"), known(map.fetchedAt().toString(Qt::ISODate))},
                    {QStringLiteral("expired"), map.isExpired()},
                    {QStringLiteral("rates"), rows}});
    if (!map.isEmpty()) {
        const QString shown = workbench::momentText(map.fetchedAt());
        report.heading(map.isExpired()
                           ? QObject::tr("For 1 %1, as of %2 (out of date)").arg(base, shown)
                           : QObject::tr("For 1 %1, as of %2").arg(base, shown));
    }
    return report.table(
        {{QObject::tr("Currency"), QStringLiteral("currency")},
         {QObject::tr("Rate"), QStringLiteral("rate"), rateText},
         {QObject::tr("Date"), QStringLiteral("day"), dayText},
         {QObject::tr("Source"), QStringLiteral("source"), sourceText}},
        rows, QObject::tr("There are no exchange rates; use kiv rates fetch or kiv rates set."));
}

struct ShowRates {
    void declare(Arguments &) {}
    Report run(Call &call) const { return ratesReport(workbench::presentRates(call.requests)); }
};

struct FetchRates {
    std::vector<numira::Currency> wanted;

    void declare(Arguments &arguments)
    {
        arguments.several("CURRENCY", wanted, QObject::tr("Currencies (default: the usable ones)"));
    }
    Report run(Call &call) const
    {
        if (::isatty(STDERR_FILENO) != 0)
            complain(QObject::tr("fetching exchange rates …"));
        const auto [map, lacking, failure] =
            workbench::fetchRates(call.requests, {wanted.begin(), wanted.end()});
        if (failure)
            throw ratesNotFetched(*failure);
        if (!lacking.empty()) {
            complain(QObject::tr("warning: %1").arg(workbench::lackingText(lacking)));
        }
        return ratesReport(map);
    }
};

struct SetRates {
    numira::Currency base;
    std::vector<RateArgument> rates;

    void declare(Arguments &arguments)
    {
        arguments
            .required("BASE", base, QObject::tr("Base currency; each rate is for one unit of it"))
            .severalRequired("CURRENCY=RATE", rates,
                             QObject::tr("Rate of a currency, such as EUR=0.92 (repeatable)"));
    }
    Report run(Call &call) const
    {
        std::vector<workbench::TypedRate> typed;
        for (const RateArgument &given : rates)
            typed.push_back(given.rate);
        return ratesReport(workbench::storeTypedRates(call.requests, base, typed));
    }
};

} // namespace

void addRatesCommands(CommandGroup &root)
{
    using enum CommandKind;
    CommandGroup group = root.group("rates", QObject::tr("Show, fetch or set exchange rates"));
    group.add("show", QObject::tr("Show the exchange rates"), Standalone, ShowRates{});
    group.add("fetch", QObject::tr("Fetch current rates"), Standalone, FetchRates{});
    group.add("set", QObject::tr("Set rates by hand"), Standalone, SetRates{});
}

} // namespace kiv::app
