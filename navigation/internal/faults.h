// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "accounting/errors.h"
#include "accounting/transaction.h"
#include "banking/bank_account.h"
#include "banking/errors.h"
#include "budgeting/errors.h"
#include "foundation/percentage.h"
#include "surveying/distributed_amount.h"
#include "surveying/errors.h"

#include <stdexcept>

// The faults stand in two sources:
//   faults.cpp           records, ledgers, the aggregate, surveys
//   faults_of_slots.cpp  the Navigator's slots, settings, starter budgets

/// Every sentence with which the navigation layer refuses something: one function each, which
/// gives the exception to throw. A std::logic_error is a mistake of the calling program.
namespace kiv::navigation::internal::faults {

using accounting::AccountCode;
using accounting::AccountError;
using accounting::AccountNumber;
using accounting::TransactionNumber;
using banking::BankAccount;
using banking::BankAccountTypes;
using banking::BankError;
using banking::BankName;
using budgeting::BudgetItemError;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;
using foundation::Error;
using surveying::SurveyError;

// ---- records -------------------------------------------------------------------

Error bankAccountIsNotAccount(AccountNumber bankAccount, const AccountCode &account);

// ---- budget items and their accounts -------------------------------------------

Error codeOfUnknownType();
Error codeWithoutItem(BudgetItemTypes type, const BudgetSource &source);
Error codeWithoutAccount(AccountNumber number);
KIV_NAVIGATION_EXPORT BudgetItemError cannotUpdateMissing(BudgetItemTypes type,
                                                          const BudgetSource &source);
KIV_NAVIGATION_EXPORT BudgetItemError cannotRemoveMissing(BudgetItemTypes type,
                                                          const BudgetSource &source);
KIV_NAVIGATION_EXPORT BudgetItemError cannotRemoveWithBalance(BudgetItemTypes type,
                                                              const BudgetSource &source);
Error notBudgetedMoney(const BudgetItemIdentifier &id);
std::logic_error itemTypeIsUnknown(BudgetItemTypes type);

BudgetItemError unexpectedOfUnknownType(const BudgetSource &source);
BudgetItemError unexpectedWithoutAccount(const BudgetSource &source);
std::logic_error unexpectedOfInvalidType();

BudgetItemError stillDistributed(const BudgetSource &source,
                                 const surveying::DistributedAmount &amount,
                                 const BankAccount &surveyed);
std::logic_error invalidTypeForRemoval(BudgetItemTypes type);

// ---- banks and their accounts --------------------------------------------------

BankError bankWithoutAccount(const BankName &bank);
BankError addedAccountIsMissing(const BankName &bank, AccountNumber number);
BankError addedTypeDoesNotFit(const BankName &bank, AccountNumber number, BankAccountTypes type);
BankError bankDoesNotExist(const BankName &bank);
BankError accountNameIsTaken(const BankName &bank, const QString &name, const BankName &holder);
BankError associatedAccountIsMissing(const BankName &bank, AccountNumber number);
BankError associatedTypeIsUnknown(const BankName &bank);
BankError cannotDissociateFromMissingBank(const BankName &bank);
BankError cannotDissociateMissing(const BankName &bank);
BankError cannotUpdateMissingBank(const BankName &bank);
BankError cannotCloseByUpdate(const BankName &bank);
BankError updatedAccountIsMissing(const BankName &bank, AccountNumber number);
BankError updatedTypeDoesNotFit(const BankName &bank, AccountNumber number, BankAccountTypes type);
BankError cannotChangeAccountType(const BankName &bank);
BankError cannotRemoveMissingBank(const BankName &bank);
BankError cannotRemoveClosedBank(const BankName &bank);
BankError cannotRemoveBankAccount(const BankName &bank, AccountNumber number);
AccountError cannotRecodeUnassociated(AccountNumber number);
BankError cannotRecodeOntoAssociated(const BankName &bank, AccountNumber from, AccountNumber to);

// ---- the aggregate -------------------------------------------------------------

AccountError foundAccountNamedAsItem(const AccountCode &code);
BudgetItemError itemNamedAsAccount(const BudgetSource &source);
AccountError accountNamedAsItem(const AccountCode &code);
BudgetItemError cannotProcessUnknownType(const BudgetSource &source);
BudgetItemError cannotSkipUnknownType(const BudgetSource &source);

BankError cannotLeaveParent(const BankName &bank);
BankError parentIsNoBankAccount(const BankName &bank);
BankError cannotMoveReconciled(const BankName &bank);
std::logic_error bankAccountsOfUnknownType();
BankError neverReconcilable(const AccountCode &account);

/// `type` is Debt or Goal.
BudgetItemError associationNotAdded(BudgetItemTypes type, const BudgetSource &source,
                                    const std::exception &cause);
BudgetItemError associationNotUpdated(BudgetItemTypes type, const BudgetSource &source,
                                      const std::exception &cause);
BankError debtTakesNoAccount(const BankName &bank);
AccountError goalNeedsAccount(const AccountCode &goal);
AccountError goalIsReconciled(const AccountCode &goal);

// ---- surveys -------------------------------------------------------------------

BankError surveyedBankDoesNotExist(const BankName &bank);
AccountError surveyedAccountDoesNotExist(AccountNumber number);
AccountError surveyedBankAccountDoesNotExist(AccountNumber number);
SurveyError surveyInFuture(const BankAccount &account, const QDate &date);
SurveyError surveyedAccountNotInvolved(const BankAccount &account,
                                       const accounting::Transaction &transaction);

SurveyError tickedElsewhere(const BankAccount &account, TransactionNumber number);
SurveyError tickedAfterSurvey(const BankAccount &account, TransactionNumber number,
                              const QDate &postedOn, const QDate &surveyedOn);
SurveyError surveyedTypeUnknown(const BankAccount &account);
SurveyError balanceOutsideWindow(const BankAccount &account, const numira::Money &calculated,
                                 const foundation::Percentage &window,
                                 const numira::Money &balance);
SurveyError cannotBeDistributed(const BankAccount &account, const BudgetItemIdentifier &id);
SurveyError goalDistributedByHand(const BankAccount &account, const BudgetItemIdentifier &goal);
SurveyError changedItemHasNoAccount(const BankAccount &account, const BudgetItemIdentifier &id);
accounting::TransactionError reconciledTransactionMissing(TransactionNumber number);

// ---- slots -----------------------------------------------------------------------

Error converterGone();
Error tagsOfOtherType();
Error tagsOfOtherSource();
/// `word` names the kind, as in ItemTraits; `verb` is "add" or "update".
std::logic_error takesNoBankAccount(const char *word, const char *verb);
std::logic_error unknownTypeToAdd();
std::logic_error unknownTypeToUpdate();
std::logic_error unknownTypeToRename();
std::logic_error unknownTypeToLookUp();

Error wizardBankAccountNotAdded(const QString &account);
Error wizardBankNotAdded(const BankName &bank);
Error wizardItemNotAdded(BudgetItemTypes type, const BudgetSource &source);

// ---- settings --------------------------------------------------------------------

Error workHoursOutOfRange();
Error workDaysOutOfRange();
/// `codes` are joined by "', '".
Error currenciesInUse(const QString &codes);
Error notifyDueWithinOutOfRange();
Error surveyWindowOutOfRange();
/// For the log.
std::runtime_error notAListOfTexts();

std::logic_error unknownStrongValue(const QString &value, const QString &target);
std::logic_error unknownWeakValue(const QString &value, const QString &target);
std::logic_error unknownWayToDisplayCurrency();
std::logic_error unknownWayCurrencyWasDisplayed();
std::logic_error unknownCurrencySymbol();

// ---- starter budgets -------------------------------------------------------------

std::logic_error noStarterBudget();
std::logic_error unknownStarterItem();

} // namespace kiv::navigation::internal::faults
