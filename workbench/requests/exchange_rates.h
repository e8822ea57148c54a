// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

/// Exchange rates from the service or the user.
namespace kiv::workbench {

/// The outcome of a fetch.
struct FetchedRates {
    conversion::ConversionMap rates;    ///< the new table; after a failure the present one
    std::set<numira::Currency> lacking; ///< wanted, but the service has no rates for them
    std::optional<QString> failure;     ///< the reason, which can be empty; nothing is stored then
};

/// The present rates.
[[nodiscard]] KIV_WORKBENCH_EXPORT conversion::ConversionMap presentRates(Requests &requests);

/// The present rates as people look at them.
struct ListedRates {
    numira::Currency
        base; ///< each rate is for one unit of it; the preferred currency without rates
    conversion::ConversionMap rates;    ///< the table
    std::set<numira::Currency> lacking; ///< usable, but without a rate
};
/// Lists them.
[[nodiscard]] KIV_WORKBENCH_EXPORT ListedRates listedRates(Requests &requests);

/// A rate of the table that a conversion uses.
struct UsedRate {
    numira::Currency base;         ///< for one unit of it
    numira::Currency currency;     ///< so much of this
    numira::FloatingPoint rate;    ///< the rate
    conversion::RateOrigin origin; ///< who gave it, and its day
};
/// The rates by which amounts in these currencies come into the other one, whose own is the last.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<UsedRate>
usedRates(const conversion::ConversionMap &rates, std::set<numira::Currency> from,
          const numira::Currency &to);
/// "1 USD is 0.92 EUR, fetched from the service"
[[nodiscard]] KIV_WORKBENCH_EXPORT QString presentationText(const UsedRate &rate);

/// The amount in this currency, not rounded; nothing if there is no exchange rate, or if it
/// cannot be kept.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<numira::Money>
convertedIfKnown(const numira::Money &money, const numira::Currency &currency);

/// A rate in the form of the locale, with up to twelve digits.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString rateText(const numira::FloatingPoint &rate);
/// Reads a rate such as "0.92", with a point or the user's decimal mark. Throws an EntryError
/// for anything else.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::FloatingPoint rateOf(const QString &text);
/// "The service has no exchange rates for: JPY, CHF"
[[nodiscard]] KIV_WORKBENCH_EXPORT QString
lackingText(const std::set<numira::Currency> &currencies);

/// Fetches and stores the rates of the wanted currencies, by default of the user's usable
/// ones. Throws what storing throws.
[[nodiscard]] KIV_WORKBENCH_EXPORT FetchedRates fetchRates(Requests &requests,
                                                           std::set<numira::Currency> wanted = {});

/// A rate as the user gives it: so much of the currency is worth one unit of the base.
struct TypedRate {
    numira::Currency currency;  ///< not the base
    numira::FloatingPoint rate; ///< for one unit of the base
};

/// Stores rates that the user typed, of this moment, and returns the table with them. Throws
/// an EntryError for a currency that is given twice, a ConversionError as
/// ConversionMap::updatedWith() does, and what storing throws; nothing is stored then.
KIV_WORKBENCH_EXPORT conversion::ConversionMap storeTypedRates(Requests &requests,
                                                               const numira::Currency &base,
                                                               const std::vector<TypedRate> &rates);

} // namespace kiv::workbench
