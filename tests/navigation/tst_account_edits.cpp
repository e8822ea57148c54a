// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/message_log.h"
#include "support/navigation.h"

#include "navigation/internal/remove_item.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Bill;
using budgeting::BudgetItemIdentifier;
using budgeting::Debt;
using budgeting::Goal;
using budgeting::Nontrack;
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

/// Accounts, items and banks that hang together, where navigator_requests.txt does not
/// reach: surveys of several accounts, rates, and states that no request makes.
class AccountEditsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    void recodeTakesTheBankAndTheSurveyAlong()
    {
        BudgetBankLedgers all = household();
        setSurveys(all, surveys({survey(at("First", 1, Checking)), survey(at("First", 3, Loan)),
                                 survey(at("Second", 3, CreditCard))}));
        all.recode(code(3, "Card"), code(30, "Visa"));
        QCOMPARE(all.lookUpBankAccount(no(30)), at("First", 30, CreditCard));
        QVERIFY(!all.isBankAccount(no(3)));
        QCOMPARE(all.surveys(),
                 surveys({survey(at("First", 1, Checking)), survey(at("First", 30, Loan)),
                          survey(at("Second", 3, CreditCard))}));
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

    void itemsShowTheBankAccountThatTheyAreTiedTo()
    {
        using enum BudgetItemTypes;
        BudgetBankLedgers all = household();
        const auto tied = [&](BudgetItemTypes type) { return all.budgetBankAccounts(type); };
        using Records = std::set<BudgetBankAccount>;
        const BudgetBankAccount car{Debt, source("Car"), at("Second", 7, Loan)};
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
        all.addAssociation(bank("Second"), no(3), Loan);
        QCOMPARE(all.lookUpBankAccount(no(3)), at("First", 3, CreditCard));
    }

    void aBanksAccountThatIsGoneIsNamed()
    {
        BudgetBankLedgers all = household();
        all.addAssociation(bank("First"), no(7), Loan);
        all.remove(code(7, "Car [Budget Item]"));
        QCOMPARE(answer([&] { (void)all.bankAccounts(); }),
                 u"account 7: There is no account with the number 7.");
    }

    void theLastReconciliationIsTheAccountsWhateverItsType()
    {
        BudgetBankLedgers all = household();
        const auto usDollar = numira::toCurrency("USD");
        // One that was never completed has no day.
        setSurveys(all, surveys({survey(at("First", 1, Savings)),
                                 surveying::CompletedSurvey(at("First", 2, Savings), usDollar)}));
        QCOMPARE(all.lastReconciliation(no(1)),
                 (banking::ReconciledBalance{usd("100"), day("2026-01-31"), usDollar}));
        QCOMPARE(all.lastReconciliation(no(2)),
                 (banking::ReconciledBalance{usd("0"), std::nullopt, usDollar}));
    }

    // ---- items at banks --------------------------------------------------------

    void aRefusedTieLeavesNoTrace()
    {
        BudgetBankLedgers all = household();
        // What an item of that name once left in a survey does not keep it here.
        setSurveys(all, surveys({survey(at("First", 1, Checking), {id<Debt>("Boat")})}));
        const std::string noBank = "Caused by: The bank does not exist.";
        const auto add = [](BudgetBankLedgers &to, const char *name) {
            return [&to, name] { to.add(item<Debt>(name), at("Third", 0, Loan)); };
        };
        checkRefusals(all, {{add(all, "Boat"), "item Boat: Failure making the debt bank account "
                                               "association. " +
                                                   noBank}});
        // The equity account that this very addition made goes too.
        BudgetBankLedgers first = whole();
        QVERIFY(refusal(first, add(first, "Car")).endsWith(u"The bank does not exist."));
        try {
            add(all, "Boat")();
        } catch (const budgeting::BudgetItemError &error) {
            QVERIFY_THROWS_EXCEPTION(banking::BankError, std::rethrow_exception(error.cause()));
        }
        // Converting its account back to dollars would lose a cent.
        all.post(transfer(no(7), no(1), usd("0.03")));
        checkRefusals(
            all, {{[&] { all.update(item<Debt>("Car", money("EUR", "9")), at("Third", 0, Loan)); },
                   "item Car: Failure updating the debt bank account association. " + noBank}});
        all.remove(code(9, "Trip [Budget Item]"));
        checkRefusals(all, {{[&] { all.update(item<Goal>("Trip"), at("First", 2, Savings)); },
                             "account 9: There is no account with the number 9."}});
    }

    void anItemGoesWithItsAssociation_data() { addKindRows(); }
    void anItemGoesWithItsAssociation()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const State before = stateOf(books);
            const AccountNumber own = books.add<T>("Rent").number();
            books.bankLedgers.addAssociation(bank("Second"), own, GoalSubAccount);
            // The same name for another kind, and another account of this bank, stay.
            using Other = std::conditional_t<std::same_as<T, Bill>, Nontrack, Bill>;
            books.bankLedgers.addAssociation(bank("Second"), no(4), Loan);
            const auto removing = [&](const BudgetItemIdentifier &set) {
                return [&, completed = surveys({survey(at("First", 1, Checking), {set})})] {
                    removeItem(id<T>("Rent"), books.items, books.bankLedgers, completed);
                };
            };
            checkRefusals(books, {{removing(id<T>("Rent")),
                                   "item Rent: There is $5.00 distributed in the surveyed bank "
                                   "account First 1 (checking). Empty the distribution first "
                                   "before removing the budgeted item."}});
            removing(id<Other>("Rent"))();
            QVERIFY(!books.ledger.hasLedger(own));
            QCOMPARE(books.budget, before.budget);
            QCOMPARE(books.items.budgetAccountCodes(), before.codes);
            QCOMPARE(books.banks.bank(bank("Second")).accounts(),
                     (banking::Bank::Accounts{{no(4), Loan}}));
        });
    }

    void anItemOfTwoBanksLeavesTheFirst()
    {
        Books books;
        const AccountNumber own = books.add<Goal>("Trip").number();
        books.bankLedgers.addAssociation(bank("Second"), own, GoalSubAccount);
        books.bankLedgers.addAssociation(bank("First"), own, GoalSubAccount);
        removeItem(id<Goal>("Trip"), books.items, books.bankLedgers, {});
        QCOMPARE(books.bankLedgers.lookUpBankName(own), bank("Second"));
    }
};

static const kiv::test::Suite<AccountEditsTest> suite;
#include "tst_account_edits.moc"
