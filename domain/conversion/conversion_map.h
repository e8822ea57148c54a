// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/export.h"

#include "numira/currency.h"
#include "numira/floating_point.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QMetaType>

#include <chrono>
#include <map>
#include <ostream>

namespace kiv::conversion {

/// A table of exchange rates of one moment: for each currency, how much of it
/// one unit of the base currency buys. With the base USD, a rate of 0.92 for
/// EUR says that 1 USD is 0.92 EUR.
///
/// Every rate lies between 10^-12 and 10^12; the base currency's own is 1
/// whether or not the table names it. A default-constructed table is empty: it
/// knows no base, no time and no rate.
class KIV_CONVERSION_EXPORT ConversionMap {
public:
    /// Rates by the currency into which they convert.
    using Rates = std::map<numira::Currency, numira::FloatingPoint>;

    /// How long rates are taken for current.
    static constexpr std::chrono::hours lifetime{24};

    ConversionMap() = default;
    /// Throws ConversionError when the base is "no currency", the time is not
    /// valid, a rate is not a number in the range above, or the base's own rate
    /// is named and is not 1.
    ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates);

    /// The currency from which the rates convert.
    [[nodiscard]] const numira::Currency &base() const noexcept { return m_base; }
    /// The moment whose rates these are, in UTC. Not valid for the empty table.
    [[nodiscard]] const QDateTime &fetchedAt() const noexcept { return m_fetchedAt; }
    /// How many units of each currency one of the base is worth.
    [[nodiscard]] const Rates &rates() const noexcept { return m_rates; }
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

    friend bool operator==(const ConversionMap &, const ConversionMap &) = default;

private:
    numira::Currency m_base;
    QDateTime m_fetchedAt;
    Rates m_rates;
};

/// "USD at 2026-03-31T12:00:00Z (EUR 0.92, GBP 0.79)", or "no rates".
KIV_CONVERSION_EXPORT std::ostream &operator<<(std::ostream &out, const ConversionMap &map);
KIV_CONVERSION_EXPORT QDebug operator<<(QDebug debug, const ConversionMap &map);

} // namespace kiv::conversion

Q_DECLARE_METATYPE(kiv::conversion::ConversionMap)
