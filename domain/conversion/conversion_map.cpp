// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/conversion_map.h"

#include "conversion/internal/faults.h"
#include "foundation/streams.h"

#include <algorithm>
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

const char *wordOf(RateSource source) noexcept
{
    return source == RateSource::Typed ? "typed" : "fetched";
}

std::ostream &operator<<(std::ostream &out, RateSource source)
{
    return out << wordOf(source);
}

ConversionMap::ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates,
                             RateSource source)
    : ConversionMap(base, fetchedAt, std::move(rates), Origins())
{
    for (auto &[currency, origin] : m_origins)
        origin.source = source;
}

ConversionMap::ConversionMap(const numira::Currency &base, const QDateTime &fetchedAt, Rates rates,
                             const Origins &origins)
    : m_base(base), m_fetchedAt(fetchedAt.toUTC()), m_rates(std::move(rates))
{
    if (m_base == numira::Currency())
        throw internal::tableWithoutBase();
    if (!m_fetchedAt.isValid())
        throw internal::tableWithoutTime();
    for (const auto &[currency, rate] : m_rates) {
        if (!isInRange(rate))
            throw internal::rateOutOfRange(currency);
        const auto origin = origins.find(currency);
        m_origins.emplace(currency, origin != origins.end()
                                        ? origin->second
                                        : RateOrigin{RateSource::Fetched, m_fetchedAt.date()});
        if (!m_origins.at(currency).day.isValid())
            throw internal::tableWithoutTime();
    }
    if (const auto own = m_rates.find(m_base); own != m_rates.end() && own->second != 1)
        throw internal::baseRateNotOne(m_base);
}

bool ConversionMap::hasFetched() const noexcept
{
    return std::ranges::any_of(
        m_origins, [](const auto &entry) { return entry.second.source == RateSource::Fetched; });
}

std::set<numira::Currency> ConversionMap::notFetched(const std::set<numira::Currency> &wanted) const
{
    const RateOrigin lastFetch{RateSource::Fetched, m_fetchedAt.date()};
    std::set<numira::Currency> others = wanted;
    std::erase_if(others, [&](const numira::Currency &currency) {
        const auto origin = m_origins.find(currency);
        return currency == m_base || (origin != m_origins.end() && origin->second == lastFetch);
    });
    return others;
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

ConversionMap ConversionMap::updatedWith(const ConversionMap &newer) const
{
    if (isEmpty() || newer.isEmpty())
        return isEmpty() ? newer : *this;
    Rates rates = newer.m_rates;
    Origins origins = newer.m_origins;
    if (newer.m_base == m_base) {
        rates.insert(m_rates.begin(), m_rates.end());
        origins.insert(m_origins.begin(), m_origins.end());
    } else {
        const bool isNewerJoining = newer.m_rates.contains(m_base);
        // How much of this base one unit of the newer one buys.
        const numira::FloatingPoint factor =
            (isNewerJoining ? newer : *this).rate(newer.m_base, m_base);
        if (!isNewerJoining) {
            rates.emplace(m_base, factor);
            origins.emplace(m_base, m_origins.at(newer.m_base));
        }
        for (const auto &[currency, rate] : m_rates) {
            if (currency != newer.m_base && rates.emplace(currency, rate * factor).second)
                origins.emplace(currency, m_origins.at(currency));
        }
    }
    return {newer.m_base, hasFetched() && !newer.hasFetched() ? m_fetchedAt : newer.m_fetchedAt,
            std::move(rates), origins};
}

std::ostream &operator<<(std::ostream &out, const ConversionMap &map)
{
    if (!map.fetchedAt().isValid())
        return out << "no rates";
    out << map.base() << " at " << map.fetchedAt().toString(Qt::ISODate).toStdString() << " (";
    const char *separator = "";
    for (const auto &[currency, rate] : map.rates()) {
        out << separator << currency << ' ' << rate.str();
        const RateOrigin &origin = map.origins().at(currency);
        if (origin != RateOrigin{RateSource::Fetched, map.fetchedAt().date()}) {
            out << ' ' << origin.source << ' ' << origin.day.toString(Qt::ISODate).toStdString();
        }
        separator = ", ";
    }
    return out << ')';
}

} // namespace kiv::conversion
