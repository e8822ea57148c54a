// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/message_log.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Debt;
using budgeting::Goal;
using enum BankAccountTypes;

namespace {

using Asked = std::optional<BankAccount>;

/// A household with a debt Car (6, which opened the equity account 7) and a
/// goal Trip (8) below Checking. Second keeps another asset, 9 Purse.
struct Household {
    BudgetBankLedgers all = whole();

    Household()
    {
        all.add(item<Debt>("Car"), std::nullopt);
        all.add(item<Goal>("Trip"), at("First", 1, Checking));
        all.addAccount(QStringLiteral("Purse"), Cash, usd("0"));
        all.addAssociation(bank("Second"), no(9), Cash);
    }
    template <typename Item>
    auto adding(const char *name, const Asked &asked)
    {
        return [=, this] { all.add(item<Item>(name), asked); };
    }
    /// The new item is in another currency too, so that the account is converted
    /// before the association is refused.
    template <typename Item>
    auto updating(const char *name, const Asked &asked, const char *currency = "EUR")
    {
        return [=, this] { all.update(item<Item>(name, money(currency, "9")), asked); };
    }
};

} // namespace

class BankAssociationsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    void newItemsAreTied()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        MessageLog log;
        QCOMPARE(all.add(item<Debt>("Boat"), at("First", 0, Loan)), code(10, "Boat [Budget Item]"));
        QCOMPARE(all.lookUpBankAccount(no(10)), at("First", 10, Loan));
        QCOMPARE(log.text(), u"Added budget bank association: First 10 (loan)");

        const AccountCode below = code(11, "Rome [Budget Item]", no(2));
        QCOMPARE(all.add(item<Goal>("Rome"), at("First", 2, Savings)), below);
        QCOMPARE(all.lookUpAccountCode(id<Goal>("Rome")), below);
        QCOMPARE(all.lookUpBankAccount(no(11)), at("First", 11, GoalSubAccount));
        QVERIFY(
            log.text().endsWith(u"\nAdded budget bank association: First 11 (goal sub-account)"));
    }

    void anAdditionThatFailsLeavesNoTrace()
    {
        Household household;
        // What an item of that name once left in a survey does not keep it here.
        setSurveys(household.all, surveys({survey(at("First", 1, Checking),
                                                  {id<Debt>("Boat"), id<Goal>("Rome")})}));
        const std::string debt =
            "item Boat: Failure making the debt bank account association. Caused by: ";
        const std::string goal =
            "item Rome: Failure making the goal bank account association. Caused by: ";
        const std::string noBankAccount =
            goal + "A bank account cannot have its parent account changed to non-bank account.";
        checkRefusals(
            household.all,
            {{household.adding<Debt>("Boat", at("Third", 0, Loan)),
              debt + "The bank does not exist."},
             {household.adding<Debt>("Boat", at("First", 0, Unknown)),
              debt + "The bank account type cannot be unknown."},
             {household.adding<Debt>("Food", at("First", 0, Loan)),
              "item Food: The budget item has the same name as an existing ledger account."},
             {household.adding<Goal>("Rome", at("Third", 1, Checking)),
              goal + "The bank does not exist."},
             {household.adding<Goal>("Rome", at("First", 0, Checking)), noBankAccount},
             {household.adding<Goal>("Rome", at("First", 5, Checking)), noBankAccount},
             {household.adding<Goal>("Rome", at("First", 77, Checking)), noBankAccount},
             {household.adding<Goal>("Rome", at("First", 3, CreditCard)),
              goal + "The account '10 Rome [Budget Item]' of type Asset cannot stand under the "
                     "account '3 Card' of type Liability."}});
        // The equity account that this very addition made goes too.
        BudgetBankLedgers first = whole();
        QVERIFY(refusal(first, [&] {
                    first.add(item<Debt>("Car"), at("Third", 0, Loan));
                }).endsWith(u"The bank does not exist."));
        try {
            household.adding<Debt>("Boat", at("Third", 0, Loan))();
        } catch (const budgeting::BudgetItemError &error) {
            QVERIFY_THROWS_EXCEPTION(banking::BankError, std::rethrow_exception(error.cause()));
        }
    }

    void aDebtComesToBanksAndLeavesThem()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        MessageLog log;
        all.update(item<Debt>("Car", usd("9")), at("First", 0, Loan));
        QCOMPARE(all.budget().debts.at(source("Car")).amount(), usd("9"));
        QCOMPARE(all.lookUpBankAccount(no(6)), at("First", 6, Loan));
        // Again changes nothing and says nothing, whatever else is asked for.
        const BudgetBankLedgers before(all);
        all.update(item<Debt>("Car", usd("9")), at("First", 42, CreditCard));
        QVERIFY(all == before);
        QCOMPARE(log.text(), u"Added bank association: First 6 (loan)");

        all.update(item<Debt>("Car"), at("Second", 0, LineOfCredit));
        QCOMPARE(all.lookUpBankAccount(bank("First"), no(6)), at("First", 6, Loan));
        QCOMPARE(all.lookUpBankAccount(bank("Second"), no(6)), at("Second", 6, LineOfCredit));
        all.update(item<Debt>("Car"), std::nullopt);
        QCOMPARE(all.lookUpBankAccount(no(6)), at("Second", 6, LineOfCredit));
        all.update(item<Debt>("Car"), std::nullopt);
        all.update(item<Debt>("Car"), std::nullopt);
        QVERIFY(!all.isBankAccount(no(6)));
    }

    void aGoalMovesBetweenBankAccounts()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        MessageLog log;
        all.update(item<Goal>("Trip"), at("Second", 9, Cash));
        QCOMPARE(all.lookUpAccountCode(id<Goal>("Trip")), code(8, "Trip [Budget Item]", no(9)));
        QCOMPARE(all.lookUpBankAccount(bank("First"), no(8)), std::nullopt);
        QCOMPARE(all.lookUpBankAccount(no(8)), at("Second", 8, GoalSubAccount));
        // Where it lies already it may stay, even once it was reconciled.
        all.reconcile(all.post(transfer(no(8), no(9), usd("5"))));
        all.update(item<Goal>("Trip", usd("9")), at("Second", 9, Cash));
        QCOMPARE(log.text(), u"Updated bank account association Second 8 (goal sub-account)");
        QCOMPARE(all.budget().goals.at(source("Trip")).amount(), usd("9"));

        all.update(item<Goal>("Trip"), std::nullopt);
        QCOMPARE(all.lookUpAccountCode(id<Goal>("Trip")), code(8, "Trip [Budget Item]"));
        QVERIFY(!all.isBankAccount(no(8)));
        const BudgetBankLedgers before(all);
        all.update(item<Goal>("Trip"), std::nullopt);
        QVERIFY(all == before);
    }

    void anUpdateThatFailsLeavesTheItemAsItWas()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        all.post(transfer(no(6), no(1), usd("0.03"))); // converting back would lose a cent
        const std::string debt =
            "item Car: Failure updating the debt bank account association. Caused by: ";
        const std::string goal =
            "item Trip: Failed to update the goal bank account association. Caused by: ";
        checkRefusals(
            all, {{household.updating<Debt>("Car", at("First", 42, Loan)),
                   debt + "The bank account cannot be set directly when updating a debt."},
                  {household.updating<Debt>("Car", at("Third", 0, Loan)),
                   debt + "The bank does not exist."},
                  {household.updating<Debt>("Car", at("First", 0, Unknown)),
                   debt + "The bank account type cannot be unknown."},
                  {household.updating<Debt>("Boat", std::nullopt),
                   "item Boat: Cannot update a debt that does not exist."},
                  {household.updating<Goal>("Rome", std::nullopt),
                   "item Rome: Cannot update a goal that does not exist."},
                  {household.updating<Goal>("Trip", at("Second", 0, Cash)),
                   goal + "A goal must have an account to store under a bank account."},
                  {household.updating<Goal>("Trip", at("Third", 2, Savings)),
                   goal + "The bank does not exist."},
                  {household.updating<Goal>("Trip", at("Second", 77, Cash)),
                   goal + "The account '8 Trip [Budget Item]' cannot stand under the account 77, "
                          "which does not exist."}});
        all.reconcile(all.post(transfer(no(8), no(1), usd("5"))));
        checkRefusals(
            all, {{household.updating<Goal>("Trip", at("Second", 9, Cash)),
                   goal + "Cannot change a goal’s bank account once it has been reconciled."}});
        BudgetBankLedgers broken = Household().all;
        broken.remove(code(8, "Trip [Budget Item]"));
        checkRefusals(broken, {{[&] { broken.update(item<Goal>("Trip"), at("Second", 9, Cash)); },
                                "account 8: There is no account with the number 8."}});
    }
};

static const kiv::test::Suite<BankAssociationsTest> suite;
#include "tst_bank_associations.moc"
