// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_desk.h"

#include "conversion/currency_converter.h"

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using conversion::CurrencyConverter;

/// What the answers alone do not show: what is stored, loaded, kept or given up.
class NavigatorEffects : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.reset();
        CurrencyConverter::updateCache({});
    }

    void savesUnderANameWithItsExtension_data();
    void savesUnderANameWithItsExtension();
    void loadingReplacesEverything();
    void failedLoadChangesNothing_data();
    void failedLoadChangesNothing();
    void failedReloadLeavesAnEmptyBudget();
    void failedSaveLeavesTheBudgetChanged_data();
    void failedSaveLeavesTheBudgetChanged();
    void clearingSparesTheReconciledSide_data();
    void clearingSparesTheReconciledSide();
    void transferIsDatedToday();
    void addedBankAccountReturnsItsCode();
    void viewsMayChangeWhatTheyDraw();
    void viewsMayLetGoOfWhatTheyHandedIn();
    void storesEditedRates();
    void aFailedSurveyThatPostedIsAChange();
    void wizardBuildsABudget();
    void whatAReceiverThrowsIsNoFailure();

private:
    OwnSettings m_settings;
};

namespace {

const QString home = QStringLiteral("home.budget");

void addBill(Desk &desk, const char *name)
{
    const auto bill = item<budgeting::Bill>(name);
    desk.navigator->onAdded(element(), budgeting::BudgetItemTypes::Bill, bill, {}, tagged(bill));
    (void)desk.take();
}

/// Makes one kind of access to the storages fail.
void breakAccess(Desk &desk, const QString &broken)
{
    desk.disk->before = [broken](const QString &access) {
        if (access == broken) {
            throw storage::StorageError(storage::StorageFailure::CannotWrite, home,
                                        QStringLiteral("No."));
        }
    };
}

} // namespace

void NavigatorEffects::savesUnderANameWithItsExtension_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("stored");
    QTest::newRow("as it is") << "a.budget"
                              << "a.budget";
    QTest::newRow("without") << "a"
                             << "a.budget";
    QTest::newRow("another") << "a.txt"
                             << "a.txt.budget";
    QTest::newRow("capitals") << "a.BUDGET"
                              << "a.BUDGET.budget";
}

void NavigatorEffects::savesUnderANameWithItsExtension()
{
    QFETCH(const QString, asked);
    QFETCH(const QString, stored);
    Desk desk;
    addBill(desk, "Rent");
    desk.navigator->onSaveAsBudgetFile(asked);
    QCOMPARE(desk.take(),
             QStringList({QStringLiteral("- User selected the file-name \"%1\" to store the budget "
                                         "under.")
                              .arg(stored),
                          QStringLiteral("savedBudgetFile(\"%1\")").arg(stored)}));
    QVERIFY(desk.disk->files.contains(stored));
    QVERIFY(!desk.isChanged());
    // The name is kept with its extension, and the rates are stored too.
    QVERIFY(desk.disk->rates.has_value());
    addBill(desk, "Gas");
    desk.navigator->onSaveBudgetFile();
    QCOMPARE(desk.take().value(0), QStringLiteral("- Handling Save Budget to \"%1\"").arg(stored));
    QCOMPARE(desk.disk->files.at(stored).budget.bills.size(), std::size_t(2));
}

void NavigatorEffects::loadingReplacesEverything()
{
    Desk desk;
    desk.furnish();
    const auto saved = desk.save();
    desk.navigator->onConfirmedNewBudgetEmpty();
    addBill(desk, "Gas");
    addBill(desk, "Rent"); // without the tags that it has in the file
    desk.navigator->onConfirmedLoadBudgetFile(home, false);
    QCOMPARE(desk.take(),
             texts({"- Loading Budget: \"home.budget\"", "- Successfully loaded budget.",
                    "loadedBudgetFile(\"home.budget\", false)"}));
    QVERIFY(!desk.isChanged());
    QVERIFY(desk.save("copy.budget") == saved);
}

void NavigatorEffects::failedLoadChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such file") << "gone.budget";
    QTest::newRow("an item that names no account") << "broken.budget";
}

void NavigatorEffects::failedLoadChangesNothing()
{
    QFETCH(const QString, path);
    Desk desk;
    desk.furnish();
    auto broken = desk.save();
    broken.budgetAccountCodes.insertOrAssign<budgeting::Bill>(source("Nothing"), no(99));
    broken.itemTags = {};
    desk.disk->files.insert_or_assign(QStringLiteral("broken.budget"), broken);
    addBill(desk, "Gas");

    QVERIFY_THROWS_EXCEPTION(foundation::Error,
                             desk.navigator->onConfirmedLoadBudgetFile(path, false));
    QVERIFY(!desk.take().join(u'\n').contains(QStringLiteral("loadedBudgetFile")));
    QVERIFY(desk.isChanged());
    // Saving still goes to the file that is open, with its tags.
    desk.navigator->onSaveBudgetFile();
    const auto saved = desk.disk->files.at(home);
    QCOMPARE(saved.budget.bills.size(), std::size_t(2));
    QVERIFY(!saved.itemTags.isEmpty());
}

void NavigatorEffects::failedReloadLeavesAnEmptyBudget()
{
    Desk desk;
    desk.furnish();
    breakAccess(desk, QStringLiteral("load budget"));
    QVERIFY_THROWS_EXCEPTION(storage::StorageError, desk.navigator->onReloadBudgetFile());
    desk.disk->before = [](const QString &) {};
    desk.navigator->onReloadBudgetFile();
    QCOMPARE(desk.take().last(), QStringLiteral("showNoBudgetFileOpened()"));
    QVERIFY(desk.save("copy.budget").generalLedger.isEmpty());
}

void NavigatorEffects::failedSaveLeavesTheBudgetChanged_data()
{
    QTest::addColumn<QString>("broken");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("budget") << "store budget" << false;
    // Saved, but counted as changed: saving once more is the safe side.
    QTest::newRow("rates") << "store rates" << true;
}

void NavigatorEffects::failedSaveLeavesTheBudgetChanged()
{
    QFETCH(const QString, broken);
    QFETCH(const bool, isStored);
    Desk desk;
    desk.furnish();
    addBill(desk, "Gas");
    breakAccess(desk, broken);
    const QString other = QStringLiteral("other.budget");
    QVERIFY_THROWS_EXCEPTION(storage::StorageError, desk.navigator->onSaveAsBudgetFile(other));
    QVERIFY(desk.isChanged());
    QCOMPARE(desk.disk->files.contains(other), isStored);
    // The next save goes where the budget is.
    desk.disk->before = [](const QString &) {};
    desk.navigator->onSaveBudgetFile();
    QCOMPARE(desk.take().last(),
             QStringLiteral("savedBudgetFile(\"%1\")").arg(isStored ? other : home));
}

void NavigatorEffects::clearingSparesTheReconciledSide_data()
{
    QTest::addColumn<quint32>("reconciled");
    QTest::addColumn<QString>("statuses");
    QTest::newRow("debit") << 3U << QStringLiteral("reconciled, cleared");
    QTest::newRow("credit") << 1U << QStringLiteral("cleared, reconciled");
    QTest::newRow("neither") << 0U << QStringLiteral("cleared, cleared");
}

void NavigatorEffects::clearingSparesTheReconciledSide()
{
    QFETCH(const quint32, reconciled);
    QFETCH(const QString, statuses);
    Desk desk;
    desk.furnish();
    const QString path = QStringLiteral("home.budget");
    if (reconciled != 0)
        desk.disk->files.at(path).generalLedger.reconcile(txn(2), no(reconciled));
    desk.navigator->onLoadBudgetFile(path);
    (void)desk.take();

    desk.navigator->onMarkCleared({txn(2)});
    QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(2, 2) *"}));
    const auto cleared = desk.save().generalLedger.lookUpTransaction(txn(2)).value();
    QCOMPARE(QStringLiteral("%1, %2").arg(toQString(cleared.debitStatus()),
                                          toQString(cleared.creditStatus())),
             statuses);
}

void NavigatorEffects::transferIsDatedToday()
{
    Desk desk;
    desk.furnish();
    desk.navigator->onTransferRequested(no(4), no(1), usd("5"), QStringLiteral("Back"));
    QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(none, 4) *"}));
    const auto posted = desk.save().generalLedger.lookUpTransaction(txn(4)).value();
    QCOMPARE(posted, accounting::Transaction(foundation::today(), code(4, "Savings", no(1)),
                                             code(1, "Checking"), usd("5"), QStringLiteral("Back"),
                                             txn(4)));
}

void NavigatorEffects::addedBankAccountReturnsItsCode()
{
    Desk desk;
    const auto add = [&](const char *name) {
        return desk.navigator->onAddedBankAccount(QString::fromUtf8(name), BankAccountTypes::Cash,
                                                  usd("1"));
    };
    QCOMPARE(add("Purse"), std::optional(code(1, "Purse")));
    const auto bill = item<budgeting::Bill>("Rent");
    QVERIFY(desk.navigator->onAdded(element(), budgeting::BudgetItemTypes::Bill, bill, {},
                                    tagged(bill)));
    QCOMPARE(add("Rent"), std::nullopt);
    // The number of the refused one was given back.
    QCOMPARE(add("Box"), std::optional(code(4, "Box")));
    // The number of one that was there is not.
    desk.navigator->onRemovedBankAccount(code(4, "Box"));
    QCOMPARE(add("Bag"), std::optional(code(5, "Bag")));
}

void NavigatorEffects::viewsMayChangeWhatTheyDraw()
{
    Desk desk;
    desk.furnish();
    Navigator &n = *desk.navigator;
    QStringList drawn;
    connect(&n, &Navigator::showBills, this, [&](const budgeting::BillMap &bills) {
        for (const auto &[source, bill] : bills) {
            n.onRemoved(element(), budgeting::BudgetItemTypes::Bill, source);
            drawn.append(source.name());
        }
    });
    connect(&n, &Navigator::showBanks, this, [&](const banking::BankMap &banks) {
        for (const auto &[name, bank] : banks) {
            n.onBankRenamed(name, bankName("Prime"));
            drawn.append(name.institution());
        }
    });
    addBill(desk, "Gas");
    n.onPrepareShowBills();
    n.onPrepareShowBanks();
    QCOMPARE(drawn, texts({"Gas", "Rent", "First"}));
    QVERIFY(desk.save().budget.bills.isEmpty());
}

void NavigatorEffects::viewsMayLetGoOfWhatTheyHandedIn()
{
    Desk desk;
    desk.furnish();
    Navigator &n = *desk.navigator;
    struct Held {
        budgeting::BudgetSource item = source("Rent");
        budgeting::BudgetItemAmountDue due{
            {budgeting::BudgetItemTypes::Nontrack, source("Food"), day("2026-01-31")}, usd("1")};
        accounting::AccountCode account = code(8, "Sundries");
        accounting::TransactionNumber number = txn(2);
        banking::BankName bank = bankName("First");
        QString text = QStringLiteral("Daily");
    } held;
    SignalLog asking(n);
    asking.annotate([&held](const QString &) {
        held = {{}, {}, {}, {}, {}, {}};
        return QString();
    });
    SignalLog other(n);
    for (SignalLog *log : {&asking, &other}) // the desk's own question
        log->ignore(QStringLiteral("checkedIsBudgetFileDirty"), true);
    const std::vector<std::function<void()>> requests{
        [&] { n.onPostBudgetItemPosted(held.due, code(1, ""), day("2026-02-01")); },
        [&] {
            n.onRenamed(element(), budgeting::BudgetItemTypes::Bill, held.item, source("Home"));
        },
        [&] { n.onClosed(held.account); },
        [&] { n.onBankClosed(held.bank); }, // is refused
        [&] { n.onRemovedTransaction(held.number); },
        [&] { n.onLoadBudgetFile(held.text); },
        [&] {
            n.onCompletedNewBudgetFirstTimeWizard(
                numira::toCurrency("USD"), {numira::toCurrency("USD")},
                navigation::CurrencyDisplayOptions::Symbol, held.bank, BankAccountTypes::Checking,
                held.text, usd("1"), navigation::BudgetWizardTemplates::None);
        },
    };
    for (const auto &request : requests) {
        held = {};
        request();
        QCOMPARE(other.take(), asking.take());
    }
    QVERIFY(desk.save().banks.hasBank(bankName("First")));
}

void NavigatorEffects::whatAReceiverThrowsIsNoFailure()
{
    Desk desk;
    (void)desk.take();
    connect(desk.navigator.get(), &Navigator::bankSaveSucceeded, this,
            [] { throw foundation::Error(QStringLiteral("The view is broken.")); });
    QVERIFY_THROWS_EXCEPTION(foundation::Error, desk.navigator->onBankAdded(
                                                    banking::Bank(bankName("First"), {}, false)));
    QCOMPARE(desk.take(),
             texts({"- Successfully added bank First []", "bankSaveSucceeded(First) *"}));
    QVERIFY(desk.isChanged());
}

void NavigatorEffects::storesEditedRates()
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

void NavigatorEffects::aFailedSurveyThatPostedIsAChange()
{
    using budgeting::BudgetItemTypes;
    Desk desk;
    desk.furnish();
    const auto complete = [&](const budgeting::BudgetItemIdentifier &unknown) {
        desk.navigator->onCompletedSurvey(
            day("2999-12-31"), {bankName("First"), {no(1), BankAccountTypes::Checking}},
            usd("2492"), {txn(1), txn(2), txn(3)},
            {{{{BudgetItemTypes::Bill, source("Rent")}, usd("1")}, {unknown, usd("1")}}, {}}, {},
            {}, usd("0"));
        QVERIFY(desk.take().last().startsWith(QStringLiteral("completedSurveyFailed(")));
    };
    complete({BudgetItemTypes::Bill, source("Gone")});
    QVERIFY(!desk.isChanged()); // refused before Rent's turn to be posted
    complete({BudgetItemTypes::Nontrack, source("Gone")});
    QVERIFY(desk.isChanged());
}

void NavigatorEffects::wizardBuildsABudget()
{
    Desk desk;
    desk.furnish();
    desk.navigator->onCompletedNewBudgetFirstTimeWizard(
        numira::toCurrency("EUR"), {numira::toCurrency("EUR"), numira::toCurrency("GBP")},
        navigation::CurrencyDisplayOptions::IsoCode, bankName("Bank"), BankAccountTypes::Checking,
        QStringLiteral("Daily"), money("EUR", "100"),
        navigation::BudgetWizardTemplates::AdultSingle);
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
                QVERIFY(usable == (std::set{numira::toCurrency("EUR"), numira::toCurrency("GBP")}));
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

static const kiv::test::Suite<NavigatorEffects> suite;
#include "tst_navigator_effects.moc"
