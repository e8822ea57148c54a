// SPDX-License-Identifier: GPL-3.0-or-later
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
    QString adding(const char *name, const Asked &asked)
    {
        return refusal(all, [&] { all.add(item<Item>(name), asked); });
    }
    /// The new item is in another currency too, so that the account is converted
    /// before the association is refused.
    template <typename Item>
    QString updating(const char *name, const Asked &asked, const char *currency = "EUR")
    {
        return refusal(all, [&] { all.update(item<Item>(name, money(currency, "9")), asked); });
    }
    [[nodiscard]] AccountCode codeOf(const budgeting::BudgetItemIdentifier &item) const
    {
        return all.lookUpAccountCode(item).value();
    }
};

} // namespace

class BankAssociationsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    // ---- adding ----------------------------------------------------------------

    void aDebtIsKeptUnderItsOwnNumber()
    {
        Household household;
        MessageLog log;
        QCOMPARE(household.all.add(item<Debt>("Boat"), at("First", 0, Loan)),
                 code(10, "Boat [Budget Item]"));
        QCOMPARE(household.all.lookUpBankAccount(no(10)), at("First", 10, Loan));
        QCOMPARE(log.text(), u"Added budget bank association: First 10 (loan)");
    }

    void aGoalGoesBelowTheBankAccount()
    {
        Household household;
        MessageLog log;
        const AccountCode expected = code(10, "Rome [Budget Item]", no(2));
        QCOMPARE(household.all.add(item<Goal>("Rome"), at("First", 2, Savings)), expected);
        QCOMPARE(household.codeOf(id<Goal>("Rome")), expected);
        QCOMPARE(household.all.lookUpBankAccount(no(10)), at("First", 10, GoalSubAccount));
        QVERIFY(
            log.text().endsWith(u"\nAdded budget bank association: First 10 (goal sub-account)"));
    }

    void anAdditionThatFailsLeavesNoTrace()
    {
        Household household;
        // What an item of that name once left in a survey does not keep it here.
        setSurveys(household.all, surveys({survey(at("First", 1, Checking),
                                                  {id<Debt>("Boat"), id<Goal>("Rome")})}));
        const QString debt = u"item Boat: Failure making the debt bank account association. Caused "
                             u"by: "_qs;
        QCOMPARE(household.adding<Debt>("Boat", at("Third", 0, Loan)),
                 debt + u"The bank does not exist."_qs);
        QCOMPARE(household.adding<Debt>("Boat", at("First", 0, Unknown)),
                 debt + u"The bank account type cannot be unknown."_qs);
        const QString goal = u"item Rome: Failure making the goal bank account association. Caused "
                             u"by: "_qs;
        QCOMPARE(household.adding<Goal>("Rome", at("Third", 1, Checking)),
                 goal + u"The bank does not exist."_qs);
        for (const std::uint32_t noBankAccount : {0u, 5u, 77u}) {
            QCOMPARE(household.adding<Goal>("Rome", at("First", noBankAccount, Checking)),
                     goal + u"A bank account cannot have its parent account changed to non-bank "
                            u"account."_qs);
        }
        QVERIFY(household.adding<Goal>("Rome", at("First", 3, CreditCard)).startsWith(goal));
        QCOMPARE(household.adding<Debt>("Food", at("First", 0, Loan)),
                 u"item Food: The budget item has the same name as an existing ledger account.");
    }

    void theEquityAccountOfAFailedAdditionGoesToo()
    {
        BudgetBankLedgers all = whole();
        QVERIFY(refusal(all, [&] {
                    all.add(item<Debt>("Car"), at("Third", 0, Loan));
                }).endsWith(u"The bank does not exist."));
        QVERIFY(!all.generalLedger().hasLedger(no(7)));
    }

    void theCauseKeepsItsType()
    {
        Household household;
        try {
            household.all.add(item<Debt>("Boat"), at("Third", 0, Loan));
            QFAIL("accepted");
        } catch (const budgeting::BudgetItemError &error) {
            QVERIFY_THROWS_EXCEPTION(banking::BankError, std::rethrow_exception(error.cause()));
        }
    }

    // ---- updating debts --------------------------------------------------------

    void aDebtComesToBanksAndLeavesThem()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        MessageLog log;
        all.update(item<Debt>("Car", usd("9")), at("First", 0, Loan));
        QCOMPARE(all.budget().debts.at(source("Car")).amount(), usd("9"));
        QCOMPARE(all.lookUpBankAccount(no(6)), at("First", 6, Loan));
        QCOMPARE(log.text(), u"Added bank association: First 6 (loan)");

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
        QVERIFY(!all.isBankAccount(no(6)));
        all.update(item<Debt>("Car"), std::nullopt);
        QVERIFY(!all.isBankAccount(no(6)));
    }

    void aDebtStaysAsItWas()
    {
        Household household;
        household.all.post(transfer(no(6), no(1), usd("0.03"))); // a cent would be lost
        const QString outer = u"item Car: Failure updating the debt bank account association. "
                              u"Caused by: "_qs;
        QCOMPARE(household.updating<Debt>("Car", at("First", 42, Loan)),
                 outer + u"The bank account cannot be set directly when updating a debt."_qs);
        QCOMPARE(household.updating<Debt>("Car", at("Third", 0, Loan)),
                 outer + u"The bank does not exist."_qs);
        QCOMPARE(household.updating<Debt>("Car", at("First", 0, Unknown)),
                 outer + u"The bank account type cannot be unknown."_qs);
        QCOMPARE(household.updating<Debt>("Boat", std::nullopt),
                 u"item Boat: Cannot update a debt that does not exist.");
        QVERIFY(household.updating<Debt>("Car", at("First", 0, Loan), "JPY")
                    .startsWith(u"account "
                                u"6"));
    }

    // ---- updating goals --------------------------------------------------------

    void aGoalMovesBetweenBankAccounts()
    {
        Household household;
        BudgetBankLedgers &all = household.all;
        MessageLog log;
        all.update(item<Goal>("Trip"), at("Second", 9, Cash));
        QCOMPARE(household.codeOf(id<Goal>("Trip")), code(8, "Trip [Budget Item]", no(9)));
        QCOMPARE(all.lookUpBankAccount(bank("First"), no(8)), std::nullopt);
        QCOMPARE(all.lookUpBankAccount(no(8)), at("Second", 8, GoalSubAccount));
        QCOMPARE(log.text(), u"Updated bank account association Second 8 (goal sub-account)");

        // Where it lies already it may stay, even once it was reconciled.
        all.reconcile(all.post(transfer(no(8), no(9), usd("5"))));
        all.update(item<Goal>("Trip", usd("9")), at("Second", 9, Cash));
        QCOMPARE(log.text(), u"Updated bank account association Second 8 (goal sub-account)");
        QCOMPARE(all.budget().goals.at(source("Trip")).amount(), usd("9"));

        all.update(item<Goal>("Trip"), std::nullopt);
        QCOMPARE(household.codeOf(id<Goal>("Trip")), code(8, "Trip [Budget Item]"));
        QVERIFY(!all.isBankAccount(no(8)));
        const BudgetBankLedgers before(all);
        all.update(item<Goal>("Trip"), std::nullopt);
        QVERIFY(all == before);
    }

    void aGoalStaysAsItWas()
    {
        Household household;
        const QString outer = u"item Trip: Failed to update the goal bank account association. "
                              u"Caused by: "_qs;
        QCOMPARE(household.updating<Goal>("Trip", at("Second", 0, Cash)),
                 outer + u"A goal must have an account to store under a bank account."_qs);
        QCOMPARE(household.updating<Goal>("Trip", at("Third", 2, Savings)),
                 outer + u"The bank does not exist."_qs);
        QVERIFY(household.updating<Goal>("Trip", at("Second", 77, Cash)).startsWith(outer));
        household.all.post(transfer(no(8), no(1), usd("5")));
        QVERIFY(household.updating<Goal>("Trip", at("Second", 5, Cash)).startsWith(outer));
        household.all.reconcile(txn(2));
        QCOMPARE(household.updating<Goal>("Trip", at("Second", 9, Cash)),
                 outer + u"Cannot change a goal’s bank account once it has been reconciled."_qs);
        QCOMPARE(household.updating<Goal>("Rome", std::nullopt),
                 u"item Rome: Cannot update a goal that does not exist.");
    }

    void anItemWithoutAccountStaysAsItWas()
    {
        Household household;
        household.all.remove(code(8, "Trip [Budget Item]"));
        QCOMPARE(household.updating<Goal>("Trip", at("Second", 9, Cash), "USD"),
                 u"account 8: There is no account with the number 8.");
    }
};

QTEST_GUILESS_MAIN(BankAssociationsTest)
#include "tst_bank_associations.moc"
