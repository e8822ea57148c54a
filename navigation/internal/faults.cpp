// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/faults.h"

#include "foundation/presentation.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>

#include <array>

namespace kiv::navigation::internal::faults {
namespace {

/// The sentences that differ from one kind of item to the other, in the order
/// of BudgetItemTypes from Bill on. Only debts and goals know all of them.
struct ItemSentences {
    const char *codeWithoutItem;
    const char *cannotUpdateMissing;
    const char *cannotRemoveMissing;
    const char *cannotRemoveWithBalance = nullptr;
    const char *associationNotAdded = nullptr;
    const char *associationNotUpdated = nullptr;
};

constexpr std::array<ItemSentences, 5> itemSentences{{
    {QT_TRANSLATE_NOOP("QObject", "The budget does not have a bill source named '%1'."),
     QT_TRANSLATE_NOOP("QObject", "Cannot update a bill that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a bill that does not exist.")},
    {QT_TRANSLATE_NOOP("QObject", "The budget does not have a debt source named '%1'."),
     QT_TRANSLATE_NOOP("QObject", "Cannot update a debt that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a debt that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a debt that has a balance."),
     QT_TRANSLATE_NOOP("QObject", "Failure making the debt bank account association."),
     QT_TRANSLATE_NOOP("QObject", "Failure updating the debt bank account association.")},
    {QT_TRANSLATE_NOOP("QObject", "The budget does not have a goal source named '%1'."),
     QT_TRANSLATE_NOOP("QObject", "Cannot update a goal that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a goal that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a goal that has a balance."),
     QT_TRANSLATE_NOOP("QObject", "Failure making the goal bank account association."),
     QT_TRANSLATE_NOOP("QObject", "Failed to update the goal bank account association.")},
    {QT_TRANSLATE_NOOP("QObject", "The budget does not have a non-tracked source named '%1'."),
     QT_TRANSLATE_NOOP("QObject", "Cannot update a nontrack that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a nontrack that does not exist.")},
    {QT_TRANSLATE_NOOP("QObject", "The budget does not have a wage source named '%1'."),
     QT_TRANSLATE_NOOP("QObject", "Cannot update a wage that does not exist."),
     QT_TRANSLATE_NOOP("QObject", "Cannot remove a wage that does not exist.")},
}};

QString sentence(BudgetItemTypes type, const char *const ItemSentences::*which)
{
    return QObject::tr(itemSentences.at(static_cast<std::size_t>(type) - 1).*which);
}

int integer(BudgetItemTypes type)
{
    return static_cast<int>(type);
}

} // namespace

// ---- records -------------------------------------------------------------------

Error bankAccountIsNotAccount(AccountNumber bankAccount, const AccountCode &account)
{
    return Error(QObject::tr("The bank account number, %1, does not match the account code "
                             "number, %2.")
                     .arg(presentationText(bankAccount), presentationText(account)));
}

// ---- budget items and their accounts -------------------------------------------

Error codeOfUnknownType()
{
    return Error(QObject::tr("Unknown budget code type!"));
}

Error codeWithoutItem(BudgetItemTypes type, const BudgetSource &source)
{
    return Error(sentence(type, &ItemSentences::codeWithoutItem).arg(source.name()));
}

Error codeWithoutAccount(AccountNumber number)
{
    return Error(QObject::tr("The account ledger does not have an account number '%1'.")
                     .arg(presentationText(number)));
}

BudgetItemError cannotUpdateMissing(BudgetItemTypes type, const BudgetSource &source)
{
    return {source, sentence(type, &ItemSentences::cannotUpdateMissing)};
}

BudgetItemError cannotRemoveMissing(BudgetItemTypes type, const BudgetSource &source)
{
    return {source, sentence(type, &ItemSentences::cannotRemoveMissing)};
}

BudgetItemError cannotRemoveWithBalance(BudgetItemTypes type, const BudgetSource &source)
{
    return {source, sentence(type, &ItemSentences::cannotRemoveWithBalance)};
}

Error notBudgetedMoney(const BudgetItemIdentifier &id)
{
    return Error(QObject::tr("The budget item '%1' is not a known type that is a budget money!")
                     .arg(presentationText(id)));
}

std::logic_error itemTypeIsUnknown(BudgetItemTypes type)
{
    return std::logic_error(QObject::tr("The budget item type '%1' is not a known type.")
                                .arg(integer(type))
                                .toStdString());
}

BudgetItemError unexpectedOfUnknownType(const BudgetSource &source)
{
    return {source, QObject::tr("Cannot process unexpected budget item that has an unknown type.")};
}

BudgetItemError unexpectedWithoutAccount(const BudgetSource &source)
{
    return {source, QObject::tr("Failed to locate the unexpected budget item source to post.")};
}

std::logic_error unexpectedOfInvalidType()
{
    return std::logic_error(
        "The Budget Item Type is not implemented for processing unexpected budget items.");
}

BudgetItemError stillDistributed(const BudgetSource &source,
                                 const surveying::DistributedAmount &amount,
                                 const BankAccount &surveyed)
{
    return {source, QObject::tr("There is %1 distributed in the surveyed bank account %2. Empty "
                                "the distribution first before removing the budgeted item.")
                        .arg(presentationText(amount), presentationText(surveyed))};
}

std::logic_error invalidTypeForRemoval(BudgetItemTypes type)
{
    return std::logic_error("Invalid budget item ID type supplied for removal " +
                            std::to_string(integer(type)));
}

// ---- banks and their accounts --------------------------------------------------

BankError bankWithoutAccount(const BankName &bank)
{
    return {bank, QObject::tr("The account ledger number is not present in the general ledger.")};
}

BankError addedAccountIsMissing(const BankName &bank, AccountNumber number)
{
    return {bank, QObject::tr("Adding the account '%1' is not in the general ledger.")
                      .arg(presentationText(number))};
}

BankError addedTypeDoesNotFit(const BankName &bank, AccountNumber number, BankAccountTypes type)
{
    return {bank, QObject::tr("Invalid mapping between the account ledger '%1' and the bank "
                              "account type '%2' during bank creation.")
                      .arg(presentationText(number), presentationText(type))};
}

BankError bankDoesNotExist(const BankName &bank)
{
    return {bank, QObject::tr("The bank does not exist.")};
}

BankError accountNameIsTaken(const BankName &bank, const QString &name, const BankName &holder)
{
    return {bank, QObject::tr("The account name '%1' is already associated with the bank '%2'.")
                      .arg(name, holder.institution())};
}

BankError associatedAccountIsMissing(const BankName &bank, AccountNumber number)
{
    return {bank, QObject::tr("The general ledger does not have the account number '%1'.")
                      .arg(presentationText(number))};
}

BankError associatedTypeIsUnknown(const BankName &bank)
{
    return {bank, QObject::tr("The bank account type cannot be unknown.")};
}

BankError cannotDissociateFromMissingBank(const BankName &bank)
{
    return {bank, QObject::tr("Cannot remove a bank account when the bank does not exist.")};
}

BankError cannotDissociateMissing(const BankName &bank)
{
    return {bank, QObject::tr("Cannot remove a bank account when no association exists.")};
}

BankError cannotUpdateMissingBank(const BankName &bank)
{
    return {bank, QObject::tr("Cannot update when a bank by that name does not exist.")};
}

BankError cannotCloseByUpdate(const BankName &bank)
{
    return {bank, QObject::tr("Cannot close a bank via an update.")};
}

BankError updatedAccountIsMissing(const BankName &bank, AccountNumber number)
{
    return {bank, QObject::tr("Updating the account '%1' is not in the general ledger.")
                      .arg(presentationText(number))};
}

BankError updatedTypeDoesNotFit(const BankName &bank, AccountNumber number, BankAccountTypes type)
{
    return {bank, QObject::tr("Invalid mapping between the account ledger '%1' and the bank "
                              "account type '%2'.")
                      .arg(presentationText(number), presentationText(type))};
}

BankError cannotChangeAccountType(const BankName &bank)
{
    return {bank, QObject::tr("Cannot change the bank account type once set.")};
}

BankError cannotRemoveMissingBank(const BankName &bank)
{
    return {bank, QObject::tr("Cannot remove when a bank by that name does not exist.")};
}

BankError cannotRemoveClosedBank(const BankName &bank)
{
    return {bank, QObject::tr("Cannot remove when the bank is closed.")};
}

BankError cannotRemoveBankAccount(const BankName &bank, AccountNumber number)
{
    return {bank, QObject::tr("Cannot remove the bank as the account number '%1' cannot be "
                              "removed.")
                      .arg(presentationText(number))};
}

AccountError cannotRecodeUnassociated(AccountNumber number)
{
    return {AccountCode(number, std::nullopt),
            QObject::tr("Cannot recode a bank account when no association exists.")};
}

BankError cannotRecodeOntoAssociated(const BankName &bank, AccountNumber from, AccountNumber to)
{
    return {bank, QObject::tr("Cannot recode the account '%1' to the account '%2' as it is "
                              "already associated.")
                      .arg(presentationText(from), presentationText(to))};
}

// ---- the aggregate -------------------------------------------------------------

AccountError foundAccountNamedAsItem(const AccountCode &code)
{
    return {code, QObject::tr("Found an account code name that is the same name as a budget "
                              "item.")};
}

BudgetItemError itemNamedAsAccount(const BudgetSource &source)
{
    return {source,
            QObject::tr("The budget item has the same name as an existing ledger account.")};
}

AccountError accountNamedAsItem(const AccountCode &code)
{
    return {code, QObject::tr("The code name is the same name as an existing budget item.")};
}

BudgetItemError cannotProcessUnknownType(const BudgetSource &source)
{
    return {source, QObject::tr("Cannot process budget item due that has an unknown type.")};
}

BudgetItemError cannotSkipUnknownType(const BudgetSource &source)
{
    return {source, QObject::tr("Cannot skip a budget item when its type is not known.")};
}

BankError cannotLeaveParent(const BankName &bank)
{
    return {bank, QObject::tr("A bank account cannot have its parent account removed.")};
}

BankError parentIsNoBankAccount(const BankName &bank)
{
    return {
        bank,
        QObject::tr("A bank account cannot have its parent account changed to non-bank account.")};
}

BankError cannotMoveReconciled(const BankName &bank)
{
    return {bank, QObject::tr("Cannot change parent accounts of a bank account that has "
                              "transactions that have been reconciled.")};
}

std::logic_error bankAccountsOfUnknownType()
{
    return std::logic_error("An unknown budget item type was supplied when attempting to gather "
                            "the budget item bank accounts.");
}

BankError neverReconcilable(const AccountCode &account)
{
    return {BankName(), QObject::tr("Cannot get the last reconciliation amount, because no bank "
                                    "account is associated with the account '%1'.")
                            .arg(presentationText(account))};
}

BudgetItemError associationNotAdded(BudgetItemTypes type, const BudgetSource &source,
                                    const std::exception &cause)
{
    return {source, sentence(type, &ItemSentences::associationNotAdded), cause};
}

BudgetItemError associationNotUpdated(BudgetItemTypes type, const BudgetSource &source,
                                      const std::exception &cause)
{
    return {source, sentence(type, &ItemSentences::associationNotUpdated), cause};
}

BankError debtTakesNoAccount(const BankName &bank)
{
    return {bank, QObject::tr("The bank account cannot be set directly when updating a debt.")};
}

AccountError goalNeedsAccount(const AccountCode &goal)
{
    return {goal, QObject::tr("A goal must have an account to store under a bank account.")};
}

AccountError goalIsReconciled(const AccountCode &goal)
{
    return {goal, QObject::tr("Cannot change a goal’s bank account once it has been reconciled.")};
}

// ---- surveys -------------------------------------------------------------------

BankError surveyedBankDoesNotExist(const BankName &bank)
{
    return {bank, QObject::tr("Cannot perform a mapping survey upon a bank that does not exist.")};
}

AccountError surveyedAccountDoesNotExist(AccountNumber number)
{
    return {AccountCode(number, std::nullopt),
            QObject::tr("Cannot perform a mapping survey upon an account that does not exist.")};
}

AccountError surveyedBankAccountDoesNotExist(AccountNumber number)
{
    return {AccountCode(number, std::nullopt),
            QObject::tr("Cannot map a survey for a bank account that does not exist.")};
}

SurveyError surveyInFuture(const BankAccount &account, const QDate &date)
{
    return {account, QObject::tr("Cannot perform a mapping survey for a future date, %1.")
                         .arg(foundation::presentationText(date))};
}

SurveyError surveyedAccountNotInvolved(const BankAccount &account,
                                       const accounting::Transaction &transaction)
{
    return {account,
            QObject::tr("Failed to determine the bank account involved in the additional "
                        "transaction %1.")
                .arg(presentationText(transaction.number().value_or(TransactionNumber())))};
}

SurveyError tickedElsewhere(const BankAccount &account, TransactionNumber number)
{
    return {account, QObject::tr("The transaction %1 is not in the bank account ledger nor one of "
                                 "its children.")
                         .arg(presentationText(number))};
}

SurveyError tickedAfterSurvey(const BankAccount &account, TransactionNumber number,
                              const QDate &postedOn, const QDate &surveyedOn)
{
    return {account, QObject::tr("The posting date for transaction %1 is %2 which is after the "
                                 "survey date, %3.")
                         .arg(presentationText(number), foundation::presentationText(postedOn),
                              foundation::presentationText(surveyedOn))};
}

SurveyError surveyedTypeUnknown(const BankAccount &account)
{
    return {account,
            QObject::tr("The surveying bank account is neither an asset nor a liability!")};
}

SurveyError balanceOutsideWindow(const BankAccount &account, const numira::Money &calculated,
                                 const foundation::Percentage &window, const numira::Money &balance)
{
    return {account, QObject::tr("The calculated budget item transaction total, '%1', must be "
                                 "within %2 of the reconciled current balance, '%3'.")
                         .arg(foundation::presentationText(calculated), presentationText(window),
                              foundation::presentationText(balance))};
}

SurveyError cannotBeDistributed(const BankAccount &account, const BudgetItemIdentifier &id)
{
    return {account,
            QObject::tr("The budget item %1 cannot be distributed.").arg(presentationText(id))};
}

SurveyError goalDistributedByHand(const BankAccount &account, const BudgetItemIdentifier &goal)
{
    return {account, QObject::tr("Cannot manually distribute into the goal '%1'.")
                         .arg(presentationText(goal.source))};
}

SurveyError changedItemHasNoAccount(const BankAccount &account, const BudgetItemIdentifier &id)
{
    return {account, QObject::tr("The budget item '%1' has no account code associated with it.")
                         .arg(presentationText(id))};
}

accounting::TransactionError reconciledTransactionMissing(TransactionNumber number)
{
    return {number,
            QObject::tr("Failed to locate the reconciled transaction to determine its kind!")};
}

} // namespace kiv::navigation::internal::faults
