// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/currency_converter.h"

#include "conversion/errors.h"

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

/// The wanted rates of the table and the base's own; `missing` gets those that
/// it lacks.
ConversionMap restrict(const ConversionMap &table, const std::set<numira::Currency> &wanted,
                       std::set<numira::Currency> &missing)
{
    ConversionMap::Rates rates{{table.base(), 1}};
    for (const auto &currency : wanted) {
        const auto found = table.rates().find(currency);
        if (found != table.rates().end())
            rates.insert(*found);
        else if (currency != table.base())
            missing.insert(currency);
    }
    return {table.base(), table.fetchedAt(), std::move(rates)};
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
    FetchedRates answer;
    {
        isFetching = true;
        const auto waited = qScopeGuard([] { isFetching = false; });
        answer = waitForRates(m_source, wanted, m_patience);
    }
    std::set<numira::Currency> missing;
    if (answer.table) {
        ConversionMap fetched = restrict(*answer.table, wanted, missing);
        if (missing.size() < wanted.size()) {
            if (!missing.empty())
                qWarning() << "The source has no exchange rates of these currencies:"
                           << codesOf(missing);
            return fetched;
        }
        answer.failure = internal::noWantedRates();
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
