// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/exchange_rates.h"

#include "workbench/entry/user_locale.h"
#include "workbench/internal/faults.h"

#include "foundation/presentation.h"
#include "numira/error.h"
#include "numira/local_text.h"

#include <QtCore/QRegularExpression>

namespace kiv::workbench {

using conversion::ConversionMap;
using navigation::Navigator;

ConversionMap presentRates(Requests &requests)
{
    return std::get<ConversionMap>(
        requests.ask(&Navigator::showExchangeRates, &Navigator::onPrepareShowExchangeRates));
}

ListedRates listedRates(Requests &requests)
{
    const auto shown =
        requests.ask(&Navigator::showExchangeRates, &Navigator::onPrepareShowExchangeRates);
    ListedRates listed{{}, std::get<ConversionMap>(shown), {}};
    listed.base = listed.rates.isEmpty() ? requests.preferredCurrency() : listed.rates.base();
    for (const numira::Currency &currency : std::get<std::set<numira::Currency>>(shown)) {
        if (currency != listed.base && !listed.rates.rates().contains(currency))
            listed.lacking.insert(currency);
    }
    return listed;
}

std::vector<UsedRate> usedRates(const ConversionMap &rates, std::set<numira::Currency> from,
                                const numira::Currency &to)
{
    // What is in the currency already needs none.
    from.erase(to);
    std::vector<UsedRate> used;
    const auto add = [&](const numira::Currency &currency) {
        const auto rate = rates.rates().find(currency);
        if (currency != rates.base() && rate != rates.rates().end())
            used.push_back({rates.base(), currency, rate->second, rates.origins().at(currency)});
    };
    std::ranges::for_each(from, add);
    if (!from.empty())
        add(to);
    return used;
}

QString presentationText(const UsedRate &rate)
{
    const QString text = rate.origin.source == conversion::RateSource::Typed
                             ? QObject::tr("1 %1 is %2 %3, typed by hand")
                             : QObject::tr("1 %1 is %2 %3, fetched from the service");
    return text.arg(foundation::presentationText(rate.base), rateText(rate.rate),
                    foundation::presentationText(rate.currency));
}

std::optional<numira::Money> convertedIfKnown(const numira::Money &money,
                                              const numira::Currency &currency)
{
    try {
        return money.convertedTo(currency);
    } catch (const numira::Error &) {
        return std::nullopt;
    } catch (const foundation::Error &) {
        return std::nullopt;
    }
}

QString rateText(const numira::FloatingPoint &rate)
{
    constexpr int digits = 12;
    const std::string plain = rate.str(digits, std::ios::fmtflags());
    try {
        return QString::fromStdString(numira::toLocalText(numira::Decimal::fromText(plain)));
    } catch (const numira::Error &) {
        return QString::fromStdString(plain); // such as one with an exponent
    }
}

numira::FloatingPoint rateOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(R"(\A\d{1,20}(?:\.\d{1,20})?\z)"));
    const QString plain = plainNumber(text.trimmed());
    if (!form.match(plain).hasMatch())
        throw internal::notARate(text);
    return numira::FloatingPoint(plain.toStdString());
}

QString lackingText(const std::set<numira::Currency> &currencies)
{
    QStringList codes;
    for (const numira::Currency &currency : currencies)
        codes += foundation::toQString(currency);
    return QObject::tr("The service has no exchange rates for: %1")
        .arg(codes.join(QStringLiteral(", ")));
}

FetchedRates fetchRates(Requests &requests, std::set<numira::Currency> wanted)
{
    const auto shown =
        requests.ask(&Navigator::showExchangeRates, &Navigator::onPrepareShowExchangeRates);
    if (wanted.empty())
        wanted = std::get<std::set<numira::Currency>>(shown);
    FetchedRates fetched;
    const std::optional<navigation::Failure> failure = requests.failureOf([&] {
        fetched.rates = std::get<ConversionMap>(requests.ask(
            &Navigator::fetchedExchangeRates, &Navigator::onFetchExchangeRates, wanted));
    });
    // A failed fetch answers with the old rates.
    if (failure || fetched.rates.isEmpty()) {
        fetched.failure = failure ? userText(*failure) : QString();
        return fetched;
    }
    fetched.lacking = fetched.rates.notFetched(wanted);
    requests.navigator().onStoreExchangeRates(fetched.rates);
    return fetched;
}

ConversionMap storeTypedRates(Requests &requests, const numira::Currency &base,
                              const std::vector<TypedRate> &rates)
{
    const ConversionMap present = presentRates(requests);
    ConversionMap::Rates typed;
    for (const TypedRate &given : rates) {
        if (!typed.emplace(given.currency, given.rate).second)
            throw internal::currencyGivenTwice(foundation::toQString(given.currency));
    }
    ConversionMap map = present.updatedWith(
        {base, QDateTime::currentDateTimeUtc(), std::move(typed), conversion::RateSource::Typed});
    requests.navigator().onStoreExchangeRates(map);
    return map;
}

} // namespace kiv::workbench
