// SPDX-License-Identifier: GPL-3.0-or-later
// Accounts, banks and bank accounts.
#include "navigation/internal/navigator_change.h"

#include "accounting/general_ledger.h"

namespace kiv::navigation {

using accounting::AccountCode;
using banking::Bank;
using banking::BankName;
using internal::tell;

// ---- accounts ----------------------------------------------------------------

void Navigator::onPrepareShowAccounts()
{
    emit showAccounts(m_budgetBankLedgers->generalLedger().accounts(),
                      m_preferences.usableCurrencies(), m_preferences.currenciesDisplayAs());
}

void Navigator::onAddedAct(const accounting::Account &act)
{
    change(
        "Failed to add account entry.",
        [&] {
            if (const auto opening = m_budgetBankLedgers->add(act)) {
                internal::logDone("Added account opening balance in txn num:", opening->integer());
            }
        },
        [&] { tell(this, &Navigator::accountSaveSucceeded, act.code()); },
        [&](const QString &why) {
            tell(this, &Navigator::accountSaveFailed, std::nullopt, why, act.code());
        });
}

void Navigator::onRecoded(const AccountCode &current, const AccountCode &changed)
{
    change(
        "Failed to recode an account.", [&] { m_budgetBankLedgers->recode(current, changed); },
        // The view still shows the account under its old code and finds it by
        // that; a renamed bank account is found by its new one.
        [&] { tell(this, &Navigator::accountSaveSucceeded, current); },
        [&](const QString &why) {
            tell(this, &Navigator::accountSaveFailed, current, why, changed);
        });
}

void Navigator::onClosed(const AccountCode &code)
{
    change(
        "Failed to close an account.", [&] { m_budgetBankLedgers->close(code); },
        [&] { tell(this, &Navigator::accountSaveSucceeded, code); },
        [&](const QString &why) { tell(this, &Navigator::accountSaveFailed, code, why, code); });
}

void Navigator::onOpened(const AccountCode &code)
{
    change(
        "Failed to reopen an account.", [&] { m_budgetBankLedgers->open(code); },
        [&] { tell(this, &Navigator::accountSaveSucceeded, code); },
        [&](const QString &why) { tell(this, &Navigator::accountSaveFailed, code, why, code); });
}

void Navigator::onRemovedAct(const AccountCode &code)
{
    change(
        "Failed to remove an account.", [&] { m_budgetBankLedgers->remove(code); },
        [&] { tell(this, &Navigator::accountSaveSucceeded, code); },
        [&](const QString &why) { tell(this, &Navigator::accountSaveFailed, code, why, code); });
}

void Navigator::onPrepareShowLedgers()
{
    emit showLedgers(m_budgetBankLedgers->generalLedger().accounts(),
                     m_preferences.usableCurrencies(), m_preferences.currenciesDisplayAs());
}

void Navigator::onSelectedLedger(const AccountCode &code)
{
    emit showLedger(m_budgetBankLedgers->generalLedger().ledger(code));
}

// ---- banks -------------------------------------------------------------------

void Navigator::onPrepareShowBanks()
{
    // A copy: a view may change the banks while it draws them.
    const banking::BankMap banks = m_budgetBankLedgers->banks();
    emit showBanks(banks, m_budgetBankLedgers->generalLedger().accounts(),
                   m_preferences.usableCurrencies(), m_preferences.currenciesDisplayAs());
}

void Navigator::onBankAdded(const Bank &b)
{
    change(
        "Failed to add a bank.",
        [&] {
            m_budgetBankLedgers->add(b);
            internal::logDone("Successfully added bank", b);
        },
        [&] { tell(this, &Navigator::bankSaveSucceeded, b.name()); },
        // Nothing stood there before the bank was to be added.
        [&](const QString &why) {
            tell(this, &Navigator::bankSaveFailed, std::nullopt, why, b.name());
        });
}

void Navigator::onBankUpdated(const Bank &b)
{
    change(
        "Failed to update a bank.", [&] { m_budgetBankLedgers->update(b); },
        [&] { tell(this, &Navigator::bankSaveSucceeded, b.name()); },
        // The view shows its own edited bank, which has no other name.
        [&](const QString &why) {
            tell(this, &Navigator::bankSaveFailed, b.name(), why, std::nullopt);
        });
}

void Navigator::onBankRenamed(const BankName &original, const BankName &change)
{
    this->change(
        "Failed to rename a bank.", [&] { m_budgetBankLedgers->rename(original, change); },
        [&] { tell(this, &Navigator::bankSaveSucceeded, change); },
        [&](const QString &why) { tell(this, &Navigator::bankSaveFailed, original, why, change); });
}

void Navigator::onBankClosed(const BankName &bn)
{
    change(
        "Failed to close a bank.", [&] { m_budgetBankLedgers->close(bn); },
        [&] { tell(this, &Navigator::bankSaveSucceeded, bn); },
        [&](const QString &why) { tell(this, &Navigator::bankSaveFailed, bn, why, bn); });
}

void Navigator::onBankOpened(const BankName &bn)
{
    change(
        "Failed to reopen a bank.", [&] { m_budgetBankLedgers->open(bn); },
        [&] { tell(this, &Navigator::bankSaveSucceeded, bn); },
        [&](const QString &why) { tell(this, &Navigator::bankSaveFailed, bn, why, bn); });
}

void Navigator::onBankRemoved(const BankName &bn)
{
    change(
        "Failed to remove a bank.", [&] { m_budgetBankLedgers->remove(bn); },
        [&] { tell(this, &Navigator::bankSaveSucceeded, bn); },
        [&](const QString &why) { tell(this, &Navigator::bankSaveFailed, bn, why, bn); });
}

// ---- bank accounts -----------------------------------------------------------

std::optional<AccountCode> Navigator::onAddedBankAccount(const QString &name,
                                                         const banking::BankAccountTypes &type,
                                                         const numira::Money &openingBalance)
{
    std::optional<AccountCode> added;
    change(
        "Failed to add a bank account.",
        [&] { added = m_budgetBankLedgers->addAccount(name, type, openingBalance); },
        [&] { tell(this, &Navigator::bankAccountSaveSucceeded, *added); },
        [&](const QString &why) {
            // There is no number yet, so the view finds its row by the name.
            tell(this, &Navigator::bankAccountSaveFailed, std::nullopt, why,
                 AccountCode(name, std::nullopt));
        });
    return added;
}

void Navigator::onRenamedBankAccount(const AccountCode &original, const AccountCode &changed)
{
    change(
        "Failed to rename a bank account.", [&] { m_budgetBankLedgers->recode(original, changed); },
        [&] { tell(this, &Navigator::bankAccountSaveSucceeded, changed); },
        [&](const QString &why) {
            tell(this, &Navigator::bankAccountSaveFailed, original, why, changed);
        });
}

void Navigator::onRemovedBankAccount(const AccountCode &ac)
{
    change(
        "Failed to remove a bank account.", [&] { m_budgetBankLedgers->remove(ac); },
        [&] { tell(this, &Navigator::bankAccountSaveSucceeded, ac); },
        [&](const QString &why) { tell(this, &Navigator::bankAccountSaveFailed, ac, why, ac); });
}

void Navigator::onLookUpBankAccounts(const BankName &bn, const AllowSubAccounts &shouldAllow)
{
    std::set<banking::AccountNumberBankType> accountTypes;
    for (const auto &[number, type] :
         m_budgetBankLedgers->bankLedgers().bankAccountTypes(bn, shouldAllow))
        accountTypes.insert({number, type});
    tell(this, &Navigator::lookedUpBankAccounts, bn, accountTypes);
}

} // namespace kiv::navigation
