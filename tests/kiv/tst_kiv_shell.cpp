// SPDX-License-Identifier: GPL-3.0-or-later
#include "household.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::Literals::StringLiterals;

namespace {

QStringList bills(const Household &home)
{
    QStringList names;
    const QJsonDocument list = home.json("bill list");
    for (const QJsonValue &bill : list.array())
        names += bill["name"_L1].toString() + u' ' + bill["amount"_L1]["amount"_L1].toString();
    return names;
}

/// A shell that waits for its next line, over pipes.
class OpenShell {
public:
    explicit OpenShell(const Household &home)
    {
        home.prepare(m_process);
        m_process.start(QStringLiteral(KIV_PROGRAM), {u"shell"_s});
    }
    /// Writes the lines, the last of which must be answered with `answer` on
    /// standard error.
    [[nodiscard]] bool refuses(const char *lines, const char *answer)
    {
        m_process.write(QByteArray(lines) + '\n');
        return QTest::qWaitFor(
            [&] { return (m_err += m_process.readAllStandardError()).contains(answer); }, 30'000);
    }
    [[nodiscard]] int end()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::NormalExit
                   ? m_process.exitCode()
                   : -1;
    }

private:
    QProcess m_process;
    QByteArray m_err;
};

/// A shell at a terminal.
class Terminal {
public:
    explicit Terminal(const Household &home) : m_master(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        ::grantpt(m_master);
        ::unlockpt(m_master);
        ::fcntl(m_master, F_SETFL, O_NONBLOCK);
        m_slave = ::ptsname(m_master);
        home.prepare(m_process);
        m_process.setChildProcessModifier([this] {
            ::setsid();
            const int slave = ::open(m_slave.constData(), O_RDWR);
            ::ioctl(slave, TIOCSCTTY, 0);
            for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
                ::dup2(slave, stream);
        });
        m_process.start(QStringLiteral(KIV_PROGRAM), {u"shell"_s});
    }
    ~Terminal() { ::close(m_master); }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Waits for `before` to be shown, then types.
    [[nodiscard]] bool type(const QByteArray &keys, const QByteArray &before = "kiv> ")
    {
        const auto isShown = [&] {
            char buffer[4096];
            for (ssize_t count; (count = ::read(m_master, buffer, sizeof buffer)) > 0;)
                m_shown.append(buffer, count);
            return m_shown.contains(before);
        };
        if (!QTest::qWaitFor(isShown, 30'000)) {
            qWarning("not shown: %s in: %s", before.constData(), m_shown.constData());
            return false;
        }
        m_shown.clear();
        return ::write(m_master, keys.constData(), std::size_t(keys.size())) == keys.size();
    }
    [[nodiscard]] int end()
    {
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::NormalExit
                   ? m_process.exitCode()
                   : -1;
    }

private:
    int m_master;
    QByteArray m_slave;
    QProcess m_process;
    QByteArray m_shown;
};

} // namespace

/// Many commands in one process.
class TestKivShell : public QObject {
    Q_OBJECT

private slots:
    void aShellKeepsOneBudgetOpen()
    {
        const Household home;
        QVERIFY(home.begin());
        const QByteArray before = home.bytes();
        const Ended ended = home.run("shell", "# a comment, then a mistake\n"
                                              "bill add Gym 12,3x\n"
                                              "account add Rent --type expense\n"
                                              "bill add \"Car tax\" 360 --dry-run\n"
                                              "new household\n"
                                              "wizard household --bank B --account A\n"
                                              "templates show teenager\n"
                                              "bill list --file " +
                                                  home.file().toUtf8() + '\n');
        QCOMPARE(ended.status, 2);
        QCOMPARE(ended.err.count('\n'), 4);
        // What was refused or dry is taken back in memory before the next line.
        QCOMPARE(ended.out.count("Rent"), 1);
        QCOMPARE(ended.out.count("Car tax"), 1);
        QCOMPARE(home.bytes(), before);
        QCOMPARE(home.run("shell", "bill add 'Car tax' 360\nbill list\nexit\nfrobnicate").status,
                 0);
        QVERIFY(bills(home).contains(u"Car tax 360.00"_s));
        QCOMPARE(home.run("shell", "help bill add\n").out, home.run("bill add --help").out);
        QCOMPARE(home.run("shell household", "quit\nfrobnicate\n").status, 0);
        // An item that has lost its account comes back mended, as from the file.
        QVERIFY(home.run("shell", "account remove 3\nbill add Rent 5\nbill list")
                    .out.contains("$1,250.00"));
    }

    void anotherFileIsFollowedAlsoWhenItsRatesFail()
    {
        const Household home;
        QVERIFY(home.begin());
        const QByteArray before = home.bytes();
        QVERIFY(QDir(home.path("data")).removeRecursively());
        home.write(home.path("data"), "no folder");
        const Ended ended = home.run("shell", "new second\nbill add Gym 30\nsave-as third\n"
                                              "bill add Club 20\nbill add Club 20\n");
        QCOMPARE(ended.status, 1);
        QCOMPARE(home.bytes(), before);
        QCOMPARE(home.json("bill list --file second").array().size(), 1);
        QCOMPARE(home.json("bill list --file third").array().size(), 2);
    }

    void whatCouldNotBeSavedStaysInMemory()
    {
        const Household home;
        QVERIFY(home.begin() && home.runAll({"save-as other"}));
        const QByteArray other = home.bytes(home.path("other.budget"));
        OpenShell shell(home);
        QVERIFY(shell.refuses("bill remove Gym", "no bill")); // the file is open now
        const QString away = home.path("away.budget");
        QVERIFY(QFile::rename(home.file(), away) && QDir().mkdir(home.file()));
        QVERIFY(shell.refuses("bill add Gym 30", "household.budget"));
        // Neither another refusal nor a dry run gives it up, and no other file does.
        QVERIFY(shell.refuses("bill remove Rent --dry-run\nbill add Gym 31", "already exists"));
        QVERIFY(shell.refuses("bill list --file other", "use save-as"));
        QVERIFY(QDir().rmdir(home.file()) && QFile::rename(away, home.file()));
        QCOMPARE(shell.end(), 1);
        // It is saved at the end at the latest.
        QCOMPARE(bills(home), QStringList({u"Gym 30.00"_s, u"Rent 1250.00"_s}));
        QCOMPARE(home.bytes(home.path("other.budget")), other);
    }

    void linesAreTypedWithHistoryAndCompletion()
    {
        const Household home;
        QVERIFY(home.begin() && home.runAll({"bill add Car_tax 360"}));
        Terminal terminal(home);
        QVERIFY(terminal.type("bil\t rem\tRe"));
        QVERIFY(terminal.type("\x03", "Re")); // gives the line up
        QVERIFY(terminal.type("bill update Ca\t--amount 400\r"));
        QVERIFY(terminal.type("bill rename \"Ca\tToll\r"));
        QVERIFY(terminal.type("\x1b[A\r")); // once more, and refused
        QVERIFY(terminal.type("\r"));
        QVERIFY(terminal.type("\x04"));
        QCOMPARE(terminal.end(), 1);
        QCOMPARE(bills(home), QStringList({u"Rent 1250.00"_s, u"Toll 400.00"_s}));
    }

    void watchTellsSignalsAsTheyCome()
    {
        const Household home;
        QVERIFY(home.begin());
        const Ended ended = home.run("watch", "account add Rent --type expense\nbill add Gym 30\n"
                                              "help bill");
        QCOMPARE(ended.status, 1);
        QStringList signalNames;
        for (const QByteArray &line : ended.out.trimmed().split('\n')) {
            const QJsonDocument told = QJsonDocument::fromJson(line);
            QVERIFY2(told.isObject(), line.constData());
            signalNames += told["signal"_L1].toString();
            const QJsonValue arguments = told["arguments"_L1];
            if (signalNames.last() == u"saveSucceeded")
                QCOMPARE(arguments["source"_L1].toString(), u"Gym"_s);
            if (signalNames.last() == u"accountSaveFailed")
                QVERIFY(arguments["original"_L1].isNull() && arguments["displayed"_L1].isString());
        }
        QVERIFY(signalNames.indexOf(u"loadedBudgetFile"_s) <
                signalNames.indexOf(u"accountSaveFailed"_s));
        QCOMPARE(signalNames.count(u"saveSucceeded"_s), 1);
        QCOMPARE(signalNames.count(u"savedBudgetFile"_s), 1);
        QCOMPARE(home.run("watch", "exit\nfrobnicate\n").status, 0);
    }
};

QTEST_GUILESS_MAIN(TestKivShell)
#include "tst_kiv_shell.moc"
