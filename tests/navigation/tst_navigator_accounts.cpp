// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_desk.h"

using namespace kiv;
using namespace kiv::test;
using banking::Bank;
using banking::BankAccountTypes;

class NavigatorAccounts : public QObject {
    Q_OBJECT

private slots:
    void init() { m_settings.reset(); }

    void answersAccountChanges_data();
    void answersAccountChanges() { checkRow(); }
    void answersBankChanges_data();
    void answersBankChanges() { checkRow(); }
    void addedBankAccountReturnsItsCode();
    void showsWhatIsThere();

private:
    OwnSettings m_settings;
};

void NavigatorAccounts::answersAccountChanges_data()
{
    const auto account = [](const char *name, const char *opening) {
        return accounting::Account(accounting::AccountTypes::Asset, code(20, name), usd(opening),
                                   false);
    };
    const QString card = QStringLiteral("Card");
    const QString food = QStringLiteral("Food");
    const accounting::AccountCode sundries = code(8, "Sundries");
    const accounting::AccountCode checking = code(1, "Checking");
    const accounting::AccountCode unknown = code(99, "Nowhere");
    addRows({
        {"add",
         {[=](Navigator &n) { n.onAddedAct(account("Vault", "1.50")); },
          {"- Added account opening balance in txn num: 4", "accountSaveSucceeded(20 Vault) *"}}},
        {"add, no balance",
         {[=](Navigator &n) { n.onAddedAct(account("Vault", "0")); },
          {"accountSaveSucceeded(20 Vault) *"}}},
        {"add, item's name",
         {[=](Navigator &n) { n.onAddedAct(account("Rent", "0")); },
          {"! Failed to add account entry. The code name is the same name as an existing budget "
           "item.",
           "accountSaveFailed(none, =, 20 Rent)"}}},
        {"recode",
         {[=](Navigator &n) { n.onRecoded(sundries, code(9, "Various")); },
          {"- Recoding 8 Sundries to 9 Various", "accountSaveSucceeded(8 Sundries) *"}}},
        {"recode, used",
         {[=](Navigator &n) { n.onRecoded(sundries, code(1, "Various")); },
          {"- Recoding 8 Sundries to 1 Various",
           "! Failed to recode an account. The account '1 Various' cannot have a number that the "
           "account '1 Checking' has.",
           "accountSaveFailed(8 Sundries, =, 1 Various)"}}},
        {"close",
         {[=](Navigator &n) { n.onClosed(sundries); }, {"accountSaveSucceeded(8 Sundries) *"}}},
        {"close, not empty",
         {[=](Navigator &n) { n.onClosed(checking); },
          {"! Failed to close an account. The account '1 Checking' cannot be closed while its "
           "balance is $2,485.00.",
           "accountSaveFailed(1 Checking, =, 1 Checking)"}}},
        {"reopen",
         {[=](Navigator &n) { n.onClosed(sundries), n.onOpened(sundries); },
          {"accountSaveSucceeded(8 Sundries) *", "accountSaveSucceeded(8 Sundries) *"}}},
        {"reopen, is open",
         {[=](Navigator &n) { n.onOpened(sundries); },
          {"! Failed to reopen an account. The account '8 Sundries' is open already.",
           "accountSaveFailed(8 Sundries, =, 8 Sundries)"}}},
        {"remove",
         {[=](Navigator &n) { n.onRemovedAct(sundries); }, {"accountSaveSucceeded(8 Sundries) *"}}},
        {"remove, unknown",
         {[=](Navigator &n) { n.onRemovedAct(unknown); },
          {"! Failed to remove an account. There is no account with the number 99.",
           "accountSaveFailed(99 Nowhere, =, 99 Nowhere)"}}},
        {"add a bank account",
         {[=](Navigator &n) { n.onAddedBankAccount(card, BankAccountTypes::Loan, usd("7")); },
          {"- Added account \"Card\" opening balance in 4", "bankAccountSaveSucceeded(7 Card) *"}}},
        {"add a bank account, item's name",
         {[=](Navigator &n) { n.onAddedBankAccount(food, BankAccountTypes::Cash, usd("7")); },
          {"! Failed to add a bank account. The code name is the same name as an existing budget "
           "item.",
           "bankAccountSaveFailed(none, =, Food)"}}},
        {"rename a bank account",
         {[=](Navigator &n) { n.onRenamedBankAccount(checking, code(30, "Daily")); },
          {"- Recoding 1 Checking to 30 Daily",
           "- Updating bank account after recode First 30 (checking)",
           "bankAccountSaveSucceeded(30 Daily) *"}}},
        {"rename a bank account, unknown",
         {[=](Navigator &n) { n.onRenamedBankAccount(unknown, code(30, "Daily")); },
          {"- Recoding 99 Nowhere to 30 Daily",
           "! Failed to rename a bank account. There is no account with the number 99.",
           "bankAccountSaveFailed(99 Nowhere, =, 30 Daily)"}}},
        {"remove a bank account",
         {[=](Navigator &n) { n.onRemovedBankAccount(sundries); },
          {"bankAccountSaveSucceeded(8 Sundries) *"}}},
        {"remove a bank account, has a history",
         {[=](Navigator &n) { n.onRemovedBankAccount(checking); },
          {"! Failed to remove a bank account. The account '1 Checking' cannot be removed while "
           "accounts stand under it.",
           "bankAccountSaveFailed(1 Checking, =, 1 Checking)"}}},
    });
}

void NavigatorAccounts::answersBankChanges_data()
{
    const auto first = bankName("First");
    const auto prime = bankName("Prime");
    const Bank empty(prime, {}, false);
    const Bank savings(first, {{no(4), BankAccountTypes::Savings}}, false);
    addRows({
        {"add a bank",
         {[=](Navigator &n) { n.onBankAdded(empty); },
          {"- Successfully added bank Prime []", "bankSaveSucceeded(Prime) *"}}},
        {"add a bank, used",
         {[=](Navigator &n) { n.onBankAdded(savings); },
          {"! Failed to add a bank. The bank 'First' already exists.",
           "bankSaveFailed(none, =, First)"}}},
        {"update a bank",
         {[=](Navigator &n) { n.onBankUpdated(savings); }, {"bankSaveSucceeded(First) *"}}},
        {"update a bank, unknown",
         {[=](Navigator &n) { n.onBankUpdated(empty); },
          {"! Failed to update a bank. Cannot update when a bank by that name does not exist.",
           "bankSaveFailed(Prime, =, none)"}}},
        {"rename a bank",
         {[=](Navigator &n) { n.onBankRenamed(first, prime); }, {"bankSaveSucceeded(Prime) *"}}},
        {"rename a bank, unknown",
         {[](Navigator &n) { n.onBankRenamed(bankName("%1"), bankName("%2")); },
          {"! Failed to rename a bank. The bank '%1' does not exist.",
           "bankSaveFailed(%1, =, %2)"}}},
        {"close a bank",
         {[=](Navigator &n) { n.onBankAdded(empty), n.onBankClosed(prime); },
          {"- Successfully added bank Prime []", "bankSaveSucceeded(Prime) *",
           "bankSaveSucceeded(Prime) *"}}},
        {"close a bank, not empty",
         {[=](Navigator &n) { n.onBankClosed(first); },
          {"! Failed to close a bank. The account '1 Checking' cannot be closed while its balance "
           "is $2,485.00.",
           "bankSaveFailed(First, =, First)"}}},
        {"reopen a bank",
         {[=](Navigator &n) { n.onBankAdded(empty), n.onBankClosed(prime), n.onBankOpened(prime); },
          {"- Successfully added bank Prime []", "bankSaveSucceeded(Prime) *",
           "bankSaveSucceeded(Prime) *", "bankSaveSucceeded(Prime) *"}}},
        {"reopen a bank, is open",
         {[=](Navigator &n) { n.onBankOpened(first); },
          {"! Failed to reopen a bank. The bank 'First' is already open.",
           "bankSaveFailed(First, =, First)"}}},
        {"remove a bank",
         {[=](Navigator &n) { n.onBankAdded(empty), n.onBankRemoved(prime); },
          {"- Successfully added bank Prime []", "bankSaveSucceeded(Prime) *",
           "bankSaveSucceeded(Prime) *"}}},
        {"remove a bank, has a history",
         {[=](Navigator &n) { n.onBankRemoved(first); },
          {"! Failed to remove a bank. Cannot remove the bank as the account number '1' cannot be "
           "removed.",
           "bankSaveFailed(First, =, First)"}}},
    });
}

void NavigatorAccounts::addedBankAccountReturnsItsCode()
{
    Desk desk;
    const auto add = [&](const char *name) {
        return desk.navigator->onAddedBankAccount(QString::fromUtf8(name), BankAccountTypes::Cash,
                                                  usd("1"));
    };
    QCOMPARE(add("Purse"), std::optional(code(1, "Purse")));
    const auto bill = item<budgeting::Bill>("Rent");
    QVERIFY(desk.navigator->onAdded(element(), budgeting::BudgetItemTypes::Bill, bill, {},
                                    tagged(bill)));
    QCOMPARE(add("Rent"), std::nullopt);
    // The number of the refused one was given back.
    QCOMPARE(add("Box"), std::optional(code(4, "Box")));
}

void NavigatorAccounts::showsWhatIsThere()
{
    Desk desk;
    desk.furnish();
    Navigator &navigator = *desk.navigator;
    const storage::BudgetStorage::Data data = desk.save();
    const std::set<accounting::Account> accounts = data.generalLedger.accounts();

    // A view may change the budget while it draws itself.
    int shown = 0;
    connect(&navigator, &Navigator::showAccounts, this,
            [&](const auto &all) { shown += all == accounts ? 1 : 0; });
    connect(&navigator, &Navigator::showLedgers, this,
            [&](const auto &all) { shown += all == accounts ? 1 : 0; });
    connect(&navigator, &Navigator::showBanks, this, [&](const auto &banks, const auto &all) {
        navigator.onBankRenamed(bankName("First"), bankName("Prime"));
        shown += all == accounts && banks == data.banks ? 1 : 0;
    });
    connect(&navigator, &Navigator::showLedger, this, [&](const auto &ledger) {
        shown += ledger == data.generalLedger.ledger(no(1)) ? 1 : 0;
    });
    navigator.onPrepareShowAccounts();
    navigator.onPrepareShowLedgers();
    navigator.onPrepareShowBanks();
    navigator.onSelectedLedger(code(1, "Checking"));
    QCOMPARE(shown, 4);
    QVERIFY_EXCEPTION_THROWN(navigator.onSelectedLedger(code(99, "Nowhere")),
                             accounting::AccountError);

    (void)desk.take();
    using navigation::AllowSubAccounts;
    navigator.onBankUpdated(
        Bank(bankName("Prime"),
             {{no(1), BankAccountTypes::Checking}, {no(4), BankAccountTypes::Savings}}, false));
    navigator.onLookUpBankAccounts(bankName("Prime"), AllowSubAccounts(false));
    navigator.onLookUpBankAccounts(bankName("Prime"), AllowSubAccounts(true));
    navigator.onLookUpBankAccounts(bankName("Nobody"), AllowSubAccounts(true));
    QCOMPARE(desk.take(),
             texts({"bankSaveSucceeded(Prime) *", "lookedUpBankAccounts(Prime, (1=>checking))",
                    "lookedUpBankAccounts(Prime, (1=>checking, 4=>savings))",
                    "lookedUpBankAccounts(Nobody, ())"}));
}

QTEST_GUILESS_MAIN(NavigatorAccounts)
#include "tst_navigator_accounts.moc"
