// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/navigation.h"

#include "navigation/internal/remove_item.h"

using navigation::BudgetBankAccount;

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

template <budgeting::BudgetItem T>
AccountCode add(BudgetBankLedgers &whole, const char *name)
{
    if constexpr (budgeting::BankTiedItem<T>)
        return whole.add(item<T>(name), std::nullopt);
    else
        return whole.add(item<T>(name));
}

constexpr std::array renames{&BudgetBankLedgers::renameBill, &BudgetBankLedgers::renameDebt,
                             &BudgetBankLedgers::renameGoal, &BudgetBankLedgers::renameNontrack,
                             &BudgetBankLedgers::renameWage};

/// Whether the parts that tie look at this aggregate's own parts.
bool isTiedToItself(const BudgetBankLedgers &whole)
{
    return &whole.budgetLedgers().budget() == &whole.budget() &&
           &whole.budgetLedgers().ledgers() == &whole.generalLedger() &&
           &whole.bankLedgers().banks() == &whole.banks() &&
           &whole.bankLedgers().ledgers() == &whole.generalLedger();
}

} // namespace

class BudgetBankLedgersTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    void emptinessLooksAtEverything()
    {
        BudgetBankLedgers one;
        QVERIFY(one.isEmpty() && isTiedToItself(one));
        one.add(banking::Bank(bank("First"), {}, false));
        QVERIFY(!one.isEmpty());
        one.reset();
        QVERIFY(one.isEmpty());
        one.add(accounting::Account(AccountTypes::Asset, code(9, "Purse"), usd("0"), false));
        QVERIFY(!one.isEmpty());
        one.reset();
        setSurveys(one, surveys({survey(at("Gone", 1, Checking))}));
        QVERIFY(!one.isEmpty());
        one.reset();
        QVERIFY(one.isEmpty() && one == BudgetBankLedgers());
        QCOMPARE(add<Bill>(one, "Rent").number(), no(1));
    }

    void constructionChecksNames()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.add<T>("food");
            QCOMPARE(answer([&] { whole(books); }), u"accepted");
            books.add<T>("Food");
            QCOMPARE(
                answer([&] { whole(books); }),
                u"account 5 Food: Found an account code name that is the same name as a budget "
                u"item.");
        });
    }

    void aCopyIsIndependent()
    {
        BudgetBankLedgers source = household();
        setSurveys(source, surveys({survey(at("First", 1, Checking))}));
        const State before = stateOf(source);
        BudgetBankLedgers copy(source);
        QVERIFY(copy == source);
        QCOMPARE(stateOf(copy), before);
        QVERIFY(isTiedToItself(copy));
        copy.renameBill(budgeting::BudgetSource(u"Rent"_qs), budgeting::BudgetSource(u"Flat"_qs));
        add<Debt>(copy, "Boat");
        copy.close(bank("First"));
        copy.rename(bank("First"), bank("Third"));
        QCOMPARE(stateOf(source), before);
        source = std::move(copy);
        QVERIFY(isTiedToItself(source));
        QVERIFY(source.banks().hasBank(bank("Third")));
        copy = BudgetBankLedgers(source);
        QCOMPARE(stateOf(copy), stateOf(source));
        const State moved = stateOf(copy);
        const BudgetBankLedgers last(std::move(copy));
        QVERIFY(isTiedToItself(last));
        QCOMPARE(stateOf(last), moved);
    }

    void aStateThatWouldNotLoadCanBeCopiedAndReplaced()
    {
        BudgetBankLedgers broken = household();
        broken.remove(code(6, "Rent [Budget Item]")); // Rent lost its account
        broken.addAssociation(bank("Second"), no(2), Savings);
        broken.remove(code(2, "Savings")); // and Second still has one that is gone
        const State state = stateOf(broken);
        BudgetBankLedgers copy(broken);
        QCOMPARE(stateOf(copy), state);
        copy = BudgetBankLedgers(broken);
        QCOMPARE(stateOf(copy), state);
        QCOMPARE(refusal(broken, [&] { setSurveys(broken, {}); }),
                 u"The account ledger does not have an account number '6'.");
        broken.reset();
        QVERIFY(broken.isEmpty());
    }

    void setManagedReplacesAllOrNothing()
    {
        BudgetBankLedgers one = household();
        setSurveys(one, surveys({survey(at("First", 1, Checking))}));
        Books books;
        books.budget.bills.add(item<Bill>("Food")); // named as an account, but that is not checked
        addAccount(books.ledger, *books.generator, AccountTypes::Asset, no(500), "Far");
        const auto set = [&] { one.setManaged(books.ledger, books.budget, {}, books.banks, {}); };
        books.banks.add(bank("Second"), no(77), Checking);
        QCOMPARE(refusal(one, set),
                 u"bank Second: The account ledger number is not present in the general ledger.");
        books.banks.remove(bank("Second"), no(77));
        QCOMPARE(answer(set), u"accepted");
        QCOMPARE(stateOf(one), (State{books.ledger, books.budget, {}, books.banks, {}, no(501)}));
        QVERIFY(isTiedToItself(one));
    }

    void equalityLeavesOutSurveysAndGenerator()
    {
        const BudgetBankLedgers one = household();
        BudgetBankLedgers other(one);
        setSurveys(other, surveys({survey(at("First", 1, Checking))}));
        other.setAccountNumberGenerator(
            std::make_unique<accounting::SequentialAccountNumberGenerator>(no(900)));
        QVERIFY(one == other);
        const auto differs = [&](auto &&change) {
            BudgetBankLedgers changed(one);
            change(changed);
            return one != changed;
        };
        QVERIFY(differs([](auto &it) { it.rename(bank("Second"), bank("Third")); }));
        QVERIFY(differs([](auto &it) { it.skip(id<Bill>("Rent")); }));
        QVERIFY(differs([](auto &it) { it.close(code(5, "")); }));
        QVERIFY(differs(
            [](auto &it) { it.setManaged(it.generalLedger(), it.budget(), {}, it.banks(), {}); }));
    }

    void aRenamedBankTakesItsSurveysAlong()
    {
        BudgetBankLedgers one = whole();
        setSurveys(one, surveys({survey(at("First", 1, Checking)), survey(at("First", 2, Savings)),
                                 survey(at("Second", 1, Checking))}));
        one.rename(bank("First"), bank("Third"));
        QCOMPARE(one.surveys(),
                 surveys({survey(at("Third", 1, Checking)), survey(at("Third", 2, Savings)),
                          survey(at("Second", 1, Checking))}));
    }

    void aRenamedItemTakesItsFirstSurveyAlong()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            BudgetBankLedgers one = whole();
            QCOMPARE(add<T>(one, "Rent"), code(6, "Rent [Budget Item]"));
            setSurveys(one, surveys({survey(at("First", 1, Checking), {id<T>("Rents")}),
                                     survey(at("First", 2, Savings), {id<T>("Rent")}),
                                     survey(at("Second", 1, Checking), {id<T>("Rent")})}));
            (one.*byKind<T>(renames))(source("Rent"), source("Flat"));
            QCOMPARE(one.lookUpAccountCode(id<T>("Flat")), code(6, "Flat [Budget Item]"));
            // Only the first survey that sets money aside for it follows.
            QCOMPARE(one.surveys(), surveys({survey(at("First", 1, Checking), {id<T>("Rents")}),
                                             survey(at("First", 2, Savings), {id<T>("Flat")}),
                                             survey(at("Second", 1, Checking), {id<T>("Rent")})}));
        });
    }

    void dueItemsGoByTheFirstKindOfTheirName()
    {
        BudgetBankLedgers one = whole();
        add<Wage>(one, "Work");
        add<Nontrack>(one, "Work");
        const AccountCode checking = code(1, "Checking");
        const auto due = [](const char *name) {
            return budgeting::BudgetItemAmountDue{
                {BudgetItemTypes::Wage, source(name), day("2026-01-31")}, usd("7.125")};
        };
        const auto number = one.process(due("Work"), checking, day("2026-02-01"));
        QCOMPARE(one.generalLedger().lookUpTransaction(number)->debiting().number(), no(7));
        QCOMPARE(one.generalLedger().lookUpTransaction(number)->amount(), usd("7.12"));
        one.skip(id<Wage>("Work"));
        QCOMPARE(one.budget().nontracks.at(source("Work")).nextOccurOn(), day("2026-03-31"));
        QCOMPARE(one.budget().wages.at(source("Work")).nextOccurOn(), day("2026-01-31"));
        one.process(id<Wage>("Work"), usd("3"), checking, day("2026-02-01"));
        QCOMPARE(one.generalLedger().ledger(no(6)).balance(), usd("3"));
    }

    void reconciledSidesAreLeftOut()
    {
        BudgetBankLedgers one = household();
        const AccountCode checking = code(1, "Checking");
        for (int i = 0; i < 3; ++i)
            one.process(id<Bill>("Rent"), usd("3"), checking, day("2026-02-01"));
        accounting::GeneralLedger ledger = one.generalLedger();
        ledger.reconcile(txn(2));        // 1 has opened Car
        ledger.reconcile(txn(3), no(1)); // the bank's side only
        ledger.clear(txn(4));
        one.setManaged(ledger, one.budget(), one.budgetLedgers().budgetAccountCodes(), one.banks(),
                       {});
        QCOMPARE(one.nonReconciledTransactions(id<Bill>("Rent")),
                 (std::set{*ledger.lookUpTransaction(txn(3)), *ledger.lookUpTransaction(txn(4))}));
        QCOMPARE(one.nonReconciledTransactions({}).size(), 0u);
    }

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
        QCOMPARE(answer([&] { (void)all.bankAccounts(); }),
                 u"account 7: There is no account with the number 7.");
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

    void anItemGoesWithItsAssociation()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
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

static const kiv::test::Suite<BudgetBankLedgersTest> budgetBankLedgersSuite;
#include "tst_budget_bank_ledgers.moc"
