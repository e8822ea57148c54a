// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "surveying/completed_surveys.h"
#include "surveying/distributable.h"
#include "surveying/errors.h"
#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

#include "numira/error.h"

#include "support/accounting.h"
#include "support/comparison.h"

using namespace kiv::surveying;
using namespace kiv::banking;
using namespace kiv::budgeting;
using enum kiv::banking::BankAccountTypes;

namespace {

const BankName first(u"First"_qs);
const BankName second(u"Second"_qs);
const BudgetItemIdentifier tax{BudgetItemTypes::Bill, BudgetSource(u"Tax"_qs)};
const BudgetItemIdentifier car{BudgetItemTypes::Bill, BudgetSource(u"Car"_qs)};
const BankAccount cash{first, {no(1), Cash}};

/// A survey in which each amount is the balance, by which it is told apart.
CompletedSurvey survey(const BankAccount &account, const char *balance,
                       const std::set<BudgetItemIdentifier> &items = {})
{
    CompletedSurvey made(account, numira::toCurrency("USD"));
    Distribution distribution;
    for (const BudgetItemIdentifier &item : items)
        distribution.emplace(item, DistributedAmount(usd(balance), QDate(), usd(balance)));
    made.completed(day("2026-01-31"), usd(balance), distribution, usd("0"), {});
    return made;
}

CompletedSurvey survey(const BankName &bank, std::uint32_t number, const char *balance,
                       const std::set<BudgetItemIdentifier> &items = {})
{
    return survey({bank, {no(number), Checking}}, balance, items);
}

/// Each with its account, balance and items.
QString told(const CompletedSurveys &surveys)
{
    QStringList all;
    for (const auto &[account, survey] : surveys) {
        if (account != survey.bankAccount())
            all += u"not under its own account: "_qs;
        QString told = dump(survey.bankAccount()) + u' ' + dump(survey.reconciled().balance());
        for (const auto &[item, amount] : survey.distribution())
            told += u' ' + item.source.name();
        all += told.remove(u"(checking) "_qs).remove(u".00 USD"_qs);
    }
    return all.join(u"; "_qs);
}

} // namespace

class tst_Surveying : public QObject {
    Q_OBJECT

private slots:
    void completingReplacesTheLastReconciliation()
    {
        CompletedSurvey completed({first, {no(1200), Checking}}, numira::toCurrency("EUR"));
        QCOMPARE(completed.nonDistributed(), money("EUR", "0"));
        QVERIFY(!completed.reconciled().reconciledOn());
        const CompletedSurvey before = completed;
        QVERIFY_THROWS_EXCEPTION(SurveyError,
                                 completed.completed(QDate(), usd("1"), {}, usd("1"), {}));
        QCOMPARE(completed, before);
        const kiv::foundation::Percentage window(2.75, 6);
        completed.completed(day("2026-02-28"), usd("6"), {{car, {}}}, usd("0"), window);
        completed.completed(day("2026-01-31"), usd("5"), {{tax, {}}}, usd("3"), window);
        QCOMPARE(dump(completed),
                 u"First 1200 (checking) 5.00 USD on 2026-01-31, distributed "
                 "(Tax (bill)=>0 XXX of 0 XXX by no date), not distributed 3.00 USD, "
                 "within 2.75 %"_qs);
    }

    void aSurveyFollowsOnlyItsOwnNames()
    {
        const CompletedSurvey before = survey(first, 1200, "1", {tax});
        CompletedSurvey followed = before;
        followed.renamed(second, first);
        followed.renamed(no(1300), no(1400));
        followed.renamed(car, tax.source);
        followed.renamed({BudgetItemTypes::Goal, tax.source}, car.source);
        QCOMPARE(followed, before);
        followed.renamed(first, second);
        followed.renamed(no(1200), no(1400));
        followed.renamed(tax, car.source);
        QCOMPARE(followed, survey(second, 1400, "1", {car}));

        // A renamed item replaces the one of that name.
        const DistributedAmount kept(usd("7"), QDate(), usd("7"));
        followed.completed(day("2026-01-31"), usd("1"), {{tax, kept}, {car, {}}}, usd("0"), {});
        followed.renamed(tax, car.source);
        followed.renamed(car, car.source);
        QCOMPARE(followed.distribution(), (Distribution{{car, kept}}));
    }

    void allSurveysFollowRenamings()
    {
        using Surveys = CompletedSurveys &;
        struct Row {
            const char *after;
            std::function<void(Surveys)> renaming;
        };
        CompletedSurveys before;
        for (const CompletedSurvey &one :
             {survey(first, 1, "9"), survey(first, 1, "1"), survey(cash, "2"),
              survey(first, 2, "3", {tax}), survey(second, 2, "4", {tax}),
              survey(second, 3, "5", {car})})
            before.upsert(one);
        const char *const same = "First 1 1; First 1 (cash) 2; First 2 3 Tax; Second 2 4 Tax; "
                                 "Second 3 5 Car";
        for (const auto &[after, renaming] : std::initializer_list<Row>{
                 {same, [](Surveys all) { all.renamedBank(BankName(u"Third"_qs), second); }},
                 {same, [](Surveys all) { all.renamedBank(first, first); }},
                 // Both ways, so that the order of the names does not decide who wins.
                 {"Second 1 1; Second 1 (cash) 2; Second 2 3 Tax; Second 3 5 Car",
                  [](Surveys all) { all.renamedBank(first, second); }},
                 {"First 1 1; First 1 (cash) 2; First 2 4 Tax; First 3 5 Car",
                  [](Surveys all) { all.renamedBank(second, first); }},
                 // The first survey of an account or of an item follows.
                 {same, [](Surveys all) { all.renamedAccount(second, no(9), no(1)); }},
                 {"First 1 (cash) 2; First 2 1; Second 2 4 Tax; Second 3 5 Car",
                  [](Surveys all) { all.renamedAccount(first, no(1), no(2)); }},
                 {"First 1 1; First 1 (cash) 2; First 2 3 Levy; Second 2 4 Tax; Second 3 5 Car",
                  [](Surveys all) { all.renamedItem(tax, BudgetSource(u"Levy"_qs)); }}}) {
            CompletedSurveys surveys = before;
            renaming(surveys);
            QCOMPARE(told(surveys), QString::fromLatin1(after));
            QCOMPARE(surveys == before, after == same);
        }
        QCOMPARE(before.lookUpSurvey(cash), std::optional(survey(cash, "2")));
        QVERIFY(!before.lookUpSurvey(BankAccount{second, {no(1), Cash}}));
        QCOMPARE(before.lookUpSurvey(first, no(1)), std::optional(survey(first, 1, "1")));
        QVERIFY(!before.lookUpSurvey(second, no(1)));
    }

    void changesAreTheSameByDirectionAndNumber()
    {
        const auto change = [](bool isIncrease, std::uint16_t number, const char *amount) {
            const auto transaction = transfer(no(1), no(2), usd(amount));
            return BalanceChange(isIncrease,
                                 number > 0 ? transaction.withNumber(txn(number)) : transaction);
        };
        QCOMPARE(comparisonFault(std::vector{change(false, 0, "9"), change(false, 1, "5"),
                                             change(false, 2, "1"), change(true, 1, "1")}),
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
        using enum BudgetItemTypes;
        for (int period = 0; period <= 15; ++period) {
            const auto frequency = static_cast<EventFrequency>(period);
            for (const BudgetItemTypes type : {Bill, Debt, Nontrack})
                QCOMPARE(isDistributable(type, frequency), period >= 7);
            QVERIFY(isDistributable(Goal, frequency) && !isDistributable(Wage, frequency) &&
                    !isDistributable(None, frequency));
        }
        const auto unknown = static_cast<BudgetItemTypes>(6);
        QVERIFY_THROWS_EXCEPTION(
            std::logic_error, static_cast<void>(isDistributable(unknown, EventFrequency::Yearly)));
    }

    void noChangeOfABalanceIsNegative()
    {
        using Changes = IndexedIncreaseDecreases<kiv::accounting::AccountNumber>;
        const Changes changes({{no(1), usd("0")}}, {{no(1), usd("2.50")}, {no(2), usd("1")}});
        QCOMPARE(dump(changes), u"(+ 1=>0.00 USD, - 1=>2.50 USD, - 2=>1.00 USD)"_qs);
        const std::map negative{std::pair(no(1), usd("-0.01"))};
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, Changes(negative, {}));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, Changes({}, negative));
    }
};

static const kiv::test::Suite<tst_Surveying> surveyingSuite;
#include "tst_surveying.moc"
