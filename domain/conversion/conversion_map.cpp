// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/conversion_map.h"

#include "conversion/errors.h"
#include "foundation/streams.h"

#include <cstdlib>

namespace kiv::conversion {

namespace {

const numira::FloatingPoint &rateMin()
{
    static const numira::FloatingPoint smallest("1e-12");
    return smallest;
}

const numira::FloatingPoint &rateMax()
{
    static const numira::FloatingPoint largest("1e12");
    return largest;
}

bool isInRange(const numira::FloatingPoint &rate)
{
    // Not a number compares false with everything, so it fails here too.
    return rate >= rateMin() && rate <= rateMax();
}

} // namespace

ConversionMap::ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates)
    : m_base(base), m_fetchedAt(fetchedAt.toUTC()), m_rates(std::move(rates))
{
    if (m_base == numira::Currency())
        throw internal::tableWithoutBase();
    if (!m_fetchedAt.isValid())
        throw internal::tableWithoutTime();
    for (const auto &[currency, rate] : m_rates) {
        if (!isInRange(rate))
            throw internal::rateOutOfRange(currency);
    }
    if (const auto own = m_rates.find(m_base); own != m_rates.end() && own->second != 1)
        throw internal::baseRateNotOne(m_base);
}

bool ConversionMap::isExpired(const QDateTime &now) const
{
    constexpr qint64 lifetimeMs = std::chrono::milliseconds(lifetime).count();
    return isEmpty() || std::abs(m_fetchedAt.msecsTo(now)) > lifetimeMs;
}

numira::FloatingPoint ConversionMap::rate(const numira::Currency &from,
                                          const numira::Currency &to) const
{
    if (from == to)
        return 1;
    const auto perBase = [&](const numira::Currency &currency) -> numira::FloatingPoint {
        if (currency == m_base)
            return 1;
        const auto found = m_rates.find(currency);
        if (found == m_rates.end())
            throw internal::rateMissing(from, to);
        return found->second;
    };
    return perBase(to) / perBase(from);
}

std::ostream &operator<<(std::ostream &out, const ConversionMap &map)
{
    if (!map.fetchedAt().isValid())
        return out << "no rates";
    out << map.base() << " at " << map.fetchedAt().toString(Qt::ISODate).toStdString() << " (";
    const char *separator = "";
    for (const auto &[currency, rate] : map.rates()) {
        out << separator << currency << ' ' << rate.str();
        separator = ", ";
    }
    return out << ')';
}

QDebug operator<<(QDebug debug, const ConversionMap &map)
{
    return foundation::streamed(debug, map);
}

} // namespace kiv::conversion
