// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/starter_budget.h"

#include "workbench/internal/faults.h"
#include "workbench/requests/item_changes.h"
#include "workbench/requests/settings.h"

#include "budgeting/budgeted_money.h"
#include "foundation/clock.h"
#include "navigation/configuration.h"

namespace kiv::workbench {

using budgeting::BudgetedMoney;
using budgeting::EventFrequency;
using navigation::Navigator;

namespace {

/// The occurrences of the item, up to the first one after today.
BudgetedMoney upcoming(const StarterChoice &choice, QDate today)
{
    BudgetedMoney occurring(budgeting::BudgetSource(choice.name), numira::Money(), choice.every,
                            choice.day);
    while (occurring.nextOccurOn() <= today && occurring.period() != EventFrequency::None)
        occurring.updateNextOccurOn();
    return occurring;
}

/// The bank, its account and no items yet.
banking::BankAccount addBank(Requests &requests, const StarterAnswers &answers,
                             const navigation::ConfigurationData &preferences)
{
    const numira::Currency &preferred = preferences.preferredCurrency;
    const banking::BankName bank(answers.bank);
    const numira::Money balance =
        answers.balance ? answers.balance->in(preferred) : numira::Money(preferred);
    const auto run = [&] {
        requests.navigator().onCompletedNewBudgetFirstTimeWizard(
            preferred, preferences.usableCurrencies, preferences.currenciesDisplayAs, bank,
            answers.type, answers.account, balance, navigation::BudgetWizardTemplates::None);
    };
    const std::optional<navigation::Failure> failure = requests.failureOf(run);
    // It answers a failure with an empty budget, and success has made the bank.
    const banking::BankMap banks = requests.banks();
    if (!banks.hasBank(bank))
        throw internal::starterFailed(failure ? userText(*failure) : QString());
    const auto [number, type] = *banks.bank(bank).accounts().begin();
    return {bank, {number, type}};
}

void addStarterItem(Requests &requests, const StarterChoice &choice,
                    const banking::BankAccount &account, QDate today)
{
    const BudgetedMoney coming = upcoming(choice, today);
    ItemValues values;
    values.amount = choice.amount;
    values.every = choice.every;
    values.next = coming.nextOccurOn();
    values.dayOfMonth = coming.dayOfMonth();
    values.extra = choice.target;
    if (choice.isAtBank)
        values.bankAccount = account;
    const auto unknown = [] { return std::logic_error("An item of no kind cannot be added."); };
    try {
        budgeting::visitItemClass(
            choice.kind, unknown, [&]<typename Item>(std::type_identity<Item>) {
                (void)addItem<Item>(requests, navigation::GuiElementIdentifier(), choice.name,
                                    values, today, std::nullopt);
            });
    } catch (const Refusal &refusal) {
        throw internal::starterItemFailed(choice.kind, choice.name, refusal.message());
    }
}

} // namespace

std::vector<StarterChoice> starterChoices(navigation::BudgetWizardTemplates household)
{
    std::vector<StarterChoice> choices;
    // The currency is that of amounts which nobody sees.
    for (const navigation::StarterItem &item :
         navigation::starterItems(household, numira::Currency())) {
        choices.push_back(
            {item.id.type, item.id.source.name(), item.every, item.day, item.isAtBank});
    }
    return choices;
}

std::optional<QDate> comingDay(const StarterChoice &choice, QDate today)
{
    try {
        const QDate day = upcoming(choice, today).nextOccurOn();
        return day > today ? std::optional(day) : std::nullopt;
    } catch (const foundation::Error &) {
        return std::nullopt; // past the year 9999
    }
}

void fillIn(Requests &requests, const StarterAnswers &answers)
{
    const navigation::ConfigurationData former = presentSettings(requests);
    navigation::ConfigurationData preferences = former;
    if (answers.preferred)
        preferences.preferredCurrency = *answers.preferred;
    preferences.usableCurrencies.insert(preferences.preferredCurrency);
    // The Navigator stores them, too, but not before it knows the balance.
    storeCurrencies(preferences);
    auto back = qScopeGuard([&] {
        storeCurrencies(former);
        requests.navigator().onConfirmedNewBudgetEmpty();
    });
    const banking::BankAccount account = addBank(requests, answers, preferences);
    const QDate today = foundation::today();
    for (const StarterChoice &choice : answers.items) {
        if (choice.amount)
            addStarterItem(requests, choice, account, today);
    }
    back.dismiss();
}

} // namespace kiv::workbench
