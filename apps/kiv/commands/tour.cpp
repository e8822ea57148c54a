// SPDX-License-Identifier: GPL-3.0-or-later
// tour
#include "commands/commands.h"

#include "messages/exit_status.h"
#include "program/program.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace kiv::app {
namespace {

/// Runs this program, one process for each command, with a budget and settings in a
/// temporary folder.
class Guide {
public:
    explicit Guide(const Terminal &terminal) : m_terminal(terminal)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                           m_folder.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"),
                           m_folder.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("KIV_FILE"), QStringLiteral("household.budget"));
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(m_folder.path());
    }

    void say(const QString &text) const
    {
        m_terminal.write((u'\n' + m_terminal.bold(text) + u'\n').toUtf8());
    }

    /// Shows a command line with its output.
    void show(const QStringList &words, int expected = ExitStatus::success)
    {
        QStringList quoted;
        for (const QString &word : words)
            quoted += word.contains(u' ') ? u'\'' + word + u'\'' : word;
        const QString line = QStringLiteral("$ kiv ") + quoted.join(u' ') + u'\n';
        m_terminal.write(m_terminal.faint(line).toUtf8());
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        run(words, expected);
        if (expected != ExitStatus::success)
            m_terminal.write(QObject::tr("(exit status %1)\n").arg(expected).toUtf8());
    }

    QJsonDocument answer(const QStringList &words)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        run(words, ExitStatus::success);
        return QJsonDocument::fromJson(m_process.readAllStandardOutput());
    }

private:
    void run(const QStringList &words, int expected)
    {
        m_process.start(QCoreApplication::applicationFilePath(), words);
        m_process.closeWriteChannel();
        m_process.waitForFinished(-1);
        if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != expected)
            throw Refusal(
                QObject::tr("The tour stopped: the last command gave an unexpected exit status."));
    }

    const Terminal &m_terminal;
    QTemporaryDir m_folder;
    QProcess m_process;
};

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(u'|');
}

struct Tour {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        Guide guide(call.program.terminal());
        const QDate today = call.date();
        const auto day = [&today](int days) { return today.addDays(days).toString(Qt::ISODate); };

        guide.say(QObject::tr("A new budget in US dollars, with a bank and a checking account"));
        guide.show(words("configure|set|--preferred|USD|--usable|USD|--display|code"));
        guide.show(words("new"));
        guide.show(words("bank|add|First Bank"));
        guide.show(words("bank-account|add|Checking|--bank|First Bank|--balance|2500.00"));

        guide.say(QObject::tr("Wages and bills, with the days when they are due"));
        guide.show(words("wage|add|Salary|3100.00|--next") << day(-1));
        guide.show(words("bill|add|Rent|1250.00|--next") << day(-3));
        guide.show(words("bill|add|Electricity|84.35|--next") << day(0));
        guide.show(words("bill|add|Gym|29.90|--tag|sport|--next") << day(2));
        guide.show(words("bill|add|Car tax|360.00|--every|yearly|--next") << day(120));
        guide.show(words("bill|rename|Gym|Fitness studio"));
        guide.show(words("due"));

        guide.say(QObject::tr(
            "Due items are posted; the fitness studio is closed this month and is skipped"));
        guide.show(words("post|--all|--account|Checking"));
        guide.show(words("skip|Fitness studio"));
        guide.show(words("pay|Electricity|19.10|--account|Checking"));

        guide.say(QObject::tr(
            "An account cannot have the name of a budget item: kiv refuses and changes nothing"));
        guide.show(words("account|add|Rent|--type|expense"), ExitStatus::refused);

        guide.say(QObject::tr("Every change was saved at once; each command opens the file again"));
        guide.show(words("bill|list"));
        guide.show(words("ledger|Checking"));
        guide.show(words("accounts"));
        guide.show(words("dashboard"));
        guide.show(words("info"));
        const QJsonDocument info = guide.answer(words("info|--json"));
        if (info[QLatin1String("debits")] != info[QLatin1String("credits")])
            throw Refusal(QObject::tr("The debits do not equal the credits."));
        guide.say(QObject::tr("The sum of all debits equals the sum of all credits."));
        return Report(info.object());
    }
};

} // namespace

void addTourCommand(CommandGroup &root)
{
    root.add("tour", QObject::tr("Demonstrate kiv on a temporary budget"), CommandKind::Standalone,
             Tour{});
}

} // namespace kiv::app
