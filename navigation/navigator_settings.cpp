// SPDX-License-Identifier: GPL-3.0-or-later
// Dashboard, exchange rates, configuration, releases.
#include "navigation/internal/navigator_change.h"

#include "conversion/currency_converter.h"
#include "conversion/open_exchange_rates_source.h"
#include "networking/request_manager.h"
#include "storage/exchange_rates_storage.h"
#include "updating/release_information_fetcher.h"

#include <QtCore/QPointer>

namespace kiv::navigation {

using conversion::CurrencyConverter;

namespace {
/// All currencies that the budget cannot do without.
std::set<numira::Currency> usedCurrencies(const internal::BudgetBankLedgers &ledgers)
{
    std::set<numira::Currency> used = budgeting::containedCurrencies(ledgers.budget());
    used.merge(accounting::containedCurrencies(ledgers.generalLedger()));
    return used;
}
} // namespace

// ---- dashboard ---------------------------------------------------------------

void Navigator::onPrepareShowDashboard()
{
    const budgeting::Budget &budget = m_budgetBankLedgers->budget();
    const numira::Currency preferred = m_preferences.preferredCurrency();
    const std::chrono::days dueWithin = m_preferences.notifyDueWithin();
    const budgeting::BudgetTotals totals(budget, preferred, budgeting::EventFrequency::Monthly);
    emit showDashboard(totals, budgeting::budgetItemsDue(dueWithin, budget),
                       adviser::BudgetHealth(totals), dueWithin, preferred,
                       m_preferences.currenciesDisplayAs());
}

// ---- exchange rates ----------------------------------------------------------

void Navigator::onPrepareShowExchangeRates()
{
    // A copy: a view may store other rates while it draws these.
    const conversion::ConversionMap conversions = CurrencyConverter::cache();
    emit showExchangeRates(conversions, m_preferences.usableCurrencies());
}

void Navigator::onFetchExchangeRates(const std::set<numira::Currency> &currencies)
{
    // Waiting runs the event loop, in which anything may happen, also the end
    // of this Navigator.
    const QPointer<Navigator> self(this);
    const std::set<numira::Currency> wanted = internal::copied(currencies);
    const conversion::ConversionMap fetched = fetchRates(wanted);
    if (self)
        emit fetchedExchangeRates(wanted, fetched);
}

void Navigator::onStoreExchangeRates(const conversion::ConversionMap &conversions)
{
    qInfo() << "Storing exchange rates.";
    CurrencyConverter::updateCache(conversions);
    m_exchangeRatesStorage->store(conversions);
}

void Navigator::updateAllExpiredExchangeRates()
{
    if (!CurrencyConverter::cache().isExpired()) {
        qDebug() << "Skipping fetching all exchange rates as they are not expired.";
        return;
    }
    qInfo() << "Fetching all exchange rates as they are expired.";
    const QPointer<Navigator> self(this);
    const conversion::ConversionMap fetched = fetchRates(m_preferences.usableCurrencies());
    if (self)
        onStoreExchangeRates(fetched);
}

conversion::ConversionMap Navigator::fetchRates(const std::set<numira::Currency> &currencies)
{
    // A front end may have destroyed the source; what is known stays then.
    if (!m_exchangeRatesSource)
        return CurrencyConverter::cache();
    CurrencyConverter converter(*m_exchangeRatesSource);
    const QPointer<Navigator> self(this);
    conversion::ConversionMap fetched = converter.fetchAll(currencies);
    if (self && converter.failure())
        internal::keepFailure(*this, "Failed to fetch the exchange rates.", *converter.failure());
    return fetched;
}

// ---- configuration -----------------------------------------------------------

void Navigator::onPrepareShowConfigure()
{
    emit showConfigure(load(m_preferences, m_tagManager), usedCurrencies(*m_budgetBankLedgers));
}

void Navigator::onConfigureUpdated(const ConfigurationData &data)
{
    qInfo() << "Updating user preferences.";
    // Not a change(): preferences belong to the user and not to the budget file.
    const bool isStored = attempt<std::exception>(
        "Failed to update the user preferences.",
        [&] { store(data, m_preferences, m_tagManager, usedCurrencies(*m_budgetBankLedgers)); },
        [&](const QString &why) { emit configureSaveFailed(why); });
    if (isStored)
        emit configureSaveSucceeded();
}

// ---- releases ----------------------------------------------------------------

void Navigator::onFetchReleaseNotes()
{
    if (!m_requestManager) {
        emit fetchedReleaseNotes({});
        return;
    }
    auto *fetcher = new updating::ReleaseInformationFetcher(*m_requestManager,
                                                            foundation::QtPtr<QObject>(this));
    connect(fetcher, &updating::ReleaseInformationFetcher::fetched, this, [this, fetcher] {
        if (fetcher->failure())
            internal::keepFailure(*this, "Failed to fetch the list of releases.",
                                  *fetcher->failure());
        else if (LastFailure *last = LastFailure::of(*this))
            last->clear();
    });
    connect(fetcher, &updating::ReleaseInformationFetcher::fetched, this,
            &Navigator::fetchedReleaseNotes);
    connect(fetcher, &updating::ReleaseInformationFetcher::fetched, fetcher, &QObject::deleteLater);
    fetcher->fetch();
}

} // namespace kiv::navigation
