// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using budgeting::Bill;
using budgeting::BudgetItemTypes;
using budgeting::Debt;
using budgeting::Goal;
using budgeting::Nontrack;
using budgeting::Wage;

class NavigatorBudgetItems : public QObject {
    Q_OBJECT

private slots:
    void init() { m_settings.reset(); }

    void answersChanges_data();
    void answersChanges() { checkRow(); }
    void wrongUseLeavesTheSlot_data();
    void wrongUseLeavesTheSlot();
    void tagsFollowTheItem();
    void sourcesAreLookedUpByKind();
    void viewsShowTheirItems();

private:
    OwnSettings m_settings;
};

void NavigatorBudgetItems::answersChanges_data()
{
    const auto added = [](const budgeting::BudgetedMoney &item,
                          std::optional<banking::BankAccount> at = std::nullopt) {
        return [item = std::shared_ptr(item.clone()), at](Navigator &n) {
            n.onAdded(element(), toBudgetItemTypes(*item), *item, at, tagged(*item));
        };
    };
    const auto updated = [](const budgeting::BudgetedMoney &item) {
        return [item = std::shared_ptr(item.clone())](Navigator &n) {
            n.onUpdated(element(), toBudgetItemTypes(*item), *item, std::nullopt, tagged(*item));
        };
    };
    const auto renamed = [](BudgetItemTypes type, const char *from, const char *to) {
        return [=](Navigator &n) { n.onRenamed(element(), type, source(from), source(to)); };
    };
    const banking::BankAccount checking{bankName("First"), {no(1), BankAccountTypes::Checking}};
    const banking::BankAccount loan{bankName("First"), {no(0), BankAccountTypes::Loan}};
    const Bill rent = item<Bill>("Rent");
    addRows({
        {"add a bill",
         {added(item<Bill>("Gas")),
          {"- Budget item bill account code: 7 Gas [Budget Item]", "saveSucceeded(77, Gas) *"}}},
        {"add a debt",
         {added(item<Debt>("Car")),
          {"- Budget item debt account code: 7 Car [Budget Item]", "saveSucceeded(77, Car) *"}}},
        {"add a debt at a bank",
         {added(item<Debt>("Car"), loan),
          {"- Added budget bank association: First 7 (loan)",
           "- Budget item debt account code: 7 Car [Budget Item]", "saveSucceeded(77, Car) *"}}},
        {"add a goal",
         {added(item<Goal>("Trip")),
          {"- Budget item goal account code: 7 Trip [Budget Item]", "saveSucceeded(77, Trip) *"}}},
        {"add a goal at a bank",
         {added(item<Goal>("Trip"), checking),
          {"- Recoding 7 Trip [Budget Item] to 7 Trip [Budget Item] under 1",
           "- Updating bank account after recode First 7 (goal sub-account)",
           "- Added budget bank association: First 7 (goal sub-account)",
           "- Budget item goal account code: 7 Trip [Budget Item] under 1",
           "saveSucceeded(77, Trip) *"}}},
        {"add a nontrack",
         {added(item<Nontrack>("Fun")),
          {"- Budget item nontrack account code: 7 Fun [Budget Item]",
           "saveSucceeded(77, Fun) *"}}},
        {"add a wage",
         {added(item<Wage>("Bonus")),
          {"- Budget item wage account code: 7 Bonus [Budget Item]",
           "saveSucceeded(77, Bonus) *"}}},
        {"add a bill, is there",
         {added(rent),
          {"! Failed to add budget item. The new budgeted money item source already exists.",
           "saveFailed(77, none, =, Rent)"}}},
        {"add a bill, account's name",
         {added(item<Bill>("Checking")),
          {"! Failed to add budget item. The budget item has the same name as an existing ledger "
           "account.",
           "saveFailed(77, none, =, Checking)"}}},
        {"add a goal, bank unknown",
         {added(item<Goal>("Trip"), loan),
          {"- Recoding 7 Trip [Budget Item] to 7 Trip [Budget Item] under 0",
           "! Failed to add budget item. Failure making the goal bank account association. Caused "
           "by: A bank account cannot have its parent account changed to non-bank account.",
           "saveFailed(77, none, \"Failure making the goal bank account association.\", Trip)"}}},
        {"add with another kind's tags",
         {[=](Navigator &n) {
              n.onAdded(element(), BudgetItemTypes::Bill, rent, {}, tagged(item<Wage>("Rent")));
          },
          {"! Failed to add budget item. The provided item type does not match the item's type.",
           "saveFailed(77, none, =, Rent)"}}},
        {"add with another item's tags",
         {[=](Navigator &n) {
              n.onAdded(element(), BudgetItemTypes::Bill, rent, {}, tagged(item<Bill>("rent")));
          },
          {"! Failed to add budget item. The provided item source does not match the item's "
           "source.",
           "saveFailed(77, none, =, Rent)"}}},
        {"update a bill", {updated(item<Bill>("Rent", usd("11"))), {"saveSucceeded(77, Rent) *"}}},
        {"update a nontrack",
         {updated(item<Nontrack>("Food", usd("11"))), {"saveSucceeded(77, Food) *"}}},
        {"update a wage",
         {updated(item<Wage>("Salary", usd("11"))), {"saveSucceeded(77, Salary) *"}}},
        {"update a bill, unknown",
         {updated(item<Bill>("Gas")),
          {"! Failed to update budget item. Cannot update a bill that does not exist.",
           "saveFailed(77, Gas, =, Gas)"}}},
        {"update a debt, unknown",
         {updated(item<Debt>("Car")),
          {"! Failed to update budget item. Cannot update a debt that does not exist.",
           "saveFailed(77, Car, =, Car)"}}},
        {"update with another item's tags",
         {[=](Navigator &n) {
              n.onUpdated(element(), BudgetItemTypes::Bill, rent, {}, tagged(item<Bill>("Gas")));
          },
          {"! Failed to update budget item. The provided item source does not match the item's "
           "source.",
           "saveFailed(77, Rent, =, Rent)"}}},
        {"rename", {renamed(BudgetItemTypes::Bill, "Rent", "Home"), {"saveSucceeded(77, Rent) *"}}},
        {"rename, account's name",
         {renamed(BudgetItemTypes::Bill, "Rent", "Checking"),
          {"! Failed to rename budget item. The budget item has the same name as an existing "
           "ledger account.",
           "saveFailed(77, Rent, =, Checking)"}}},
        {"rename, unknown",
         {renamed(BudgetItemTypes::Wage, "%2", "%1"),
          {"! Failed to rename budget item. Cannot rename the budgeted money item source as it "
           "does not exist.",
           "saveFailed(77, %2, =, %1)"}}},
        {"remove",
         {[](Navigator &n) { n.onRemoved(element(), BudgetItemTypes::Wage, source("Salary")); },
          {"saveSucceeded(77, Salary) *"}}},
        {"remove, unknown",
         {[](Navigator &n) { n.onRemoved(element(), BudgetItemTypes::Bill, source("Gas")); },
          {"! Failed to find a non-mutable value under the type 'N3kiv9budgeting4BillE' with the "
           "key 'Gas'.",
           "! Failed to remove budget item. Cannot remove a bill that does not exist.",
           "saveFailed(77, Gas, =, Gas)"}}},
    });
}

void NavigatorBudgetItems::wrongUseLeavesTheSlot_data()
{
    const banking::BankAccount at{bankName("First"), {no(1), BankAccountTypes::Checking}};
    const auto add = [](const auto &item, std::optional<banking::BankAccount> bank) {
        return [=](Navigator &n) {
            n.onAdded(element(), toBudgetItemTypes(item), item, bank, tagged(item));
        };
    };
    const auto update = [](const auto &item, std::optional<banking::BankAccount> bank) {
        return [=](Navigator &n) {
            n.onUpdated(element(), toBudgetItemTypes(item), item, bank, tagged(item));
        };
    };
    const auto unknown = BudgetItemTypes(6);
    const tagging::BudgetItemTags::ItemTags unknownTags({unknown, source("Gas")});
    const Bill gas = item<Bill>("Gas");
    addRows({
        {"bill added",
         {add(gas, at),
          {"An item of type 'Bill' cannot add a bank account "
           "association."}}},
        {"nontrack added",
         {add(item<Nontrack>("Fun"), at),
          {"An item of type 'Nontrack' cannot add a bank account "
           "association."}}},
        {"wage added",
         {add(item<Wage>("Bonus"), at),
          {"An item of type 'Wage' cannot add a bank "
           "account association."}}},
        {"bill updated",
         {update(gas, at),
          {"An item of type 'Bill' cannot update a bank account "
           "association."}}},
        {"unknown added",
         {[=](Navigator &n) { n.onAdded(element(), unknown, gas, {}, unknownTags); },
          {"An unknown budget item type was supplied when adding a new entry."}}},
        {"unknown updated",
         {[=](Navigator &n) { n.onUpdated(element(), unknown, gas, {}, unknownTags); },
          {"An unknown budget item type was supplied when updating an entry."}}},
        {"unknown renamed",
         {[=](Navigator &n) { n.onRenamed(element(), unknown, source("Gas"), source("Oil")); },
          {"An unknown budget item type was supplied when renaming an entry."}}},
        {"unknown removed",
         {[=](Navigator &n) { n.onRemoved(element(), unknown, source("Gas")); },
          {"Invalid budget item ID type supplied for removal 6"}}},
        {"unknown looked up",
         {[=](Navigator &n) {
              n.onLookUpBudgetItemSources({unknown, source("Gas"), {}});
          },
          {"An unknown budget item type was supplied when looking up all the budget item "
           "sources."}}},
        {"wage passed off as a bill",
         {[=](Navigator &n) {
              n.onAdded(element(), BudgetItemTypes::Bill, item<Wage>("Gas"), {}, tagged(gas));
          },
          {"std::bad_cast"}}},
    });
}

void NavigatorBudgetItems::wrongUseLeavesTheSlot()
{
    QFETCH(const Request, request);
    Desk desk;
    QString thrown;
    (void)desk.take();
    try {
        request.make(*desk.navigator);
    } catch (const foundation::Error &) {
        QFAIL("An error for the user left the slot.");
    } catch (const std::exception &error) {
        thrown = QString::fromUtf8(error.what());
    }
    QCOMPARE(thrown, texts(request.said).join(u'\n'));
    QCOMPARE(desk.take(), QStringList());
    QVERIFY(!desk.isChanged());
}

void NavigatorBudgetItems::tagsFollowTheItem()
{
    Desk desk;
    desk.furnish();
    const budgeting::BudgetItemIdentifier rent{BudgetItemTypes::Bill, source("Rent")};
    const budgeting::BudgetItemIdentifier home{BudgetItemTypes::Bill, source("Home")};
    const auto tags = [&](const budgeting::BudgetItemIdentifier &id) {
        return desk.save().itemTags.tags(id);
    };
    const tagging::Tags atHome{tagging::Tag(QStringLiteral("home"))};
    const tagging::Tags fixed{tagging::Tag(QStringLiteral("fixed"))};

    QCOMPARE(tags(rent), atHome);
    // A refused change leaves them alone.
    desk.navigator->onRenamed(element(), rent.type, rent.source, source("Checking"));
    desk.navigator->onAdded(element(), rent.type, item<Bill>("Rent"), {},
                            tagged(item<Bill>("Rent"), fixed));
    QCOMPARE(tags(rent), atHome);
    desk.navigator->onRenamed(element(), rent.type, rent.source, home.source);
    QCOMPARE(tags(home), atHome);
    QVERIFY(!desk.save().itemTags.contains(rent));
    desk.navigator->onUpdated(element(), home.type, item<Bill>("Home"), {},
                              tagged(item<Bill>("Home"), fixed));
    QCOMPARE(tags(home), fixed);
    desk.navigator->onAdded(element(), rent.type, item<Bill>("New"), {}, tagged(item<Bill>("New")));
    desk.navigator->onRemoved(element(), home.type, home.source);
    QVERIFY(desk.save().itemTags.isEmpty());
}

void NavigatorBudgetItems::sourcesAreLookedUpByKind()
{
    Desk desk;
    desk.furnish();
    for (int kind = 0; kind <= 5; ++kind)
        desk.navigator->onLookUpBudgetItemSources({BudgetItemTypes(kind), source("x"), {}});
    QCOMPARE(desk.take(), texts({"lookedUpBudgetItemSources(x (unknown) on no date, ())",
                                 "lookedUpBudgetItemSources(x (bill) on no date, (Rent))",
                                 "lookedUpBudgetItemSources(x (debt) on no date, ())",
                                 "lookedUpBudgetItemSources(x (goal) on no date, ())",
                                 "lookedUpBudgetItemSources(x (non-tracked) on no date, (Food))",
                                 "lookedUpBudgetItemSources(x (wage) on no date, (Salary))"}));
}

void NavigatorBudgetItems::viewsShowTheirItems()
{
    Desk desk;
    desk.furnish();
    Navigator &n = *desk.navigator;
    const auto add = [&](const budgeting::BudgetedMoney &item, BankAccountTypes kind) {
        n.onAdded(element(), toBudgetItemTypes(item), item,
                  banking::BankAccount{bankName("First"), {no(1), kind}},
                  tagged(item, {tagging::Tag(QStringLiteral("big"))}));
    };
    add(item<Debt>("Car"), BankAccountTypes::Loan);
    add(item<Goal>("Trip"), BankAccountTypes::Checking);
    (void)desk.take();

    n.onPrepareShowBills();
    n.onPrepareShowDebts();
    n.onPrepareShowGoals();
    n.onPrepareShowNontracks();
    n.onPrepareShowWages();
    const QStringList shown = desk.take();
    const QString codes = QStringLiteral(
        "(1 Checking, 2 Opening Balances USD [Equity], 3 Rent [Budget Item], 4 Savings under 1, "
        "5 Salary [Budget Item], 6 Food [Budget Item], 7 Car [Budget Item], 8 Sundries, "
        "9 Trip [Budget Item] under 1)");
    const QString rest = QStringLiteral("USD, (big, home), (%1), (USD, EUR), Symbol");
    QCOMPARE(shown.value(0),
             QStringLiteral("showBills((Rent (bill) 10.00 USD monthly on 2026-01-31 day 31), %1)")
                 .arg(rest.arg(QStringLiteral("Rent (bill)=>(home)"))));
    QCOMPARE(shown.value(1),
             QStringLiteral("showDebts((Car (debt) 10.00 USD monthly on 2026-01-31 day 31 borrowed "
                            "100.00 USD), (Car (debt) at First 7 (loan)), %1, (First), %2)")
                 .arg(codes, rest.arg(QStringLiteral("Car (debt)=>(big)"))));
    QCOMPARE(shown.value(2),
             QStringLiteral("showGoals((Trip (goal) 10.00 USD monthly on 2026-01-31 day 31 final "
                            "100.00 USD), (Trip (goal) at First 1 (checking)), %1, (First), %2, "
                            "1000.00 USD)")
                 .arg(codes, rest.arg(QStringLiteral("Trip (goal)=>(big)"))));
    QCOMPARE(shown.value(3), QStringLiteral("showNontracks((Food (non-tracked) 10.00 USD monthly "
                                            "on 2026-01-31 day 31), %1)")
                                 .arg(rest.arg(QString())));
    QCOMPARE(shown.value(4), QStringLiteral("showWages((Salary (wage) 1000.00 USD monthly on "
                                            "2026-01-31 day 31), %1)")
                                 .arg(rest.arg(QString())));
    QCOMPARE(shown.size(), 5);
}

QTEST_GUILESS_MAIN(NavigatorBudgetItems)
#include "tst_navigator_budget_items.moc"
