// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "budgeting/errors.h"
#include "budgeting/item_account.h"

#include "support/budgeting.h"
#include "support/comparison.h"

using namespace kiv::budgeting;
using namespace kiv::test;

class tst_BudgetItems : public QObject {
    Q_OBJECT

private slots:
    void anItemNeedsADateAndNoNegativeAmount()
    {
        const auto make = [](const char *amount, QDate date) {
            item<Bill>("Rent", usd(amount), EventFrequency::None, date);
        };
        make("0", day("2026-01-31"));
        QVERIFY_THROWS_EXCEPTION(BudgetItemError, make("-0.01", day("2026-01-31")));
        QVERIFY_THROWS_EXCEPTION(BudgetItemError, make("1", QDate()));
        QCOMPARE(item<Debt>("Loan", usd("1"), EventFrequency::Monthly, day("2026-01-31"), usd("-5"))
                     .borrowed(),
                 usd("-5"));
    }

    void itemsAreOrderedByAllThatTheyHold()
    {
        using enum EventFrequency;
        const QDate date = day("2026-02-28");
        auto onThe31st = item<Bill>("A", usd("1"), Monthly, date);
        onThe31st.setDayOfMonth(31);
        std::vector<std::unique_ptr<BudgetedMoney>> items;
        const auto append = [&items](const BudgetedMoney &next) { items.push_back(next.clone()); };
        append(item<Bill>("A", usd("1"), Monthly, date));
        append(item<Debt>("A", usd("1"), Monthly, date, usd("1")));
        append(item<Debt>("A", usd("1"), Monthly, date, usd("2")));
        append(item<Goal>("A", usd("1"), Monthly, date, usd("1")));
        append(item<Goal>("A", usd("1"), Monthly, date, money("EUR", "0")));
        append(item<Nontrack>("A", usd("1"), Monthly, date));
        append(item<Wage>("A", usd("1"), Monthly, date));
        append(onThe31st);
        append(item<Bill>("A", usd("1"), Monthly, day("2026-03-28")));
        append(item<Bill>("A", usd("1"), Yearly, date));
        append(item<Bill>("A", usd("2"), Monthly, date));
        append(item<Bill>("A", money("EUR", "1"), Monthly, date));
        append(item<Bill>("B", usd("1"), Monthly, date));
        QCOMPARE(
            comparisonFault(items, [](const auto &held) -> const BudgetedMoney & { return *held; }),
            QString());
    }

    void theKindGoesWithTheObject()
    {
        forEachItemClass([]<typename Item>(std::type_identity<Item>) {
            const Item made = item<Item>("A");
            QCOMPARE(toBudgetItemTypes(made), ItemTraits<Item>::type);
            QCOMPARE(toBudgetItemTypes(*made.clone()), ItemTraits<Item>::type);
            QCOMPARE(toBudgetItemTypes(BudgetedMoney(made)), BudgetItemTypes::None);
            QVERIFY(!(BudgetedMoney(made) == made));
            visitItemClass(ItemTraits<Item>::type, "unknown",
                           []<typename Visited>(std::type_identity<Visited>) {
                               QVERIFY((std::is_same_v<Visited, Item>));
                           });
        });
        QCOMPARE(toBudgetItemTypes(std::type_index(typeid(int))), BudgetItemTypes::None);
        for (const int value : {0, 6}) {
            QVERIFY_THROWS_EXCEPTION(
                std::logic_error,
                visitItemClass(static_cast<BudgetItemTypes>(value), "unknown", [](auto) {}));
        }
    }

    void movingOnKeepsTheDayOfTheMonth()
    {
        Bill bill = item<Bill>("Rent");
        bill.updateNextOccurOn();
        QCOMPARE(bill.nextOccurOn(), day("2026-02-28"));
        bill.rename(source("Flat"));
        QCOMPARE(Bill(bill).dayOfMonth(), 31);
        bill.updateNextOccurOn();
        QCOMPARE(bill.nextOccurOn(), day("2026-03-31"));

        Bill never = item<Bill>("Gift", usd("1"), EventFrequency::None);
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, never.updateNextOccurOn());
        QCOMPARE(never.nextOccurOn(), day("2026-01-31"));
        for (const int outside : {0, 32})
            QVERIFY_THROWS_EXCEPTION(BudgetItemError, never.setDayOfMonth(outside));
        QCOMPARE(never.dayOfMonth(), 31);
        never.setDayOfMonth(1);
        QCOMPARE(never.dayOfMonth(), 1);
    }

    void anItemKnowsItsAccount()
    {
        QCOMPARE(itemAccountName(source("Rent %1")), u"Rent %1 [Budget Item]"_qs);
        QCOMPARE(openingMoney(*item<Debt>("Loan").clone()), usd("100"));
        QCOMPARE(openingMoney(item<Goal>("Car", money("EUR", "1"))), money("EUR", "0"));
    }

    void identifiersGoByKindAndThenByName()
    {
        QCOMPARE(comparisonFault(std::vector<BudgetItemIdentifier>{
                     {BudgetItemTypes::Bill, source("B")},
                     {BudgetItemTypes::Bill, source("a")},
                     {BudgetItemTypes::Debt, source("")},
                     {BudgetItemTypes::Debt, source("A")},
                 }),
                 QString());
        const BudgetItemIdentifier id{BudgetItemTypes::Nontrack, source("Food\n%2")};
        QCOMPARE(presentationText(id), u"Food\n%2 (non-tracked)"_qs);
        QCOMPARE(dump(id), u"Food\\u{000A}%2 (non-tracked)"_qs);
        const BudgetItemIdentifier unknown{static_cast<BudgetItemTypes>(7), source("Food")};
        QCOMPARE(presentationText(unknown), u"Food (7)"_qs);
        QCOMPARE(dump(unknown), u"Food (7)"_qs);
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 static_cast<void>(presentationText(unknown.type)));
        QCOMPARE(dump(item<Debt>("Loan")),
                 u"Loan (debt) 10.00 USD monthly on 2026-01-31 day 31 borrowed 100.00 USD"_qs);
    }
};

static const kiv::test::Suite<tst_BudgetItems> suite;
#include "tst_budget_items.moc"
