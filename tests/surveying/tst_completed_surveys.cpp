// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "surveying/completed_surveys.h"
#include "surveying/errors.h"

#include "support/accounting.h"
#include "support/comparison.h"

using namespace kiv::surveying;
using namespace kiv::test;
using kiv::banking::BankAccount;
using kiv::banking::BankAccountTypes;
using kiv::banking::BankName;
using kiv::budgeting::BudgetItemIdentifier;
using kiv::budgeting::BudgetItemTypes;
using kiv::budgeting::BudgetSource;

namespace {

const BankName first(u"First"_qs);
const BankName second(u"Second"_qs);
const BudgetItemIdentifier tax{BudgetItemTypes::Bill, BudgetSource(u"Tax"_qs)};
const BudgetItemIdentifier car{BudgetItemTypes::Bill, BudgetSource(u"Car"_qs)};

BankAccount account(const BankName &bank, std::uint32_t number,
                    BankAccountTypes type = BankAccountTypes::Checking)
{
    return {bank, {no(number), type}};
}

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

CompletedSurveys surveysOf(std::initializer_list<CompletedSurvey> all)
{
    CompletedSurveys surveys;
    for (const CompletedSurvey &one : all)
        surveys.upsert(one);
    return surveys;
}

} // namespace

class tst_CompletedSurveys : public QObject {
    Q_OBJECT

private slots:
    void completingReplacesTheLastReconciliation()
    {
        const BankAccount of = account(first, 1200);
        CompletedSurvey completed(of, numira::toCurrency("EUR"));
        QCOMPARE(completed.nonDistributed(), money("EUR", "0"));
        QVERIFY(!completed.reconciled().reconciledOn());
        const CompletedSurvey before = completed;
        QVERIFY_THROWS_EXCEPTION(SurveyError,
                                 completed.completed(QDate(), usd("1"), {}, usd("1"), {}));
        QCOMPARE(completed, before);
        const kiv::foundation::Percentage window(2.75, 6);
        completed.completed(day("2026-01-31"), usd("5"), {{tax, {}}}, usd("3"), window);
        QCOMPARE(dump(completed),
                 u"First 1200 (checking) 5.00 USD on 2026-01-31, distributed "
                 "(Tax (bill)=>0 XXX of 0 XXX by no date), not distributed 3.00 USD, "
                 "within 2.75 %"_qs);
        completed.completed(day("2026-02-28"), usd("6"), {{car, {}}}, usd("0"), window);
        QVERIFY(!completed.distribution().contains(tax));
    }

    void aSurveyFollowsOnlyItsOwnNames()
    {
        const CompletedSurvey before = survey(account(first, 1200), "1", {tax});
        CompletedSurvey followed = before;
        followed.renamed(second, first);
        followed.renamed(no(1300), no(1400));
        followed.renamed(car, tax.source);
        followed.renamed({BudgetItemTypes::Goal, tax.source}, car.source);
        QCOMPARE(followed, before);

        followed.renamed(first, second);
        followed.renamed(no(1200), no(1400));
        followed.renamed(tax, car.source);
        QCOMPARE(followed, survey(account(second, 1400), "1", {car}));
    }

    void aRenamedItemReplacesTheOneOfThatName()
    {
        CompletedSurvey both = survey(account(first, 1200), "1");
        const DistributedAmount kept(usd("7"), QDate(), usd("7"));
        both.completed(day("2026-01-31"), usd("1"), {{tax, kept}, {car, {}}}, usd("0"), {});
        both.renamed(tax, car.source);
        QCOMPARE(both.distribution(), (Distribution{{car, kept}}));
        both.renamed(car, car.source);
        QCOMPARE(both.distribution(), (Distribution{{car, kept}}));
    }

    void oneSurveyStandsForEachBankAccount()
    {
        const BankAccount cash = account(first, 1200, BankAccountTypes::Cash);
        CompletedSurveys surveys =
            surveysOf({survey(account(second, 1), "4"), survey(cash, "3"),
                       survey(account(first, 1200), "2"), survey(account(first, 1200), "1")});
        QStringList balances;
        for (const auto &[key, held] : surveys) {
            QCOMPARE(held.bankAccount(), key);
            balances += dump(held.reconciled().balance());
        }
        QCOMPARE(balances.join(u' '), u"1.00 USD 3.00 USD 4.00 USD"_qs);
        QCOMPARE(surveys.lookUpSurvey(cash), std::optional(survey(cash, "3")));
        QVERIFY(!surveys.lookUpSurvey(account(second, 1, BankAccountTypes::Cash)));
        QCOMPARE(surveys.lookUpSurvey(first, no(1200)),
                 std::optional(survey(account(first, 1200), "1")));
        QVERIFY(!surveys.lookUpSurvey(second, no(1200)));
    }

    void allSurveysOfARenamedBankFollow()
    {
        CompletedSurveys surveys =
            surveysOf({survey(account(first, 1), "1"), survey(account(first, 2), "2"),
                       survey(account(second, 2), "3"), survey(account(second, 3), "4")});
        const CompletedSurveys before = surveys;
        surveys.renamedBank(BankName(u"Third"_qs), second);
        surveys.renamedBank(first, first);
        QCOMPARE(surveys, before);
        // Both ways, so that the order of the names does not decide who wins.
        const CompletedSurveys joined =
            surveysOf({survey(account(second, 1), "1"), survey(account(second, 2), "2"),
                       survey(account(second, 3), "4")});
        surveys.renamedBank(first, second);
        QCOMPARE(surveys, joined);
        surveys = before;
        surveys.renamedBank(second, first);
        QCOMPARE(surveys, surveysOf({survey(account(first, 1), "1"), survey(account(first, 2), "3"),
                                     survey(account(first, 3), "4")}));
    }

    void theFirstSurveyOfARenamedAccountFollows()
    {
        const BankAccount cash = account(first, 1, BankAccountTypes::Cash);
        CompletedSurveys surveys =
            surveysOf({survey(account(first, 1), "1"), survey(cash, "2"),
                       survey(account(first, 9), "3"), survey(account(second, 1), "4")});
        const CompletedSurveys before = surveys;
        surveys.renamedAccount(second, no(9), no(1));
        QCOMPARE(surveys, before);
        surveys.renamedAccount(first, no(1), no(9));
        QCOMPARE(surveys, surveysOf({survey(cash, "2"), survey(account(first, 9), "1"),
                                     survey(account(second, 1), "4")}));
    }

    void theFirstSurveyOfARenamedItemFollows()
    {
        CompletedSurveys surveys =
            surveysOf({survey(account(first, 1), "1", {car}), survey(account(first, 2), "2", {tax}),
                       survey(account(second, 1), "3", {tax})});
        surveys.renamedItem(tax, BudgetSource(u"Levy"_qs));
        QCOMPARE(surveys, surveysOf({survey(account(first, 1), "1", {car}),
                                     survey(account(first, 2), "2",
                                            {{BudgetItemTypes::Bill, BudgetSource(u"Levy"_qs)}}),
                                     survey(account(second, 1), "3", {tax})}));
    }
};

static const kiv::test::Suite<tst_CompletedSurveys> suite;
#include "tst_completed_surveys.moc"
