// SPDX-License-Identifier: GPL-3.0-or-later
// The first-time wizard.
#include "navigation/internal/navigator_change.h"

#include "navigation/internal/budget_item_generator.h"
#include "navigation/internal/faults.h"

namespace kiv::navigation {

void Navigator::onPrepareNewBudgetFirstTimeWizard()
{
    qInfo() << "Preparing to show the first time wizard.";
    if (!m_budgetBankLedgers->isEmpty() && m_isDirty) {
        qInfo() << "The budget file is not empty, the first time wizard showing must be confirmed.";
        emit showConfirmNewBudget();
        return;
    }
    onConfirmedNewBudgetFirstTimeWizard();
}

void Navigator::onConfirmedNewBudgetFirstTimeWizard()
{
    qInfo() << "Clearing all the budget file values to show first time wizard.";
    clear();
    emit showNewBudgetFirstTimeWizard(m_preferences.preferredCurrency(),
                                      m_preferences.usableCurrencies(),
                                      m_preferences.currenciesDisplayAs());
}

void Navigator::onCompletedNewBudgetFirstTimeWizard(
    const numira::Currency &preferred, const std::set<numira::Currency> &usable,
    const CurrencyDisplayOptions &displayAs, const banking::BankName &primary,
    const banking::BankAccountTypes &kind, const QString &accountName,
    const numira::Money &initialBalance, const BudgetWizardTemplates &selectedTemplate)
{
    // They belong to the user and stay also when the budget cannot be built.
    m_preferences.setPreferredCurrency(preferred);
    m_preferences.setUsableCurrencies(usable);
    m_preferences.setCurrenciesDisplayAs(displayAs);

    // With copies: the view that asked may let go of its answers once it hears
    // that the budget is new.
    const auto build = [=, this] {
        addWizardItems(selectedTemplate, preferred,
                       addWizardBank(primary, kind, accountName, initialBalance));
    };
    onConfirmedNewBudgetEmpty();
    if (LastFailure *last = LastFailure::of(*this))
        last->clear();
    try {
        build();
        // Once more: the first announcement emptied the views, this one lets
        // them ask for what was built.
        emit showNewBudget();
    } catch (const std::exception &error) {
        internal::logWarning("Failed to complete the first time wizard.", error);
        // A slot that refused has left the reason; what stands in for its answer
        // tells less.
        if (const LastFailure *last = LastFailure::of(*this); last && !last->failure())
            internal::keepFailure(*this, "Failed to complete the first time wizard.", error);
        onConfirmedNewBudgetEmpty();
    }
}

banking::BankAccount Navigator::addWizardBank(const banking::BankName &name,
                                              banking::BankAccountTypes kind,
                                              const QString &accountName,
                                              const numira::Money &initialBalance)
{
    const auto code = onAddedBankAccount(accountName, kind, initialBalance);
    if (!code)
        throw internal::faults::wizardBankAccountNotAdded(accountName);

    onBankAdded(banking::Bank(name, {{code->number(), kind}}, false));
    // The slot has told the views why; it answers nobody else.
    if (!m_budgetBankLedgers->banks().hasBank(name))
        throw internal::faults::wizardBankNotAdded(name);

    return {name, {code->number(), kind}};
}

void Navigator::addWizardItems(BudgetWizardTemplates selected, const numira::Currency &currency,
                               const banking::BankAccount &account)
{
    const auto generator = internal::makeBudgetItemGenerator(selected, currency);
    for (const auto &[item, isAtBank] : generator->generate()) {
        const budgeting::BudgetItemTypes type = budgeting::toBudgetItemTypes(*item);
        const auto bankAccount =
            isAtBank ? std::optional<banking::BankAccount>(account) : std::nullopt;
        const tagging::BudgetItemTags::ItemTags noTags({type, item->source()});
        if (!onAdded(GuiElementIdentifier(), type, *item, bankAccount, noTags))
            throw internal::faults::wizardItemNotAdded(type, item->source());
    }
}

} // namespace kiv::navigation
