// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/mapping_survey.h"

#include "surveying/internal/stream_maps.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

namespace kiv::surveying {

MappingSurvey::MappingSurvey(banking::ReconciledBankAccount reconciled,
                             const numira::Money &expectedBalance, QDate startOn,
                             BudgetItemChanges budgetItemChanges, Distribution distributions,
                             AccountChanges accountChanges,
                             const std::optional<numira::Money> &amountDue)
    : m_reconciled(std::move(reconciled)),
      m_expectedBalance(expectedBalance),
      m_startOn(startOn),
      m_budgetItemChanges(std::move(budgetItemChanges)),
      m_distributions(std::move(distributions)),
      m_accountChanges(std::move(accountChanges)),
      m_amountDue(amountDue)
{
}

std::ostream &operator<<(std::ostream &out, const MappingSurvey &survey)
{
    const auto streamChanges = [&](const std::set<BalanceChange> &changes) {
        foundation::streamRange(out, changes);
    };
    out << survey.reconciled() << ", expected " << survey.expectedBalance() << " since "
        << foundation::isoText(survey.startOn()).toStdString() << ", items ";
    internal::streamMap(out, survey.budgetItemChanges(), streamChanges);
    out << ", distributed ";
    internal::streamMap(out, survey.distributions());
    out << ", accounts ";
    internal::streamMap(out, survey.accountChanges(), streamChanges);
    if (const std::optional<numira::Money> &due = survey.amountDue())
        out << ", due " << *due;
    return out;
}

} // namespace kiv::surveying
