// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/faults.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::accounting::internal {

using foundation::presentationText;

AccountError accountNotFound(AccountNumber number)
{
    return {AccountCode(number, std::nullopt),
            QObject::tr("There is no account with the number %1.").arg(presentationText(number))};
}

AccountError accountNumberInvalid(const AccountCode &code)
{
    return {code,
            QObject::tr("The account '%1' needs a number above 0.").arg(presentationText(code))};
}

AccountError accountNumberTaken(const AccountCode &code, const AccountCode &holder)
{
    return {code, QObject::tr("The account '%1' cannot have the number of the account '%2'.")
                      .arg(presentationText(code), presentationText(holder))};
}

AccountError accountTypeUnknown(const AccountCode &code)
{
    return {code, QObject::tr("The account '%1' needs a type.").arg(presentationText(code))};
}

AccountError parentNotFound(const AccountCode &code)
{
    return {code,
            QObject::tr("The account '%1' cannot stand under the account %2, which does not exist.")
                .arg(presentationText(code),
                     presentationText(code.parent().value_or(AccountNumber())))};
}

AccountError parentOfOtherType(const AccountCode &code, AccountTypes type,
                               const AccountCode &parent, AccountTypes parentType)
{
    return {code, QObject::tr("The account '%1' of type %2 cannot stand under the account '%3' of "
                              "type %4.")
                      .arg(presentationText(code), presentationText(type), presentationText(parent),
                           presentationText(parentType))};
}

AccountError parentBelowItself(const AccountCode &code, const AccountCode &parent)
{
    return {code, QObject::tr("The account '%1' cannot stand under the account '%2', which is the "
                              "same account or stands under it.")
                      .arg(presentationText(code), presentationText(parent))};
}

AccountError accountTooDeep(const AccountCode &code, const AccountCode &parent)
{
    return {code, QObject::tr("The account '%1' cannot stand under the account '%2': accounts can "
                              "be nested at most %3 deep.")
                      .arg(presentationText(code), presentationText(parent),
                           QString::number(accountDepthMax))};
}

AccountError accountIsOpen(const AccountCode &code)
{
    return {code, QObject::tr("The account '%1' is open already.").arg(presentationText(code))};
}

AccountError accountIsClosed(const AccountCode &code)
{
    return {code, QObject::tr("The account '%1' is closed.").arg(presentationText(code))};
}

AccountError closingWithBalance(const AccountCode &code, const numira::Money &balance)
{
    return {code, QObject::tr("The account '%1' cannot be closed while its balance is %2.")
                      .arg(presentationText(code), presentationText(balance))};
}

AccountError accountHasChildren(const AccountCode &code)
{
    return {code, QObject::tr("The account '%1' cannot be removed while accounts stand under it.")
                      .arg(presentationText(code))};
}

AccountError accountHasTransactions(const AccountCode &code)
{
    return {code, QObject::tr("The account '%1' cannot be removed while it has transactions.")
                      .arg(presentationText(code))};
}

AccountError openingIsReconciled(const AccountCode &code, TransactionNumber opening)
{
    return {
        code,
        QObject::tr(
            "The account '%1' cannot be removed while its opening transaction %2 is reconciled.")
            .arg(presentationText(code), presentationText(opening))};
}

AccountError balanceOutOfRange(const AccountCode &code, const std::exception &cause)
{
    return {code,
            QObject::tr("The amounts of the account '%1' would become too large.")
                .arg(presentationText(code)),
            cause};
}

AccountError notRestated(const AccountCode &code, const numira::Currency &currency,
                         TransactionNumber number, const std::exception &cause)
{
    return {code,
            QObject::tr("The account '%1' cannot be kept in %2, as the amount of its transaction "
                        "%3 cannot be converted.")
                .arg(presentationText(code), presentationText(currency), presentationText(number)),
            cause};
}

AccountError restatedToNothing(const AccountCode &code, const numira::Currency &currency,
                               TransactionNumber number, const numira::Money &amount)
{
    return {code, QObject::tr("The account '%1' cannot be kept in %2: the %3 of its transaction %4 "
                              "would round to zero.")
                      .arg(presentationText(code), presentationText(currency),
                           presentationText(amount), presentationText(number))};
}

AccountError openingsOutsideEquity(const AccountCode &code, AccountTypes type)
{
    return {code, QObject::tr("The account '%1' of type %2 cannot hold opening balances.")
                      .arg(presentationText(code), presentationText(type))};
}

AccountError alreadyHasOpening(const AccountCode &code, TransactionNumber opening)
{
    return {code, QObject::tr("The account '%1' was opened by the transaction %2 already.")
                      .arg(presentationText(code), presentationText(opening))};
}

AccountError balanceNotAdjusted(const AccountCode &code, const numira::Money &balance,
                                const numira::Money &amount, const std::exception &cause)
{
    return {code,
            QObject::tr("The balance %1 of the account '%2' cannot be changed by %3.")
                .arg(presentationText(balance), presentationText(code), presentationText(amount)),
            cause};
}

foundation::Error notComparable(const numira::Money &calculated, const numira::Money &reference,
                                const std::exception &cause)
{
    return {QObject::tr("The amounts %1 and %2 cannot be compared.")
                .arg(presentationText(calculated), presentationText(reference)),
            cause};
}

TransactionError transactionNotFound(TransactionNumber number)
{
    return {
        number,
        QObject::tr("There is no transaction with the number %1.").arg(presentationText(number))};
}

TransactionError dayInvalid(TransactionNumber number)
{
    return {number, QObject::tr("A transaction needs a valid day.")};
}

TransactionError amountNotPositive(TransactionNumber number, const numira::Money &amount)
{
    return {number, QObject::tr("The amount of a transaction must be above zero, but is %1.")
                        .arg(presentationText(amount))};
}

TransactionError accountsAreTheSame(TransactionNumber number, const AccountCode &account)
{
    return {number, QObject::tr("A transaction cannot debit and credit the same account '%1'.")
                        .arg(presentationText(account))};
}

TransactionError notConverted(TransactionNumber number, const numira::Money &amount,
                              const numira::Currency &currency, const std::exception &cause)
{
    return {number,
            QObject::tr("The amount %1 cannot be converted into %2.")
                .arg(presentationText(amount), presentationText(currency)),
            cause};
}

TransactionError comesToNothing(TransactionNumber number, const numira::Money &amount,
                                const numira::Currency &currency)
{
    return {number, QObject::tr("The amount %1 rounds to zero in %2.")
                        .arg(presentationText(amount), presentationText(currency))};
}

TransactionError ledgerIsFull()
{
    return {TransactionNumber(), QObject::tr("The ledger is full: it holds at most 65,535 "
                                             "transactions.")};
}

TransactionError sideIsReconciled(TransactionNumber number)
{
    return {number,
            QObject::tr(
                "The transaction %1 is reconciled; undo its reconciliation before you change it.")
                .arg(presentationText(number))};
}

TransactionError accountNotInvolved(TransactionNumber number, AccountNumber account)
{
    return {number, QObject::tr("The account %1 is not part of the transaction %2.")
                        .arg(presentationText(account), presentationText(number))};
}

TransactionError openingKeepsAccount(TransactionNumber number, const AccountCode &account)
{
    return {number, QObject::tr("The transaction %1 opened the account '%2' and must stay in it.")
                        .arg(presentationText(number), presentationText(account))};
}

TransactionError refundOfRefund(TransactionNumber number, TransactionNumber original)
{
    return {number, QObject::tr("The transaction %1 is a refund of the transaction %2 and cannot "
                                "be refunded itself.")
                        .arg(presentationText(number), presentationText(original))};
}

TransactionError refundTooLarge(TransactionNumber original, const numira::Money &refund,
                                const numira::Money &left)
{
    return {original,
            QObject::tr("A refund of %1 exceeds the %2 that are left of the transaction "
                        "%3.")
                .arg(presentationText(refund), presentationText(left), presentationText(original))};
}

TransactionError belowItsRefunds(TransactionNumber number, const numira::Money &amount,
                                 const numira::Money &refunded)
{
    return {number, QObject::tr("The transaction %1 cannot be lowered to %2, as %3 of it were "
                                "refunded.")
                        .arg(presentationText(number), presentationText(amount),
                             presentationText(refunded))};
}

TransactionError accountsHeldByRefund(TransactionNumber number)
{
    return {number, QObject::tr("The accounts of the transaction %1 cannot be changed, as it is a "
                                "refund or was refunded.")
                        .arg(presentationText(number))};
}

TransactionError currencyHeldByRefunds(TransactionNumber number, const numira::Currency &currency)
{
    return {number, QObject::tr("The amount of the transaction %1 must stay in %2, in which it was "
                                "refunded.")
                        .arg(presentationText(number), presentationText(currency))};
}

TransactionError hasRefunds(TransactionNumber number, const numira::Money &refunded)
{
    return {number, QObject::tr("The transaction %1 cannot be removed, as %2 of it were refunded.")
                        .arg(presentationText(number), presentationText(refunded))};
}

TransactionError numberMissing()
{
    return {TransactionNumber(), QObject::tr("A stored transaction has no number.")};
}

TransactionError numberTaken(TransactionNumber number)
{
    return {number,
            QObject::tr("Two transactions have the number %1.").arg(presentationText(number))};
}

TransactionError sideAmountWrong(TransactionNumber number, const numira::Money &amount,
                                 const AccountCode &account)
{
    return {number, QObject::tr("The transaction %1 cannot have the amount %2 in the account '%3'.")
                        .arg(presentationText(number), presentationText(amount),
                             presentationText(account))};
}

TransactionError notARefundOf(TransactionNumber number, TransactionNumber original)
{
    return {number, QObject::tr("The transaction %1 cannot be a refund of the transaction %2.")
                        .arg(presentationText(number), presentationText(original))};
}

TransactionError notAnOpening(TransactionNumber number, const AccountCode &account)
{
    return {number, QObject::tr("The transaction %1 cannot have opened the account '%2'.")
                        .arg(presentationText(number), presentationText(account))};
}

} // namespace kiv::accounting::internal
