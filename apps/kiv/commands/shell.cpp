// SPDX-License-Identifier: GPL-3.0-or-later
// shell, watch
#include "commands/commands.h"

#include "command_line/candidates.h"
#include "messages/exit_status.h"
#include "output/json.h"
#include "output/signal_watch.h"
#include "parsing/words.h"
#include "program/last_write.h"
#include "program/line_reader.h"
#include "program/program.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <QtCore/QStandardPaths>

#include <CLI/CLI.hpp>

#include <unistd.h>

namespace kiv::app {
namespace {

/// Opens the file from --file or KIV_FILE, if there is one. Later lines can name one,
/// too.
void openNamed(Call &call)
{
    const QString named =
        call.options.file.isEmpty() ? qEnvironmentVariable("KIV_FILE") : call.options.file;
    if (!named.isEmpty())
        call.document.open(named);
}

/// Runs one line. Returns false if it ends the session. `status` keeps the first
/// failure.
bool runLine(Program &program, const std::string &line, int &status)
{
    int ended = ExitStatus::success;
    try {
        const std::vector<std::string> words = splitWords(line);
        if (words.empty())
            return true;
        if (words.front() == "exit" || words.front() == "quit")
            return false;
        ended = program.run(words);
    } catch (const EntryError &error) {
        complain(error.message());
        ended = ExitStatus::misused;
    }
    if (status == ExitStatus::success)
        status = ended;
    return true;
}

/// Tells once why the changes could not be written, and counts it as a failure.
class WriteFailures {
public:
    WriteFailures(Call &call, int &status)
        : m_document(call.document), m_program(call.program), m_status(status)
    {
    }
    void tell()
    {
        m_document.listen();
        const auto trouble = m_document.whyNotSaved();
        const QString sentence = trouble ? trouble->sentence : QString();
        if (std::exchange(m_told, sentence) == sentence || sentence.isEmpty() ||
            sentence == m_program.complaint())
            return;
        complain(sentence);
        if (m_status == ExitStatus::success)
            m_status = ExitStatus::refused;
    }

private:
    Document &m_document;
    const Program &m_program;
    int &m_status;
    QString m_told;
};

/// Nobody reads what is printed any more.
bool isOutputClosed()
{
    return std::ferror(stdout) != 0;
}

/// Ends a session: saves unsaved changes.
Report ended(Call &call, int status)
{
    try {
        call.document.saveUnsaved();
    } catch (const foundation::Error &error) {
        complain(told(error));
        status = ExitStatus::refused;
    }
    Report report;
    report.setStatus(status);
    return report;
}

struct Shell {
    QString file; ///< set by desktops when a file is opened

    void declare(Arguments &arguments)
    {
        arguments.file()
            .optional("FILE", file, QObject::tr("Budget file, like --file"))
            .exclusive("FILE", "--file");
    }
    Report run(Call &call) const
    {
        Program &program = call.program;
        program.keepBudget();
        if (file.isEmpty())
            openNamed(call);
        else
            call.document.open(file);
        LineReader reader(
            [&](const std::vector<std::string> &before) {
                Candidates found = candidatesAfter(*program.commandTree(), before, call.document);
                std::vector<std::string> words = std::move(found.values);
                words.insert(words.end(), found.options.begin(), found.options.end());
                return words;
            },
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                QStringLiteral("/history"),
            [&call] { return call.document.isEncrypted(); });
        int status = ExitStatus::success;
        WriteFailures failures(call, status);
        const LastWrite lastWrite(call.document);
        while (const std::optional<std::string> line = reader.next()) {
            failures.tell();
            if (!runLine(program, *line, status) || isOutputClosed())
                break;
            failures.tell();
        }
        return ended(call, status);
    }
};

struct Watch {
    void declare(Arguments &arguments) { arguments.file(); }
    Report run(Call &call) const
    {
        Program &program = call.program;
        program.keepBudget();
        program.setSilent();
        const SignalWatch watch(call.requests.navigator(), [&program](const QJsonObject &signal) {
            const auto write = [&program](const QByteArray &line) {
                program.terminal().write(line);
            };
            JsonText(JsonText::Layout::OneLine, write).add(signal).finish();
        });
        openNamed(call);

        // Lines are read while the event loop runs, so that signals of timers and of the
        // network are printed, too.
        int status = ExitStatus::success;
        WriteFailures failures(call, status);
        const LastWrite lastWrite(call.document);
        QByteArray pending;
        QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
        QObject::connect(&call.document.news(), &workbench::DocumentNews::keepingChanged, &input,
                         [&failures] { failures.tell(); });
        QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
            char buffer[4096];
            const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
            if (count > 0)
                pending.append(buffer, count);
            else if (!pending.isEmpty()) // the last line, without a line end
                pending.append('\n');
            // A command may run an event loop of its own, in which no further input must
            // be read.
            input.setEnabled(false);
            bool isWanted = count > 0;
            for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
                const std::string line = pending.first(end).toStdString();
                pending.remove(0, end + 1);
                if (!runLine(program, line, status) || isOutputClosed()) {
                    isWanted = false;
                    break;
                }
            }
            input.setEnabled(isWanted);
            if (!isWanted)
                QCoreApplication::quit();
        });
        QCoreApplication::exec();
        return ended(call, status);
    }
};

} // namespace

void addShellCommands(CommandGroup &root)
{
    root.add("shell", QObject::tr("Read commands line by line, keep the budget open"),
             CommandKind::Standalone, Shell{});
    root.add("watch", QObject::tr("Like shell, but print all signals as JSON"),
             CommandKind::Standalone, Watch{});
}

} // namespace kiv::app
