// SPDX-License-Identifier: GPL-3.0-or-later
// Construction and wiring.
#include "navigation/navigator.h"

#include "navigation/failure.h"
#include "navigation/internal/budget_bank_ledgers.h"
#include "navigation/internal/faults.h"
#include "navigation/internal/logging.h"
#include "navigation/internal/meta_types.h"
#include "navigation/internal/update_notifier.h"

#include "conversion/currency_converter.h"
#include "conversion/open_exchange_rates_source.h"
#include "networking/request_manager.h"
#include "numira/library.h"
#include "storage/budget_storage.h"
#include "storage/exchange_rates_storage.h"

#include <QtCore/QDebug>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace kiv::navigation {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds updateCheckInterval = 3'600'000ms;
constexpr std::chrono::milliseconds firstUpdateCheckDelay = 5'000ms;
/// Long enough for the front end to have connected its views and shown them.
constexpr std::chrono::milliseconds startUpDelay = 100ms;

/// The application's key at the exchange rate service.
QString exchangeRatesAppId()
{
    return QStringLiteral("5b0c93e2d7a14f68b1e0c4a9d2f73e15");
}

} // namespace

Navigator::Navigator(foundation::UniqueQtPtr<networking::RequestSender> sender,
                     std::unique_ptr<storage::BudgetStorage> budgetFiles,
                     std::unique_ptr<storage::ExchangeRatesStorage> exchangeRates)
    : QObject(nullptr),
      m_budgetBankLedgers(std::make_unique<internal::BudgetBankLedgers>()),
      m_preferences(std::nullopt),
      m_requestManager(
          new networking::RequestManager(std::move(sender), foundation::QtPtr<QObject>(this))),
      m_exchangeRatesSource(new conversion::OpenExchangeRatesSource(
          *m_requestManager, exchangeRatesAppId(), foundation::QtPtr<QObject>(this))),
      m_budgetStorage(std::move(budgetFiles)),
      m_exchangeRatesStorage(std::move(exchangeRates)),
      m_tagManager(tagging::BudgetItemTags())
{
    new LastFailure(this);
    internal::registerMetaTypes();
    qRegisterMetaType<Navigator>();
    setUpMoneyLibrary();
    initialiseConversions();
    startUpdateNotifier();

    // In this order, so that the wizard does not wait for the network.
    if (!m_preferences.doesExist()) {
        QTimer::singleShot(startUpDelay, this, &Navigator::onPrepareNewBudgetFirstTimeWizard);
    }
    QTimer::singleShot(startUpDelay, this, &Navigator::updateAllExpiredExchangeRates);
}

Navigator::~Navigator() = default;

void Navigator::setUpMoneyLibrary()
{
    const QString locale = QLocale::system().name();
    qInfo() << "User system locale" << locale;

    // The library converts for the whole process, so it is set up once, and the
    // first Navigator stays its source whatever others come and go: amounts
    // must not change their worth because a second budget was opened. Guarded,
    // since nothing keeps a front end from destroying that first one.
    static const bool isSetUp = [this, &locale] {
        numira::setUpLibrary(
            [first = QPointer<Navigator>(this)](const numira::Currency &from,
                                                const numira::Currency &to) {
                if (!first || !first->m_exchangeRatesSource)
                    throw internal::faults::converterGone();
                return conversion::CurrencyConverter(*first->m_exchangeRatesSource)
                    .lookUp(from, to);
            },
            locale.toStdString(), numira::ShouldAllowFallback::Yes);
        return true;
    }();
    Q_UNUSED(isSetUp)
}

void Navigator::initialiseConversions()
{
    try {
        if (m_exchangeRatesStorage->exists())
            conversion::CurrencyConverter::initialiseCache(m_exchangeRatesStorage->load());
    } catch (const std::exception &error) {
        internal::logWarning("Failed to initialise the currency conversions.", error);
    }
}

void Navigator::startUpdateNotifier()
{
    auto *notifier =
        new internal::UpdateNotifier(updateCheckInterval, *m_requestManager, firstUpdateCheckDelay,
                                     foundation::QtPtr<QObject>(this));
    connect(notifier, &internal::UpdateNotifier::updateReleased, this, &Navigator::updateReleased);
    connect(this, &Navigator::updateAvailableAcknowledged, notifier,
            [notifier] { notifier->startCheckNotifications(updateCheckInterval); });
    // Without the manager there is nothing to check with any more.
    connect(m_requestManager.get(), &QObject::destroyed, notifier, [notifier] { delete notifier; });
}

} // namespace kiv::navigation
