// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_requests.h"

#include "storage/budget_file.h"

#include <QtCore/QTemporaryDir>

#include <random>

using namespace kiv;
using namespace kiv::test;
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
    for (const auto &[name, prepare] : allStates())
        QTest::newRow(name.constData()) << prepare;
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
    // Filling a ledger takes long; read again, it is as full.
    const bool isFull = data.generalLedger.transactionCount() > 1000;

    for (const auto &row : requests) {
        m_settings.reset();
        Desk desk;
        if (isFull) {
            desk.disk->files.insert_or_assign(home, data);
            desk.navigator->onLoadBudgetFile(home);
        } else {
            desk.furnish();
            prepare(*desk.navigator);
        }
        (void)desk.take();
        const bool wasChanged = desk.isChanged();
        make(desk, row);
        const QString said = desk.take().join(u'\n');
        if (row.first.startsWith("file: "))
            continue;
        QVERIFY2(desk.isChanged() == (wasChanged || said.contains(QStringLiteral(" *"))),
                 row.first.constData());
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
        // A debt's account that was removed and is opened anew brings its opening.
        QVERIFY2(data.generalLedger.transactionCount() >= made.generalLedger.transactionCount(),
                 row.first.constData());
        QVERIFY2(throughFile(path, data) == data, row.first.constData());
        QVERIFY2(isBalanced(data.generalLedger), row.first.constData());
    }
}

static const kiv::test::Suite<NavigatorStates> suite;
#include "tst_navigator_states.moc"
