// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "surveying/distributable.h"
#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

#include "numira/error.h"

#include "support/accounting.h"
#include "support/comparison.h"

#include <stdexcept>

using namespace kiv::surveying;
using namespace kiv::test;
using kiv::budgeting::BudgetItemTypes;
using kiv::budgeting::EventFrequency;

class tst_SurveyingValues : public QObject {
    Q_OBJECT

private slots:
    void changesAreTheSameByDirectionAndNumber()
    {
        const auto change = [](bool isIncrease, std::optional<std::uint16_t> number,
                               const char *amount) {
            auto transaction = transfer(no(1), no(2), usd(amount));
            return BalanceChange(isIncrease,
                                 number ? transaction.withNumber(txn(*number)) : transaction);
        };
        QCOMPARE(comparisonFault(std::vector{
                     change(false, std::nullopt, "9"),
                     change(false, 1, "5"),
                     change(false, 2, "1"),
                     change(true, 1, "1"),
                 }),
                 QString());
        QCOMPARE(change(true, 1, "1"), change(true, 1, "2"));
    }

    void distributionsKeepTheirCurrencyAndTheirExpectation()
    {
        const QDate date = day("2026-03-31");
        DistributedAmount amount(usd("5"), date, usd("60"));
        amount += usd("2.50");
        amount -= usd("10");
        QCOMPARE(amount, DistributedAmount(usd("-2.50"), date, usd("60")));
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError, amount += money("EUR", "1"));
        QCOMPARE(amount.distributed(), usd("-2.50"));
        amount = money("EUR", "7");
        QCOMPARE(amount, DistributedAmount(money("EUR", "7"), date, usd("60")));
        QCOMPARE(kiv::foundation::presentationText(amount), u"€7.00"_qs);

        DistributedAmount fresh;
        fresh -= money("EUR", "3");
        QCOMPARE(fresh.distributed(), money("EUR", "-3"));
    }

    void moneyIsSetAsideForWhatIsRareAndForGoals()
    {
        for (int period = 0; period <= 15; ++period) {
            const auto distributable = [period](BudgetItemTypes type) {
                return isDistributable(type, static_cast<EventFrequency>(period));
            };
            QVERIFY(distributable(BudgetItemTypes::Goal));
            QCOMPARE(distributable(BudgetItemTypes::Bill), period >= 7);
            QCOMPARE(distributable(BudgetItemTypes::Debt), period >= 7);
            QCOMPARE(distributable(BudgetItemTypes::Nontrack), period >= 7);
            QVERIFY(!distributable(BudgetItemTypes::Wage));
            QVERIFY(!distributable(BudgetItemTypes::None));
        }
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 static_cast<void>(isDistributable(static_cast<BudgetItemTypes>(6),
                                                                   EventFrequency::Yearly)));
    }

    void noChangeOfABalanceIsNegative()
    {
        using Changes = IndexedIncreaseDecreases<kiv::accounting::AccountNumber>;
        using kiv::foundation::Error;
        const Changes changes({{no(1), usd("0")}}, {{no(1), usd("2.50")}, {no(2), usd("1")}});
        QCOMPARE(dump(changes), u"(+ 1=>0.00 USD, - 1=>2.50 USD, - 2=>1.00 USD)"_qs);
        QVERIFY_THROWS_EXCEPTION(Error, Changes({{no(1), usd("-0.01")}}, {}));
        QVERIFY_THROWS_EXCEPTION(Error, Changes({}, {{no(1), usd("-0.01")}}));
    }
};

static const kiv::test::Suite<tst_SurveyingValues> suite;
#include "tst_surveying_values.moc"
