// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "failing_calls.h"
#include "scratch_folder.h"

#include "support/damage.h"
#include "support/message_log.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>
#include <thread>

using namespace kiv;
using namespace std::chrono_literals;
using test::failingCalls;
using Data = storage::BudgetStorage::Data;

namespace {

const QString name = QStringLiteral("home.budget");

/// Two versions of a budget with that many transactions, and the bytes of each.
struct Versions {
    explicit Versions(int transactions)
    {
        const numira::Currency usd = numira::toCurrency("USD");
        accounting::SequentialAccountNumberGenerator generator;
        const auto account = [](std::uint32_t number) { return accounting::AccountNumber(number); };
        for (const std::uint32_t number : {1U, 2U})
            data[0].generalLedger.add({accounting::AccountTypes::Asset,
                                       {account(number), QStringLiteral("a"), {}},
                                       numira::Money(usd),
                                       false},
                                      generator);
        for (int i = 0; i < transactions; ++i)
            data[0].generalLedger.post({QDate(2026, 1, 1).addDays(i % 3650), account(1), account(2),
                                        numira::Money(usd, std::int64_t(i + 1), 0),
                                        QStringLiteral("shopping")});
        data[1] = data[0];
        data[1].banks.add(banking::Bank(banking::BankName(QStringLiteral("Second")), {}, false));
        for (const int which : {0, 1}) {
            const test::ScratchFolder folder(place());
            test::store(folder.path(name), data[which]);
            bytes[which] = folder.read(name);
        }
    }
    // In memory, where there is such a place: a kill then seldom waits for the
    // disk, so that it hits every step of a save.
    static QString place()
    {
        return QFileInfo(u"/dev/shm"_qs).isWritable() ? u"/dev/shm"_qs : QDir::tempPath();
    }

    Data data[2];
    QByteArray bytes[2];
};

using Saver = void (*)(const Versions &, const QString &path);

/// Saves the two versions in turn, for ever.
void save(const Versions &versions, const QString &path)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    (void)file.load();
    failingCalls.isOn = true;
    for (;;) {
        file.store(versions.data[1]);
        file.store(versions.data[0]);
    }
}

/// Does the same as a careless program does it.
void spoil(const Versions &versions, const QString &path)
{
    failingCalls.isOn = true;
    for (int turn = 1;; turn = 1 - turn) {
        const int file = ::open(qPrintable(path), O_WRONLY | O_TRUNC);
        for (qsizetype done = 0; done < versions.bytes[turn].size(); done += 4096)
            (void)::write(
                file, versions.bytes[turn].constData() + done,
                std::size_t(std::min<qsizetype>(4096, versions.bytes[turn].size() - done)));
        (void)::close(file);
    }
}

/// Runs the saver in a process of its own that is killed: at a chosen call, or
/// after a while. Answers with the promise that was broken, or with nothing.
QString brokenPromise(Saver saver, const Versions &versions, const test::FailingCalls &killedAt,
                      std::chrono::microseconds after = std::chrono::seconds(20))
{
    const test::ScratchFolder folder(Versions::place());
    folder.write(name, versions.bytes[0]);
    const QString path = folder.path(name);
    const pid_t child = ::fork();
    if (child == 0) {
        failingCalls = killedAt;
        failingCalls.meanwhile = [] { ::raise(SIGKILL); };
        saver(versions, path);
    }
    int status = 0;
    const auto end = std::chrono::steady_clock::now() + after;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() >= end)
            ::kill(child, SIGKILL);
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
        return QStringLiteral("the saver ended by itself");
    const QByteArray left = folder.read(name);
    if (left != versions.bytes[0] && left != versions.bytes[1])
        return QStringLiteral("neither version is left");
    storage::BudgetFile next;
    next.setFilePathName(path);
    if (test::failureOf([&] { (void)next.load(), next.store(versions.data[1]); }) ||
        folder.read(name) != versions.bytes[1])
        return QStringLiteral("the next save failed");
    for (const QString &file : folder.names()) {
        if (!file.startsWith(name))
            return QStringLiteral("left for good: %1").arg(file);
    }
    return {};
}

/// How often the saver makes each call during two saves.
std::map<std::string, int> callsOf(const Versions &versions)
{
    const test::ScratchFolder folder(Versions::place());
    folder.write(name, versions.bytes[0]);
    storage::BudgetFile file;
    file.setFilePathName(folder.path(name));
    (void)file.load();
    failingCalls = {};
    failingCalls.isOn = true;
    file.store(versions.data[1]);
    file.store(versions.data[0]);
    failingCalls.isOn = false;
    return failingCalls.counts;
}

const Versions &versionsOf(int transactions)
{
    static std::map<int, Versions> known;
    return known.try_emplace(transactions, transactions).first->second;
}

constexpr int few = 200;
constexpr int full = 65'535;

/// Which kill, at a random moment, left something broken, or nothing.
QString brokenAtSomeMoment(Saver saver, int transactions, int kills,
                           std::chrono::microseconds within)
{
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::int64_t> moment(0, within.count());
    for (int i = 0; i < kills; ++i) {
        const QString broken = brokenPromise(saver, versionsOf(transactions), {},
                                             std::chrono::microseconds(moment(random)));
        if (!broken.isEmpty())
            return QStringLiteral("seed %1, kill %2: %3")
                .arg(QString::number(seed), QString::number(i), broken);
    }
    return {};
}

/// The number of the kill of a whole program after which the file is not whole, or 0.
int brokenProgram(const QString &task, int kills)
{
    const test::ScratchFolder folder(Versions::place());
    const QString path = folder.path(name);
    const QString program = QStringLiteral(BUDGET_SAVER);
    std::mt19937 random(std::random_device{}());
    for (int i = 1; i <= kills; ++i) {
        QProcess saver;
        saver.start(program, {task, path});
        if (!saver.waitForReadyRead())
            qFatal("The saver does not begin.");
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 20'000));
        saver.kill();
        saver.waitForFinished();
        if (saver.exitStatus() != QProcess::CrashExit)
            qFatal("The saver ended by itself.");
        if (QProcess::execute(program, {u"check"_qs, path}) != 0)
            return i;
    }
    return 0;
}

} // namespace

/// Kills a program that saves. Each rig proves its worth on a careless program
/// first.
class SaveKillsTest final : public QObject {
    Q_OBJECT

private slots:
    void aCarelessSaverIsCaught();
    void aKillAtAnyCallLeavesAWholeFile_data();
    void aKillAtAnyCallLeavesAWholeFile();
    void aKillAtAnyMomentLeavesAWholeFile_data();
    void aKillAtAnyMomentLeavesAWholeFile();
    void aKilledProgramLeavesAWholeFile();
    void theLockOfAKilledProgramIsNone();

private:
    const MessageLog m_log; // a leftover that was cleared away is a warning
};

void SaveKillsTest::aCarelessSaverIsCaught()
{
    test::FailingCalls atWrite;
    atWrite.name = "write";
    atWrite.from = atWrite.times = 1;
    QCOMPARE(brokenPromise(spoil, versionsOf(few), atWrite), u"neither version is left"_qs);
    const QString atSomeMoment = brokenAtSomeMoment(spoil, few, 100, 12ms);
    QVERIFY2(atSomeMoment.endsWith(u"neither version is left"), qPrintable(atSomeMoment));
    QVERIFY(brokenProgram(u"spoil"_qs, 100) > 0);
}

void SaveKillsTest::aKillAtAnyCallLeavesAWholeFile_data()
{
    QTest::addColumn<int>("transactions");
    QTest::addColumn<int>("step");
    QTest::newRow("small") << few << 1;
    QTest::newRow("full") << full << (randomRuns(1) > 1 ? 1 : 9);
}

void SaveKillsTest::aKillAtAnyCallLeavesAWholeFile()
{
    QFETCH(int, transactions);
    QFETCH(int, step);
    int kills = 0;
    for (const auto &[call, count] : callsOf(versionsOf(transactions))) {
        for (int at = 1; at <= count; ++at) {
            if (kills++ % step != 0)
                continue;
            test::FailingCalls killed;
            killed.name = call;
            killed.from = at;
            killed.times = 1;
            const QString broken = brokenPromise(save, versionsOf(transactions), killed);
            QVERIFY2(broken.isEmpty(), qPrintable(QStringLiteral("%1 %2: %3")
                                                      .arg(QString::fromStdString(call),
                                                           QString::number(at), broken)));
        }
    }
    qInfo() << (kills + step - 1) / step << "kills";
    QVERIFY(kills > 40);
}

void SaveKillsTest::aKillAtAnyMomentLeavesAWholeFile_data()
{
    QTest::addColumn<int>("transactions");
    QTest::addColumn<int>("kills");
    QTest::addColumn<std::chrono::milliseconds>("within");
    const int runs = randomRuns(400);
    QTest::newRow("small") << few << runs << 12ms;
    QTest::newRow("full") << full << std::max(3, runs / 33) << 600ms;
}

void SaveKillsTest::aKillAtAnyMomentLeavesAWholeFile()
{
    QFETCH(int, transactions);
    QFETCH(int, kills);
    QFETCH(std::chrono::milliseconds, within);
    const QString broken = brokenAtSomeMoment(save, transactions, kills, within);
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

void SaveKillsTest::aKilledProgramLeavesAWholeFile()
{
    QCOMPARE(brokenProgram(u"save"_qs, 30), 0);
}

void SaveKillsTest::theLockOfAKilledProgramIsNone()
{
    const test::ScratchFolder folder(Versions::place());
    const QString path = folder.path(name);
    const QString program = QStringLiteral(BUDGET_SAVER);
    QProcess saver;
    saver.start(program, {u"save"_qs, path});
    QVERIFY(saver.waitForReadyRead());
    QProcess other;
    other.start(program, {u"check"_qs, path});
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.exitCode(), 1);
    QVERIFY(other.readAllStandardError().contains(
        "in use by another program (process " + QByteArray::number(saver.processId()) +
        ", budget_saver on " + QSysInfo::machineHostName().toUtf8() + ")"));
    saver.kill();
    QVERIFY(saver.waitForFinished());
    QVERIFY(QFile::exists(path + u".lock"_qs));
    QCOMPARE(QProcess::execute(program, {u"check"_qs, path}), 0);
}

static const kiv::test::Suite<SaveKillsTest> suite;
#include "tst_save_kills.moc"
