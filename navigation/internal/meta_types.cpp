// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/meta_types.h"

#include "navigation/internal/update_notifier.h"
#include "navigation/navigator.h"

namespace kiv::navigation::internal {

namespace {

template <typename... Types>
void registerAll()
{
    (qRegisterMetaType<Types>(), ...);
}

} // namespace

void registerMetaTypes()
{
    registerAll<Navigator, UpdateNotifier, AllowSubAccounts, BudgetWizardTemplates,
                ConfigurationData, CurrencyDisplayOptions, GuiElementIdentifier,
                std::set<BankAccountCode>, std::set<BudgetBankAccount>>();

    using namespace accounting;
    registerAll<Account, AccountCode, AccountNumber, LedgerAccount, Transaction, TransactionNumber,
                std::set<Account>, std::set<AccountCode>, std::set<Transaction>,
                std::set<TransactionNumber>, std::optional<AccountCode>,
                std::optional<TransactionNumber>>();

    using namespace banking;
    registerAll<Bank, BankAccount, BankAccountTypes, BankMap, BankName, std::set<BankName>,
                std::set<AccountNumberBankType>, std::optional<BankAccount>,
                std::optional<BankName>, std::optional<ReconciledBalance>>();

    using namespace budgeting;
    registerAll<BillMap, DebtMap, GoalMap, NontrackMap, WageMap, BudgetedMoney, BudgetItemTypes,
                BudgetItemIdentifier, BudgetItemDueIdentifier, BudgetItemAmountDue, BudgetSource,
                BudgetTotals, std::set<BudgetSource>, std::optional<BudgetSource>,
                std::vector<BudgetItemAmountDue>>();

    registerAll<tagging::Tags, tagging::BudgetItemTags, tagging::BudgetItemTags::ItemTags,
                conversion::ConversionMap, adviser::BudgetHealth, foundation::Percentage,
                surveying::MappingSurvey, surveying::IndexedIncreaseDecreases<BudgetItemIdentifier>,
                surveying::IndexedIncreaseDecreases<AccountNumber>,
                std::map<BudgetItemIdentifier, surveying::DistributedAmount>,
                updating::SemanticVersion, std::set<updating::ReleaseInformation>, numira::Currency,
                numira::Money, std::set<numira::Currency>, std::chrono::days,
                std::chrono::milliseconds>();

    // These go by another name in signals and slots than the compiler knows
    // them by.
    qRegisterMetaType<AllowSubAccounts>("kiv::navigation::AllowSubAccounts");
    qRegisterMetaType<std::chrono::days>("std::chrono::days");
    qRegisterMetaType<std::chrono::milliseconds>("std::chrono::milliseconds");
}

} // namespace kiv::navigation::internal
