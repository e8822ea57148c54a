// SPDX-License-Identifier: GPL-3.0-or-later
// Bank account surveys.
#include "navigation/internal/navigator_change.h"

#include "surveying/completed_survey.h"

namespace kiv::navigation {

void Navigator::onPrepareShowSurvey()
{
    emit showSurvey(m_budgetBankLedgers->bankNames(), m_preferences.usableCurrencies(),
                    m_preferences.currenciesDisplayAs(), m_preferences.surveyWindow(),
                    m_budgetBankLedgers->generalLedger().accountCodes());
}

void Navigator::onLookUpLastReconciliation(const accounting::AccountNumber &an)
{
    qInfo() << "Looking up currency for the account." << presentationText(an);
    const banking::ReconciledBalance last = m_budgetBankLedgers->lastReconciliation(an);
    emit lookedUpLastReconciliation(last.currency, last);
}

void Navigator::onGenerateMappingSurvey(const banking::BankName &bn,
                                        const accounting::AccountNumber &an,
                                        const QDate &surveyingOn)
{
    qInfo() << "Looking up information for a bank account survey.";
    emit generatedMappingSurvey(m_budgetBankLedgers->createMapSurvey(bn, an, surveyingOn));
}

void Navigator::onCompletedSurvey(
    const QDate &completedOn, const banking::BankAccount &ba, const numira::Money &balance,
    const std::set<accounting::TransactionNumber> &allReconciled,
    const surveying::IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier> &allAdded,
    const surveying::IndexedIncreaseDecreases<accounting::AccountNumber> &allExtra,
    const std::map<budgeting::BudgetItemIdentifier, surveying::DistributedAmount> &distributed,
    const numira::Money &nonDistributed)
{
    qInfo() << "Processing the completed survey.";
    surveying::CompletedSurvey completed;
    const accounting::GeneralLedger before = m_budgetBankLedgers->generalLedger();
    // The user typed in what the statement shows, and a survey that cannot be
    // completed, for whatever reason, must not be lost without a word.
    change<std::exception>(
        "Failed to complete the survey.",
        [&] {
            completed = m_budgetBankLedgers->completedSurvey(
                completedOn, ba, balance, allReconciled, allAdded, allExtra, distributed,
                nonDistributed, m_preferences.surveyWindow());
        },
        [&] {
            internal::logDone("Survey completed.", completed);
            emit completedSurveySucceeded();
        },
        [&](const QString &why) {
            // What was posted before the failure stays, and would be lost at the
            // next quit if nobody were asked to save it.
            if (!(m_budgetBankLedgers->generalLedger() == before))
                m_isDirty = true;
            emit completedSurveyFailed(why);
        });
}

} // namespace kiv::navigation
