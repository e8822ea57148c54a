// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"
#include "storage/scratch_folder.h"
#include "support/damage.h"
#include "support/full_disk.h"

#include <unistd.h>

#include <thread>

namespace {

/// A second, and what a processor that does other work takes in addition, in milliseconds.
constexpr qint64 lostMax = 2'000;
/// A save waits for the disk so often: for the file, the version, and their folders.
constexpr qint64 syncsOfSave = 4;
/// Tells a process that it is the one to kill: its file, and whether its disk is full.
constexpr auto victimsFile = "KIV_VICTIMS_FILE";
constexpr auto victimsDisk = "KIV_VICTIMS_DISK";

/// Opens the file in a window and enters 1 for groceries, then 2, 3, … until it is killed.
[[noreturn]] void enterUntilKilled(const QString &file)
{
    HouseholdWindow home;
    if (!home.window().open(file))
        ::_exit(2);
    home.show();
    std::optional<FullDisk> full;
    if (!qEnvironmentVariableIsEmpty(victimsDisk))
        full.emplace();
    home.trigger("newEntry");
    const auto field = [&home](const char *name) {
        return home.window().page()->findChild<QWidget *>(QLatin1String(name));
    };
    for (int number = 1;; ++number) {
        field("amount")->setFocus();
        QTest::keyClicks(field("amount"), QString::number(number));
        qobject_cast<QComboBox *>(field("own"))->setEditText(u"Checking"_s);
        qobject_cast<QComboBox *>(field("other"))->setEditText(u"Groceries"_s);
        QTest::keyClick(field("amount"), Qt::Key_Return);
        std::printf("entered %d\n", number);
        std::fflush(stdout);
        QTest::qWait(10);
    }
}

/// Watches how long the disk takes at most, which no program can shorten.
class SlowestSync {
public:
    explicit SlowestSync(const QString &folder)
        : m_thread([this, folder](const std::stop_token &end) {
              QFile probe(folder + u"/probe"_s);
              while (!end.stop_requested() && probe.open(QIODevice::WriteOnly)) {
                  QElapsedTimer time;
                  time.start();
                  probe.putChar('x');
                  probe.flush();
                  ::fsync(probe.handle());
                  m_slowest = std::max(m_slowest, time.elapsed());
                  probe.close();
                  QThread::msleep(50);
              }
          })
    {
    }
    /// In milliseconds, when the last one has come back.
    qint64 end()
    {
        m_thread.request_stop();
        m_thread.join();
        return m_slowest;
    }

private:
    qint64 m_slowest = 0;
    std::jthread m_thread;
};

/// A window that somebody works in, in a process of its own.
class Victim {
public:
    explicit Victim(const QString &disk) : m_isFull(!disk.isEmpty())
    {
        KivCommand(m_file).makeHousehold();
        m_before = transactions();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(victimsFile), m_file);
        environment.insert(QString::fromLatin1(victimsDisk), disk);
        environment.insert(u"TMPDIR"_s, m_folder.path()); // what it leaves goes with it
        m_process.setProcessEnvironment(environment);
        m_process.start(QCoreApplication::applicationFilePath(), {u"TestKilledWindow"_s});
    }

    /// Kills it so long after its first entry, and answers what is wrong then, or nothing.
    QString killedAfter(qint64 milliseconds)
    {
        QElapsedTimer sinceFirst;
        std::vector<qint64> entered;
        SlowestSync disk(m_folder.path());
        while (entered.empty() || sinceFirst.elapsed() < milliseconds) {
            if (!m_process.waitForReadyRead(entered.empty() ? 30'000 : 20) && entered.empty())
                return u"nothing was entered"_s;
            while (m_process.canReadLine()) {
                if (!m_process.readLine().startsWith("entered"))
                    continue;
                if (entered.empty())
                    sinceFirst.start();
                entered.push_back(sinceFirst.elapsed());
            }
        }
        const qint64 end = sinceFirst.elapsed();
        m_process.kill();
        m_process.waitForFinished();
        const qint64 allowed = lostMax + (m_isFull ? 0 : syncsOfSave * disk.end());
        if (const QString wrong = test::wrongInVersions(m_file); !wrong.isEmpty())
            return wrong;
        const std::size_t kept = transactions() - m_before;
        return kept < entered.size() && entered[kept] < end - allowed
                   ? u"%1 of %2 entries were kept"_s.arg(kept).arg(entered.size())
                   : QString();
    }

private:
    [[nodiscard]] std::size_t transactions() const
    {
        return test::load(m_file).generalLedger.transactions().size();
    }

    bool m_isFull;
    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(u"home.budget"_s);
    std::size_t m_before = 0;
    QProcess m_process;
};

} // namespace

/// A window that is killed while somebody works in it.
class TestKilledWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (const QString file = qEnvironmentVariable(victimsFile); !file.isEmpty())
            enterUntilKilled(file); // this process is a victim, and does not return
    }

    void onlyTheLastSecondIsLost()
    {
        // One that cannot write loses more, and the file is whole all the same.
        const QString lost = Victim(u"full"_s).killedAfter(2 * lostMax);
        QVERIFY2(lost.startsWith(u"0 of"), qPrintable(lost));
        for (int run = 0; run < randomRuns(3); ++run) {
            const int moment = QRandomGenerator::global()->bounded(50, 6'000);
            const QString broken = Victim({}).killedAfter(moment);
            QVERIFY2(broken.isEmpty(), qPrintable(u"after %1 ms: %2"_s.arg(moment).arg(broken)));
        }
    }
};

static const kiv::test::Suite<TestKilledWindow> testKilledWindowSuite;

#include "tst_killed_window.moc"
