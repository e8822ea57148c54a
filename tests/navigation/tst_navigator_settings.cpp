// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

#include "conversion/currency_converter.h"

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using conversion::CurrencyConverter;
using navigation::BudgetWizardTemplates;

class NavigatorSettings : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.reset();
        CurrencyConverter::updateCache({});
    }

    void answersRequests_data();
    void answersRequests() { checkRow(); }
    void dashboardIsMonthly();
    void storesEditedRates();
    void configurationKeepsWhatIsInUse();
    void wizardBuildsABudget();
    void wizardThatFailsLeavesAnEmptyBudget_data();
    void wizardThatFailsLeavesAnEmptyBudget();

private:
    OwnSettings m_settings;
};

namespace {

const auto complete = [](Navigator &n, const char *bank, const char *account,
                         BudgetWizardTemplates household) {
    n.onCompletedNewBudgetFirstTimeWizard(
        numira::toCurrency("EUR"), {numira::toCurrency("EUR"), numira::toCurrency("GBP")},
        navigation::CurrencyDisplayOptions::IsoCode, bankName(bank), BankAccountTypes::Checking,
        QString::fromUtf8(account), money("EUR", "100"), household);
};

} // namespace

void NavigatorSettings::answersRequests_data()
{
    const auto configure = [](int hours) {
        return [=](Navigator &n) {
            navigation::ConfigurationData data;
            const auto shown =
                connect(&n, &Navigator::showConfigure, &n, [&](const auto &now) { data = now; });
            n.onPrepareShowConfigure();
            disconnect(shown);
            data.hoursInWeek = std::chrono::hours(hours);
            n.onConfigureUpdated(data);
        };
    };
    addRows({
        {"rates",
         {[](Navigator &n) { n.onPrepareShowExchangeRates(); },
          {"showExchangeRates(no rates, (USD, EUR))"}}},
        {"fetch nothing",
         {[](Navigator &n) { n.onFetchExchangeRates({}); },
          {"fetchedExchangeRates((), no rates)"}}},
        {"configure",
         {configure(30),
          {"showConfigure(40 h on 5 days, USD of (USD, EUR) by Symbol, survey window 2.75 %, due "
           "within 14 days, tags (home), (USD))",
           "- Updating user preferences.", "configureSaveSucceeded()"}}},
        {"configure, too long",
         {configure(168),
          {"showConfigure(40 h on 5 days, USD of (USD, EUR) by Symbol, survey window 2.75 %, due "
           "within 14 days, tags (home), (USD))",
           "- Updating user preferences.",
           "! Failed to update the user preferences. The number of work hours in a week must be "
           "between 1 and 168.",
           "configureSaveFailed(=)"}}},
    });
}

void NavigatorSettings::dashboardIsMonthly()
{
    Desk desk;
    Navigator &n = *desk.navigator;
    const auto add = [&](const auto &item) {
        n.onAdded(element(), toBudgetItemTypes(item), item, {}, tagged(item));
    };
    add(item<budgeting::Bill>("Tax", usd("120"), budgeting::EventFrequency::Yearly,
                              foundation::today()));
    add(item<budgeting::Wage>("Salary", usd("1000")));
    (void)desk.take();
    int shown = 0;
    connect(&n, &Navigator::showDashboard, this,
            [&](const budgeting::BudgetTotals &totals, const auto &due, const auto &health,
                std::chrono::days within, const numira::Currency &preferred, auto) {
                ++shown;
                QCOMPARE(totals.bills(), usd("10"));
                QCOMPARE(totals.wages(), usd("1000"));
                QCOMPARE(due.size(), std::size_t(2));
                QCOMPARE(due.front().id.source, source("Salary"));
                QCOMPARE(health, adviser::BudgetHealth(totals));
                QCOMPARE(within, std::chrono::days(14));
                QCOMPARE(preferred, numira::toCurrency("USD"));
            });
    n.onPrepareShowDashboard();
    QCOMPARE(shown, 1);
}

void NavigatorSettings::storesEditedRates()
{
    Desk desk;
    (void)desk.take();
    const conversion::ConversionMap edited(
        numira::toCurrency("USD"), QDateTime::currentDateTimeUtc(),
        {{numira::toCurrency("EUR"), numira::FloatingPoint("2")}});
    // A view may store other rates while it shows the present ones.
    connect(desk.navigator.get(), &Navigator::showExchangeRates, this,
            [&](const conversion::ConversionMap &shown) {
                desk.navigator->onStoreExchangeRates(edited);
                QVERIFY(shown.isEmpty());
            });
    desk.navigator->onPrepareShowExchangeRates();
    QCOMPARE(desk.take(),
             texts({"showExchangeRates(no rates, (USD, EUR))", "- Storing exchange rates."}));
    QCOMPARE(CurrencyConverter::cache(), edited);
    QCOMPARE(desk.disk->rates, std::optional(edited));
    QVERIFY(!desk.isChanged());
}

void NavigatorSettings::configurationKeepsWhatIsInUse()
{
    Desk desk;
    desk.furnish();
    navigation::ConfigurationData data;
    std::set<numira::Currency> used;
    connect(desk.navigator.get(), &Navigator::showConfigure, this,
            [&](const auto &now, const auto &inUse) { data = now, used = inUse; });
    const auto euroBill = item<budgeting::Bill>("Gîte", money("EUR", "9"));
    desk.navigator->onAdded(element(), budgeting::BudgetItemTypes::Bill, euroBill, {},
                            tagged(euroBill));
    desk.navigator->onPrepareShowConfigure();
    QCOMPARE(used, (std::set{numira::toCurrency("USD"), numira::toCurrency("EUR")}));
    (void)desk.take();
    data.usableCurrencies = {numira::toCurrency("USD")};
    desk.navigator->onConfigureUpdated(data);
    QCOMPARE(desk.take().value(2).left(22), QStringLiteral("configureSaveFailed(\"T"));
    data.usableCurrencies = used;
    data.tags = {};
    desk.navigator->onConfigureUpdated(data);
    QVERIFY(desk.save().itemTags.isEmpty());
}

void NavigatorSettings::wizardBuildsABudget()
{
    Desk desk;
    desk.furnish();
    complete(*desk.navigator, "Bank", "Daily", BudgetWizardTemplates::AdultSingle);
    QStringList said = desk.take();
    QCOMPARE(said.mid(0, 6),
             texts({"- Clearing the budget values to show the new empty budget.", "showNewBudget()",
                    "- Added account \"Daily\" opening balance in 1",
                    "bankAccountSaveSucceeded(1 Daily) *",
                    "- Successfully added bank Bank [1=>checking]", "bankSaveSucceeded(Bank) *"}));
    QCOMPARE(said.last(), QStringLiteral("showNewBudget()"));
    QVERIFY(desk.isChanged());

    QStringList tied;
    connect(desk.navigator.get(), &Navigator::showGoals, this,
            [&](const auto &goals, const auto &accounts, const auto &, const auto &,
                const numira::Currency &preferred, const auto &, const auto &,
                const std::set<numira::Currency> &usable, auto displayAs) {
                QVERIFY(!goals.isEmpty());
                // Each goal lies under the wizard's account.
                QCOMPARE(accounts.size(), goals.size());
                QCOMPARE(preferred, numira::toCurrency("EUR"));
                QCOMPARE(usable.size(), std::size_t(2));
                QCOMPARE(displayAs, navigation::CurrencyDisplayOptions::IsoCode);
            });
    desk.navigator->onPrepareShowGoals();
    QCOMPARE(desk.take().size(), 1);
    // There is no file to reload or to save to yet.
    desk.navigator->onSaveBudgetFile();
    QCOMPARE(desk.take().last(), QStringLiteral("showSaveAsBudgetFile()"));
    const auto budget = desk.save().budget;
    QVERIFY(budget.debts.isEmpty() && !budget.bills.isEmpty() && !budget.wages.isEmpty());
}

void NavigatorSettings::wizardThatFailsLeavesAnEmptyBudget_data()
{
    addRows({
        {"bank without a name",
         {[](Navigator &n) { complete(n, "", "Daily", BudgetWizardTemplates::None); },
          {"- Clearing the budget values to show the new empty budget.", "showNewBudget()",
           "- Added account \"Daily\" opening balance in 1", "bankAccountSaveSucceeded(1 Daily) *",
           "! Failed to add a bank. The name of a bank cannot be empty.",
           "bankSaveFailed(none, \"The name of a bank cannot be empty.\", )",
           "! Failed to complete the first time wizard. Failed to add the bank '' for the first "
           "time wizard.",
           "- Clearing the budget values to show the new empty budget.", "showNewBudget()"}}},
        {"household without a template",
         {[](Navigator &n) { complete(n, "Bank", "Daily", BudgetWizardTemplates::Child); },
          {"- Clearing the budget values to show the new empty budget.", "showNewBudget()",
           "- Added account \"Daily\" opening balance in 1", "bankAccountSaveSucceeded(1 Daily) *",
           "- Successfully added bank Bank [1=>checking]", "bankSaveSucceeded(Bank) *",
           "! Failed to complete the first time wizard. Budget item generator template type not "
           "implemented.",
           "- Clearing the budget values to show the new empty budget.", "showNewBudget()"}}},
        {"account named like an item",
         {[](Navigator &n) { complete(n, "Bank", "Allowance", BudgetWizardTemplates::Teenager); },
          {"- Clearing the budget values to show the new empty budget.", "showNewBudget()",
           "- Added account \"Allowance\" opening balance in 1",
           "bankAccountSaveSucceeded(1 Allowance) *",
           "- Successfully added bank Bank [1=>checking]", "bankSaveSucceeded(Bank) *",
           "! Failed to add budget item. The budget item has the same name as an existing ledger "
           "account.",
           "saveFailed(0, none, \"The budget item has the same name as an existing ledger "
           "account.\", Allowance)",
           "! Failed to complete the first time wizard. Failed to add the generate the wage budget "
           "item 'Allowance' for the first time wizard.",
           "- Clearing the budget values to show the new empty budget.", "showNewBudget()"}}},
    });
}

void NavigatorSettings::wizardThatFailsLeavesAnEmptyBudget()
{
    QFETCH(const Request, request);
    Desk desk;
    desk.furnish();
    request.make(*desk.navigator);
    QCOMPARE(desk.take(), texts(request.said));
    QVERIFY(!desk.isChanged());
    QVERIFY(desk.save().generalLedger.isEmpty());
    // What the user prefers has nothing to do with it.
    QCOMPARE(navigation::UserPreferences(std::nullopt).preferredCurrency(),
             numira::toCurrency("EUR"));
}

QTEST_GUILESS_MAIN(NavigatorSettings)
#include "tst_navigator_settings.moc"
