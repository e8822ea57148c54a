// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/comparison.h"
#include "support/message_log.h"
#include "support/navigation.h"

using budgeting::ItemTraits;
using Ledgers = BudgetLedgers;

namespace {

constexpr std::array renamesOfItems{&Ledgers::renameBill, &Ledgers::renameDebt,
                                    &Ledgers::renameGoal, &Ledgers::renameNontrack,
                                    &Ledgers::renameWage};
constexpr std::array removes{&Ledgers::removeBill, &Ledgers::removeDebt, &Ledgers::removeGoal,
                             &Ledgers::removeNontrack, &Ledgers::removeWage};
constexpr std::array processes{&Ledgers::processBill, &Ledgers::processDebt, &Ledgers::processGoal,
                               &Ledgers::processNontrack, &Ledgers::processWage};
constexpr std::array skips{&Ledgers::skipBill, &Ledgers::skipDebt, &Ledgers::skipGoal,
                           &Ledgers::skipNontrack, &Ledgers::skipWage};

template <typename T>
constexpr bool isDebt = std::same_as<T, Debt>;

/// Books in which items of one kind are asked for by name.
template <budgeting::BudgetItem T>
struct KindBooks : Books {
    void update(const char *name, const numira::Money &amount)
    {
        items.update(item<T>(name, amount), *generator);
    }
    void rename(const char *from, const char *to, const Ledgers::Number &number = {})
    {
        (items.*byKind<T>(renamesOfItems))(source(from), source(to), number);
    }
    void remove(const char *name) { (items.*byKind<T>(removes))(source(name)); }
    void skip(const char *name) { (items.*byKind<T>(skips))(source(name)); }
    auto process(const char *name, const numira::Money &amount)
    {
        return (items.*byKind<T>(processes))(source(name), code(1, ""), amount, day("2026-02-02"));
    }
    /// The budget's own key of the only item: it goes with the item.
    [[nodiscard]] const budgeting::BudgetSource &ownKey() const
    {
        return budget.items<T>().begin()->first;
    }
    [[nodiscard]] const T &stored(const char *name) const
    {
        return budget.items<T>().at(source(name));
    }
};

} // namespace

class BudgetLedgersTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    void addOpensTheAccountByWhichTheItemIsFound()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const AccountCode added = books.add<T>("Rent");
            QCOMPARE(added, code(6, "Rent [Budget Item]"));
            QCOMPARE(books.ledger.accountCode(no(6)), added);
            QCOMPARE(books.ledger.ledger(no(6)).type(), ItemTraits<T>::accountType);
            QCOMPARE(books.balance(no(6)), usd(isDebt<T> ? "100" : "0"));
            QCOMPARE(books.budget.items<T>().at(source("Rent")), item<T>("Rent"));
            QCOMPARE(books.items.budgetAccountCode<T>(source("Rent")), added);
            QCOMPARE(books.items.budgetAccountCodes().size(), 1u);
            const AccountNumber next = nextNumber(*books.generator, books.ledger);
            QCOMPARE(books.add<T>("Water").number(), next);
            books.spend(next);
            QCOMPARE(books.items.lookUpAccountCode(id<T>("Water"))->number(), next);
            QCOMPARE(books.items.lookUpBudgetId(next), id<T>("Water"));
            QCOMPARE(books.items.budgetedMoney(id<T>("Water")), item<T>("Water"));
            QCOMPARE(books.items.transactions(id<T>("Water")).size(), isDebt<T> ? 2u : 1u);
            QCOMPARE(answer([&] { (void)books.items.budgetedMoney(id<T>("Gas")); }),
                     u"out of range");

            // What the ledger refuses stays in the budget.
            State expected = stateOf(books);
            expected.budget.items<T>().add(item<T>("Gas"));
            InvalidNumbers invalid;
            QVERIFY(answer([&] { books.items.add(item<T>("Gas"), invalid); }).contains(u"above 0"));
            QCOMPARE(stateOf(books), expected);
            // So does the tie that an item left behind whose renaming failed half-way.
            books.budget.items<T>().rename(source("Water"), source("Wet"));
            expected = stateOf(books);
            expected.budget.items<T>().add(item<T>("Water"));
            QVERIFY(
                answer([&] { books.items.add(item<T>("Water"), invalid); }).contains(u"above 0"));
            QCOMPARE(stateOf(books), expected);
        });
    }

    void anAdditionThatFailedGivesItsNumberBack()
    {
        Books books;
        // No transaction fits in any more, which shows only after the equity
        // account for the opening balance got a number too.
        for (int count = 0; count < 65'535; ++count)
            books.spend(no(5), "1");
        State expected = stateOf(books);
        expected.budget.debts.add(item<Debt>("Car"));
        QVERIFY(answer([&] { books.add<Debt>("Car"); }).contains(u"ledger is full"));
        QCOMPARE(stateOf(books), expected);
        // Nor is it taken back when a bank was to hold it.
        BudgetBankLedgers all(books.ledger, {}, {}, {}, books.generator->clone());
        QVERIFY(answer([&] {
                    all.add(item<Debt>("Car"), at("First", 0, BankAccountTypes::Loan));
                }).contains(u"ledger is full"));
        QCOMPARE(all.budget().debts.size(), 1U);

        books.ledger.remove(txn(1));
        addAccount(books.ledger, *books.generator, AccountTypes::Expense, no(6), "By hand");
        QCOMPARE(books.add<Debt>("Boat").number(), no(7));
        QCOMPARE(books.add<Bill>("Rent").number(), no(9)); // 8 holds the opening balances
    }

    void updateReplacesTheItem()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            KindBooks<T> books;
            books.template add<T>("Rent");
            books.spend(no(6));
            const accounting::GeneralLedger before = books.ledger;
            books.update("Rent", usd("20"));
            QCOMPARE(books.stored("Rent").amount(), usd("20"));
            QCOMPARE(books.ledger, before);
            books.update("Rent", money("EUR", "20"));
            QCOMPARE(books.stored("Rent").amount(), money("EUR", "20"));
            QCOMPARE(books.balance(no(6)).abs(), money("EUR", isDebt<T> ? "47.50" : "2.50"));
            QVERIFY(refusal(books, [&] {
                        books.update("Rent", money("JPY", "1"));
                    }).endsWith(u"Caused by: no rate"));
        });
    }

    void anItemWithoutAccountKeepsItsCurrency()
    {
        KindBooks<Bill> books;
        books.budget.bills.add(item<Bill>("Rent"));
        books.update("Rent", usd("20"));
        const auto toEuros = [&] { books.update("Rent", money("EUR", "20")); };
        const QString text = refusal(books, toEuros);
        QVERIFY2(text.startsWith(u"Failed to find a mutable value") && text.endsWith(u"'Rent'."),
                 qPrintable(text));
        // An item without a name could not be added to the budget again.
        books.budget.bills.rename(source("Rent"), source(""));
        checkRefusals(books, {{[&] { books.update("", money("EUR", "20")); },
                               "item : The new budgeted money item source cannot be empty."}});
    }

    void renameTakesTheAccountAlong()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            KindBooks<T> books;
            books.template add<T>("Rent");
            (books.items.*byKind<T>(renamesOfItems))(books.ownKey(), source("Flat"), {});
            QCOMPARE(books.items.template budgetAccountCode<T>(source("Flat")),
                     code(6, "Flat [Budget Item]"));
            books.rename("Flat", "Home", no(60));
            QCOMPARE(books.items.template budgetAccountCode<T>(source("Home")),
                     code(60, "Home [Budget Item]"));
            QVERIFY(!books.ledger.hasLedger(no(6)));
            QCOMPARE(books.budget.template items<T>().sources(), std::set{source("Home")});
            QCOMPARE(books.items.budgetAccountCodes().size(), 1u);
        });
    }

    void renameDropsTheParentAndLeavesWhatFailedHalfWay()
    {
        KindBooks<Goal> books;
        books.add<Goal>("Trip");
        books.ledger.recode(code(6, ""), code(6, "Trip [Budget Item]", no(1)));
        books.rename("Trip", "Rome");
        QCOMPARE(books.ledger.accountCode(no(6)), code(6, "Rome [Budget Item]"));

        State expected = stateOf(books);
        expected.budget.goals.rename(source("Rome"), source("Oslo"));
        QVERIFY(answer([&] { books.rename("Rome", "Oslo", no(5)); }).startsWith(u"account 5 Oslo"));
        QCOMPARE(stateOf(books), expected);
    }

    void removeTakesOrClosesTheAccount()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            KindBooks<T> books;
            books.template add<T>("Rent");
            (books.items.*byKind<T>(removes))(books.ownKey());
            QVERIFY(books.budget.isEmpty() && books.items.isEmpty());
            QVERIFY(!books.ledger.hasLedger(no(6)));
            const AccountNumber own = books.template add<T>("Rent").number();
            books.spend(own, "20");
            if (budgeting::BankTiedItem<T>) {
                checkRefusals(books,
                              {{[&] { books.remove("Rent"); },
                                "item Rent: Cannot remove a " + word<T> + " that has a balance."}});
                books.ledger.post(isDebt<T> ? transfer(own, no(1), usd("80"))
                                            : transfer(no(1), own, usd("20")));
            }
            books.remove("Rent");
            QVERIFY(books.ledger.ledger(own).isClosed());
            QVERIFY(books.budget.isEmpty() && books.items.isEmpty());
        });
    }

    void lookUpsOfNothing()
    {
        const Books books;
        MessageLog log;
        const budgeting::BudgetItemIdentifier none{BudgetItemTypes::None, source("Rent")};
        const budgeting::BudgetItemIdentifier invalid{BudgetItemTypes(9), source("Rent")};
        QCOMPARE(books.items.lookUpAccountCode(none), std::nullopt);
        QCOMPARE(books.items.lookUpBudgetId(no(1)), std::nullopt);
        QCOMPARE(log.text(), u"");
        QVERIFY(books.items.transactions(id<Bill>("R\n")).empty());
        QCOMPARE(log.warnings().size(), 1);
        QVERIFY(log.text().startsWith(u"Failed to find a non-mutable value"));
        QVERIFY(log.text().endsWith(u"with the key 'R\\u{000A}'."));
        QCOMPARE(answer([&] { (void)books.items.lookUpAccountCode(invalid); }),
                 u"logic: The budget item type '9' is not a known type.");
        QCOMPARE(answer([&] { (void)books.items.budgetedMoney(none); }),
                 u"The budget item 'Rent (unknown)' is not a known type that is a budget money!");
    }

    void constructionChecksTheCodes()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.budget.items<T>().add(item<T>("Rent"));
            const auto built = [&](std::type_index type, const char *name, std::uint32_t number) {
                BudgetAccountCodes codes;
                codes.insertOrAssign(type, source(name), no(number));
                return answer([&] {
                    BudgetLedgers(foundation::observe(books.budget),
                                  foundation::observe(books.ledger), codes);
                });
            };
            QCOMPARE(built(typeid(T), "Rent", 5), u"accepted");
            const QString kind = QString::fromStdString(word<T>);
            QCOMPARE(built(typeid(T), "rent", 5),
                     QStringLiteral("The budget does not have a %1 source named 'rent'.")
                         .arg(kind == u"nontrack" ? QStringLiteral("non-tracked") : kind));
            QCOMPARE(built(typeid(T), "Rent", 77),
                     u"The account ledger does not have an account number '77'.");
            QCOMPARE(built(typeid(int), "Rent", 5), u"Unknown budget code type!");
        });
    }

    void comparesByContent()
    {
        Books a, b;
        a.add<Bill>("Rent");
        QVERIFY(a.items != b.items);
        b.add<Bill>("Rent");
        QVERIFY(a.items == b.items);
        b.items.clearCodes();
        QVERIFY(a.items != b.items);
        QVERIFY(b.items.isEmpty() && a.budget == b.budget);
    }

    void processPostsAndMovesOn()
    {
        forEachKind([]<typename T>(std::type_identity<T>) {
            KindBooks<T> books;
            const AccountNumber own = books.template add<T>("Rent").number();
            const auto posted =
                *books.ledger.lookUpTransaction(books.process("Rent", usd("10.005")));
            const bool isWage = std::same_as<T, Wage>;
            QCOMPARE(posted.debiting().number(), isWage ? no(1) : own);
            QCOMPARE(posted.crediting().number(), isWage ? own : no(1));
            QCOMPARE(posted.amount(), usd("10.00"));
            QCOMPARE(posted.occurredOn(), day("2026-02-02"));
            QCOMPARE(*posted.description(), u"Processed the budget item due on Sat Jan 31 2026.");
            QCOMPARE(posted.status(), accounting::TransactionStatuses::None);
            QCOMPARE(books.stored("Rent").nextOccurOn(), day("2026-02-28"));

            const accounting::GeneralLedger before = books.ledger;
            books.skip("Rent");
            QCOMPARE(books.stored("Rent").nextOccurOn(), day("2026-03-31"));
            QCOMPARE(books.ledger, before);
        });
    }

    void whatCannotBeMovedOnIsNotPosted()
    {
        KindBooks<Bill> books;
        books.add<Bill>("Rent");
        const auto post = [&] { books.process("Rent", usd("1")); };
        books.items.update(item<Bill>("Rent", usd("1"), EventFrequency::None), *books.generator);
        QCOMPARE(refusal(books, post), answer([] {
                     item<Bill>("", usd("1"), EventFrequency::None).updateNextOccurOn();
                 }));
        books.budget.bills.remove(source("Rent"));
        QCOMPARE(refusal(books, post), u"out of range");
    }

    void anUnexpectedAmountLeavesTheDateAlone()
    {
        Books books;
        books.add<Bill>("Rent");
        books.add<Wage>("Work");
        const budgeting::Budget before = books.budget;
        const auto unexpected = [&](BudgetItemTypes type, const char *name) {
            books.items.processUnexpected({type, source(name)}, usd("10.015"), code(1, ""),
                                          day("2026-02-01"));
            return books.ledger.transactions().back();
        };
        const auto paid = unexpected(BudgetItemTypes::Bill, "Rent");
        QCOMPARE(paid.debiting().number(), no(6));
        QCOMPARE(paid.amount(), usd("10.02"));
        const auto earned = unexpected(BudgetItemTypes::Wage, "Work");
        QCOMPARE(earned.debiting().number(), no(1));
        QCOMPARE(earned.crediting().number(), no(7));
        QCOMPARE(*earned.description(), u"Processed unexpected budget item 'Work'.");
        QCOMPARE(books.budget, before);
    }
};

static const kiv::test::Suite<BudgetLedgersTest> budgetLedgersSuite;
#include "tst_budget_ledgers.moc"
