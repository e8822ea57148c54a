// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/comparison.h"
#include "support/message_log.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Bill;
using budgeting::Budget;
using budgeting::BudgetItemIdentifier;
using budgeting::Debt;
using budgeting::EventFrequency;
using budgeting::Goal;
using budgeting::ItemTraits;
using budgeting::Wage;

namespace {

using Ledgers = BudgetLedgers;
constexpr std::array renames{&Ledgers::renameBill, &Ledgers::renameDebt, &Ledgers::renameGoal,
                             &Ledgers::renameNontrack, &Ledgers::renameWage};
constexpr std::array removes{&Ledgers::removeBill, &Ledgers::removeDebt, &Ledgers::removeGoal,
                             &Ledgers::removeNontrack, &Ledgers::removeWage};
constexpr std::array processes{&Ledgers::processBill, &Ledgers::processDebt, &Ledgers::processGoal,
                               &Ledgers::processNontrack, &Ledgers::processWage};
constexpr std::array skips{&Ledgers::skipBill, &Ledgers::skipDebt, &Ledgers::skipGoal,
                           &Ledgers::skipNontrack, &Ledgers::skipWage};

/// The books after a bill Rent and a wage Work were added as 6 and 7.
struct PostingBooks : Books {
    PostingBooks()
    {
        add<Bill>("Rent");
        add<Wage>("Work");
    }
    [[nodiscard]] accounting::Transaction last() const { return ledger.transactions().back(); }
};

/// "6 from 1: 10.00 USD on 2026-02-01, text".
QString told(const accounting::Transaction &transaction)
{
    return QStringLiteral("%1 from %2: %3 on %4, %5")
        .arg(presentationText(transaction.debiting().number()),
             presentationText(transaction.crediting().number()), dump(transaction.amount()),
             transaction.occurredOn().toString(Qt::ISODate),
             transaction.description().value_or(QString()));
}

} // namespace

class BudgetLedgersTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installRates(); }

    // ---- adding ----------------------------------------------------------------

    void addOpensTheItemsAccount_data() { addKindRows(); }
    void addOpensTheItemsAccount()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const AccountCode added = books.add<T>("Rent");
            QCOMPARE(added, code(6, "Rent [Budget Item]"));
            QCOMPARE(books.ledger.accountCode(no(6)), added);
            QCOMPARE(books.ledger.ledger(no(6)).type(), ItemTraits<T>::accountType);
            QCOMPARE(books.balance(no(6)), usd((std::same_as<T, Debt>) ? "100" : "0"));
            QCOMPARE(books.budget.items<T>().at(source("Rent")), item<T>("Rent"));
            QCOMPARE(books.items.budgetAccountCode<T>(source("Rent")), added);
            QCOMPARE(books.items.budgetAccountCodes().size(), 1u);
        });
    }

    void addIsRefused_data() { addKindRows(); }
    void addIsRefused()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.add<T>("Rent");
            QCOMPARE(refusal(books, [&] { books.add<T>("Rent"); }),
                     u"item Rent: The new budgeted money item source already exists.");
            QCOMPARE(refusal(books, [&] { books.add<T>(""); }),
                     u"item : The new budgeted money item source cannot be empty.");
            const AccountNumber next = nextNumber(*books.generator, books.ledger);
            QCOMPARE(books.add<T>("Water").number(), next);
        });
    }

    void anItemThatTheLedgerRefusedStaysInTheBudget_data() { addKindRows(); }
    void anItemThatTheLedgerRefusedStaysInTheBudget()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            State expected = stateOf(books);
            expected.budget.items<T>().add(item<T>("Rent"));
            InvalidNumbers invalid;
            QVERIFY(
                answer([&] { books.items.add(item<T>("Rent"), invalid); }).contains(u"above 0"));
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

        books.ledger.remove(txn(1));
        addAccount(books.ledger, *books.generator, AccountTypes::Expense, no(6), "By hand");
        QCOMPARE(books.add<Debt>("Boat").number(), no(7));
        QCOMPARE(books.add<Bill>("Rent").number(), no(9)); // 8 holds the opening balances
    }

    // ---- updating --------------------------------------------------------------

    void updateReplacesTheItem_data() { addKindRows(); }
    void updateReplacesTheItem()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.add<T>("Rent");
            books.spend(no(6));
            const accounting::GeneralLedger before = books.ledger;
            books.items.update(item<T>("Rent", usd("20")), *books.generator);
            QCOMPARE(books.budget.items<T>().at(source("Rent")).amount(), usd("20"));
            QCOMPARE(books.ledger, before);

            books.items.update(item<T>("Rent", money("EUR", "20")), *books.generator);
            QCOMPARE(books.budget.items<T>().at(source("Rent")).amount(), money("EUR", "20"));
            QCOMPARE(books.balance(no(6)),
                     before.ledger(no(6)).balance().convertedTo(numira::toCurrency("EUR")));

            QCOMPARE(
                refusal(books, [&] { books.items.update(item<T>("Flat"), *books.generator); }),
                QStringLiteral("item Flat: Cannot update a %1 that does not exist.").arg(word<T>));
            const QString noRate = refusal(books, [&] {
                books.items.update(item<T>("Rent", money("JPY", "20")), *books.generator);
            });
            QVERIFY2(noRate.contains(u"cannot be kept in JPY") && !noRate.contains(u"changed"),
                     qPrintable(noRate));
        });
    }

    void anItemWithoutAccountKeepsItsCurrency()
    {
        Books books;
        books.budget.bills.add(item<Bill>("Rent"));
        books.items.update(item<Bill>("Rent", usd("20")), *books.generator);
        const QString text = refusal(books, [&] {
            books.items.update(item<Bill>("Rent", money("EUR", "20")), *books.generator);
        });
        QVERIFY2(text.startsWith(u"Failed to find a mutable value") && text.endsWith(u"'Rent'."),
                 qPrintable(text));
        // An item without a name could not be added to the budget again.
        books.budget.bills.rename(source("Rent"), source(""));
        QCOMPARE(refusal(books,
                         [&] {
                             books.items.update(item<Bill>("", money("EUR", "20")),
                                                *books.generator);
                         }),
                 u"item : The new budgeted money item source cannot be empty.");
    }

    // ---- renaming --------------------------------------------------------------

    void renameTakesTheAccountAlong_data() { addKindRows(); }
    void renameTakesTheAccountAlong()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.add<T>("Rent");
            (books.items.*byKind<T>(renames))(source("Rent"), source("Flat"), std::nullopt);
            QCOMPARE(books.items.budgetAccountCode<T>(source("Flat")),
                     code(6, "Flat [Budget Item]"));
            QCOMPARE(books.budget.items<T>().sources(), std::set{source("Flat")});
            QCOMPARE(books.items.budgetAccountCodes().size(), 1u);

            (books.items.*byKind<T>(renames))(source("Flat"), source("Home"), no(60));
            QCOMPARE(books.items.budgetAccountCode<T>(source("Home")),
                     code(60, "Home [Budget Item]"));
            QVERIFY(!books.ledger.hasLedger(no(6)));

            books.add<T>("Water");
            QCOMPARE(refusal(books,
                             [&] {
                                 (books.items.*byKind<T>(renames))(source("Home"), source("Water"),
                                                                   std::nullopt);
                             }),
                     u"item Home: Cannot rename the budgeted money item source, as the new source, "
                     u"Water, already exists.");
            QCOMPARE(refusal(books,
                             [&] {
                                 (books.items.*byKind<T>(renames))(source("Rent"), source("Flat"),
                                                                   std::nullopt);
                             }),
                     u"item Rent: Cannot rename the budgeted money item source as it does not "
                     u"exist.");
        });
    }

    void renameLeavesTheParentAndWhatFailedHalfWay()
    {
        Books books;
        books.add<Goal>("Trip");
        books.ledger.recode(code(6, "Trip [Budget Item]"), code(6, "Trip [Budget Item]", no(1)));
        books.items.renameGoal(source("Trip"), source("Rome"), std::nullopt);
        QCOMPARE(books.ledger.accountCode(no(6)), code(6, "Rome [Budget Item]"));

        State expected = stateOf(books);
        expected.budget.goals.rename(source("Rome"), source("Oslo"));
        QCOMPARE(answer([&] { books.items.renameGoal(source("Rome"), source("Oslo"), no(5)); }),
                 u"account 5 Oslo [Budget Item]: The account '5 Oslo [Budget Item]' cannot have a "
                 u"number that the account '5 Food' has.");
        QCOMPARE(stateOf(books), expected);
    }

    // ---- removing --------------------------------------------------------------

    void removeTakesOrClosesTheAccount_data() { addKindRows(); }
    void removeTakesOrClosesTheAccount()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const State before = stateOf(books);
            books.add<T>("Rent");
            (books.items.*byKind<T>(removes))(source("Rent"));
            QCOMPARE(books.budget, before.budget);
            QCOMPARE(books.items.budgetAccountCodes(), before.codes);
            QVERIFY(!books.ledger.hasLedger(no(6)));
            QCOMPARE(
                refusal(books, [&] { (books.items.*byKind<T>(removes))(source("Rent")); }),
                QStringLiteral("item Rent: Cannot remove a %1 that does not exist.").arg(word<T>));

            const AccountNumber own = books.add<T>("Rent").number();
            books.spend(own, (std::same_as<T, Debt>) ? "30" : "20");
            const QString withBalance = refusal(books, [&] {
                if (isTied<T>)
                    (books.items.*byKind<T>(removes))(source("Rent"));
            });
            if (isTied<T>) {
                QCOMPARE(withBalance,
                         QStringLiteral("item Rent: Cannot remove a %1 that has a balance.")
                             .arg(word<T>));
                books.ledger.post(std::same_as<T, Debt> ? transfer(own, no(1), usd("70"))
                                                        : transfer(no(1), own, usd("20")));
            }
            (books.items.*byKind<T>(removes))(source("Rent"));
            QVERIFY(books.ledger.ledger(own).isClosed());
            QVERIFY(books.items.isEmpty());
            QVERIFY(books.budget.isEmpty());
        });
    }

    void anItemStaysWhenItsAccountCannotGo()
    {
        Books books;
        books.add<Bill>("Rent");
        books.spend(no(6));
        books.ledger.close(no(6));
        QCOMPARE(refusal(books, [&] { books.items.removeBill(source("Rent")); }),
                 u"account 6 Rent [Budget Item]: The account '6 Rent [Budget Item]' is closed.");
    }

    // ---- look-ups --------------------------------------------------------------

    void lookUpsAnswerForTheItem_data() { addKindRows(); }
    void lookUpsAnswerForTheItem()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            books.add<Bill>("Water"); // 6
            const AccountNumber own = books.add<T>("Rent").number();
            books.spend(own);
            QCOMPARE(books.items.lookUpAccountCode(id<T>("Rent"))->number(), own);
            QCOMPARE(books.items.lookUpBudgetId(own), id<T>("Rent"));
            QCOMPARE(books.items.budgetedMoney(id<T>("Rent")), item<T>("Rent"));
            QCOMPARE(books.items.transactions(id<T>("Rent")).size(),
                     (std::same_as<T, Debt>) ? 2u : 1u);
            QCOMPARE(answer([&] { (void)books.items.budgetedMoney(id<T>("Flat")); }),
                     u"out of range");
        });
    }

    void lookUpsOfNothing()
    {
        Books books;
        MessageLog log;
        const BudgetItemIdentifier none{BudgetItemTypes::None, source("Rent")};
        const BudgetItemIdentifier invalid{BudgetItemTypes(9), source("Rent")};
        QCOMPARE(books.items.lookUpAccountCode(none), std::nullopt);
        QCOMPARE(books.items.lookUpBudgetId(no(1)), std::nullopt);
        QCOMPARE(log.text(), u"");
        QCOMPARE(books.items.lookUpAccountCode(id<Bill>("R\n")), std::nullopt);
        QVERIFY(books.items.transactions(id<Bill>("Rent")).empty());
        QCOMPARE(log.warnings().size(), 2);
        QVERIFY(log.warnings()[0].startsWith(u"Failed to find a non-mutable value"));
        QVERIFY(log.warnings()[0].endsWith(u"with the key 'R\\u{000A}'. ") ||
                log.warnings()[0].endsWith(u"with the key 'R\\u{000A}'."));
        QCOMPARE(answer([&] { (void)books.items.lookUpAccountCode(invalid); }),
                 u"logic: The budget item type '9' is not a known type.");
        QCOMPARE(answer([&] { (void)books.items.budgetedMoney(none); }),
                 u"The budget item 'Rent (unknown)' is not a known type that is a budget money!");
    }

    // ---- construction, comparison, text form -----------------------------------

    void constructionChecksTheCodes_data() { addKindRows(); }
    void constructionChecksTheCodes()
    {
        forKind([]<typename T>(std::type_identity<T>) {
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
            QCOMPARE(built(typeid(T), "rent", 5),
                     QStringLiteral("The budget does not have a %1 source named 'rent'.")
                         .arg(word<T> == u"nontrack" ? QStringLiteral("non-tracked") : word<T>));
            QCOMPARE(built(typeid(T), "Rent", 77),
                     u"The account ledger does not have an account number '77'.");
            QCOMPARE(built(typeid(int), "Rent", 5), u"Unknown budget code type!");
        });
    }

    void equalityGoesByContent()
    {
        Books a, b;
        QVERIFY(a.items == b.items);
        a.add<Bill>("Rent");
        QVERIFY(a.items != b.items);
        b.add<Bill>("Rent");
        QVERIFY(a.items == b.items);
        b.items.clearCodes();
        QVERIFY(a.items != b.items);
        QVERIFY(b.items.isEmpty() && a.budget == b.budget);
    }

    void dumpIsOneLine()
    {
        Books books;
        books.add<Bill>("Re\nnt");
        QCOMPARE(dump(books.items),
                 QStringLiteral("Budget (%1), General Ledger (%2), Budget-Account ISO-4217 Codes "
                                "(Type-Keys (%3[Re\\u{000A}nt=>6]))")
                     .arg(dump(books.budget), dump(books.ledger),
                          QString::fromLatin1(typeid(Bill).name())));
        QVERIFY(!dump(books.items).contains(u'\n'));
    }

    // ---- posting ---------------------------------------------------------------

    void processPostsAndMovesOn_data() { addKindRows(); }
    void processPostsAndMovesOn()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const AccountCode own = books.add<T>("Rent");
            const auto number = (books.items.*byKind<T>(processes))(
                source("Rent"), code(1, "Checking"), usd("10.005"), day("2026-02-02"));
            const auto posted = books.ledger.lookUpTransaction(number).value();
            const bool isWage = std::same_as<T, Wage>;
            QCOMPARE(posted.debiting().number(), isWage ? no(1) : own.number());
            QCOMPARE(posted.crediting().number(), isWage ? own.number() : no(1));
            QCOMPARE(posted.amount(), usd("10.00"));
            QCOMPARE(posted.occurredOn(), day("2026-02-02"));
            QCOMPARE(*posted.description(), u"Processed the budget item due on Sat Jan 31 2026.");
            QCOMPARE(posted.status(), accounting::TransactionStatuses::None);
            QCOMPARE(books.budget.items<T>().at(source("Rent")).nextOccurOn(), day("2026-02-28"));

            const accounting::GeneralLedger before = books.ledger;
            (books.items.*byKind<T>(skips))(source("Rent"));
            QCOMPARE(books.budget.items<T>().at(source("Rent")).nextOccurOn(), day("2026-03-31"));
            QCOMPARE(books.ledger, before);
            QCOMPARE(refusal(books, [&] { (books.items.*byKind<T>(skips))(source("Flat")); }),
                     u"out of range");
        });
    }

    void postingIsRefused()
    {
        PostingBooks books;
        const AccountCode bank = code(1, "Checking");
        const QDate date = day("2026-02-01");
        const auto process = [&](const char *name, const AccountCode &from, const char *amount) {
            return refusal(books,
                           [&] { books.items.processBill(source(name), from, usd(amount), date); });
        };
        QVERIFY(process("Work", bank, "1").startsWith(u"Failed to find a non-mutable value"));
        QVERIFY(process("Rent", code(77, ""), "1").startsWith(u"account 77"));
        QVERIFY(process("Rent", bank, "0.005").startsWith(u"transaction 0: The amount of"));
        books.items.update(item<Bill>("Rent", usd("1"), EventFrequency::None), *books.generator);
        const QString notDue = process("Rent", bank, "1");
        QVERIFY2(notDue != u"accepted" && !notDue.contains(u"changed"), qPrintable(notDue));
        books.budget.bills.remove(source("Rent"));
        QCOMPARE(process("Rent", bank, "1"), u"out of range");
    }

    void anUnexpectedAmountLeavesTheDateAlone()
    {
        PostingBooks books;
        const AccountCode bank = code(1, "Checking");
        const QDate date = day("2026-02-01");
        const budgeting::Budget before = books.budget;
        books.items.processUnexpected(id<Bill>("Rent"), usd("10.015"), bank, date);
        QCOMPARE(told(books.last()), u"6 from 1: 10.02 USD on 2026-02-01, Processed unexpected "
                                     u"budget item 'Rent'.");
        books.items.processUnexpected(id<Wage>("Work"), usd("7"), bank, date);
        QCOMPARE(told(books.last()), u"1 from 7: 7.00 USD on 2026-02-01, Processed unexpected "
                                     u"budget item 'Work'.");
        QCOMPARE(books.budget, before);

        const auto refused = [&](BudgetItemTypes type, const char *name) {
            return refusal(books, [&] {
                books.items.processUnexpected({type, source(name)}, usd("1"), bank, date);
            });
        };
        QCOMPARE(refused(BudgetItemTypes::None, "Rent"),
                 u"item Rent: Cannot process unexpected budget item that has an unknown type.");
        QCOMPARE(refused(BudgetItemTypes::Debt, "Rent"),
                 u"item Rent: Failed to locate the unexpected budget item source to post.");
        QCOMPARE(refused(BudgetItemTypes::Bill, "Work"),
                 u"item Work: Failed to locate the unexpected budget item source to post.");
        QCOMPARE(refused(BudgetItemTypes(6), "Rent"),
                 u"logic: The Budget Item Type is not implemented for processing unexpected budget "
                 u"items.");
    }
};

QTEST_GUILESS_MAIN(BudgetLedgersTest)
#include "tst_budget_ledgers.moc"
