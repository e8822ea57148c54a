// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/starter_budget.h"

#include "workbench/internal/faults.h"

#include "navigation/configuration.h"

namespace kiv::workbench {

using navigation::Navigator;

void fillIn(Requests &requests, const StarterAnswers &answers)
{
    const auto present = std::get<navigation::ConfigurationData>(
        requests.ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure));
    const numira::Currency preferred = answers.preferred.value_or(present.preferredCurrency);
    std::set<numira::Currency> usable = present.usableCurrencies;
    usable.insert(preferred);
    const numira::Money balance =
        answers.balance ? answers.balance->in(preferred) : numira::Money(preferred);
    const auto run = [&] {
        requests.navigator().onCompletedNewBudgetFirstTimeWizard(
            preferred, usable, present.currenciesDisplayAs, banking::BankName(answers.bank),
            answers.type, answers.account, balance, answers.household);
    };
    const std::optional<navigation::Failure> failure = requests.failureOf(run);
    // It answers a failure with an empty budget, and success has made the bank.
    if (requests.banks().isEmpty())
        throw internal::starterFailed(failure ? userText(*failure) : QString());
}

} // namespace kiv::workbench
