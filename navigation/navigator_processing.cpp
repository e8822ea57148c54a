// SPDX-License-Identifier: GPL-3.0-or-later
// Budget items that are due.
#include "navigation/internal/navigator_change.h"

#include "budgeting/due.h"

namespace kiv::navigation {

using budgeting::BudgetItemDueIdentifier;

void Navigator::onPrepareShowProcessBudgetItems()
{
    const std::chrono::days dueWithin = m_preferences.notifyDueWithin();
    emit showProcessBudgetItems(
        dueWithin, budgeting::budgetItemsDue(dueWithin, m_budgetBankLedgers->budget()),
        m_budgetBankLedgers->bankNames(), m_preferences.preferredCurrency(),
        m_preferences.usableCurrencies(), m_preferences.currenciesDisplayAs(),
        m_budgetBankLedgers->generalLedger().accountCodes());
}

// A list of due items is processed one after the other, often long after it was
// shown. An item that went meanwhile is the ordinary case there, not a mistake
// of the view's code; so these three answer any exception.

void Navigator::onPostBudgetItemPosted(const budgeting::BudgetItemAmountDue &bid,
                                       const accounting::AccountCode &ac, const QDate &postOn)
{
    changeDue("Failed to process budget item due.", bid.id,
              [&] { return m_budgetBankLedgers->process(bid, ac, postOn); });
}

void Navigator::onPostBudgetItemPostedUnexpected(const BudgetItemDueIdentifier &bidi,
                                                 const numira::Money &amount,
                                                 const accounting::AccountCode &ac,
                                                 const QDate &postOn)
{
    changeDue("Failed to process budget item unexpected.", bidi,
              [&] { return m_budgetBankLedgers->process(bidi.item(), amount, ac, postOn); });
}

void Navigator::onPostBudgetItemSkipped(const BudgetItemDueIdentifier &bidi)
{
    changeDue("Failed to skip budget item due.", bidi, [&] {
        m_budgetBankLedgers->skip(bidi.item());
        return std::nullopt;
    });
}

} // namespace kiv::navigation
