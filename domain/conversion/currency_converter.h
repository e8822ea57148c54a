// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/conversion_map.h"
#include "conversion/currency_source.h"
#include "conversion/export.h"

#include "foundation/error.h"

#include <chrono>
#include <optional>
#include <set>

namespace kiv::conversion {

/// Converts between currencies by one table of rates for the whole process,
/// the cache, and fetches newer rates from a source.
///
/// Only initialiseCache and updateCache change the cache; fetching does not.
/// The cache belongs to the thread of the event loop.
class KIV_CONVERSION_EXPORT CurrencyConverter {
public:
    /// Somewhat longer than a request may take, so that usually the request
    /// itself ends the wait and says why it failed.
    static constexpr std::chrono::milliseconds patienceDefault{35'000};

    /// `patience` is how long fetchAll waits at most.
    explicit CurrencyConverter(CurrencySource &source,
                               std::chrono::milliseconds patience = patienceDefault) noexcept;

    /// The cached rate; see ConversionMap::rate. Throws ConversionError when
    /// the cache lacks one of the two currencies.
    [[nodiscard]] numira::FloatingPoint lookUp(const numira::Currency &from,
                                               const numira::Currency &to) const;

    /// Waits for the source's rates of the wanted currencies and answers with the
    /// cache's rates and these laid over them, as ConversionMap::updatedWith
    /// does. So nothing that is known is lost, and a rate that was typed stays
    /// until the source gives one for its currency. Where the source lacks some
    /// of the wanted currencies, one warning names them.
    ///
    /// When there is no usable answer (a failure, the time is up, a refused
    /// reply, none of the wanted rates, rates from before the last fetch, or the
    /// source is destroyed meanwhile) it warns once and answers with the cache as
    /// it stands. The same, without a warning, when nothing is wanted or another
    /// fetch is waiting already.
    ///
    /// It waits in an event loop that takes no user input, but timers, sockets
    /// and queued calls run meanwhile and may destroy the caller: after this
    /// call, do not touch what such a call may have destroyed. Throws nothing
    /// for the network's sake.
    [[nodiscard]] ConversionMap fetchAll(const std::set<numira::Currency> &wanted);
    /// Why the last fetchAll had no usable answer, in English; nothing when it had
    /// one, and before.
    [[nodiscard]] const std::optional<foundation::Error> &failure() const noexcept
    {
        return m_failure;
    }

    /// Takes over what the cache starts with.
    static void initialiseCache(ConversionMap &&conversions);
    /// Replaces the cache.
    static void updateCache(ConversionMap conversions);
    /// The rates with which the whole process converts.
    [[nodiscard]] static const ConversionMap &cache() noexcept;

private:
    CurrencySource &m_source;
    std::chrono::milliseconds m_patience;
    std::optional<foundation::Error> m_failure;
};

} // namespace kiv::conversion
