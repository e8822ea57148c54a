// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/currency_converter.h"

#include "conversion/internal/faults.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

#include <QtCore/QDebug>
#include <QtCore/QEventLoop>
#include <QtCore/QScopeGuard>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace kiv::conversion {

namespace {

/// Whether a fetch is waiting; a second one from within its loop would wait
/// above it on the same stack and hold it up.
bool isFetching = false;

ConversionMap &cachedConversions() noexcept
{
    static ConversionMap conversions;
    return conversions;
}

/// What the source answers within `patience`, waiting in an event loop.
FetchedRates waitForRates(CurrencySource &source, const std::set<numira::Currency> &wanted,
                          std::chrono::milliseconds patience)
{
    FetchedRates rates{std::nullopt, internal::fetchTimedOut()};
    QEventLoop loop;
    // A late answer finds its user gone.
    QObject user;
    QTimer::singleShot(patience, &user, [&] { loop.quit(); });
    QObject::connect(&source, &QObject::destroyed, &user, [&] {
        rates.failure = internal::sourceGone();
        loop.quit();
    });
    source.fetch(wanted, user, [&](const FetchedRates &answer) {
        rates = answer;
        loop.quit();
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return rates;
}

QString codesOf(const std::set<numira::Currency> &currencies)
{
    QStringList codes;
    for (const auto &currency : currencies)
        codes.append(foundation::presentationText(currency));
    return codes.join(QStringLiteral(", "));
}

/// The rates of the table that are among the wanted ones, and the base's own.
ConversionMap restrict(const ConversionMap &table, const std::set<numira::Currency> &wanted)
{
    ConversionMap::Rates rates{{table.base(), 1}};
    for (const auto &currency : wanted) {
        const auto found = table.rates().find(currency);
        if (found != table.rates().end())
            rates.insert(*found);
    }
    return {table.base(), table.fetchedAt(), std::move(rates)};
}

std::set<numira::Currency> missingFrom(const ConversionMap &table,
                                       const std::set<numira::Currency> &wanted)
{
    std::set<numira::Currency> missing = wanted;
    std::erase_if(missing, [&](const auto &currency) { return table.rates().contains(currency); });
    return missing;
}

/// Whether `fetched` is from before the last fetch. A last fetch that lies in the
/// future is the fault of some clock, and must not hold up all that come after it.
bool isOutdated(const ConversionMap &fetched, const ConversionMap &known)
{
    return known.hasFetched() && fetched.fetchedAt() < known.fetchedAt() &&
           known.fetchedAt() <= QDateTime::currentDateTimeUtc() + ConversionMap::lifetime;
}

/// The known rates with the wanted ones of the reply laid over them. `missing`
/// gets the wanted currencies that the reply lacks.
ConversionMap update(const ConversionMap &known, const ConversionMap &reply,
                     const std::set<numira::Currency> &wanted, std::set<numira::Currency> &missing)
{
    std::set<numira::Currency> used = wanted;
    used.insert(known.base());
    const ConversionMap fetched = restrict(reply, used);
    missing = missingFrom(fetched, wanted);
    if (missing == wanted)
        throw internal::noWantedRates();
    if (isOutdated(fetched, known))
        throw internal::ratesOutdated(fetched.fetchedAt(), known.fetchedAt());
    return known.updatedWith(fetched);
}

} // namespace

CurrencyConverter::CurrencyConverter(CurrencySource &source,
                                     std::chrono::milliseconds patience) noexcept
    : m_source(source), m_patience(patience)
{
}

numira::FloatingPoint CurrencyConverter::lookUp(const numira::Currency &from,
                                                const numira::Currency &to) const
{
    return cache().rate(from, to);
}

ConversionMap CurrencyConverter::fetchAll(const std::set<numira::Currency> &wanted)
{
    m_failure.reset();
    if (wanted.empty() || isFetching)
        return cache();
    // The base of what is known joins it with rates of another base.
    std::set<numira::Currency> asked = wanted;
    if (!cache().isEmpty())
        asked.insert(cache().base());
    FetchedRates answer;
    {
        isFetching = true;
        const auto waited = qScopeGuard([] { isFetching = false; });
        answer = waitForRates(m_source, asked, m_patience);
    }
    if (answer.table) {
        try {
            std::set<numira::Currency> missing;
            ConversionMap updated = update(cache(), *answer.table, wanted, missing);
            if (!missing.empty()) {
                qWarning() << "The source has no exchange rates of these currencies:"
                           << codesOf(missing);
            }
            return updated;
        } catch (const ConversionError &error) {
            answer.failure = error.message();
        }
    }
    m_failure.emplace(answer.failure);
    qWarning() << "Failed to fetch the exchange rates."
               << foundation::escapedUtf8(answer.failure).c_str();
    return cache();
}

void CurrencyConverter::initialiseCache(ConversionMap &&conversions)
{
    cachedConversions() = std::move(conversions);
}

void CurrencyConverter::updateCache(ConversionMap conversions)
{
    cachedConversions() = std::move(conversions);
}

const ConversionMap &CurrencyConverter::cache() noexcept
{
    return cachedConversions();
}

} // namespace kiv::conversion
