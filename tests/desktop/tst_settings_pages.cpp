// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/settings.h"

using networking::Response;

/// The pages of what belongs to the user and not to a budget: exchange rates and settings.
class TestSettingsPages : public QObject {
    Q_OBJECT

private slots:
    void whileRatesAreFetchedNothingElseIsChanged()
    {
        Response answer = Response::failed(u"The server is silent."_s);
        QStringList reasons;
        SmallHousehold *asking = nullptr;
        SmallHousehold home([&](const QUrl &) -> std::optional<Response> {
            // Not when the window refreshes old rates by itself.
            if (asking && asking->requests().isBusy()) {
                reasons += part<QPushButton>(*asking, "keep").toolTip();
                reasons += desktop::ActionCollection::reason(
                    asking->window().desk().actions().action(u"undo"_s));
            }
            return answer;
        });
        showRates(home);
        asking = &home;
        press(home, Qt::Key_A, Qt::AltModifier);
        const QString wait = u"Another request is not answered yet; try again in a moment."_s;
        QCOMPARE(QSet(reasons.begin(), reasons.end()), QSet{wait});
        QVERIFY(home.notices().join(u' ').contains(u"server is silent"_s));
        QCOMPARE(texts(home, 1), QStringList{u"not converted"_s});
        QVERIFY(part<QPushButton>(home, "fetch").hasFocus());
        QVERIFY(part<QPushButton>(home, "keep").isEnabled());
        answer = Response::succeeded(
            R"({"timestamp": 1772366400, "base": "USD", "rates": {"CHF": 0.5}})",
            u"application/json"_s);
        press(home, Qt::Key_A, Qt::AltModifier);
        QCOMPARE(home.notices(), QStringList());
        QCOMPARE(texts(home, 1), QStringList{u"1 USD = 0.5 CHF"_s});
        QCOMPARE(texts(home, 4), QStringList{u"fetched"_s});
    }

private:
    /// The page with francs, which have no rate.
    static void showRates(SmallHousehold &home)
    {
        show(home, "home");
        navigation::ConfigurationData settings = workbench::presentSettings(home.requests());
        settings.usableCurrencies = {numira::toCurrency("USD"), numira::toCurrency("CHF")};
        workbench::storeSettings(home.requests(), settings);
        home.requests().navigator().onStoreExchangeRates({}); // those of former tests
        home.trigger("page rates");
    }
};

static const kiv::test::Suite<TestSettingsPages> suite;

#include "tst_settings_pages.moc"
