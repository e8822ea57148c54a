// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/exchange_rates.h"

#include "workbench/internal/faults.h"

#include "foundation/presentation.h"

namespace kiv::workbench {

using conversion::ConversionMap;
using navigation::Navigator;

ConversionMap presentRates(Requests &requests)
{
    return std::get<ConversionMap>(
        requests.ask(&Navigator::showExchangeRates, &Navigator::onPrepareShowExchangeRates));
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
