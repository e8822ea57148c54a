// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_desk.h"

#include "foundation/presentation.h"
#include "storage/budget_file.h"

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using budgeting::BudgetItemTypes;
using conversion::ConversionMap;

namespace {

/// A Navigator over a real file, with the books that its views show as text.
class FrontEnd {
public:
    FrontEnd()
        : navigator(std::make_unique<ScriptedSender>(ScriptedSender::silence()),
                    std::make_unique<storage::BudgetFile>(),
                    std::make_unique<MemoryRatesStorage>(std::make_shared<MemoryDisk>()))
    {
        QObject::connect(&navigator, &Navigator::showAccounts, &navigator,
                         [this](const std::set<accounting::Account> &shown) { accounts = shown; });
        QObject::connect(&navigator, &Navigator::showDashboard, &navigator,
                         [this](const budgeting::BudgetTotals &shown) { totals = shown; });
    }

    /// Euros for one dollar.
    void setRate(const char *rate)
    {
        navigator.onStoreExchangeRates(
            ConversionMap(numira::toCurrency("USD"), QDateTime::currentDateTimeUtc(),
                          {{numira::toCurrency("EUR"), numira::FloatingPoint(rate)}}));
    }
    void pay(const char *bill, const numira::Money &amount, std::uint32_t account)
    {
        navigator.onPostBudgetItemPostedUnexpected({BudgetItemTypes::Bill, source(bill), {}},
                                                   amount, code(account, ""), day("2026-02-01"));
    }

    /// Each account with its balance and its side of every transaction.
    QStringList books()
    {
        navigator.onPrepareShowAccounts();
        QStringList lines;
        for (const accounting::Account &account : accounts) {
            QString line = account.code().name() + u' ' + foundation::toQString(account.balance()) +
                           u' ' + foundation::toQString(account.balance().code()) + u':';
            for (const auto &transaction : account.transactions()) {
                line += u' ' + presentationText(transaction.number().value()) + u'=' +
                        foundation::toQString(transaction.amountFor(account.code().number()));
            }
            lines.append(line);
        }
        return lines;
    }
    QString monthlyBills()
    {
        navigator.onPrepareShowDashboard();
        return foundation::toQString(totals.bills());
    }

    Navigator navigator;

private:
    std::set<accounting::Account> accounts;
    budgeting::BudgetTotals totals;
};

} // namespace

/// Several currencies through the whole.
class Currencies : public QObject {
    Q_OBJECT

private slots:
    void init() { m_front.navigator.clear(); }

    void whatWasPostedStaysWhateverTheRatesBecome()
    {
        FrontEnd &front = m_front;
        Navigator &n = front.navigator;
        const auto bill = [](const char *name, const numira::Money &amount) {
            return item<budgeting::Bill>(name, amount);
        };
        front.setRate("0.5");
        n.onAddedBankAccount(QStringLiteral("Checking"), BankAccountTypes::Checking, usd("1000"));
        n.onAddedBankAccount(QStringLiteral("Konto"), BankAccountTypes::Checking,
                             money("EUR", "400"));
        for (const auto &added : {bill("Hotel", money("EUR", "100")), bill("Gym", usd("30"))})
            n.onAdded(element(), BudgetItemTypes::Bill, added, {}, tagged(added));
        front.pay("Hotel", money("EUR", "100"), 1);                // 3
        front.pay("Gym", usd("30"), 3);                            // 4
        n.onTransferRequested(no(3), no(1), usd("50"), QString()); // 5
        const QStringList posted = texts({"Checking 750.00 USD: 1=1000.00 3=200.00 5=50.00",
                                          "Opening Balances USD [Equity] 1000.00 USD: 1=1000.00",
                                          "Konto 410.00 EUR: 2=400.00 4=15.00 5=25.00",
                                          "Opening Balances EUR [Equity] 400.00 EUR: 2=400.00",
                                          "Hotel [Budget Item] 100.00 EUR: 3=100.00",
                                          "Gym [Budget Item] 30.00 USD: 4=30.00"});
        QCOMPARE(front.books(), posted);
        QCOMPARE(front.monthlyBills(), QStringLiteral("230.00"));

        // Plans are told at the rates of the day; what was posted is not touched.
        front.setRate("0.25");
        QCOMPARE(front.books(), posted);
        QCOMPARE(front.monthlyBills(), QStringLiteral("430.00"));

        // An account that is kept in another currency from now on is restated
        // at the rate of that moment, but for what came from an account in that
        // currency. No other account is restated with it.
        const auto inEuros = bill("Gym", money("EUR", "8"));
        n.onUpdated(element(), BudgetItemTypes::Bill, inEuros, {}, tagged(inEuros));
        front.pay("Hotel", money("EUR", "100"), 1); // 6
        QStringList converted = posted;
        converted[0] = QStringLiteral("Checking 350.00 USD: 1=1000.00 3=200.00 5=50.00 6=400.00");
        converted[4] = QStringLiteral("Hotel [Budget Item] 200.00 EUR: 3=100.00 6=100.00");
        converted[5] = QStringLiteral("Gym [Budget Item] 15.00 EUR: 4=15.00");
        QCOMPARE(front.books(), converted);

        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("home.budget"));
        n.onSaveAsBudgetFile(file);
        front.setRate("8");
        n.onReloadBudgetFile();
        QCOMPARE(front.books(), converted);
        n.clear();
        n.onConfirmedLoadBudgetFile(file, false);
        QCOMPARE(front.books(), converted);
        QCOMPARE(front.monthlyBills(), QStringLiteral("13.50"));
    }

    void withoutARateNothingIsPosted()
    {
        FrontEnd &front = m_front;
        Navigator &n = front.navigator;
        front.setRate("0.5");
        n.onAddedBankAccount(QStringLiteral("Checking"), BankAccountTypes::Checking, usd("1000"));
        const auto dinner = item<budgeting::Bill>("Dinner", money("JPY", "5000"));
        n.onAdded(element(), BudgetItemTypes::Bill, dinner, {}, tagged(dinner));
        const QStringList before = front.books();
        QStringList failures;
        connect(&n, &Navigator::processBudgetItemSaveFailed, this,
                [&](const auto &, const QString &why) { failures.append(why); });
        front.pay("Dinner", money("JPY", "5000"), 1);
        QCOMPARE(failures.size(), 1);
        QCOMPARE(front.books(), before);
    }

private:
    OwnSettings m_settings;
    /// The first Navigator converts for the whole process, so there is one.
    FrontEnd m_front;
};

static const kiv::test::Suite<Currencies> suite;
#include "tst_currencies.moc"
