// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::BudgetItemTypes;

class NavigatorTransactions : public QObject {
    Q_OBJECT

private slots:
    void init() { m_settings.reset(); }

    void answersChanges_data();
    void answersChanges() { checkRow(); }
    void clearingSparesTheReconciledSide_data();
    void clearingSparesTheReconciledSide();
    void transferIsDatedToday();
    void moneyGoesFromAnyAssetIntoTopLevelOnes();
    void refundableAreThoseNotReconciled();

private:
    OwnSettings m_settings;
};

void NavigatorTransactions::answersChanges_data()
{
    const accounting::Transaction shopping = transfer(no(8), no(1), usd("12.34"));
    const accounting::Transaction again(day("2026-01-15"), no(8), no(1), usd("1"), std::nullopt,
                                        txn(40));
    const accounting::Transaction nowhere = transfer(no(99), no(1), usd("1"));
    addRows({
        {"add",
         {[=](Navigator &n) { n.onAddedTransaction(shopping); },
          {"transactionSaveSucceeded(none, 4) *"}}},
        {"add, shown under a number",
         {[=](Navigator &n) { n.onAddedTransaction(again); },
          {"transactionSaveSucceeded(40, 4) *"}}},
        {"add, unknown account",
         {[=](Navigator &n) { n.onAddedTransaction(nowhere); },
          {"! Failed to add a transaction. There is no account with the number 99.",
           "transactionSaveFailed(none, =)"}}},
        {"update",
         {[=](Navigator &n) { n.onUpdatedTransaction(txn(2), shopping); },
          {"transactionSaveSucceeded(2, 2) *"}}},
        {"update, unknown",
         {[=](Navigator &n) { n.onUpdatedTransaction(txn(9), shopping); },
          {"! Failed to update a transaction. There is no transaction with the number 9.",
           "transactionSaveFailed(9, =)"}}},
        {"remove",
         {[=](Navigator &n) { n.onRemovedTransaction(txn(2)); },
          {"transactionSaveSucceeded(2, 2) *"}}},
        {"remove, unknown",
         {[=](Navigator &n) { n.onRemovedTransaction(txn(9)); },
          {"! Failed to remove a transaction. There is no transaction with the number 9.",
           "transactionSaveFailed(9, =)"}}},
        {"reconcile",
         {[=](Navigator &n) { n.onMarkReconciled(txn(2)); }, {"transactionSaveSucceeded(2, 2) *"}}},
        {"reconcile, unknown",
         {[=](Navigator &n) { n.onMarkReconciled(txn(9)); },
          {"! Failed to mark a transaction as reconciled. There is no transaction with the number "
           "9.",
           "transactionSaveFailed(9, =)"}}},
        {"clear none", {[=](Navigator &n) { n.onMarkCleared({}); }, {}}},
        {"clear, one unknown",
         {[=](Navigator &n) {
              n.onMarkCleared({txn(3), txn(9), txn(2)});
          },
          {"transactionSaveSucceeded(2, 2) *", "transactionSaveSucceeded(3, 3) *",
           "! Failed to mark a transaction as cleared. There is no transaction with the number 9.",
           "transactionSaveFailed(9, =)"}}},
        {"clear, both sides reconciled",
         {[=](Navigator &n) { n.onMarkReconciled(txn(2)), n.onMarkCleared({txn(2)}); },
          {"transactionSaveSucceeded(2, 2) *",
           "! Failed to mark a transaction as cleared. The transaction 2 is reconciled and cannot "
           "be changed before it is unreconciled.",
           "transactionSaveFailed(2, =)"}}},
        {"unreconcile, one unknown",
         {[=](Navigator &n) {
              n.onMarkUnreconciled({txn(9), txn(2)});
          },
          {"transactionSaveSucceeded(2, 2) *",
           "! Failed to mark a transaction as cleared. There is no transaction with the number 9.",
           "transactionSaveFailed(9, =)"}}},
        {"refund",
         {[=](Navigator &n) { n.onPostRefund(txn(2), usd("4")); },
          {"- Posting a refund to 2 4.00 USD", "transactionSaveSucceeded(2, 4)"}}},
        {"refund, too much",
         {[=](Navigator &n) { n.onPostRefund(txn(2), usd("40")); },
          {"- Posting a refund to 2 40.00 USD",
           "! Failed to post a refund. A refund of $40.00 exceeds the $10.00 that are left of the "
           "transaction 2.",
           "transactionSaveFailed(2, =)"}}},
        {"transfer, to itself",
         {[=](Navigator &n) { n.onTransferRequested(no(1), no(1), usd("1"), {}); },
          {"! Failed to add a transaction. A transaction cannot debit and credit the same account "
           "'1 Checking'.",
           "transactionSaveFailed(none, =)"}}},
    });
}

void NavigatorTransactions::clearingSparesTheReconciledSide_data()
{
    QTest::addColumn<quint32>("reconciled");
    QTest::addColumn<QString>("statuses");
    QTest::newRow("debit") << 3U << QStringLiteral("reconciled, cleared");
    QTest::newRow("credit") << 1U << QStringLiteral("cleared, reconciled");
    QTest::newRow("neither") << 0U << QStringLiteral("cleared, cleared");
}

void NavigatorTransactions::clearingSparesTheReconciledSide()
{
    QFETCH(const quint32, reconciled);
    QFETCH(const QString, statuses);
    Desk desk;
    desk.furnish();
    const QString path = QStringLiteral("home.budget");
    if (reconciled != 0)
        desk.disk->files.at(path).generalLedger.reconcile(txn(2), no(reconciled));
    desk.navigator->onLoadBudgetFile(path);
    (void)desk.take();

    desk.navigator->onMarkCleared({txn(2)});
    QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(2, 2) *"}));
    const auto cleared = desk.save().generalLedger.lookUpTransaction(txn(2)).value();
    QCOMPARE(QStringLiteral("%1, %2").arg(toQString(cleared.debitStatus()),
                                          toQString(cleared.creditStatus())),
             statuses);
}

void NavigatorTransactions::transferIsDatedToday()
{
    Desk desk;
    desk.furnish();
    desk.navigator->onTransferRequested(no(4), no(1), usd("5"), QStringLiteral("Back"));
    QCOMPARE(desk.take(), texts({"transactionSaveSucceeded(none, 4) *"}));
    const auto posted = desk.save().generalLedger.lookUpTransaction(txn(4)).value();
    QCOMPARE(posted, accounting::Transaction(foundation::today(), code(4, "Savings", no(1)),
                                             code(1, "Checking"), usd("5"), QStringLiteral("Back"),
                                             txn(4)));
}

void NavigatorTransactions::moneyGoesFromAnyAssetIntoTopLevelOnes()
{
    using banking::BankAccountTypes;
    Desk desk;
    desk.furnish();
    desk.navigator->onAddedBankAccount(QStringLiteral("Card"), BankAccountTypes::CreditCard,
                                       usd("0"));
    desk.navigator->onBankUpdated(banking::Bank(bankName("First"),
                                                {{no(1), BankAccountTypes::Checking},
                                                 {no(4), BankAccountTypes::Savings},
                                                 {no(7), BankAccountTypes::CreditCard}},
                                                false));
    (void)desk.take();
    desk.navigator->onPrepareShowMoneyTransfer();
    desk.navigator->onPrepareShowBudgetItemRefund();
    QCOMPARE(
        desk.take(),
        texts({"showMoneyTransfer((First 1 Checking (checking) in USD, First 4 Savings under "
               "1 (savings) in USD), (First 1 Checking (checking) in USD), (USD, EUR), Symbol)",
               "showBudgetItemRefund((USD, EUR), Symbol)"}));
}

void NavigatorTransactions::refundableAreThoseNotReconciled()
{
    Desk desk;
    desk.furnish();
    desk.navigator->onAddedTransaction(transfer(no(3), no(1), usd("20")));
    desk.navigator->onMarkReconciled(txn(2));
    int answers = 0;
    connect(desk.navigator.get(), &Navigator::lookedUpRefundableTransactions, this,
            [&](const auto &item, const auto &code, const auto &transactions) {
                ++answers;
                QCOMPARE(item.source, source("Rent"));
                QCOMPARE(code, test::code(3, "Rent [Budget Item]"));
                QCOMPARE(transactions.size(), std::size_t(1));
                QCOMPARE(transactions.begin()->number(), std::optional(txn(4)));
            });
    desk.navigator->onLookUpRefundableTransactions({BudgetItemTypes::Bill, source("Rent")});
    QCOMPARE(answers, 1);
    (void)desk.take();
    // An item without an account has nothing to refund.
    desk.navigator->disconnect(this);
    desk.navigator->onLookUpRefundableTransactions({BudgetItemTypes::Bill, source("Gas")});
    QCOMPARE(desk.take().last(),
             QStringLiteral("lookedUpRefundableTransactions(Gas (bill), , ())"));
}

QTEST_GUILESS_MAIN(NavigatorTransactions)
#include "tst_navigator_transactions.moc"
