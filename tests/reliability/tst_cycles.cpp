// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/navigator_desk.h"

#include "storage/budget_file.h"
#include "support/damage.h"

#include <malloc.h>

namespace {

/// Bytes that are asked for and not given back, also those that come in large pieces.
qint64 memoryInUse()
{
    const auto memory = ::mallinfo2();
    return qint64(memory.uordblks + memory.hblkhd);
}

qsizetype openFiles()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

/// Qt keeps the room of as many timers as ever waited at once.
void makeRoomForTimers()
{
    for (int i = 0; i < 10'000; ++i)
        QTimer::singleShot(std::chrono::milliseconds(1), [] {});
    QTest::qWait(100);
}

std::unique_ptr<Navigator> newNavigator()
{
    return std::make_unique<Navigator>(
        std::make_unique<ScriptedSender>(ScriptedSender::silence()),
        std::make_unique<storage::BudgetFile>(),
        std::make_unique<MemoryRatesStorage>(std::make_shared<MemoryDisk>()));
}

} // namespace

/// Opens a budget, edits, saves and closes it again and again: nothing may be
/// kept from one time to the next.
class Cycles : public QObject {
    Q_OBJECT

private slots:
    void nothingIsKeptFromOneToTheNext()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        makeRoomForTimers();
        const OwnSettings settings;
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("home.budget"));
        newNavigator()->onSaveAsBudgetFile(path);
        const int cycles = randomRuns(300);
        qint64 memory = 0;
        qsizetype files = 0;
        for (int cycle = 0; cycle < cycles; ++cycle) {
            if (cycle == cycles / 10) {
                memory = memoryInUse();
                files = openFiles();
            }
            const auto navigator = newNavigator();
            navigator->onLoadBudgetFile(path);
            const auto bill = item<budgeting::Bill>("Gas");
            if (cycle % 2 == 0)
                navigator->onAdded(element(), toBudgetItemTypes(bill), bill, {}, tagged(bill));
            else
                navigator->onRemoved(element(), toBudgetItemTypes(bill), bill.source());
            bool isChanged = false;
            connect(navigator.get(), &Navigator::checkedIsBudgetFileDirty,
                    [&](bool isDirty) { isChanged = isDirty; });
            navigator->onCheckIsBudgetFileDirty();
            QVERIFY(isChanged);
            navigator->onSaveBudgetFile();
            QCoreApplication::processEvents();
        }
        // A single shot whose receiver is gone takes memory until its time has come, at
        // most for the five seconds before the first look for a release.
        QTest::qWait(5'500);
        qInstallMessageHandler(nullptr);
        qInfo() << "Grown by" << memoryInUse() - memory << "bytes.";
        // No object, however small, stays behind each time.
        QVERIFY(memoryInUse() < memory + 64 * (1024 + cycles));
        QVERIFY(openFiles() <= files);
    }
};

static const kiv::test::Suite<Cycles> cyclesSuite;
#include "tst_cycles.moc"
