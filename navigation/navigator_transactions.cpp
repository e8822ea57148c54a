// SPDX-License-Identifier: GPL-3.0-or-later
// Transactions, refunds and transfers.
#include "navigation/internal/navigator_change.h"

#include "accounting/general_ledger.h"

namespace kiv::navigation {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using internal::tell;

namespace {

constexpr const char *markClearedFailed = "Failed to mark a transaction as cleared.";

/// The only side that may still be marked when the other one is reconciled;
/// nothing when that is true of both or of neither.
std::optional<AccountNumber> onlySideToClear(const Transaction &transaction)
{
    constexpr auto reconciled = accounting::TransactionStatuses::Reconciled;
    const bool isCreditReconciled = transaction.creditStatus() == reconciled;
    const bool isDebitReconciled = transaction.debitStatus() == reconciled;
    if (isCreditReconciled == isDebitReconciled)
        return std::nullopt;
    return isCreditReconciled ? transaction.debiting().number() : transaction.crediting().number();
}

} // namespace

// ---- transactions ------------------------------------------------------------

void Navigator::onAddedTransaction(const Transaction &txn)
{
    TransactionNumber posted;
    change(
        "Failed to add a transaction.", [&] { posted = m_budgetBankLedgers->post(txn); },
        [&] { tell(this, &Navigator::transactionSaveSucceeded, txn.number(), posted); },
        [&](const QString &why) {
            tell(this, &Navigator::transactionSaveFailed, txn.number(), why);
        });
}

void Navigator::onUpdatedTransaction(const TransactionNumber &tn, const Transaction &txn)
{
    changeTransaction("Failed to update a transaction.", tn,
                      [&] { m_budgetBankLedgers->repost(tn, txn); });
}

void Navigator::onMarkCleared(const std::set<TransactionNumber> &tns)
{
    // A view may change its own set while it hears the answers.
    for (const TransactionNumber tn : std::set<TransactionNumber>(tns)) {
        std::optional<AccountNumber> side;
        const bool isFound = attempt(
            markClearedFailed,
            [&] {
                // An unknown transaction is left for the ledger to refuse.
                if (const auto found = m_budgetBankLedgers->generalLedger().lookUpTransaction(tn))
                    side = onlySideToClear(*found);
            },
            [&](const QString &why) { tell(this, &Navigator::transactionSaveFailed, tn, why); });
        if (isFound)
            markCleared(tn, side);
    }
}

void Navigator::onMarkUnreconciled(const std::set<TransactionNumber> &tns)
{
    for (const TransactionNumber tn : std::set<TransactionNumber>(tns))
        markUnreconciled(tn);
}

void Navigator::onMarkReconciled(const TransactionNumber &tn)
{
    changeTransaction("Failed to mark a transaction as reconciled.", tn,
                      [&] { m_budgetBankLedgers->reconcile(tn); });
}

void Navigator::onRemovedTransaction(const TransactionNumber &tn)
{
    changeTransaction("Failed to remove a transaction.", tn,
                      [&] { m_budgetBankLedgers->remove(tn); });
}

void Navigator::markCleared(TransactionNumber tn, std::optional<AccountNumber> account)
{
    changeTransaction(markClearedFailed, tn, [&] { m_budgetBankLedgers->clear(tn, account); });
}

void Navigator::markUnreconciled(TransactionNumber tn)
{
    // The sentence of clearing, on purpose: a transaction that is not reconciled any more counts
    // as cleared at most. Who searches the log for clearing that failed finds both.
    changeTransaction(markClearedFailed, tn, [&] { m_budgetBankLedgers->unreconcile(tn); });
}

// ---- transfers ---------------------------------------------------------------

void Navigator::onPrepareShowMoneyTransfer()
{
    // Money may leave any asset account, but only arrive in one of its own: what
    // lies in a sub-account is set aside, and goes there by processing its goal.
    std::set<BankAccountCode> fromBanks;
    std::set<BankAccountCode> toBanks;
    for (const BankAccountCode &account : m_budgetBankLedgers->bankAccounts()) {
        if (!banking::isAssetAccount(account.supportedAccountType()))
            continue;
        fromBanks.insert(account);
        if (!account.account().parent())
            toBanks.insert(account);
    }
    emit showMoneyTransfer(fromBanks, toBanks, m_preferences.usableCurrencies(),
                           m_preferences.currenciesDisplayAs());
}

void Navigator::onTransferRequested(const AccountNumber &from, const AccountNumber &to,
                                    const numira::Money &amount, const QString &reason)
{
    Transaction transfer;
    const bool isBuilt = attempt(
        "Failed to add a transaction.",
        [&] { transfer = Transaction(foundation::today(), from, to, amount, reason); },
        [&](const QString &why) {
            tell(this, &Navigator::transactionSaveFailed, std::nullopt, why);
        });
    if (isBuilt)
        onAddedTransaction(transfer);
}

// ---- refunds -----------------------------------------------------------------

void Navigator::onPrepareShowBudgetItemRefund()
{
    emit showBudgetItemRefund(m_preferences.usableCurrencies(),
                              m_preferences.currenciesDisplayAs());
}

void Navigator::onLookUpRefundableTransactions(const budgeting::BudgetItemIdentifier &bii)
{
    // An item without an account has an empty code and nothing to refund.
    const auto code = m_budgetBankLedgers->lookUpAccountCode(bii);
    tell(this, &Navigator::lookedUpRefundableTransactions, bii,
         code.value_or(accounting::AccountCode()),
         m_budgetBankLedgers->nonReconciledTransactions(bii));
}

void Navigator::onPostRefund(const TransactionNumber &txnNum, const numira::Money &refund)
{
    qInfo() << "Posting a refund to" << txnNum << refund;
    TransactionNumber posted;
    // Not a change() on purpose: a refund answers to a purchase that is in the
    // budget already, and alone it does not make the user save again. It is
    // saved with the next change.
    const bool isPosted = attempt(
        "Failed to post a refund.",
        [&] { posted = m_budgetBankLedgers->postRefund(txnNum, refund); },
        [&](const QString &why) { tell(this, &Navigator::transactionSaveFailed, txnNum, why); });
    if (isPosted)
        tell(this, &Navigator::transactionSaveSucceeded, txnNum, posted);
}

} // namespace kiv::navigation
