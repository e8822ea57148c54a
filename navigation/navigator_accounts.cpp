// SPDX-License-Identifier: GPL-3.0-or-later
// Accounts, banks and bank accounts.
#include "navigation/internal/navigator_change.h"

#include "accounting/general_ledger.h"

namespace kiv::navigation {

using accounting::AccountCode;
using banking::Bank;
using banking::BankName;
using internal::tell;

namespace {

constexpr internal::Answers<AccountCode> accountAnswers{&Navigator::accountSaveSucceeded,
                                                        &Navigator::accountSaveFailed};
constexpr internal::Answers<BankName> bankAnswers{&Navigator::bankSaveSucceeded,
                                                  &Navigator::bankSaveFailed};
constexpr internal::Answers<AccountCode> bankAccountAnswers{&Navigator::bankAccountSaveSucceeded,
                                                            &Navigator::bankAccountSaveFailed};

} // namespace

// ---- accounts ----------------------------------------------------------------

void Navigator::onPrepareShowAccounts()
{
    emit showAccounts(m_budgetBankLedgers->generalLedger().accounts(),
                      m_preferences.usableCurrencies(), m_preferences.currenciesDisplayAs());
}

void Navigator::onAddedAct(const accounting::Account &act)
{
    changeNamed("Failed to add account entry.", accountAnswers,
                {act.code(), std::nullopt, act.code()}, [&] {
                    if (const auto opening = m_budgetBankLedgers->add(act)) {
                        internal::logDone("Added account opening balance in txn num:",
                                          opening->integer());
                    }
                });
}

void Navigator::onRecoded(const AccountCode &current, const AccountCode &changed)
{
    // The view still shows the account under its old code and finds it by that; a renamed bank
    // account is found by its new one.
    changeNamed("Failed to recode an account.", accountAnswers, {current, current, changed},
                [&] { m_budgetBankLedgers->recode(current, changed); });
}

void Navigator::onClosed(const AccountCode &code)
{
    changeNamed("Failed to close an account.", accountAnswers, {code, code, code},
                [&] { m_budgetBankLedgers->close(code); });
}

void Navigator::onOpened(const AccountCode &code)
{
    changeNamed("Failed to reopen an account.", accountAnswers, {code, code, code},
                [&] { m_budgetBankLedgers->open(code); });
}

void Navigator::onRemovedAct(const AccountCode &code)
{
    changeNamed("Failed to remove an account.", accountAnswers, {code, code, code},
                [&] { m_budgetBankLedgers->remove(code); });
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
    // Nothing stood there before the bank was to be added.
    changeNamed("Failed to add a bank.", bankAnswers, {b.name(), std::nullopt, b.name()}, [&] {
        m_budgetBankLedgers->add(b);
        internal::logDone("Successfully added bank", b);
    });
}

void Navigator::onBankUpdated(const Bank &b)
{
    // The view shows its own edited bank, which has no other name.
    changeNamed("Failed to update a bank.", bankAnswers, {b.name(), b.name(), std::nullopt},
                [&] { m_budgetBankLedgers->update(b); });
}

void Navigator::onBankRenamed(const BankName &original, const BankName &change)
{
    changeNamed("Failed to rename a bank.", bankAnswers, {change, original, change},
                [&] { m_budgetBankLedgers->rename(original, change); });
}

void Navigator::onBankClosed(const BankName &bn)
{
    changeNamed("Failed to close a bank.", bankAnswers, {bn, bn, bn},
                [&] { m_budgetBankLedgers->close(bn); });
}

void Navigator::onBankOpened(const BankName &bn)
{
    changeNamed("Failed to reopen a bank.", bankAnswers, {bn, bn, bn},
                [&] { m_budgetBankLedgers->open(bn); });
}

void Navigator::onBankRemoved(const BankName &bn)
{
    changeNamed("Failed to remove a bank.", bankAnswers, {bn, bn, bn},
                [&] { m_budgetBankLedgers->remove(bn); });
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
    changeNamed("Failed to rename a bank account.", bankAccountAnswers,
                {changed, original, changed},
                [&] { m_budgetBankLedgers->recode(original, changed); });
}

void Navigator::onRemovedBankAccount(const AccountCode &ac)
{
    changeNamed("Failed to remove a bank account.", bankAccountAnswers, {ac, ac, ac},
                [&] { m_budgetBankLedgers->remove(ac); });
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
