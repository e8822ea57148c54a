// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

#include "banking/errors.h"

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using budgeting::BudgetItemDueIdentifier;
using budgeting::BudgetItemTypes;

class NavigatorProcessing : public QObject {
    Q_OBJECT

private slots:
    void init() { m_settings.reset(); }

    void answersProcessing_data();
    void answersProcessing() { checkRow(); }
    void answersSurveys_data();
    void answersSurveys() { checkRow(); }
    void proposesSurveys();
    void showsWhatIsDue();

private:
    OwnSettings m_settings;
};

void NavigatorProcessing::answersProcessing_data()
{
    const auto due = [](BudgetItemTypes type, const char *name) {
        return BudgetItemDueIdentifier{type, source(name), day("2026-01-31")};
    };
    const auto post = [=](BudgetItemTypes type, const char *name) {
        return [=](Navigator &n) {
            n.onPostBudgetItemPosted({due(type, name), usd("10.005")}, code(1, "Checking"),
                                     day("2026-02-01"));
        };
    };
    const auto postUnexpected = [=](BudgetItemTypes type, const char *name) {
        return [=](Navigator &n) {
            n.onPostBudgetItemPostedUnexpected(due(type, name), usd("3"), code(1, "Checking"),
                                               day("2026-02-01"));
        };
    };
    const auto skip = [=](BudgetItemTypes type, const char *name) {
        return [=](Navigator &n) { n.onPostBudgetItemSkipped(due(type, name)); };
    };
    addRows({
        {"post",
         {post(BudgetItemTypes::Wage, "Salary"),
          {"processBudgetItemSaveSucceeded(Salary (wage) on 2026-01-31, 4) *"}}},
        {"post, unknown",
         {post(BudgetItemTypes::Bill, "Gas"),
          {"! Failed to process budget item due. Cannot process budget item due that has an "
           "unknown type.",
           "processBudgetItemSaveFailed(Gas (bill) on 2026-01-31, =)"}}},
        {"post unexpected",
         {postUnexpected(BudgetItemTypes::Bill, "Rent"),
          {"processBudgetItemSaveSucceeded(Rent (bill) on 2026-01-31, 4) *"}}},
        {"post unexpected, unknown",
         {postUnexpected(BudgetItemTypes::Bill, "Gas"),
          {"! Failed to process budget item unexpected. Failed to locate the unexpected budget "
           "item source to post.",
           "processBudgetItemSaveFailed(Gas (bill) on 2026-01-31, =)"}}},
        {"post unexpected, unknown kind",
         {postUnexpected(BudgetItemTypes(6), "Rent"),
          {"! Failed to process budget item unexpected. The Budget Item Type is not implemented "
           "for processing unexpected budget items.",
           "processBudgetItemSaveFailed(Rent (6) on 2026-01-31, =)"}}},
        {"skip",
         {skip(BudgetItemTypes::Nontrack, "Food"),
          {"processBudgetItemSaveSucceeded(Food (non-tracked) on 2026-01-31, none) *"}}},
        {"skip, unknown",
         {skip(BudgetItemTypes::Nontrack, "%1"),
          {"! Failed to skip budget item due. Cannot skip a budget item when its type is not "
           "known.",
           "processBudgetItemSaveFailed(%1 (non-tracked) on 2026-01-31, =)"}}},
    });
}

void NavigatorProcessing::answersSurveys_data()
{
    const auto complete = [](const char *balance, std::uint32_t account) {
        return [=](Navigator &n) {
            n.onCompletedSurvey(day("2999-12-31"),
                                {bankName("First"), {no(account), BankAccountTypes::Checking}},
                                usd(balance), {txn(1), txn(2), txn(3)}, {}, {}, {}, usd("0"));
        };
    };
    addRows({
        {"complete",
         {complete("2485", 1),
          {"- Processing the completed survey.",
           "- Finalising bank account survey for First 1 (checking)",
           "- Survey completed. First 1 (checking) 2485.00 USD on 2999-12-31, distributed (), not "
           "distributed 0.00 USD, within 2.75 %",
           "completedSurveySucceeded() *"}}},
        {"complete, another balance",
         {complete("3000", 1),
          {"- Processing the completed survey.",
           "- Finalising bank account survey for First 1 (checking)",
           "! Failed to complete the survey. The calculated budget item transaction total, "
           "'$2,490.00', must be within 2.75 % of the reconciled current balance, '$3,000.00'.",
           "completedSurveyFailed(=)"}}},
        {"complete, no account",
         {complete("2485", 99),
          {"- Processing the completed survey.",
           "- Finalising bank account survey for First 99 (checking)",
           "! Failed to complete the survey. There is no account with the number 99.",
           "completedSurveyFailed(=)"}}},
        {"last reconciliation",
         {[=](Navigator &n) { complete("2485", 1)(n), n.onLookUpLastReconciliation(no(1)); },
          {"- Processing the completed survey.",
           "- Finalising bank account survey for First 1 (checking)",
           "- Survey completed. First 1 (checking) 2485.00 USD on 2999-12-31, distributed (), not "
           "distributed 0.00 USD, within 2.75 %",
           "completedSurveySucceeded() *", "- Looking up currency for the account. \"1\"",
           "- Account 1 Checking Last Reconciled: 2485.00 USD on 2999-12-31 in USD",
           "lookedUpLastReconciliation(USD, 2485.00 USD on 2999-12-31 in USD)"}}},
        {"last reconciliation, none",
         {[](Navigator &n) { n.onLookUpLastReconciliation(no(1)); },
          {"- Looking up currency for the account. \"1\"", "- Account 1 Checking Never Reconciled",
           "lookedUpLastReconciliation(USD, 0.00 USD never reconciled in USD)"}}},
        {"show",
         {[](Navigator &n) { n.onPrepareShowSurvey(); },
          {"showSurvey((First), (USD, EUR), Symbol, 2.75 %, (1 Checking, 2 Opening Balances USD "
           "[Equity], 3 Rent [Budget Item], 4 Savings under 1, 5 Salary [Budget Item], 6 Food "
           "[Budget Item], 8 Sundries))"}}},
    });
}

void NavigatorProcessing::proposesSurveys()
{
    Desk desk;
    desk.furnish();
    Navigator &n = *desk.navigator;
    const QDate today = foundation::today();
    n.onGenerateMappingSurvey(bankName("First"), no(1), today);
    const QStringList said = desk.take();
    QCOMPARE(said.first(), QStringLiteral("- Looking up information for a bank account survey."));
    QVERIFY(said.last().startsWith(
        QStringLiteral("generatedMappingSurvey(First 1 (checking) 0.00 USD never reconciled")));
    // Nobody hears of a survey that cannot be proposed but the caller.
    QVERIFY_EXCEPTION_THROWN(n.onGenerateMappingSurvey(bankName("X"), no(1), today),
                             banking::BankError);
    QVERIFY_EXCEPTION_THROWN(n.onGenerateMappingSurvey(bankName("First"), no(8), today),
                             std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(n.onLookUpLastReconciliation(no(8)), banking::BankError);
}

void NavigatorProcessing::showsWhatIsDue()
{
    Desk desk;
    Navigator &n = *desk.navigator;
    const QDate today = foundation::today();
    for (const auto &[name, on] :
         {std::pair{"Rent", today.addDays(14)}, {"Gas", today.addDays(15)}}) {
        const auto bill =
            item<budgeting::Bill>(name, usd("1"), budgeting::EventFrequency::Yearly, on);
        n.onAdded(element(), BudgetItemTypes::Bill, bill, {}, tagged(bill));
    }
    (void)desk.take();
    n.onPrepareShowProcessBudgetItems();
    QCOMPARE(desk.take(),
             QStringList(QStringLiteral("showProcessBudgetItems(14d, std::vector(Rent (bill) on %1 "
                                        "1.00 USD), (), USD, (USD, EUR), Symbol, (1 Rent [Budget "
                                        "Item], 2 Gas [Budget Item]))")
                             .arg(today.addDays(14).toString(Qt::ISODate))));
}

QTEST_GUILESS_MAIN(NavigatorProcessing)
#include "tst_navigator_processing.moc"
