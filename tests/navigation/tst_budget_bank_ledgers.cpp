// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Bill;
using budgeting::Debt;
using budgeting::Goal;
using budgeting::Nontrack;
using budgeting::Wage;
using enum BankAccountTypes;

namespace {

/// The books' aggregate with a bill Rent (6) and a goal Trip (7), which the
/// bank First has too.
BudgetBankLedgers household()
{
    Books books;
    books.add<Bill>("Rent");
    books.add<Goal>("Trip");
    books.bankLedgers.addAssociation(bank("First"), no(7), GoalSubAccount);
    return whole(books);
}

/// Adds an item of any kind.
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
    // ---- the whole state -------------------------------------------------------

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

    void constructionChecksNames_data() { addKindRows(); }
    void constructionChecksNames()
    {
        forKind([]<typename T>(std::type_identity<T>) {
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
        add<Debt>(copy, "Car");
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
        QVERIFY(differs([](auto &it) { it.close(bank("Second")); }));
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

    // ---- budget items ----------------------------------------------------------

    void aRenamedItemTakesItsFirstSurveyAlong_data() { addKindRows(); }
    void aRenamedItemTakesItsFirstSurveyAlong()
    {
        forKind([]<typename T>(std::type_identity<T>) {
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
        ledger.reconcile(txn(1));
        ledger.reconcile(txn(2), no(1)); // the bank's side only
        ledger.clear(txn(3));
        one.setManaged(ledger, one.budget(), one.budgetLedgers().budgetAccountCodes(), one.banks(),
                       {});
        QCOMPARE(one.nonReconciledTransactions(id<Bill>("Rent")),
                 (std::set{*ledger.lookUpTransaction(txn(2)), *ledger.lookUpTransaction(txn(3))}));
        QCOMPARE(one.nonReconciledTransactions({}).size(), 0u);
    }
};

static const kiv::test::Suite<BudgetBankLedgersTest> suite;
#include "tst_budget_bank_ledgers.moc"
