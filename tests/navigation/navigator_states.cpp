// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

namespace kiv::test {

using banking::BankAccountTypes;

bool isBalanced(const accounting::GeneralLedger &ledger)
{
    std::map<numira::Currency, numira::Money> sums;
    for (const accounting::Account &account : ledger.accounts()) {
        for (const accounting::Transaction &transaction : account.transactions()) {
            const bool isDebit = transaction.debiting().number() == account.code().number();
            numira::Money &sum =
                sums.try_emplace(transaction.amount().code(), transaction.amount().code())
                    .first->second;
            if (isDebit)
                sum += transaction.amount();
            else
                sum -= transaction.amount();
        }
    }
    return std::ranges::all_of(sums, [](const auto &sum) { return sum.second == 0; });
}

Rows allStates()
{
    const auto addBill = [](Navigator &n) {
        const auto bill = item<budgeting::Bill>("Gas");
        n.onAdded(element(), toBudgetItemTypes(bill), bill, {}, tagged(bill));
    };
    const auto addAtBank = [](Navigator &n, const budgeting::BudgetedMoney &item,
                              BankAccountTypes kind) {
        n.onAdded(element(), toBudgetItemTypes(item), item,
                  banking::BankAccount{bankName("First"), {no(1), kind}}, tagged(item));
    };
    return {
        {"empty", [](Navigator &n) { n.clear(); }},
        {"new with changes", [=](Navigator &n) { n.clear(), addBill(n); }},
        {"open", [](Navigator &) {}},
        {"open with changes", addBill},
        {"bank closed",
         [](Navigator &n) {
             n.onBankAdded(banking::Bank(bankName("Prime"), {}, false));
             n.onBankClosed(bankName("Prime"));
         }},
        {"account reconciled",
         [](Navigator &n) { n.onMarkReconciled(txn(1)), n.onMarkReconciled(txn(2)); }},
        {"goal under a bank account",
         [=](Navigator &n) {
             addAtBank(n, item<budgeting::Goal>("Trip"), BankAccountTypes::Checking);
         }},
        {"debt at a bank",
         [=](Navigator &n) { addAtBank(n, item<budgeting::Debt>("Car"), BankAccountTypes::Loan); }},
        {"two currencies",
         [](Navigator &n) {
             n.onAddedBankAccount(QStringLiteral("Card"), BankAccountTypes::Cash,
                                  money("EUR", "50"));
         }},
        {"full",
         [](Navigator &n) {
             for (int i = 3; i < 65535; ++i)
                 n.onAddedTransaction(transfer(no(8), no(1), usd("0.01")));
         }},
        {"wizard's",
         [](Navigator &n) {
             n.onCompletedNewBudgetFirstTimeWizard(
                 numira::toCurrency("USD"), {numira::toCurrency("USD")},
                 navigation::CurrencyDisplayOptions::Symbol, bankName("First"),
                 BankAccountTypes::Checking, QStringLiteral("Checking"), usd("100"),
                 navigation::BudgetWizardTemplates::AdultMarriedDoubleIncome);
         }},
        {"after a failed load",
         [](Navigator &n) {
             try {
                 n.onConfirmedLoadBudgetFile(QStringLiteral("gone"), false);
             } catch (const storage::StorageError &) {
             }
         }},
    };
}

} // namespace kiv::test
