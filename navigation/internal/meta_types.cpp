// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/meta_types.h"

#include "accounting/account.h"
#include "accounting/transaction.h"
#include "adviser/budget_health.h"
#include "banking/bank_map.h"
#include "budgeting/budget_totals.h"
#include "budgeting/due.h"
#include "conversion/conversion_map.h"
#include "foundation/error.h"
#include "foundation/percentage.h"
#include "foundation/qt_ptr.h"
#include "navigation/allow_sub_accounts.h"
#include "navigation/bank_account_code.h"
#include "navigation/budget_bank_account.h"
#include "navigation/budget_wizard_templates.h"
#include "navigation/configuration.h"
#include "navigation/container_streams.h"
#include "navigation/currency_display.h"
#include "navigation/gui_element_identifier.h"
#include "navigation/internal/update_notifier.h"
#include "navigation/user_preferences.h"
#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"
#include "tagging/budget_tag_manager.h"
#include "updating/release_information.h"
#include "updating/semantic_version.h"

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
    registerAll<UpdateNotifier, AllowSubAccounts, BudgetWizardTemplates, ConfigurationData,
                CurrencyDisplayOptions, GuiElementIdentifier, std::set<BankAccountCode>,
                std::set<BudgetBankAccount>>();

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

    // In signals and slots these have other names than for the compiler.
    qRegisterMetaType<AllowSubAccounts>("kiv::navigation::AllowSubAccounts");
    qRegisterMetaType<std::chrono::days>("std::chrono::days");
    qRegisterMetaType<std::chrono::milliseconds>("std::chrono::milliseconds");
}

} // namespace kiv::navigation::internal
