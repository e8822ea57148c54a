// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/message_log.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Bill;
using budgeting::Debt;
using budgeting::Goal;
using navigation::BankAccountCode;
using navigation::BudgetBankAccount;
using enum BankAccountTypes;

namespace {

/// The books' aggregate with a bill Rent (6), a debt Car (7, which opened the
/// equity account 8) kept by Second, and a goal Trip (9) below Checking.
BudgetBankLedgers household()
{
    BudgetBankLedgers all = whole();
    all.add(item<Bill>("Rent"));
    all.add(item<Debt>("Car"), at("Second", 0, Loan));
    all.add(item<Goal>("Trip"), at("First", 1, Checking));
    return all;
}

} // namespace

class AccountEditsTest : public QObject {
    Q_OBJECT

private slots:
    // ---- recoding --------------------------------------------------------------

    void recodeIsRefused()
    {
        BudgetBankLedgers all = household();
        const auto recode = [&](const AccountCode &from, const AccountCode &to) {
            return [&all, from, to] { all.recode(from, to); };
        };
        const AccountCode savings = code(2, "Savings", no(1));
        const std::string nonBank = "bank First: A bank account cannot have its parent account "
                                    "changed to non-bank account.";
        checkRefusals(
            all, {{recode(savings, code(2, "Savings")),
                   "bank First: A bank account cannot have its parent account removed."},
                  {recode(code(1, "Checking"), code(1, "Checking", no(5))), nonBank},
                  {recode(savings, code(2, "Savings", no(77))), nonBank},
                  {recode(code(4, "Loan"), code(4, "Rent")),
                   "account 4 Rent: The code name is the same name as an existing budget item."},
                  {recode(code(4, "Loan"), code(5, "Loan")),
                   "account 5 Loan: The account '5 Loan' cannot have a number that the account '5 "
                   "Food' has."}});
        all.reconcile(all.post(transfer(no(5), no(2), usd("1"))));
        checkRefusals(all, {{recode(savings, code(2, "Savings", no(9))),
                             "bank First: Cannot change parent accounts of a bank account that has "
                             "transactions that have been reconciled."}});
        // Under the same parent it may get another name, and an account of no
        // bank goes where it likes.
        all.recode(savings, code(2, "Nest egg", no(1)));
        all.recode(code(5, "Food"), code(50, "Groceries", no(6)));
        QCOMPARE(all.generalLedger().accountCode(no(2)), code(2, "Nest egg", no(1)));
        QCOMPARE(all.generalLedger().accountCode(no(50)), code(50, "Groceries", no(6)));
    }

    void recodeTakesTheBankAndTheSurveyAlong()
    {
        BudgetBankLedgers all = household();
        setSurveys(all, surveys({survey(at("First", 1, Checking)), survey(at("First", 3, Loan)),
                                 survey(at("Second", 3, CreditCard))}));
        MessageLog log;
        all.recode(code(3, "Card"), code(30, "Visa"));
        QCOMPARE(all.lookUpBankAccount(no(30)), at("First", 30, CreditCard));
        QVERIFY(!all.isBankAccount(no(3)));
        QCOMPARE(all.surveys(),
                 surveys({survey(at("First", 1, Checking)), survey(at("First", 30, Loan)),
                          survey(at("Second", 3, CreditCard))}));
        QCOMPARE(log.text(), u"Recoding 3 Card to 30 Visa\nUpdating bank account after recode "
                             u"First 30 (credit card)");
    }

    void recodingAnItemsOwnAccountLeavesTheItem()
    {
        BudgetBankLedgers all = household();
        const State before = stateOf(all);
        const AccountCode moved = code(6, "Rent [Budget Item]", no(5));
        all.recode(code(6, "Rent [Budget Item]"), moved);
        QCOMPARE(all.budget(), before.budget);
        QCOMPARE(all.budgetLedgers().budgetAccountCodes(), before.codes);
        QCOMPARE(all.lookUpAccountCode(id<Bill>("Rent")), moved);
    }

    void recodingACodeThatNamesAnItemRenamesTheItem()
    {
        BudgetBankLedgers all = household();
        all.recode(code(6, "Rent"), code(60, "Flat"));
        QVERIFY(all.budget().bills.contains(source("Flat")));
        QCOMPARE(all.lookUpAccountCode(id<Bill>("Flat")), code(60, "Flat [Budget Item]"));
        all.add(item<Bill>("Gas [Budget Item]"));
        QCOMPARE(refusal(all, [&] { all.recode(code(60, "Flat"), code(60, "Gas")); }),
                 u"account Gas [Budget Item]: The code name is the same name as an existing budget "
                 u"item.");
    }

    void aBankThatCannotFollowLeavesTheLedgerRecoded()
    {
        BudgetBankLedgers all = household();
        all.addAssociation(bank("First"), no(7), Loan);
        all.remove(code(7, "Car [Budget Item]")); // First lets go of it, Second does not
        QCOMPARE(answer([&] { all.recode(code(3, "Card"), code(7, "Visa")); }),
                 u"bank First: Cannot recode the account '3' to the account '7' as it is already "
                 u"associated.");
        QCOMPARE(all.generalLedger().accountCode(no(7)), code(7, "Visa"));
        QVERIFY(all.isBankAccount(no(3)));
    }

    // ---- adding ----------------------------------------------------------------

    void addAccountGivesItsNumberBack()
    {
        BudgetBankLedgers all = household();
        const auto adding = [&all](const char *name, BankAccountTypes type) {
            return [&all, name, type] { all.addAccount(QString::fromUtf8(name), type, usd("30")); };
        };
        checkRefusals(
            all, {{adding("Rent", Checking),
                   "account 10 Rent: The code name is the same name as an existing budget item."},
                  {adding("New", Unknown), "account 10 New: The account '10 New' needs a type."},
                  {adding("New", BankAccountTypes(99)),
                   "logic: An unknown bank account type was supplied."}});
        MessageLog log;
        QCOMPARE(all.addAccount(QStringLiteral("New"), LineOfCredit, usd("30")), code(10, "New"));
        QCOMPARE(all.generalLedger().ledger(no(10)).type(), AccountTypes::Liability);
        QCOMPARE(all.generalLedger().ledger(no(10)).balance(), usd("30"));
        const AccountCode purse = all.addAccount(QStringLiteral("Purse"), Cash, usd("0"));
        QCOMPARE(log.text(), u"Added account \"New\" opening balance in 2\n"
                             u"Added account \"Purse\" opening balance in 0");
        QVERIFY(!all.isBankAccount(no(10)));
        // A number is given once, whatever becomes of its account.
        all.remove(purse);
        QVERIFY(all.addAccount(QStringLiteral("Purse"), Cash, usd("0")).number() > purse.number());
    }

    // ---- bank accounts ---------------------------------------------------------

    void bankAccountsCarryCodeAndCurrency()
    {
        BudgetBankLedgers all = household();
        const auto usDollar = numira::toCurrency("USD");
        const std::set expected{
            BankAccountCode(at("First", 1, Checking), code(1, "Checking"), usDollar),
            BankAccountCode(at("First", 2, Savings), code(2, "Savings", no(1)), usDollar),
            BankAccountCode(at("First", 3, CreditCard), code(3, "Card"), usDollar),
            BankAccountCode(at("First", 9, GoalSubAccount), code(9, "Trip [Budget Item]", no(1)),
                            usDollar),
            BankAccountCode(at("Second", 7, Loan), code(7, "Car [Budget Item]"), usDollar)};
        QCOMPARE(all.bankAccounts(), expected);
        QCOMPARE(all.bankAccounts().begin()->account(), code(1, "Checking"));
        all.addAssociation(bank("Second"), no(3), Loan);
        QCOMPARE(all.lookUpBankAccount(no(3)), at("First", 3, CreditCard));
        all.addAssociation(bank("First"), no(7), Loan);
        all.remove(code(7, "Car [Budget Item]"));
        QCOMPARE(answer([&] { (void)all.bankAccounts(); }),
                 u"account 7: There is no account with the number 7.");
    }

    void itemsShowTheBankAccountThatTheyAreTiedTo()
    {
        using enum BudgetItemTypes;
        BudgetBankLedgers all = household();
        const auto tied = [&](BudgetItemTypes type) { return all.budgetBankAccounts(type); };
        using Records = std::set<BudgetBankAccount>;
        const BudgetBankAccount car{Debt, source("Car"), at("Second", 7, Loan)};
        QCOMPARE(tied(Debt), Records{car});
        QCOMPARE(tied(Goal), (Records{{Goal, source("Trip"), at("First", 1, Checking)}}));
        QCOMPARE(tied(Bill), Records{});
        QCOMPARE(tied(None), Records{});
        QCOMPARE(answer([&] { (void)tied(BudgetItemTypes(6)); }),
                 u"logic: An unknown budget item type was supplied when attempting to gather the "
                 u"budget item bank accounts.");
        QCOMPARE(all.findBudgetBankAccount(Debt, source("Car")), car);
        QCOMPARE(all.findBudgetBankAccount(Debt, source("car")), std::nullopt);

        // A debt's own number counts before its parent's, whatever bank comes first.
        all.addAssociation(bank("First"), no(4), Loan);
        all.recode(code(7, "Car [Budget Item]"), code(7, "Car [Budget Item]", no(4)));
        QCOMPARE(tied(Debt), Records{car});
        // A bill is found below a bank account as well.
        all.addAssociation(bank("First"), no(5), Cash);
        all.recode(code(6, "Rent [Budget Item]"), code(6, "Rent [Budget Item]", no(5)));
        QCOMPARE(tied(Bill), (Records{{Bill, source("Rent"), at("First", 5, Cash)}}));
        // Its rename takes a goal out from under its bank account.
        all.renameGoal(source("Trip"), source("Rome"));
        QCOMPARE(tied(Goal), (Records{{Goal, source("Rome"), at("First", 9, GoalSubAccount)}}));
    }

    void anItemWithoutAccountHidesNoOther()
    {
        BudgetBankLedgers all = household();
        all.add(item<Goal>("Rome"), at("First", 2, Savings));
        all.remove(code(9, "Trip [Budget Item]"));
        MessageLog log;
        QCOMPARE(all.budgetBankAccounts(BudgetItemTypes::Goal).size(), 1u);
        QCOMPARE(log.warnings(), QStringList{u"A budget item has no account. There is no account "
                                             u"with the number 9."_qs});
    }

    // ---- the last reconciliation -----------------------------------------------

    void lastReconciliationAnswersForTheBanksAccount()
    {
        BudgetBankLedgers all = household();
        const auto usDollar = numira::toCurrency("USD");
        // One that was never completed has no day.
        setSurveys(all, surveys({survey(at("First", 1, Savings)),
                                 surveying::CompletedSurvey(at("First", 2, Savings), usDollar)}));
        MessageLog log;
        QCOMPARE(all.lastReconciliation(no(1)),
                 (banking::ReconciledBalance{usd("100"), day("2026-01-31"), usDollar}));
        QCOMPARE(all.lastReconciliation(no(2)),
                 (banking::ReconciledBalance{usd("0"), std::nullopt, usDollar}));
        QCOMPARE(log.text(),
                 u"Account 1 Checking Last Reconciled: 100.00 USD on 2026-01-31 in USD\n"
                 u"Account 2 Savings under 1 Never Reconciled");
        QCOMPARE(answer([&] { (void)all.lastReconciliation(no(4)); }),
                 u"bank : Cannot get the last reconciliation amount, because no bank account is "
                 u"associated with the account '4 Loan'.");
        QCOMPARE(answer([&] { (void)all.lastReconciliation(no(77)); }),
                 u"account 77: There is no account with the number 77.");
    }
};

static const kiv::test::Suite<AccountEditsTest> suite;
#include "tst_account_edits.moc"
