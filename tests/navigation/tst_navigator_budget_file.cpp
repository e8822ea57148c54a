// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

using namespace kiv;
using namespace kiv::test;

class NavigatorBudgetFile : public QObject {
    Q_OBJECT

private slots:
    void init() { m_settings.reset(); }

    void asksOnlyWhenSomethingIsLost_data();
    void asksOnlyWhenSomethingIsLost();
    void savesUnderANameWithItsExtension_data();
    void savesUnderANameWithItsExtension();
    void loadingReplacesEverything();
    void failedLoadChangesNothing_data();
    void failedLoadChangesNothing();
    void reloadDropsChangesWithoutAsking();
    void failedReloadLeavesAnEmptyBudget();
    void failedSaveLeavesTheBudgetChanged_data();
    void failedSaveLeavesTheBudgetChanged();

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

void NavigatorBudgetFile::asksOnlyWhenSomethingIsLost_data()
{
    const auto change = [](Navigator &n) {
        n.onBankAdded(banking::Bank(bankName("B"), {}, false));
    };
    addRows({
        {"new, saved",
         {[](Navigator &n) { n.onPrepareNewBudgetEmpty(); },
          {"- Clearing the budget values to show the new empty budget.", "showNewBudget()"}}},
        {"new, changed",
         {[=](Navigator &n) { change(n), n.onPrepareNewBudgetEmpty(); },
          {"- Successfully added bank B []", "bankSaveSucceeded(B) *",
           "- The budget file is not empty, using an empty budget must be confirmed.",
           "showConfirmNewBudget()"}}},
        {"new, confirmed",
         {[=](Navigator &n) { change(n), n.onConfirmedNewBudgetEmpty(); },
          {"- Successfully added bank B []", "bankSaveSucceeded(B) *",
           "- Clearing the budget values to show the new empty budget.", "showNewBudget()"}}},
        {"wizard, saved",
         {[](Navigator &n) { n.onPrepareNewBudgetFirstTimeWizard(); },
          {"- Preparing to show the first time wizard.",
           "- Clearing all the budget file values to show first time wizard.",
           "showNewBudgetFirstTimeWizard(USD, (USD, EUR), Symbol)"}}},
        {"wizard, changed",
         {[=](Navigator &n) { change(n), n.onPrepareNewBudgetFirstTimeWizard(); },
          {"- Successfully added bank B []", "bankSaveSucceeded(B) *",
           "- Preparing to show the first time wizard.",
           "- The budget file is not empty, the first time wizard showing must be confirmed.",
           "showConfirmNewBudget()"}}},
        {"save, new",
         {[=](Navigator &n) { n.clear(), n.onSaveBudgetFile(); },
          {"- Handling Save Budget to \"Budget File Not Set\"", "showSaveAsBudgetFile()"}}},
        {"reload, new",
         {[](Navigator &n) { n.clear(), n.onReloadBudgetFile(); },
          {"- Reloading the current budget file.", "showNoBudgetFileOpened()"}}},
        {"load, changed",
         {[=](Navigator &n) { change(n), n.onLoadBudgetFile(QStringLiteral("other")); },
          {"- Successfully added bank B []", "bankSaveSucceeded(B) *",
           "showConfirmLoadBudgetFile(\"other\")"}}},
        {"check",
         {[](Navigator &n) { n.onCheckIsBudgetFileDirty(); }, {"checkedIsBudgetFileDirty(false)"}}},
        {"check, changed",
         {[=](Navigator &n) { change(n), n.onCheckIsBudgetFileDirty(); },
          {"- Successfully added bank B []", "bankSaveSucceeded(B) *",
           "checkedIsBudgetFileDirty(true)"}}},
    });
}

void NavigatorBudgetFile::asksOnlyWhenSomethingIsLost()
{
    QFETCH(const Request, request);
    Desk desk;
    desk.furnish();
    request.make(*desk.navigator);
    QCOMPARE(desk.take(), texts(request.said));
}

void NavigatorBudgetFile::savesUnderANameWithItsExtension_data()
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

void NavigatorBudgetFile::savesUnderANameWithItsExtension()
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

void NavigatorBudgetFile::loadingReplacesEverything()
{
    Desk desk;
    desk.furnish();
    const auto saved = desk.save();
    desk.navigator->onConfirmedNewBudgetEmpty();
    addBill(desk, "Gas");
    desk.navigator->onConfirmedLoadBudgetFile(home, false);
    QCOMPARE(desk.take(),
             texts({"- Loading Budget: \"home.budget\"", "- Successfully loaded budget.",
                    "loadedBudgetFile(\"home.budget\", false)"}));
    QVERIFY(!desk.isChanged());
    QVERIFY(desk.save("copy.budget") == saved);
}

void NavigatorBudgetFile::failedLoadChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such file") << "gone.budget";
    QTest::newRow("an item that names no account") << "broken.budget";
}

void NavigatorBudgetFile::failedLoadChangesNothing()
{
    QFETCH(const QString, path);
    Desk desk;
    desk.furnish();
    auto broken = desk.save();
    broken.budgetAccountCodes.insertOrAssign<budgeting::Bill>(source("Nothing"), no(99));
    broken.itemTags = {};
    desk.disk->files.insert_or_assign(QStringLiteral("broken.budget"), broken);
    addBill(desk, "Gas");

    QVERIFY_EXCEPTION_THROWN(desk.navigator->onConfirmedLoadBudgetFile(path, false),
                             foundation::Error);
    QVERIFY(!desk.take().join(u'\n').contains(QStringLiteral("loadedBudgetFile")));
    QVERIFY(desk.isChanged());
    // Saving still goes to the file that is open, with its tags.
    desk.navigator->onSaveBudgetFile();
    const auto saved = desk.disk->files.at(home);
    QCOMPARE(saved.budget.bills.size(), std::size_t(2));
    QVERIFY(!saved.itemTags.isEmpty());
}

void NavigatorBudgetFile::reloadDropsChangesWithoutAsking()
{
    Desk desk;
    desk.furnish();
    const auto saved = desk.save();
    addBill(desk, "Gas");
    desk.navigator->onReloadBudgetFile();
    QCOMPARE(desk.take(),
             texts({"- Reloading the current budget file.",
                    "- Clearing the budget values to show the new empty budget.", "showNewBudget()",
                    "- Loading Budget: \"home.budget\"", "- Successfully loaded budget.",
                    "loadedBudgetFile(\"home.budget\", true)"}));
    QVERIFY(desk.save("copy.budget") == saved);
}

void NavigatorBudgetFile::failedReloadLeavesAnEmptyBudget()
{
    Desk desk;
    desk.furnish();
    breakAccess(desk, QStringLiteral("load budget"));
    QVERIFY_EXCEPTION_THROWN(desk.navigator->onReloadBudgetFile(), storage::StorageError);
    desk.disk->before = [](const QString &) {};
    desk.navigator->onReloadBudgetFile();
    QCOMPARE(desk.take().last(), QStringLiteral("showNoBudgetFileOpened()"));
    QVERIFY(desk.save("copy.budget").generalLedger.isEmpty());
}

void NavigatorBudgetFile::failedSaveLeavesTheBudgetChanged_data()
{
    QTest::addColumn<QString>("broken");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("budget") << "store budget" << false;
    // Saved, but counted as changed: saving once more is the safe side.
    QTest::newRow("rates") << "store rates" << true;
}

void NavigatorBudgetFile::failedSaveLeavesTheBudgetChanged()
{
    QFETCH(const QString, broken);
    QFETCH(const bool, isStored);
    Desk desk;
    desk.furnish();
    addBill(desk, "Gas");
    breakAccess(desk, broken);
    const QString other = QStringLiteral("other.budget");
    QVERIFY_EXCEPTION_THROWN(desk.navigator->onSaveAsBudgetFile(other), storage::StorageError);
    QVERIFY(desk.isChanged());
    QCOMPARE(desk.disk->files.contains(other), isStored);
    // The next save goes where the budget is.
    desk.disk->before = [](const QString &) {};
    desk.navigator->onSaveBudgetFile();
    QCOMPARE(desk.take().last(),
             QStringLiteral("savedBudgetFile(\"%1\")").arg(isStored ? other : home));
}

QTEST_GUILESS_MAIN(NavigatorBudgetFile)
#include "tst_navigator_budget_file.moc"
