// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "household.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

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

class TestKivTerminal : public QObject {
    Q_OBJECT

private slots:
    void linesAreTypedWithHistoryAndCompletion()
    {
        const Household home;
        QVERIFY(home.runAll({"new", "bill add Rent 1250", "bill add Car_tax 360"}));
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
};

static const kiv::test::Suite<TestKivTerminal> suite;
#include "tst_kiv_terminal.moc"
