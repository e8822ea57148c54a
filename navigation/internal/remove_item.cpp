// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/remove_item.h"

#include "navigation/internal/faults.h"

namespace kiv::navigation::internal {
namespace {

void refuseWhileDistributed(const budgeting::BudgetItemIdentifier &id,
                            const surveying::CompletedSurveys &surveys)
{
    for (const auto &[account, survey] : surveys) {
        const auto entry = survey.distribution().find(id);
        if (entry != survey.distribution().end())
            throw faults::stillDistributed(id.source, entry->second, account);
    }
}

} // namespace

void removeItem(const budgeting::BudgetItemIdentifier &id, BudgetLedgers &budgetLedgers,
                BankLedgers &bankLedgers, const surveying::CompletedSurveys &surveys)
{
    // An invalid type is refused below, with the sentence of a removal.
    const std::optional<accounting::AccountCode> code = id.type > budgeting::BudgetItemTypes::Wage
                                                            ? std::nullopt
                                                            : budgetLedgers.lookUpAccountCode(id);
    refuseWhileDistributed(id, surveys);
    budgeting::visitItemClass(
        id.type, [&] { return faults::invalidTypeForRemoval(id.type); },
        [&]<typename T>(std::type_identity<T>) { budgetLedgers.remove<T>(id.source); });
    if (!code)
        return;
    if (const std::optional<banking::BankName> bank = bankLedgers.lookUpBankName(code->number()))
        bankLedgers.removeAssociation(*bank, code->number());
}

} // namespace kiv::navigation::internal
