// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "failing_calls.h"
#include "image_surgery.h"
#include "random_budget.h"
#include "scratch_folder.h"

#include "support/damage.h"
#include "support/message_log.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

using namespace std::chrono_literals;
using test::failingCalls;
using Data = storage::BudgetStorage::Data;

namespace {

constexpr int few = 200;
constexpr int full = 65'535;

/// Two versions of a budget with that many transactions, and the bytes of each.
struct Versions {
    explicit Versions(int transactions)
    {
        data[0] = data[1] = test::budgetWith(transactions);
        data[1].banks.add(banking::Bank(banking::BankName(QStringLiteral("Second")), {}, false));
        for (const int which : {0, 1}) {
            const test::ScratchFolder folder;
            test::store(folder.path(homeBudget), data[which]);
            bytes[which] = folder.read(homeBudget);
        }
    }

    Data data[2];
    QByteArray bytes[2];
};

const Versions &versionsOf(int transactions)
{
    static std::map<std::pair<int, bool>, Versions> known;
    return known.try_emplace({transactions, test::isEncrypting}, transactions).first->second;
}

/// Saves the versions in turn, that many times.
using SavingProcess = void (*)(const Versions &, const QString &path, int times);

void save(const Versions &versions, const QString &path, int times)
{
    test::TestFile file(path);
    failingCalls.isOn = true;
    for (int turn = 1; turn <= times; ++turn)
        file.store(versions.data[turn % 2]);
    failingCalls.isOn = false;
}

void spoil(const Versions &versions, const QString &path, int times)
{
    failingCalls.isOn = true;
    for (int turn = 1; turn <= times; ++turn)
        test::saveCarelessly(path, versions.bytes[turn % 2]);
}

/// Runs the saver in a process of its own that is killed: at a chosen call, or
/// after a while. Answers with the promise that was broken, or with nothing.
QString brokenPromise(SavingProcess saver, int transactions, const std::string &call, int at,
                      std::chrono::microseconds after = std::chrono::seconds(20))
{
    const Versions &versions = versionsOf(transactions);
    const test::ScratchFolder folder;
    folder.write(homeBudget, versions.bytes[0]);
    const QString path = folder.path(homeBudget);
    const pid_t child = ::fork();
    if (child == 0) {
        test::fail(call, at, 0, [] { ::raise(SIGKILL); });
        failingCalls.isOn = false; // until it saves
        saver(versions, path, std::numeric_limits<int>::max());
    }
    int status = 0;
    const auto end = std::chrono::steady_clock::now() + after;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() >= end)
            ::kill(child, SIGKILL);
        std::this_thread::sleep_for(200us);
    }
    if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
        return QStringLiteral("the saver ended by itself");
    const QByteArray left = test::imageOf(folder.read(homeBudget));
    if (left != test::imageOf(versions.bytes[0]) && left != test::imageOf(versions.bytes[1]))
        return QStringLiteral("neither version is left");
    const QString wrong = test::wrongInVersions(path);
    if (!wrong.isEmpty())
        return wrong;
    // The lock of a killed program is none.
    test::TestFile next;
    next.setFilePathName(path);
    if (test::failureOf([&] { (void)next.load(), next.store(versions.data[1]); }) ||
        test::imageOf(folder.read(homeBudget)) != test::imageOf(versions.bytes[1]))
        return QStringLiteral("the next save failed");
    for (const QString &file : folder.names()) {
        if (!file.startsWith(homeBudget))
            return QStringLiteral("left for good: %1").arg(file);
    }
    const QString readable = test::inTheClear(path);
    if (test::isEncrypting && !readable.isEmpty())
        return QStringLiteral("left in the clear: %1").arg(readable);
    return test::wrongInVersions(path);
}

/// Which kill, at a random moment, left something broken, or nothing.
QString brokenAtSomeMoment(SavingProcess saver, int transactions, int kills,
                           std::chrono::microseconds within)
{
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::int64_t> moment(0, within.count());
    for (int i = 0; i < kills; ++i) {
        const QString broken =
            brokenPromise(saver, transactions, {}, 0, std::chrono::microseconds(moment(random)));
        if (!broken.isEmpty())
            return QStringLiteral("seed %1, kill %2: %3")
                .arg(QString::number(seed), QString::number(i), broken);
    }
    return {};
}

/// How many transactions a budget has, and whether it is encrypted.
using Size = std::pair<int, bool>;

/// Small budgets, and full ones when there is time.
void addSizes()
{
    test::addRows<Size>({{"small", {few, false}}, {"small, encrypted", {few, true}}});
    if (randomRuns(0) > 0) {
        QTest::newRow("full") << Size(full, false);
        QTest::newRow("full, encrypted") << Size(full, true);
    }
}

} // namespace

/// Kills a process that saves. The rig proves its worth on a careless one first.
class SaveKillsTest final : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { test::isEncrypting = false; }
    void aCarelessSaverIsCaught()
    {
        const QString neither = QStringLiteral("neither version is left");
        QCOMPARE(brokenPromise(spoil, few, "write", 1), neither);
        const QString atSomeMoment = brokenAtSomeMoment(spoil, few, 100, 12ms);
        QVERIFY2(atSomeMoment.endsWith(neither), qPrintable(atSomeMoment));
    }

    void aKillAtAnyCallLeavesAWholeFile_data() { addSizes(); }
    void aKillAtAnyCallLeavesAWholeFile()
    {
        const auto [transactions, isEncrypted] = test::rowOf<Size>();
        test::isEncrypting = isEncrypted;
        // How often each call is made during two saves.
        const test::ScratchFolder folder;
        folder.write(homeBudget, versionsOf(transactions).bytes[0]);
        failingCalls = {};
        save(versionsOf(transactions), folder.path(homeBudget), 2);
        const auto counts = std::exchange(failingCalls, {}).counts;
        int kills = 0;
        for (const auto &[call, count] : counts) {
            for (int at = 1; at <= count; ++at, ++kills) {
                const QString broken = brokenPromise(save, transactions, call, at);
                QVERIFY2(broken.isEmpty(), qPrintable(QStringLiteral("%1 %2: %3")
                                                          .arg(QString::fromStdString(call),
                                                               QString::number(at), broken)));
            }
        }
        QVERIFY(kills > 40);
    }

    void aKillAtAnyMomentLeavesAWholeFile_data() { addSizes(); }
    void aKillAtAnyMomentLeavesAWholeFile()
    {
        const auto [transactions, isEncrypted] = test::rowOf<Size>();
        test::isEncrypting = isEncrypted;
        const bool isFull = transactions == full;
        const QString broken = brokenAtSomeMoment(
            save, transactions, randomRuns(60) / (isFull ? 33 : 1), isFull ? 600ms : 12ms);
        QVERIFY2(broken.isEmpty(), qPrintable(broken));
    }

private:
    const MessageLog m_log; // a leftover that was cleared away is a warning
};

static const kiv::test::Suite<SaveKillsTest> saveKillsSuite;
#include "tst_save_kills.moc"
