// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_bank_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/logging.h"
#include "navigation/internal/undo.h"

namespace kiv::navigation::internal {

using accounting::AccountCode;
using banking::BankAccount;
using banking::BankAccountTypes;
using banking::BankName;
using budgeting::Debt;
using budgeting::Goal;

// Adding and updating are undone by restoring a copy of the whole state. Undoing
// single steps would leave traces: removing the item is refused while an old
// survey still names it, and converting its account back to the first currency
// would lose cents.

template <budgeting::BankTiedItem T>
AccountCode BudgetBankLedgers::add(T item, const std::optional<BankAccount> &bankAccount)
{
    verifyNewItemName(item.source());
    if (!bankAccount)
        return m_budgetLedgers.add(std::move(item), *m_generator);
    BudgetBankLedgers former(*this);
    AccountCode code = m_budgetLedgers.add(item, *m_generator);
    // Only from here on: an item whose account the ledger refused stays in the budget.
    Restore before(std::move(former), Assign(*this));
    try {
        const BankAccount association = addBudgetBankAssociation(item, code, *bankAccount);
        logDone("Added budget bank association:", association);
    } catch (const std::exception &cause) {
        throw faults::associationNotAdded(budgeting::ItemTraits<T>::type, item.source(), cause);
    }
    before.dismiss();
    return code;
}

template <budgeting::BankTiedItem T>
void BudgetBankLedgers::update(T item, const std::optional<BankAccount> &requested)
{
    Restore before(*this);
    m_budgetLedgers.update(item, *m_generator);
    const AccountCode code = m_budgetLedgers.budgetAccountCode<T>(item.source());
    const std::optional<BankAccount> current = m_bankLedgers.lookUpBankAccount(code.number());
    try {
        updateBudgetBankAssociation(item, code, requested, current);
    } catch (const std::exception &cause) {
        throw faults::associationNotUpdated(budgeting::ItemTraits<T>::type, item.source(), cause);
    }
    before.dismiss();
}

template AccountCode BudgetBankLedgers::add(Debt, const std::optional<BankAccount> &);
template AccountCode BudgetBankLedgers::add(Goal, const std::optional<BankAccount> &);
template void BudgetBankLedgers::update(Debt, const std::optional<BankAccount> &);
template void BudgetBankLedgers::update(Goal, const std::optional<BankAccount> &);

BankAccount BudgetBankLedgers::addBudgetBankAssociation(const Debt &, const AccountCode &code,
                                                        const BankAccount &bankAccount)
{
    return m_bankLedgers.addAssociation(bankAccount.bank, code.number(), bankAccount.account.type);
}

BankAccount BudgetBankLedgers::addBudgetBankAssociation(const Goal &, AccountCode &code,
                                                        const BankAccount &bankAccount)
{
    BankAccount association = m_bankLedgers.addAssociation(bankAccount.bank, code.number(),
                                                           BankAccountTypes::GoalSubAccount);
    AccountCode below = code;
    below.setParent(bankAccount.account.number);
    recode(code, below);
    code = below;
    return association;
}

void BudgetBankLedgers::updateBudgetBankAssociation(const Debt &, const AccountCode &code,
                                                    const std::optional<BankAccount> &requested,
                                                    const std::optional<BankAccount> &)
{
    if (!requested) {
        if (const std::optional<BankName> bank = m_bankLedgers.lookUpBankName(code.number()))
            m_bankLedgers.removeAssociation(*bank, code.number());
        return;
    }
    if (m_bankLedgers.hasAssociation(requested->bank, code.number()))
        return;
    if (requested->account.number.isValid())
        throw faults::debtTakesNoAccount(requested->bank);
    // Another bank that has the debt keeps it: two banks may hold one debt.
    const BankAccount association =
        m_bankLedgers.addAssociation(requested->bank, code.number(), requested->account.type);
    logDone("Added bank association:", association);
}

void BudgetBankLedgers::updateBudgetBankAssociation(const Goal &, const AccountCode &code,
                                                    const std::optional<BankAccount> &requested,
                                                    const std::optional<BankAccount> &current)
{
    AccountCode moved = code;
    if (!requested) {
        if (const std::optional<BankName> bank = m_bankLedgers.lookUpBankName(code.number()))
            m_bankLedgers.removeAssociation(*bank, code.number());
        moved.setParent(std::nullopt);
        if (code.parent())
            m_generalLedger.recode(code, moved);
        return;
    }
    const AccountNumber parent = requested->account.number;
    if (code.parent() == parent && m_bankLedgers.hasAssociation(requested->bank, parent))
        return;
    if (!parent.isValid())
        throw faults::goalNeedsAccount(code);
    if (hasReconciled(code.number()))
        throw faults::goalIsReconciled(code);
    if (current)
        m_bankLedgers.removeAssociation(current->bank, current->account.number);
    const BankAccount association = m_bankLedgers.addAssociation(requested->bank, code.number(),
                                                                 BankAccountTypes::GoalSubAccount);
    logDone("Updated bank account association", association);
    moved.setParent(parent);
    // Not through recode(): its rules for parents are those of bank accounts.
    m_generalLedger.recode(code, moved);
}

} // namespace kiv::navigation::internal
