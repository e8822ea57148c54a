// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

#include "support/fault.h"

namespace kiv::test {

using banking::Bank;
using banking::BankAccountTypes;
using budgeting::Bill;
using budgeting::BudgetedMoney;
using budgeting::BudgetItemTypes;
using budgeting::Debt;
using budgeting::Goal;
using budgeting::Nontrack;
using budgeting::Wage;
using navigation::AllowSubAccounts;
using N = Navigator;
using Topic = std::vector<std::pair<const char *, Request>>;

// ---- budget items ----------------------------------------------------------------

namespace {

using MaybeAt = std::optional<banking::BankAccount>;

banking::BankAccount atFirst(std::uint32_t number, BankAccountTypes kind)
{
    return {bankName("First"), {no(number), kind}};
}

Request added(const BudgetedMoney &item, const MaybeAt &at = std::nullopt)
{
    return [item = std::shared_ptr(item.clone()), at](N &n) {
        n.onAdded(element(), toBudgetItemTypes(*item), *item, at, tagged(*item));
    };
}

Request updated(const BudgetedMoney &item, const MaybeAt &at = std::nullopt)
{
    return [item = std::shared_ptr(item.clone()), at](N &n) {
        n.onUpdated(element(), toBudgetItemTypes(*item), *item, at, tagged(*item));
    };
}

Topic budgetItems()
{
    const auto renamed = [](BudgetItemTypes type, const char *from, const char *to) {
        return [=](N &n) { n.onRenamed(element(), type, source(from), source(to)); };
    };
    const auto removed = [](BudgetItemTypes type, const char *name) {
        return [=](N &n) { n.onRemoved(element(), type, source(name)); };
    };
    // An item with the tags of another.
    const auto mixedUp = [](const BudgetedMoney &other, bool isUpdate) {
        return [tags = tagged(other), isUpdate](N &n) {
            const Bill rent = item<Bill>("Rent");
            if (isUpdate)
                n.onUpdated(element(), BudgetItemTypes::Bill, rent, {}, tags);
            else
                n.onAdded(element(), BudgetItemTypes::Bill, rent, {}, tags);
        };
    };
    const auto checking = atFirst(1, BankAccountTypes::Checking);
    const auto loan = atFirst(0, BankAccountTypes::Loan);
    const auto unknown = BudgetItemTypes(6);
    const Bill gas = item<Bill>("Gas");
    const tagging::BudgetItemTags::ItemTags unknownTags({unknown, gas.source()});
    return {
        {"add bill", added(gas)},
        {"add debt", added(item<Debt>("Car"))},
        {"add debt at a bank", added(item<Debt>("Car"), loan)},
        {"add goal", added(item<Goal>("Trip"))},
        {"add goal at a bank", added(item<Goal>("Trip"), checking)},
        {"add nontrack", added(item<Nontrack>("Fun"))},
        {"add wage", added(item<Wage>("Bonus"))},
        {"add what is there", added(item<Bill>("Rent"))},
        {"add under an account's name", added(item<Bill>("Checking"))},
        {"add at an unknown account", added(item<Goal>("Trip"), loan)},
        {"add with tags of a wage", mixedUp(item<Wage>("rent"), false)},
        {"add with tags of another", mixedUp(item<Bill>("rent"), false)},
        {"add bill at a bank", added(gas, checking)},
        {"add nontrack at a bank", added(item<Nontrack>("Fun"), checking)},
        {"add wage at a bank", added(item<Wage>("Bonus"), checking)},
        {"add unknown kind", [=](N &n) { n.onAdded(element(), unknown, gas, {}, unknownTags); }},
        {"add wage as bill",
         [=](N &n) {
             n.onAdded(element(), BudgetItemTypes::Bill, item<Wage>("Gas"), {}, tagged(gas));
         }},
        {"update bill", updated(item<Bill>("Rent", usd("11")))},
        {"update nontrack", updated(item<Nontrack>("Food", usd("11")))},
        {"update wage", updated(item<Wage>("Salary", usd("11")))},
        {"update to a currency without a rate", updated(item<Bill>("Rent", money("EUR", "11")))},
        {"update unknown bill", updated(gas)},
        {"update unknown debt", updated(item<Debt>("Car"))},
        {"update with tags of another", mixedUp(gas, true)},
        {"update bill at a bank", updated(gas, checking)},
        {"update nontrack at a bank", updated(item<Nontrack>("Food"), checking)},
        {"update wage at a bank", updated(item<Wage>("Salary"), checking)},
        {"update unknown kind",
         [=](N &n) { n.onUpdated(element(), unknown, gas, {}, unknownTags); }},
        {"rename", renamed(BudgetItemTypes::Bill, "Rent", "Home")},
        {"rename to an account's name", renamed(BudgetItemTypes::Bill, "Rent", "Checking")},
        {"rename unknown", renamed(BudgetItemTypes::Wage, "%2", "%1")},
        {"rename unknown kind", renamed(unknown, "Rent", "Home")},
        {"remove", removed(BudgetItemTypes::Wage, "Salary")},
        {"remove unknown", removed(BudgetItemTypes::Bill, "Gas")},
        {"remove unknown kind", removed(unknown, "Rent")},
        {"look up sources",
         [](N &n) {
             for (int kind = 0; kind <= 6; ++kind)
                 n.onLookUpBudgetItemSources({BudgetItemTypes(kind), source("x"), {}});
         }},
    };
}

Topic budgetItemViews()
{
    return {
        {"bills", [](N &n) { n.onPrepareShowBills(); }},
        {"debts",
         [](N &n) {
             added(item<Debt>("Car"), atFirst(0, BankAccountTypes::Loan))(n);
             n.onPrepareShowDebts();
         }},
        {"goals",
         [](N &n) {
             added(item<Goal>("Trip"), atFirst(1, BankAccountTypes::Checking))(n);
             n.onPrepareShowGoals();
         }},
        {"nontracks", [](N &n) { n.onPrepareShowNontracks(); }},
        {"wages", [](N &n) { n.onPrepareShowWages(); }},
        {"tags follow a new name",
         [](N &n) {
             n.onRenamed(element(), BudgetItemTypes::Bill, source("Rent"), source("Home"));
             n.onPrepareShowBills();
         }},
        {"tags stay when a name is refused",
         [](N &n) {
             n.onRenamed(element(), BudgetItemTypes::Bill, source("Rent"), source("Checking"));
             n.onPrepareShowBills();
         }},
        {"tags go with the item",
         [](N &n) {
             n.onRemoved(element(), BudgetItemTypes::Bill, source("Rent"));
             n.onPrepareShowBills();
         }},
        {"tags are replaced", [](N &n) { updated(item<Bill>("Rent"))(n), n.onPrepareShowBills(); }},
        {"a goal is moved and let go",
         [](N &n) {
             const auto trip = item<Goal>("Trip");
             added(trip)(n), updated(trip, atFirst(1, BankAccountTypes::Checking))(n);
             n.onPrepareShowGoals();
             updated(trip)(n);
             n.onLookUpBankAccounts(bankName("First"), AllowSubAccounts(true));
         }},
    };
}

// ---- accounts, banks and transactions ------------------------------------------

Topic accounts()
{
    const auto account = [](const char *name, const char *opening) {
        return accounting::Account(accounting::AccountTypes::Asset, code(20, name), usd(opening),
                                   false);
    };
    const auto bankAccount = [](const char *name) {
        return [=](N &n) {
            n.onAddedBankAccount(QString::fromUtf8(name), BankAccountTypes::Loan, usd("7"));
        };
    };
    const accounting::AccountCode sundries = code(8, "Sundries");
    const accounting::AccountCode checking = code(1, "Checking");
    const accounting::AccountCode unknown = code(99, "Nowhere");
    const accounting::AccountCode various = code(9, "Various");
    return {
        {"add", [=](N &n) { n.onAddedAct(account("Vault", "1.50")); }},
        {"add without a balance", [=](N &n) { n.onAddedAct(account("Vault", "0")); }},
        {"add under an item's name", [=](N &n) { n.onAddedAct(account("Rent", "0")); }},
        {"recode", [=](N &n) { n.onRecoded(sundries, various); }},
        {"recode to a used number", [=](N &n) { n.onRecoded(sundries, checking); }},
        {"close", [=](N &n) { n.onClosed(sundries); }},
        {"close with a balance", [=](N &n) { n.onClosed(checking); }},
        {"reopen", [=](N &n) { n.onClosed(sundries), n.onOpened(sundries); }},
        {"reopen what is open", [=](N &n) { n.onOpened(sundries); }},
        {"remove", [=](N &n) { n.onRemovedAct(sundries); }},
        {"remove unknown", [=](N &n) { n.onRemovedAct(unknown); }},
        {"add bank account", bankAccount("Card")},
        {"add bank account under an item's name", bankAccount("Food")},
        {"rename bank account", [=](N &n) { n.onRenamedBankAccount(checking, various); }},
        {"rename unknown bank account", [=](N &n) { n.onRenamedBankAccount(unknown, various); }},
        {"remove bank account", [=](N &n) { n.onRemovedBankAccount(sundries); }},
        {"remove bank account with a history", [=](N &n) { n.onRemovedBankAccount(checking); }},
        {"show", [=](N &n) { n.onRemovedTransaction(txn(1)), n.onPrepareShowAccounts(); }},
        {"show ledgers", [=](N &n) { n.onRemovedTransaction(txn(1)), n.onPrepareShowLedgers(); }},
        {"show one", [=](N &n) { n.onSelectedLedger(code(3, "")); }},
        {"show unknown", [=](N &n) { n.onSelectedLedger(unknown); }},
    };
}

Topic banks()
{
    const auto first = bankName("First");
    const auto prime = bankName("Prime");
    const Bank empty(prime, {}, false);
    const Bank savings(first, {{no(4), BankAccountTypes::Savings}}, false);
    return {
        {"add", [=](N &n) { n.onBankAdded(empty); }},
        {"add what is there", [=](N &n) { n.onBankAdded(savings); }},
        {"update", [=](N &n) { n.onBankUpdated(savings); }},
        {"update unknown", [=](N &n) { n.onBankUpdated(empty); }},
        {"rename", [=](N &n) { n.onBankRenamed(first, prime); }},
        {"rename unknown", [](N &n) { n.onBankRenamed(bankName("%1"), bankName("%2")); }},
        {"close", [=](N &n) { n.onBankAdded(empty), n.onBankClosed(prime); }},
        {"close with money in it", [=](N &n) { n.onBankClosed(first); }},
        {"reopen",
         [=](N &n) { n.onBankAdded(empty), n.onBankClosed(prime), n.onBankOpened(prime); }},
        {"reopen what is open", [=](N &n) { n.onBankOpened(first); }},
        {"remove", [=](N &n) { n.onBankAdded(empty), n.onBankRemoved(prime); }},
        {"remove with a history", [=](N &n) { n.onBankRemoved(first); }},
        {"show", [](N &n) { n.onRemovedTransaction(txn(1)), n.onPrepareShowBanks(); }},
        {"look up accounts",
         [=](N &n) {
             n.onBankUpdated(savings);
             n.onLookUpBankAccounts(first, AllowSubAccounts(false));
             n.onLookUpBankAccounts(first, AllowSubAccounts(true));
         }},
        {"look up accounts of unknown",
         [=](N &n) { n.onLookUpBankAccounts(prime, AllowSubAccounts(true)); }},
        {"show transfer",
         [=](N &n) {
             n.onAddedBankAccount(QStringLiteral("Card"), BankAccountTypes::Loan, usd("0"));
             n.onBankUpdated(Bank(first,
                                  {{no(1), BankAccountTypes::Checking},
                                   {no(4), BankAccountTypes::Savings},
                                   {no(7), BankAccountTypes::Loan}},
                                  false));
             n.onPrepareShowMoneyTransfer();
         }},
    };
}

Topic transactions()
{
    const accounting::Transaction shopping = transfer(no(8), no(1), usd("12.34"));
    const accounting::Transaction numbered(day("2026-01-15"), no(8), no(1), usd("1"), std::nullopt,
                                           txn(40));
    const accounting::Transaction nowhere = transfer(no(99), no(1), usd("1"));
    const budgeting::BudgetItemIdentifier rent{BudgetItemTypes::Bill, source("Rent")};
    return {
        {"add", [=](N &n) { n.onAddedTransaction(shopping); }},
        {"add as shown under a number", [=](N &n) { n.onAddedTransaction(numbered); }},
        {"add to nowhere", [=](N &n) { n.onAddedTransaction(nowhere); }},
        {"add in a currency without a rate",
         [](N &n) { n.onAddedTransaction(transfer(no(8), no(1), money("EUR", "1"))); }},
        {"add beyond all bounds",
         [](N &n) {
             const auto most = transfer(no(8), no(1), usd("99999999999999999999999999"));
             n.onAddedTransaction(most), n.onAddedTransaction(most);
         }},
        {"update", [=](N &n) { n.onUpdatedTransaction(txn(2), shopping); }},
        {"update unknown", [=](N &n) { n.onUpdatedTransaction(txn(9), shopping); }},
        {"remove", [=](N &n) { n.onRemovedTransaction(txn(2)); }},
        {"remove unknown", [=](N &n) { n.onRemovedTransaction(txn(9)); }},
        {"reconcile", [=](N &n) { n.onMarkReconciled(txn(2)); }},
        {"reconcile unknown", [=](N &n) { n.onMarkReconciled(txn(9)); }},
        {"clear none", [=](N &n) { n.onMarkCleared({}); }},
        {"clear some",
         [](N &n) {
             n.onRemovedTransaction(txn(2));
             n.onMarkCleared({txn(3), txn(2), txn(1)});
         }},
        {"clear what is reconciled",
         [](N &n) {
             n.onMarkReconciled(txn(2));
             n.onMarkCleared({txn(2), txn(3)});
         }},
        {"unreconcile some",
         [](N &n) {
             n.onRemovedTransaction(txn(2));
             n.onMarkUnreconciled({txn(3), txn(2), txn(1)});
         }},
        {"refund", [=](N &n) { n.onPostRefund(txn(2), usd("4")); }},
        {"refund in a currency without a rate",
         [=](N &n) { n.onPostRefund(txn(2), money("EUR", "1")); }},
        {"refund too much", [=](N &n) { n.onPostRefund(txn(2), usd("40")); }},
        {"show refund", [](N &n) { n.onPrepareShowBudgetItemRefund(); }},
        {"look up refundable",
         [=](N &n) {
             n.onAddedTransaction(transfer(no(3), no(1), usd("20")));
             n.onMarkReconciled(txn(2));
             n.onLookUpRefundableTransactions(rent);
         }},
        {"look up refundable of unknown",
         [](N &n) {
             n.onLookUpRefundableTransactions({BudgetItemTypes::Bill, source("Gas")});
         }},
        {"transfer", [](N &n) { n.onTransferRequested(no(4), no(1), usd("1"), {}); }},
        {"transfer to itself", [](N &n) { n.onTransferRequested(no(1), no(1), usd("1"), {}); }},
    };
}

// ---- processing, surveys, configuration ----------------------------------------

/// Changes the settings that are shown.
template <typename Change>
void configured(N &n, Change &&change)
{
    navigation::ConfigurationData data;
    {
        // Ends the connection, also when the request fails.
        const QObject view;
        const auto listen = [&] {
            const Unwatched own;
            QObject::connect(&n, &Navigator::showConfigure, &view, [&](const auto &now) {
                const Unwatched alsoOwn;
                data = now;
            });
        };
        listen();
        n.onPrepareShowConfigure();
    }
    change(data);
    n.onConfigureUpdated(data);
}

Topic processing()
{
    const auto due = [](BudgetItemTypes type, const char *name) {
        return budgeting::BudgetItemDueIdentifier{type, source(name), day("2026-01-31")};
    };
    const auto post = [=](BudgetItemTypes type, const char *name) {
        return [=](N &n) {
            n.onPostBudgetItemPosted({due(type, name), usd("10.005")}, code(1, ""),
                                     day("2026-02-01"));
        };
    };
    const auto postUnexpected = [=](BudgetItemTypes type, const char *name) {
        return [=](N &n) {
            n.onPostBudgetItemPostedUnexpected(due(type, name), usd("3"), code(1, ""),
                                               day("2026-02-01"));
        };
    };
    const auto skip = [=](BudgetItemTypes type, const char *name) {
        return [=](N &n) { n.onPostBudgetItemSkipped(due(type, name)); };
    };
    return {
        {"post", post(BudgetItemTypes::Wage, "Salary")},
        {"post unknown", post(BudgetItemTypes::Bill, "Gas")},
        {"post unexpected", postUnexpected(BudgetItemTypes::Bill, "Rent")},
        {"post unexpected unknown", postUnexpected(BudgetItemTypes::Bill, "Gas")},
        {"post unexpected unknown kind", postUnexpected(BudgetItemTypes(6), "Rent")},
        {"skip", skip(BudgetItemTypes::Nontrack, "Food")},
        {"show what is due", [](N &n) { n.onPrepareShowProcessBudgetItems(); }},
        {"show dashboard", [](N &n) { n.onPrepareShowDashboard(); }},
        {"show dashboard without a rate",
         [](N &n) {
             added(item<Bill>("Gas", money("EUR", "9")))(n);
             n.onPrepareShowDashboard();
         }},
        {"skip unknown", skip(BudgetItemTypes::Nontrack, "%1")},
    };
}

Topic surveys()
{
    const auto complete = [](const char *balance, std::uint32_t account,
                             const surveying::Distribution &distributed = {}) {
        return [=](N &n) {
            n.onCompletedSurvey(day("2999-12-31"), atFirst(account, BankAccountTypes::Checking),
                                usd(balance), {txn(1), txn(2), txn(3)}, {}, {}, distributed,
                                usd("0"));
        };
    };
    const auto generate = [](const char *bank, std::uint32_t account) {
        return [=](N &n) {
            n.onGenerateMappingSurvey(bankName(bank), no(account), day("2026-01-31"));
        };
    };
    return {
        {"complete", complete("2485", 1)},
        {"complete with another balance", complete("3000", 1)},
        {"complete without an account", complete("2485", 99)},
        {"complete within the user's own window",
         [=](N &n) {
             configured(n, [](auto &data) { data.surveyWindow = foundation::Percentage(20, 6); });
             n.onPrepareShowSurvey(), complete("3000", 1)(n);
         }},
        {"complete with what is set aside for no item",
         complete("2485", 1, {{{BudgetItemTypes::Bill, source("Gone")}, {}}})},
        {"last reconciliation",
         [=](N &n) { complete("2485", 1)(n), n.onLookUpLastReconciliation(no(1)); }},
        {"last reconciliation of none", [](N &n) { n.onLookUpLastReconciliation(no(1)); }},
        {"last reconciliation at no bank", [](N &n) { n.onLookUpLastReconciliation(no(8)); }},
        {"show", [](N &n) { n.onPrepareShowSurvey(); }},
        {"generate", [=](N &n) { n.onRemovedTransaction(txn(1)), generate("First", 1)(n); }},
        {"generate at no bank", generate("Prime", 1)},
        {"generate at another bank", generate("First", 8)},
    };
}

Topic configuration()
{
    const auto configure = [](int hours, std::set<numira::Currency> usable) {
        return [=](N &n) {
            configured(n, [&](auto &data) {
                data.hoursInWeek = std::chrono::hours(hours);
                data.usableCurrencies = usable;
            });
            n.onPrepareShowConfigure();
        };
    };
    const numira::Currency dollar = numira::toCurrency("USD");
    return {
        {"store", configure(30, {dollar})},
        {"store too long a week", configure(168, {dollar})},
        {"store an unknown display",
         [](N &n) {
             configured(n, [](auto &data) {
                 data.currenciesDisplayAs = navigation::CurrencyDisplayOptions(9);
             });
         }},
        {"store without a used currency",
         [=](N &n) {
             added(item<Bill>("Gîte", money("EUR", "9")))(n);
             n.onRemovedAct(code(7, "Gîte [Budget Item]")); // only the item is left
             configure(30, {dollar})(n);
         }},
        {"store without a currency of the ledger",
         [=](N &n) {
             n.onAddedBankAccount(QStringLiteral("Card"), BankAccountTypes::Cash,
                                  money("EUR", "5"));
             configure(30, {dollar})(n);
         }},
        {"show rates", [](N &n) { n.onPrepareShowExchangeRates(); }},
        {"store no rates", [](N &n) { n.onStoreExchangeRates({}); }},
        {"fetch nothing", [](N &n) { n.onFetchExchangeRates({}); }},
        {"refresh rates that hold",
         [=](N &n) {
             n.onStoreExchangeRates(conversion::ConversionMap(
                 dollar, QDateTime::currentDateTimeUtc(),
                 {{numira::toCurrency("EUR"), numira::FloatingPoint("2")}}));
             QMetaObject::invokeMethod(&n, "updateAllExpiredExchangeRates", Qt::DirectConnection);
             n.onStoreExchangeRates({});
         }},
        {"fetch release notes", [](N &n) { n.onFetchReleaseNotes(); }},
    };
}

// ---- budget file ---------------------------------------------------------------

Topic budgetFile()
{
    const auto changed = [](N &n) { n.onBankAdded(Bank(bankName("B"), {}, false)); };
    const auto wizard = [](const char *bank, const char *account,
                           navigation::BudgetWizardTemplates household) {
        return [=](N &n) {
            n.onCompletedNewBudgetFirstTimeWizard(
                numira::toCurrency("EUR"), {numira::toCurrency("EUR")},
                navigation::CurrencyDisplayOptions::IsoCode, bankName(bank),
                BankAccountTypes::Checking, QString::fromUtf8(account), money("EUR", "1"),
                household);
            n.onCheckIsBudgetFileDirty();
        };
    };
    using enum navigation::BudgetWizardTemplates;
    return {
        {"new", [](N &n) { n.onPrepareNewBudgetEmpty(); }},
        {"new keeps the tags", [](N &n) { n.onConfirmedNewBudgetEmpty(), n.onPrepareShowBills(); }},
        {"new with changes", [=](N &n) { changed(n), n.onPrepareNewBudgetEmpty(); }},
        {"new confirmed", [=](N &n) { changed(n), n.onConfirmedNewBudgetEmpty(); }},
        {"new when empty but changed",
         [=](N &n) {
             n.clear(), changed(n), n.onBankRemoved(bankName("B"));
             n.onPrepareNewBudgetEmpty();
         }},
        {"load with changes",
         [=](N &n) { changed(n), n.onLoadBudgetFile(QStringLiteral("other")); }},
        {"load when empty but changed",
         [=](N &n) {
             n.clear(), changed(n), n.onBankRemoved(bankName("B"));
             n.onLoadBudgetFile(QStringLiteral("other"));
         }},
        {"reload drops changes", [=](N &n) { changed(n), n.onReloadBudgetFile(); }},
        {"reload without a file", [](N &n) { n.clear(), n.onReloadBudgetFile(); }},
        {"save without a file", [](N &n) { n.clear(), n.onSaveBudgetFile(); }},
        {"load what is not there",
         [=](N &n) { changed(n), n.onConfirmedLoadBudgetFile(QStringLiteral("x"), false); }},
        {"save", [=](N &n) { changed(n), n.onSaveBudgetFile(); }},
        {"save as", [](N &n) { n.onSaveAsBudgetFile(QStringLiteral("X.BUDGET")); }},
        {"check", [](N &n) { n.onCheckIsBudgetFileDirty(); }},
        {"check with changes", [=](N &n) { changed(n), n.onCheckIsBudgetFileDirty(); }},
        {"prepare wizard", [](N &n) { n.onPrepareNewBudgetFirstTimeWizard(); }},
        {"prepare wizard with changes",
         [=](N &n) { changed(n), n.onPrepareNewBudgetFirstTimeWizard(); }},
        {"wizard confirmed", [=](N &n) { changed(n), n.onConfirmedNewBudgetFirstTimeWizard(); }},
        {"wizard without items", wizard("Bank", "Daily", None)},
        {"wizard without a bank's name", wizard("", "Daily", None)},
        {"wizard with an unknown account",
         [](N &n) {
             n.onCompletedNewBudgetFirstTimeWizard(
                 numira::toCurrency("EUR"), {numira::toCurrency("EUR")},
                 navigation::CurrencyDisplayOptions::IsoCode, bankName("Bank"),
                 BankAccountTypes::Unknown, QStringLiteral("Daily"), money("EUR", "1"), None);
         }},
        {"wizard for a child", wizard("Bank", "Daily", Child)},
        {"wizard with an item's name", wizard("Bank", "Allowance", Teenager)},
    };
}

} // namespace

Rows allRequests()
{
    Rows all;
    const auto append = [&](const char *topic, const Topic &rows) {
        for (const auto &[name, request] : rows)
            all.push_back({QByteArray(topic) + ": " + name, request});
    };
    append("item", budgetItems());
    append("item view", budgetItemViews());
    append("account", accounts());
    append("bank", banks());
    append("transaction", transactions());
    append("processing", processing());
    append("survey", surveys());
    append("configuration", configuration());
    append("file", budgetFile());
    return all;
}

} // namespace kiv::test
