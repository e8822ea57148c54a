// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_requests.h"

#include "conversion/currency_converter.h"

using banking::BankAccountTypes;
using conversion::CurrencyConverter;

namespace {

/// Makes requests whose answers do not matter.
void ask(Desk &desk, const char *requests)
{
    requestOf(QString::fromLatin1(requests))(*desk.navigator);
    (void)desk.take();
}

/// Makes one kind of access to the storages fail.
void breakAccess(Desk &desk, const QString &broken)
{
    desk.disk->before = [broken](const QString &access) {
        if (access == broken) {
            throw storage::StorageError(storage::StorageFailure::CannotWrite, homeBudget,
                                        QStringLiteral("No."));
        }
    };
}

} // namespace

/// What the answers alone do not show: what is stored, loaded, kept or given up.
class NavigatorEffects : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.reset();
        CurrencyConverter::updateCache({});
    }

    void loadingReplacesEverything()
    {
        FurnishedDesk desk;
        const auto saved = desk.save();
        desk.navigator->onConfirmedNewBudgetEmpty();
        // Rent without the tags that it has in the file.
        ask(desk, "Added(bill Gas); Added(bill Rent)");
        desk.navigator->onConfirmedLoadBudgetFile(homeBudget, false);
        QCOMPARE(desk.take(),
                 texts({"- Loading Budget: \"home.budget\"", "- Successfully loaded budget.",
                        "loadedBudgetFile(\"home.budget\", false)"}));
        QVERIFY(!desk.isChanged());
        QVERIFY(desk.save("copy.budget") == saved);
    }

    void failedLoadChangesNothing()
    {
        FurnishedDesk desk;
        auto broken = desk.save();
        broken.budgetAccountCodes.insertOrAssign<budgeting::Bill>(source("Nothing"), no(99));
        broken.itemTags = {};
        desk.disk->files.insert_or_assign(QStringLiteral("broken.budget"), broken);
        ask(desk, "Added(bill Gas)");

        // An item names an account that is not there.
        QVERIFY_THROWS_EXCEPTION(foundation::Error, desk.navigator->onConfirmedLoadBudgetFile(
                                                        QStringLiteral("broken.budget"), false));
        QVERIFY(!desk.take().join(u'\n').contains(QStringLiteral("loadedBudgetFile")));
        QVERIFY(desk.isChanged());
        // Saving still goes to the file that is open, with its tags.
        desk.navigator->onSaveBudgetFile();
        const auto saved = desk.disk->files.at(homeBudget);
        QCOMPARE(saved.budget.bills.size(), std::size_t(2));
        QVERIFY(!saved.itemTags.isEmpty());
    }

    void failedReloadLeavesAnEmptyBudget()
    {
        FurnishedDesk desk;
        breakAccess(desk, QStringLiteral("load budget"));
        QVERIFY_THROWS_EXCEPTION(storage::StorageError, desk.navigator->onReloadBudgetFile());
        desk.disk->before = [](const QString &) {};
        desk.navigator->onReloadBudgetFile();
        QCOMPARE(desk.take().last(), QStringLiteral("showNoBudgetFileOpened()"));
        QVERIFY(desk.save("copy.budget").generalLedger.isEmpty());
    }

    void failedSaveLeavesTheBudgetChanged()
    {
        // Without the rates it is saved, but counts as changed: to save once more is safe.
        for (const bool isStored : {false, true}) {
            FurnishedDesk desk;
            ask(desk, "Added(bill Gas)");
            breakAccess(desk,
                        isStored ? QStringLiteral("store rates") : QStringLiteral("store budget"));
            const QString other = QStringLiteral("other.budget");
            QVERIFY_THROWS_EXCEPTION(storage::StorageError,
                                     desk.navigator->onSaveAsBudgetFile(other));
            QVERIFY(desk.isChanged());
            QCOMPARE(desk.disk->files.contains(other), isStored);
            // The next save goes where the budget is, with its rates.
            desk.disk->before = [](const QString &) {};
            desk.disk->rates.reset();
            desk.navigator->onSaveBudgetFile();
            QCOMPARE(desk.take().last(),
                     QStringLiteral("savedBudgetFile(\"%1\")").arg(isStored ? other : homeBudget));
            QVERIFY(!desk.isChanged() && desk.disk->rates);
        }
    }

    void clearingSparesTheReconciledSide()
    {
        const std::map<quint32, QString> rows{{0U, QStringLiteral("cleared, cleared")},
                                              {1U, QStringLiteral("cleared, reconciled")},
                                              {3U, QStringLiteral("reconciled, cleared")}};
        for (const auto &[reconciled, statuses] : rows) {
            FurnishedDesk desk;
            if (reconciled != 0)
                desk.disk->files.at(homeBudget).generalLedger.reconcile(txn(2), no(reconciled));
            desk.navigator->onLoadBudgetFile(homeBudget);
            (void)desk.take();
            desk.navigator->onMarkCleared({txn(2)});
            QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(2, 2) *"}));
            const auto cleared = desk.save().generalLedger.lookUpTransaction(txn(2)).value();
            QCOMPARE(QStringLiteral("%1, %2").arg(toQString(cleared.debitStatus()),
                                                  toQString(cleared.creditStatus())),
                     statuses);
        }
    }

    void transferIsDatedToday()
    {
        FurnishedDesk desk;
        desk.navigator->onTransferRequested(no(4), no(1), usd("5"), QStringLiteral("Back"));
        QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(none, 4) *"}));
        const auto posted = desk.save().generalLedger.lookUpTransaction(txn(4)).value();
        QCOMPARE(posted, accounting::Transaction(foundation::today(), code(4, "Savings", no(1)),
                                                 code(1, "Checking"), usd("5"),
                                                 QStringLiteral("Back"), txn(4)));
    }

    void viewsMayChangeWhatTheyDraw()
    {
        FurnishedDesk desk;
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
        ask(desk, "Added(bill Gas)");
        n.onPrepareShowBills();
        n.onPrepareShowBanks();
        QCOMPARE(drawn, texts({"Gas", "Rent", "First"}));
        QVERIFY(desk.save().budget.bills.isEmpty());
    }

    void viewsMayLetGoOfWhatTheyHandedIn()
    {
        FurnishedDesk desk;
        Navigator &n = *desk.navigator;
        struct Held {
            budgeting::BudgetSource item = source("Rent");
            budgeting::BudgetItemAmountDue due{
                {budgeting::BudgetItemTypes::Nontrack, source("Food"), day("2026-01-31")},
                usd("1")};
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
                    navigation::CurrencyDisplayOptions::Symbol, held.bank,
                    BankAccountTypes::Checking, held.text, usd("1"),
                    navigation::BudgetWizardTemplates::None);
            },
        };
        for (const auto &request : requests) {
            held = {};
            request();
            QCOMPARE(other.take(), asking.take());
        }
        QVERIFY(desk.save().banks.hasBank(bankName("First")));
    }

    void storesEditedRates()
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

    void aFailedSurveyThatPostedIsAChange()
    {
        FurnishedDesk desk;
        const auto complete = [&](const QString &unknown) {
            requestOf(QStringLiteral("CompletedSurvey(2999-12-31, First 1 checking, 2492, 1 2 3, "
                                     "bill Rent +1 & %1 Gone +1)")
                          .arg(unknown))(*desk.navigator);
            QVERIFY(desk.take().last().startsWith(QStringLiteral("completedSurveyFailed(")));
        };
        complete(QStringLiteral("bill"));
        QVERIFY(!desk.isChanged()); // refused before Rent's turn to be posted
        complete(QStringLiteral("nontrack"));
        QVERIFY(desk.isChanged());
    }

    void wizardBuildsABudget()
    {
        FurnishedDesk desk;
        ask(desk,
            "CompletedNewBudgetFirstTimeWizard(EUR, EUR GBP, 0, Bank, checking, Daily, 100 EUR, "
            "single)");
        connect(
            desk.navigator.get(), &Navigator::showGoals, this,
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

    void whatAReceiverThrowsIsNoFailure()
    {
        Desk desk;
        (void)desk.take();
        connect(desk.navigator.get(), &Navigator::bankSaveSucceeded, this,
                [] { throw foundation::Error(QStringLiteral("The view is broken.")); });
        QVERIFY_THROWS_EXCEPTION(foundation::Error, desk.navigator->onBankAdded(banking::Bank(
                                                        bankName("First"), {}, false)));
        QCOMPARE(desk.take(),
                 texts({"- Successfully added bank First []", "bankSaveSucceeded(First) *"}));
        QVERIFY(desk.isChanged());
    }

private:
    OwnSettings m_settings;
};

static const kiv::test::Suite<NavigatorEffects> navigatorEffectsSuite;
#include "tst_navigator_effects.moc"
