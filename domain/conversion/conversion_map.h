// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/export.h"

#include "foundation/debug_stream.h"

#include "numira/currency.h"
#include "numira/floating_point.h"

#include <QtCore/QDateTime>
#include <QtCore/QMetaType>

#include <chrono>
#include <cstdint>
#include <map>
#include <ostream>
#include <set>

namespace kiv::conversion {

/// Who gave a rate.
enum class RateSource : std::uint8_t {
    Fetched = 1, ///< the service
    Typed = 2,   ///< the user
};

/// "fetched" or "typed", for files and programs.
[[nodiscard]] KIV_CONVERSION_EXPORT const char *wordOf(RateSource source) noexcept;
KIV_CONVERSION_EXPORT std::ostream &operator<<(std::ostream &out, RateSource source);

/// Where a rate comes from, and its day in UTC.
struct RateOrigin {
    RateSource source = RateSource::Fetched; ///< who gave it
    QDate day;                               ///< the day whose rate it is

    friend bool operator==(const RateOrigin &, const RateOrigin &) = default;
};

/// A table of exchange rates: for each currency, how much of it one unit of the
/// base currency buys. With the base USD, a rate of 0.92 for EUR says that 1
/// USD is 0.92 EUR.
///
/// Every rate lies between 10^-12 and 10^12 and has an origin; the base
/// currency's own is 1 whether or not the table names it. A default-constructed
/// table is empty: it knows no base, no time and no rate.
class KIV_CONVERSION_EXPORT ConversionMap {
public:
    /// Rates by the currency into which they convert.
    using Rates = std::map<numira::Currency, numira::FloatingPoint>;
    /// Origins by the currency of their rate.
    using Origins = std::map<numira::Currency, RateOrigin>;

    /// How long rates are taken for current.
    static constexpr std::chrono::hours lifetime{24};

    ConversionMap() = default;
    /// All rates come from `source`, on the day of `fetchedAt`. Throws
    /// ConversionError when the base is "no currency", the time is not valid, a
    /// rate is not a number in the range above, or the base's own rate is named
    /// and is not 1.
    ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates,
                  RateSource source = RateSource::Fetched);
    /// The same with an origin for each rate. A rate that has none in `origins`
    /// was fetched on the day of `fetchedAt`; an origin without a rate is left
    /// out. Also refuses an origin whose day is not valid.
    ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates,
                  const Origins &origins);

    /// The currency from which the rates convert.
    [[nodiscard]] const numira::Currency &base() const noexcept { return m_base; }
    /// The time of the last fetch in UTC, as the service gave it; when all rates
    /// were typed, the time of that. Not valid for the empty table.
    [[nodiscard]] const QDateTime &fetchedAt() const noexcept { return m_fetchedAt; }
    /// How many units of each currency one of the base is worth.
    [[nodiscard]] const Rates &rates() const noexcept { return m_rates; }
    /// Where each of the rates comes from.
    [[nodiscard]] const Origins &origins() const noexcept { return m_origins; }
    /// True when a rate in it was fetched.
    [[nodiscard]] bool hasFetched() const noexcept;
    /// Those of the wanted currencies that have no rate of the last fetch's day: the
    /// service has none of them. Never the base.
    [[nodiscard]] std::set<numira::Currency>
    notFetched(const std::set<numira::Currency> &wanted) const;
    /// True when there is no rate in it.
    [[nodiscard]] bool isEmpty() const noexcept { return m_rates.empty(); }

    /// True when the table is empty, is more than 24 hours old, or comes from
    /// more than 24 hours in the future (a clock was wrong then, or is now).
    [[nodiscard]] bool isExpired(const QDateTime &now = QDateTime::currentDateTimeUtc()) const;

    /// By how much an amount in `from` is multiplied to become one in `to`:
    /// through the base, and exactly 1 for the same currency. Throws
    /// ConversionError when the table lacks one of the two.
    [[nodiscard]] numira::FloatingPoint rate(const numira::Currency &from,
                                             const numira::Currency &to) const;

    /// These rates with those of another table laid over them, in that one's
    /// base: a rate stays unless the other table has one for its currency. Rates
    /// that were typed do not change the time of the last fetch.
    ///
    ///     USD (EUR 0.5, JPY 150) with USD (EUR 0.6) gives USD (EUR 0.6, JPY 150)
    ///     USD (EUR 0.5, JPY 150) with EUR (USD 2)   gives EUR (USD 2, JPY 300)
    ///
    /// Throws ConversionError when neither table has a rate between the two
    /// bases.
    [[nodiscard]] ConversionMap updatedWith(const ConversionMap &newer) const;

    friend bool operator==(const ConversionMap &, const ConversionMap &) = default;

private:
    numira::Currency m_base;
    QDateTime m_fetchedAt;
    Rates m_rates;
    Origins m_origins;
};

/// "USD at 2026-03-31T12:00:00Z (EUR 0.92, GBP 0.79 typed 2026-03-30)", or "no
/// rates". What was fetched on the table's own day has no word of its origin.
KIV_CONVERSION_EXPORT std::ostream &operator<<(std::ostream &out, const ConversionMap &map);
using foundation::operator<<;

} // namespace kiv::conversion

Q_DECLARE_METATYPE(kiv::conversion::ConversionMap)
