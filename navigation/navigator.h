// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The Navigator's sources, by topic. Each group of slots below names its own.
//
//   navigator.cpp                construction, wiring, the rest of the object
//   navigator_budget_file.cpp    new, load, reload, save
//   navigator_wizard.cpp         the first-time wizard
//   navigator_budget_items.cpp   bills, debts, goals, non-tracked items, wages
//   navigator_accounts.cpp       accounts, banks and bank accounts
//   navigator_transactions.cpp   transactions, refunds and transfers
//   navigator_processing.cpp     items that are due
//   navigator_surveys.cpp        bank account surveys
//   navigator_settings.cpp       dashboard, exchange rates, configuration, releases

#include "navigation/allow_sub_accounts.h"
#include "navigation/bank_account_code.h"
#include "navigation/budget_bank_account.h"
#include "navigation/budget_wizard_templates.h"
#include "navigation/configuration.h"
#include "navigation/container_streams.h"
#include "navigation/currency_display.h"
#include "navigation/export.h"
#include "navigation/gui_element_identifier.h"
#include "navigation/user_preferences.h"

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
#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"
#include "tagging/budget_tag_manager.h"
#include "updating/release_information.h"
#include "updating/semantic_version.h"

#include <QtCore/QDate>
#include <QtCore/QObject>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace kiv::conversion {
class OpenExchangeRatesSource;
}
namespace kiv::networking {
class RequestManager;
class RequestSender;
} // namespace kiv::networking
namespace kiv::storage {
class BudgetStorage;
class ExchangeRatesStorage;
} // namespace kiv::storage

namespace kiv::navigation {

namespace internal {
class BudgetBankLedgers;
template <typename Name>
struct Answers;
template <typename Name>
struct AnsweredNames;
} // namespace internal

/// Stands between the views and one budget in memory, and owns both that budget
/// and all that is needed to keep it: storages, preferences, exchange rates.
///
/// A view calls a slot; the Navigator changes or reads the model and answers
/// with signals:
/// - slots named onPrepareShow… and onLookUp… change nothing; they answer with
///   one show… or lookedUp… signal that carries all that the view draws. What
///   they cannot answer leaves them as an exception;
/// - every other slot answers with a …Succeeded or …Failed signal for each
///   change. A failure carries a message for the user. It means that nothing was
///   changed, but for the exceptions that docs/domain.md lists.
///
/// A change that succeeded marks the budget as changed before it is announced,
/// and is announced when the model is whole again. So a view may call any slot,
/// onCheckIsBudgetFileDirty or another change, from inside its handler.
///
/// Wrong use is not answered with a signal: an unknown enumerator, or a bank
/// account for a kind of item that has none, leaves the slot as
/// std::logic_error, an item of another class than its type as std::bad_cast.
/// Loading and saving let the storages' errors out. A front end guards its event
/// loop's notify() against them and goes on; the budget in memory stays.
///
/// Everything runs on the thread that owns the Navigator. Create it after the
/// application object, and keep it until the application ends: the first one of
/// a process converts amounts for the whole process.
class KIV_NAVIGATION_EXPORT Navigator final : public QObject {
    Q_OBJECT

public:
    /// Starts with an empty budget and without a file, takes the last known
    /// exchange rates from their storage, and starts looking for new releases.
    /// Soon after the event loop runs it refreshes expired exchange rates and,
    /// when no preferences were ever stored, offers the first-time wizard.
    ///
    /// None of the three may be null. Rates that cannot be read are no error:
    /// a warning is logged, and conversions fail where they are needed.
    Navigator(kiv::foundation::UniqueQtPtr<kiv::networking::RequestSender> sender,
              std::unique_ptr<kiv::storage::BudgetStorage> budgetFiles,
              std::unique_ptr<kiv::storage::ExchangeRatesStorage> exchangeRates);
    ~Navigator() override;

    /// Forgets the budget in memory, the file and unsaved changes. Tags,
    /// preferences and exchange rates stay.
    void clear();

    /// Marks one side of a transaction as cleared, or both without an account.
    void markCleared(kiv::accounting::TransactionNumber tn,
                     std::optional<kiv::accounting::AccountNumber> account);
    /// Takes the reconciliation of both sides of a transaction back.
    void markUnreconciled(kiv::accounting::TransactionNumber tn);

Q_SIGNALS:
    // ---- budget items -------------------------------------------------------

    /// Answers onPrepareShowBills.
    void showBills(const kiv::budgeting::BillMap &bills, const numira::Currency &preferred,
                   const kiv::tagging::Tags &possibleTags,
                   const kiv::tagging::BudgetItemTags &associatedTags,
                   const std::set<numira::Currency> &usableCurrencies,
                   const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onPrepareShowDebts, with the bank accounts that debts are tied
    /// to.
    void showDebts(const kiv::budgeting::DebtMap &debts,
                   const std::set<kiv::navigation::BudgetBankAccount> &accounts,
                   const std::set<kiv::accounting::AccountCode> &codes,
                   const std::set<kiv::banking::BankName> &banks, const numira::Currency &preferred,
                   const kiv::tagging::Tags &possibleTags,
                   const kiv::tagging::BudgetItemTags &associatedTags,
                   const std::set<numira::Currency> &usableCurrencies,
                   const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onPrepareShowGoals, with the bank accounts that goals lie under
    /// and what all wages come to per month, in the preferred currency.
    void showGoals(const kiv::budgeting::GoalMap &goals,
                   const std::set<kiv::navigation::BudgetBankAccount> &accounts,
                   const std::set<kiv::accounting::AccountCode> &codes,
                   const std::set<kiv::banking::BankName> &banks, const numira::Currency &preferred,
                   const kiv::tagging::Tags &possibleTags,
                   const kiv::tagging::BudgetItemTags &associatedTags,
                   const std::set<numira::Currency> &usableCurrencies,
                   const kiv::navigation::CurrencyDisplayOptions &displayAs,
                   const numira::Money &wagesTotal);
    /// Answers onPrepareShowNontracks.
    void showNontracks(const kiv::budgeting::NontrackMap &nontracks,
                       const numira::Currency &preferred, const kiv::tagging::Tags &possibleTags,
                       const kiv::tagging::BudgetItemTags &associatedTags,
                       const std::set<numira::Currency> &usableCurrencies,
                       const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onPrepareShowWages.
    void showWages(const kiv::budgeting::WageMap &wages, const numira::Currency &preferred,
                   const kiv::tagging::Tags &possibleTags,
                   const kiv::tagging::BudgetItemTags &associatedTags,
                   const std::set<numira::Currency> &usableCurrencies,
                   const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// The change of a budget item for which `id` asked was made.
    void saveSucceeded(const kiv::navigation::GuiElementIdentifier &id,
                       const kiv::budgeting::BudgetSource &source);
    /// It was not: with the item's name as it was, and as it is displayed.
    void saveFailed(const kiv::navigation::GuiElementIdentifier &id,
                    const std::optional<kiv::budgeting::BudgetSource> &original,
                    const QString &errorMessage,
                    const std::optional<kiv::budgeting::BudgetSource> &displayed);

    // ---- accounts and transactions ------------------------------------------

    /// Answers onPrepareShowAccounts.
    void showAccounts(const std::set<kiv::accounting::Account> &accounts,
                      const std::set<numira::Currency> &usableCurrencies,
                      const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// The change of an account was made.
    void accountSaveSucceeded(const kiv::accounting::AccountCode &code);
    /// It was not: with the account's code as it was, and as it is displayed.
    void accountSaveFailed(const std::optional<kiv::accounting::AccountCode> &original,
                           const QString &errorMessage,
                           const std::optional<kiv::accounting::AccountCode> &displayed);
    /// Answers onPrepareShowLedgers.
    void showLedgers(const std::set<kiv::accounting::Account> &accounts,
                     const std::set<numira::Currency> &usableCurrencies,
                     const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onSelectedLedger.
    void showLedger(const kiv::accounting::LedgerAccount &ledger);
    /// The number by which the view knows the transaction, and the one under
    /// which it was posted.
    void
    transactionSaveSucceeded(const std::optional<kiv::accounting::TransactionNumber> &displayed,
                             const std::optional<kiv::accounting::TransactionNumber> &posted);
    /// The change of the transaction was not made.
    void transactionSaveFailed(const std::optional<kiv::accounting::TransactionNumber> &tn,
                               const QString &errorMessage);

    // ---- banks --------------------------------------------------------------

    /// Answers onPrepareShowBanks.
    void showBanks(const kiv::banking::BankMap &banks,
                   const std::set<kiv::accounting::Account> &allAccounts,
                   const std::set<numira::Currency> &usableCurrencies,
                   const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// The change of a bank was made.
    void bankSaveSucceeded(const kiv::banking::BankName &bn);
    /// It was not: with the bank's name as it was, and as it is displayed.
    void bankSaveFailed(const std::optional<kiv::banking::BankName> &original,
                        const QString &errorMessage,
                        const std::optional<kiv::banking::BankName> &displayed);
    /// The change of a bank's account was made.
    void bankAccountSaveSucceeded(const kiv::accounting::AccountCode &ac);
    /// It was not: with the account's code as it was, and as it is displayed.
    void bankAccountSaveFailed(const std::optional<kiv::accounting::AccountCode> &original,
                               const QString &errorMessage,
                               const std::optional<kiv::accounting::AccountCode> &displayed);

    // ---- processing and surveys ---------------------------------------------

    /// Answers onPrepareShowProcessBudgetItems.
    void showProcessBudgetItems(const std::chrono::days &dueWithin,
                                const std::vector<kiv::budgeting::BudgetItemAmountDue> &items,
                                const std::set<kiv::banking::BankName> &banks,
                                const numira::Currency &preferredCurrency,
                                const std::set<numira::Currency> &usableCurrencies,
                                const kiv::navigation::CurrencyDisplayOptions &displayAs,
                                const std::set<kiv::accounting::AccountCode> &codes);
    /// Answers onPrepareShowSurvey.
    void showSurvey(const std::set<kiv::banking::BankName> &banks,
                    const std::set<numira::Currency> &usable,
                    const kiv::navigation::CurrencyDisplayOptions &displayAs,
                    const kiv::foundation::Percentage &balanceWindow,
                    const std::set<kiv::accounting::AccountCode> &codes);
    /// Answers onLookUpBankAccounts.
    void lookedUpBankAccounts(const kiv::banking::BankName &bn,
                              const std::set<kiv::banking::AccountNumberBankType> &accountTypes);
    /// Answers onLookUpBudgetItemSources.
    void lookedUpBudgetItemSources(const kiv::budgeting::BudgetItemDueIdentifier &requestedBy,
                                   const std::set<kiv::budgeting::BudgetSource> &sources);
    /// The due item was posted, with the transaction's number, or skipped.
    void
    processBudgetItemSaveSucceeded(const kiv::budgeting::BudgetItemDueIdentifier &bidi,
                                   const std::optional<kiv::accounting::TransactionNumber> &txnNum);
    /// The due item was neither posted nor skipped.
    void processBudgetItemSaveFailed(const kiv::budgeting::BudgetItemDueIdentifier &bidi,
                                     const QString &errorMessage);

    // ---- budget file --------------------------------------------------------

    /// Asks whether unsaved changes may be given up for a new budget.
    void showConfirmNewBudget();
    /// The budget was emptied.
    void showNewBudget();
    /// Asks whether unsaved changes may be given up for what is in the file.
    void showConfirmLoadBudgetFile(const QString &filePathName);
    /// The budget is now the one of the file.
    void loadedBudgetFile(const QString &filePathName, bool isReloaded);
    /// Asks for a file name, since the budget has none.
    void showSaveAsBudgetFile();
    /// The budget is in the file as it is in memory.
    void savedBudgetFile(const QString &filePathName);
    /// There is no file to be reloaded.
    void showNoBudgetFileOpened();
    /// Answers onCheckIsBudgetFileDirty.
    void checkedIsBudgetFileDirty(bool isDirty);

    // ---- dashboard, rates, configuration ------------------------------------

    /// Answers onPrepareShowDashboard.
    void showDashboard(const kiv::budgeting::BudgetTotals &bt,
                       const std::vector<kiv::budgeting::BudgetItemAmountDue> &due,
                       const kiv::adviser::BudgetHealth &bh, const std::chrono::days &dueWithin,
                       const numira::Currency &preferred,
                       const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onPrepareShowExchangeRates.
    void showExchangeRates(const kiv::conversion::ConversionMap &currentConversions,
                           const std::set<numira::Currency> &currencies);
    /// Answers onFetchExchangeRates: the known rates with the fetched ones laid
    /// over them; the known ones alone when the fetch failed.
    void fetchedExchangeRates(const std::set<numira::Currency> &currencies,
                              const kiv::conversion::ConversionMap &conversions);
    /// Answers onPrepareShowConfigure, with the currencies that are in use.
    void showConfigure(const kiv::navigation::ConfigurationData &confData,
                       const std::set<numira::Currency> &used);
    /// The configuration was stored.
    void configureSaveSucceeded();
    /// The configuration was refused or could not be stored.
    void configureSaveFailed(const QString &errorMessage);

    // ---- surveys ------------------------------------------------------------

    /// Answers onLookUpLastReconciliation, with the account's currency.
    void lookedUpLastReconciliation(
        const numira::Currency &code,
        const std::optional<kiv::banking::ReconciledBalance> &reconciliation);
    /// Answers onGenerateMappingSurvey.
    void generatedMappingSurvey(const kiv::surveying::MappingSurvey &survey);
    /// The survey was recorded, and what it brought was posted.
    void completedSurveySucceeded();
    /// It was refused; docs/domain.md tells what may stay of it.
    void completedSurveyFailed(const QString &errorMessage);

    // ---- releases -----------------------------------------------------------

    /// Answers onFetchReleaseNotes, when the notes have arrived.
    void fetchedReleaseNotes(const std::set<kiv::updating::ReleaseInformation> &versions);
    /// There is a newer release. No further check is made before
    /// updateAvailableAcknowledged.
    void updateReleased(const kiv::updating::SemanticVersion &latest);

    // ---- transfers, refunds, wizard -----------------------------------------

    /// Answers onPrepareShowMoneyTransfer.
    void showMoneyTransfer(const std::set<kiv::navigation::BankAccountCode> &fromBanks,
                           const std::set<kiv::navigation::BankAccountCode> &toBanks,
                           const std::set<numira::Currency> &usableCurrencies,
                           const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onPrepareShowBudgetItemRefund.
    void showBudgetItemRefund(const std::set<numira::Currency> &codes,
                              const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// Answers onLookUpRefundableTransactions.
    void lookedUpRefundableTransactions(const kiv::budgeting::BudgetItemIdentifier &bii,
                                        const kiv::accounting::AccountCode &ac,
                                        const std::set<kiv::accounting::Transaction> &txns);
    /// Asks for the answers to the first-time wizard.
    void showNewBudgetFirstTimeWizard(const numira::Currency &preferred,
                                      const std::set<numira::Currency> &usable,
                                      const kiv::navigation::CurrencyDisplayOptions &displayAs);
    /// For the views to emit: the user has seen that there is a newer release,
    /// and checks may go on.
    void updateAvailableAcknowledged();

private Q_SLOTS:
    // ---- exchange rates: navigator_settings.cpp -----------------------------

    void updateAllExpiredExchangeRates();

public Q_SLOTS:
    // ---- budget items: navigator_budget_items.cpp ---------------------------

    /// Answers with showBills.
    void onPrepareShowBills();
    /// Answers with showDebts.
    void onPrepareShowDebts();
    /// Answers with showGoals.
    void onPrepareShowGoals();
    /// Answers with showNontracks.
    void onPrepareShowNontracks();
    /// Answers with showWages.
    void onPrepareShowWages();
    /// Answers true when the item was added. Only debts and goals take a bank
    /// account.
    bool onAdded(const kiv::navigation::GuiElementIdentifier &id,
                 const kiv::budgeting::BudgetItemTypes &type,
                 const kiv::budgeting::BudgetedMoney &item,
                 const std::optional<kiv::banking::BankAccount> &ba,
                 const kiv::tagging::BudgetItemTags::ItemTags &itemTags);
    /// Its success names the item as it was called before.
    void onRenamed(const kiv::navigation::GuiElementIdentifier &id,
                   const kiv::budgeting::BudgetItemTypes &type,
                   const kiv::budgeting::BudgetSource &original,
                   const kiv::budgeting::BudgetSource &changed);
    /// Replaces the item of this name; its bank account and its tags are replaced, too.
    void onUpdated(const kiv::navigation::GuiElementIdentifier &id,
                   const kiv::budgeting::BudgetItemTypes &type,
                   const kiv::budgeting::BudgetedMoney &item,
                   const std::optional<kiv::banking::BankAccount> &ba,
                   const kiv::tagging::BudgetItemTags::ItemTags &itemTags);
    /// Removes the item and its tags.
    void onRemoved(const kiv::navigation::GuiElementIdentifier &id,
                   const kiv::budgeting::BudgetItemTypes &type,
                   const kiv::budgeting::BudgetSource &source);

    // ---- accounts: navigator_accounts.cpp -----------------------------------

    /// Answers with showAccounts.
    void onPrepareShowAccounts();
    /// Opens the account with its balance as the opening balance.
    void onAddedAct(const kiv::accounting::Account &act);
    /// Its success carries the code before the change.
    void onRecoded(const kiv::accounting::AccountCode &current,
                   const kiv::accounting::AccountCode &changed);
    /// Closes the account.
    void onClosed(const kiv::accounting::AccountCode &code);
    /// Opens a closed account.
    void onOpened(const kiv::accounting::AccountCode &code);
    /// Removes the account, or the budget item of its name with its account.
    void onRemovedAct(const kiv::accounting::AccountCode &code);
    /// Answers with showLedgers.
    void onPrepareShowLedgers();
    /// Answers with showLedger for the account of this number.
    void onSelectedLedger(const kiv::accounting::AccountCode &code);

    // ---- transactions: navigator_transactions.cpp ---------------------------

    /// Posts the transaction; its success carries the new number.
    void onAddedTransaction(const kiv::accounting::Transaction &txn);
    /// Replaces the transaction of this number.
    void onUpdatedTransaction(const kiv::accounting::TransactionNumber &tn,
                              const kiv::accounting::Transaction &txn);
    /// Answers for each of them. Where one side is reconciled, the other alone
    /// is marked.
    void onMarkCleared(const std::set<kiv::accounting::TransactionNumber> &tns);
    /// Answers for each of them.
    void onMarkUnreconciled(const std::set<kiv::accounting::TransactionNumber> &tns);
    /// Marks both sides as reconciled.
    void onMarkReconciled(const kiv::accounting::TransactionNumber &tn);
    /// Removes the transaction.
    void onRemovedTransaction(const kiv::accounting::TransactionNumber &tn);

    // ---- banks: navigator_accounts.cpp --------------------------------------

    /// Answers with showBanks.
    void onPrepareShowBanks();
    /// Adds the bank with the accounts that it keeps.
    void onBankAdded(const kiv::banking::Bank &b);
    /// Replaces the accounts that the bank keeps.
    void onBankUpdated(const kiv::banking::Bank &b);
    /// Its success carries the new name.
    void onBankRenamed(const kiv::banking::BankName &original,
                       const kiv::banking::BankName &change);
    /// Closes the bank and its accounts.
    void onBankClosed(const kiv::banking::BankName &bn);
    /// Opens a closed bank, then its accounts in order.
    void onBankOpened(const kiv::banking::BankName &bn);
    /// Removes the bank with all of its accounts, or nothing.
    void onBankRemoved(const kiv::banking::BankName &bn);
    /// Opens a ledger account of the matching kind; it belongs to no bank yet.
    /// Answers with its code when it was added.
    std::optional<kiv::accounting::AccountCode>
    onAddedBankAccount(const QString &name, const kiv::banking::BankAccountTypes &type,
                       const numira::Money &openingBalance);
    /// Its success carries the new code.
    void onRenamedBankAccount(const kiv::accounting::AccountCode &original,
                              const kiv::accounting::AccountCode &changed);
    /// Removes the account from its bank and from the ledger.
    void onRemovedBankAccount(const kiv::accounting::AccountCode &ac);

    // ---- processing: navigator_processing.cpp, surveys: navigator_surveys.cpp

    /// Answers with showProcessBudgetItems.
    void onPrepareShowProcessBudgetItems();
    /// Answers with showSurvey.
    void onPrepareShowSurvey();
    /// Answers with lookedUpBankAccounts.
    void onLookUpBankAccounts(const kiv::banking::BankName &bn,
                              const kiv::navigation::AllowSubAccounts &shouldAllow);
    /// Answers with lookedUpBudgetItemSources.
    void onLookUpBudgetItemSources(const kiv::budgeting::BudgetItemDueIdentifier &requestedBy);
    /// Posts what is due from or to the account, and moves the item to its next date.
    void onPostBudgetItemPosted(const kiv::budgeting::BudgetItemAmountDue &bid,
                                const kiv::accounting::AccountCode &ac, const QDate &postOn);
    /// Posts an amount that was not expected; the item keeps its date.
    void onPostBudgetItemPostedUnexpected(const kiv::budgeting::BudgetItemDueIdentifier &bidi,
                                          const numira::Money &amount,
                                          const kiv::accounting::AccountCode &ac,
                                          const QDate &postOn);
    /// Moves the item to its next date and posts nothing.
    void onPostBudgetItemSkipped(const kiv::budgeting::BudgetItemDueIdentifier &bidi);

    // ---- budget file: navigator_budget_file.cpp -----------------------------

    /// Asks for confirmation only when something would be lost.
    void onPrepareNewBudgetEmpty();
    /// Empties the budget and answers with showNewBudget.
    void onConfirmedNewBudgetEmpty();
    /// Asks for confirmation whenever there are unsaved changes, even of an
    /// empty budget.
    void onLoadBudgetFile(const QString &filePathName);
    /// Lets a storage's error out. Then the budget in memory, its file and the
    /// mark of unsaved changes are as they were.
    void onConfirmedLoadBudgetFile(const QString &filePathName, const bool &isReloaded);
    /// Saves to the budget's file, or asks for one. Lets a storage's error out.
    void onSaveBudgetFile();
    /// Appends ".budget" to a name that does not end so. Lets a storage's error
    /// out; then the budget still counts as changed.
    void onSaveAsBudgetFile(const QString &filePathName);
    /// Gives unsaved changes up without asking. When the file cannot be read, an
    /// empty budget is left.
    void onReloadBudgetFile();
    /// Answers with checkedIsBudgetFileDirty.
    void onCheckIsBudgetFileDirty();

    // ---- dashboard, rates, configuration: navigator_settings.cpp ------------

    /// Answers with showDashboard.
    void onPrepareShowDashboard();
    /// Answers with showExchangeRates.
    void onPrepareShowExchangeRates();
    /// Waits for the answer of the service. Nothing is stored.
    void onFetchExchangeRates(const std::set<numira::Currency> &currencies);
    /// Converts with these rates from now on, and stores them.
    void onStoreExchangeRates(const kiv::conversion::ConversionMap &conversions);
    /// Answers with showConfigure.
    void onPrepareShowConfigure();
    /// Checks and stores the configuration.
    void onConfigureUpdated(const kiv::navigation::ConfigurationData &data);

    // ---- surveys: navigator_surveys.cpp -------------------------------------

    /// Answers with lookedUpLastReconciliation.
    void onLookUpLastReconciliation(const kiv::accounting::AccountNumber &an);
    /// Answers with generatedMappingSurvey.
    void onGenerateMappingSurvey(const kiv::banking::BankName &bn,
                                 const kiv::accounting::AccountNumber &an,
                                 const QDate &surveyingOn);
    /// Checks the survey, posts what it brought, marks what it ticked, and records it.
    void onCompletedSurvey(
        const QDate &completedOn, const kiv::banking::BankAccount &ba, const numira::Money &balance,
        const std::set<kiv::accounting::TransactionNumber> &allReconciled,
        const kiv::surveying::IndexedIncreaseDecreases<kiv::budgeting::BudgetItemIdentifier>
            &allAdded,
        const kiv::surveying::IndexedIncreaseDecreases<kiv::accounting::AccountNumber> &allExtra,
        const std::map<kiv::budgeting::BudgetItemIdentifier, kiv::surveying::DistributedAmount>
            &distributed,
        const numira::Money &nonDistributed);

    // ---- releases: navigator_settings.cpp -----------------------------------

    /// Asks for the list of releases; answers with fetchedReleaseNotes when it arrives.
    void onFetchReleaseNotes();

    // ---- transfers and refunds: navigator_transactions.cpp ------------------

    /// Answers with showMoneyTransfer.
    void onPrepareShowMoneyTransfer();
    /// Posts today's transaction with the accounts in this order: `from` is
    /// debited, and a debit raises an asset.
    void onTransferRequested(const kiv::accounting::AccountNumber &from,
                             const kiv::accounting::AccountNumber &to, const numira::Money &amount,
                             const QString &reason);
    /// Answers with showBudgetItemRefund.
    void onPrepareShowBudgetItemRefund();
    /// Answers with lookedUpRefundableTransactions.
    void onLookUpRefundableTransactions(const kiv::budgeting::BudgetItemIdentifier &bii);
    /// Does not mark the budget as changed.
    void onPostRefund(const kiv::accounting::TransactionNumber &txnNum,
                      const numira::Money &refund);

    // ---- first-time wizard: navigator_wizard.cpp ----------------------------

    /// Asks for confirmation only when something would be lost.
    void onPrepareNewBudgetFirstTimeWizard();
    /// Empties the budget and answers with showNewBudgetFirstTimeWizard.
    void onConfirmedNewBudgetFirstTimeWizard();
    /// Stores the three preferences, then builds the budget, which counts as
    /// changed. When any step of that fails, an empty budget is left.
    void onCompletedNewBudgetFirstTimeWizard(
        const numira::Currency &preferred, const std::set<numira::Currency> &usable,
        const kiv::navigation::CurrencyDisplayOptions &displayAs,
        const kiv::banking::BankName &primary, const kiv::banking::BankAccountTypes &kind,
        const QString &accountName, const numira::Money &initialBalance,
        const kiv::navigation::BudgetWizardTemplates &selectedTemplate);

private:
    /// Runs `operation`. When it throws an error of the class Caught, that is
    /// logged behind `sentence` and handed to `failure` as a text for the user.
    /// Tells whether it went well.
    template <typename Caught = foundation::Error, typename Operation, typename Failure>
    bool attempt(const char *sentence, Operation &&operation, Failure &&failure);

    /// The shape of all slots that change the budget: runs `operation`, marks
    /// the budget as changed and calls `success`, or else calls `failure`, as
    /// attempt() says. Tells whether the budget was changed.
    template <typename Caught = foundation::Error, typename Operation, typename Success,
              typename Failure>
    bool change(const char *sentence, Operation &&operation, Success &&success, Failure &&failure);

    /// change() for what has a name. `answers` are the two signals, `names` what they carry.
    template <typename Name, typename Operation>
    void changeNamed(const char *sentence, const internal::Answers<Name> &answers,
                     const internal::AnsweredNames<Name> &names, Operation &&operation);
    /// change() for a transaction, which is answered by its number.
    template <typename Operation>
    void changeTransaction(const char *sentence, const accounting::TransactionNumber &tn,
                           Operation &&operation);
    /// change() for an item that is due. `operation` gives the number of the posting, if any.
    template <typename Operation>
    void changeDue(const char *sentence, const budgeting::BudgetItemDueIdentifier &bidi,
                   Operation &&operation);

    void setUpMoneyLibrary();
    void initialiseConversions();
    void startUpdateNotifier();
    /// Waits for the service, and the event loop runs meanwhile: whoever calls
    /// this looks whether the Navigator is still there afterwards.
    conversion::ConversionMap fetchRates(const std::set<numira::Currency> &currencies);
    /// Adds the account and the bank that keeps it. Throws what stands in for
    /// the answers of the slots that refused.
    banking::BankAccount addWizardBank(const banking::BankName &name,
                                       banking::BankAccountTypes kind, const QString &accountName,
                                       const numira::Money &initialBalance);
    /// Adds the items of the starter budget. Throws when one is refused.
    void addWizardItems(BudgetWizardTemplates selected, const numira::Currency &currency,
                        const banking::BankAccount &account);

    std::optional<QString> m_budgetFile;
    bool m_isDirty = false;
    std::unique_ptr<internal::BudgetBankLedgers> m_budgetBankLedgers;
    UserPreferences m_preferences;
    foundation::QtPtr<networking::RequestManager> m_requestManager;
    foundation::QtPtr<conversion::OpenExchangeRatesSource> m_exchangeRatesSource;
    std::unique_ptr<storage::BudgetStorage> m_budgetStorage;
    std::unique_ptr<storage::ExchangeRatesStorage> m_exchangeRatesStorage;
    tagging::BudgetTagManager m_tagManager;
};

} // namespace kiv::navigation
