// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

#include "storage/budget_file.h"

#include <QtCore/QTemporaryDir>

#include <random>

using namespace kiv;
using namespace kiv::test;
using banking::BankAccountTypes;
using storage::BudgetStorage;

/// Every request in every state of a budget, and long walks over all of them:
/// nothing may leave a slot that should not, debits stay equal to credits, and
/// whatever was made can be saved and loaded again.
class NavigatorStates : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void staysWhole_data();
    void staysWhole();
    void walksSurviveTheFile();

private:
    OwnSettings m_settings;
    QTemporaryDir m_folder;
};

namespace {

const Rows requests = allRequests();
const QString home = QStringLiteral("home.budget");

/// Whether debits equal credits over all accounts, in the amounts as entered.
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

/// What is read of a budget that was written by the real storage.
BudgetStorage::Data throughFile(const QString &path, const BudgetStorage::Data &data)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    file.store(data);
    file.setFilePathName(path);
    return file.load();
}

/// Makes the request; what leaves the slot must be a mistake of the caller or an
/// error of a storage or a query.
void make(Desk &desk, const Rows::value_type &row)
{
    try {
        row.second(*desk.navigator);
    } catch (const foundation::Error &error) {
        const bool mayThrow = row.first.contains("show") || row.first.contains("reconciliation") ||
                              row.first.contains("generate") || row.first.contains("look up") ||
                              row.first.contains("load") || row.first.contains("configuration");
        QVERIFY2(mayThrow, (row.first + ": " + error.what()).constData());
    } catch (const std::logic_error &) {
        QVERIFY2(row.first.contains("at a") || row.first.contains("kind") ||
                     row.first.contains("generate") || row.first.contains("look up"),
                 row.first.constData());
    } catch (const std::bad_cast &) {
        QVERIFY2(row.first.contains("as bill"), row.first.constData());
    }
}

} // namespace

void NavigatorStates::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void NavigatorStates::staysWhole_data()
{
    QTest::addColumn<Request>("prepare");
    const auto addBill = [](Navigator &n) {
        const auto bill = item<budgeting::Bill>("Gas");
        n.onAdded(element(), toBudgetItemTypes(bill), bill, {}, tagged(bill));
    };
    const auto addAtBank = [](Navigator &n, const budgeting::BudgetedMoney &item,
                              BankAccountTypes kind) {
        n.onAdded(element(), toBudgetItemTypes(item), item,
                  banking::BankAccount{bankName("First"), {no(1), kind}}, tagged(item));
    };
    const std::vector<std::pair<const char *, Request>> states{
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
    for (const auto &[name, prepare] : states)
        QTest::newRow(name) << prepare;
}

void NavigatorStates::staysWhole()
{
    QFETCH(const Request, prepare);
    m_settings.reset();
    Desk preparing;
    preparing.furnish();
    prepare(*preparing.navigator);
    const BudgetStorage::Data data = preparing.save();
    QVERIFY(isBalanced(data.generalLedger));
    QVERIFY(throughFile(m_folder.filePath(home), data) == data);

    for (const auto &row : requests) {
        m_settings.reset();
        Desk desk;
        desk.disk->files.insert_or_assign(home, data);
        desk.navigator->onLoadBudgetFile(home);
        (void)desk.take();
        make(desk, row);
        const QString said = desk.take().join(u'\n');
        if (row.first.startsWith("file: "))
            continue;
        QVERIFY2(desk.isChanged() == said.contains(QStringLiteral(" *")), row.first.constData());
        if (desk.isChanged())
            QVERIFY2(isBalanced(desk.save().generalLedger), row.first.constData());
    }
}

void NavigatorStates::walksSurviveTheFile()
{
    const QString path = m_folder.filePath(QStringLiteral("walk.budget"));
    const int steps = qEnvironmentVariableIntValue("KIV_RANDOM_RUNS");
    std::mt19937 random(20260131);
    BudgetStorage::Data data;
    for (int step = 0; step < (steps > 0 ? steps : 100); ++step) {
        m_settings.reset();
        Desk desk;
        // Now and then anew, so that there is something to be done.
        if (step % 25 == 0) {
            desk.furnish();
        } else {
            desk.disk->files.insert_or_assign(home, data);
            desk.navigator->onLoadBudgetFile(home);
        }
        const Rows::value_type &row = requests.at(random() % requests.size());
        make(desk, row);
        const BudgetStorage::Data made = desk.save();
        data = throughFile(path, made);
        QVERIFY2(data.generalLedger.transactionCount() == made.generalLedger.transactionCount(),
                 row.first.constData());
        QVERIFY2(throughFile(path, data) == data, row.first.constData());
        QVERIFY2(isBalanced(data.generalLedger), row.first.constData());
    }
}

QTEST_GUILESS_MAIN(NavigatorStates)
#include "tst_navigator_states.moc"
