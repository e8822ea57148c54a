// SPDX-License-Identifier: GPL-3.0-or-later
//
// Kills a saver at random moments and looks at what it leaves.
//
//     kill_rig [--kills N] [--within MS] [--from-start] [--seed N]
//              --file FILE --check COMMAND -- SAVER ARGUMENTS…
//
// Each time the saver is started, given up to MS milliseconds after its first
// output (or after its start), and killed with SIGKILL. Then `COMMAND FILE` must
// end with status 0, or the file is not whole and the rig ends with status 1.
// A saver that ended by itself before it was killed does not count and is
// simply started again. What cannot be started ends the rig with status 2.

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QTextStream>

#include <chrono>
#include <random>
#include <thread>

namespace {

/// Milliseconds until the saver must have begun.
constexpr int startMax = 30'000;

[[noreturn]] void giveUp(const QString &why)
{
    QTextStream(stderr) << why << '\n';
    std::exit(2);
}

/// Whether the saver was killed at work, rather than after it.
bool killAtWork(const QStringList &saver, bool isFromStart, std::chrono::microseconds delay)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(saver.first(), saver.mid(1));
    if (!(isFromStart ? process.waitForStarted(startMax) : process.waitForReadyRead(startMax)))
        giveUp(QStringLiteral("The saver does not begin: %1").arg(process.errorString()));
    std::this_thread::sleep_for(delay);
    process.kill();
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::CrashExit;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption kills(QStringLiteral("kills"), {}, QStringLiteral("N"),
                                   QStringLiteral("200"));
    const QCommandLineOption within(QStringLiteral("within"), {}, QStringLiteral("MS"),
                                    QStringLiteral("20"));
    const QCommandLineOption seed(QStringLiteral("seed"), {}, QStringLiteral("N"),
                                  QString::number(std::random_device()()));
    const QCommandLineOption file(QStringLiteral("file"), {}, QStringLiteral("FILE"));
    const QCommandLineOption check(QStringLiteral("check"), {}, QStringLiteral("COMMAND"));
    const QCommandLineOption fromStart(QStringLiteral("from-start"));
    parser.addOptions({kills, within, seed, file, check, fromStart});
    parser.addPositionalArgument(QStringLiteral("saver"), {});
    parser.process(application);
    if (!parser.isSet(file) || !parser.isSet(check) || parser.positionalArguments().isEmpty())
        giveUp(QStringLiteral("A file, a check and a saver are needed."));

    std::mt19937 random(parser.value(seed).toUInt());
    std::uniform_int_distribution<int> microseconds(0, 1000 * parser.value(within).toInt());
    QStringList whole = QProcess::splitCommand(parser.value(check));
    whole.append(parser.value(file));
    const int wanted = parser.value(kills).toInt();
    for (int killed = 0; killed < wanted;) {
        if (!killAtWork(parser.positionalArguments(), parser.isSet(fromStart),
                        std::chrono::microseconds(microseconds(random))))
            continue;
        ++killed;
        const int status = QProcess::execute(whole.first(), whole.mid(1));
        if (status < 0)
            giveUp(QStringLiteral("The check cannot be made."));
        if (status != 0) {
            QTextStream(stderr) << "The file is not whole after kill " << killed << " (seed "
                                << parser.value(seed) << ").\n";
            return 1;
        }
    }
    QTextStream(stdout) << "The file was whole after each of " << wanted << " kills (seed "
                        << parser.value(seed) << ").\n";
    return 0;
}
