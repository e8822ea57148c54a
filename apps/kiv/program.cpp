// SPDX-License-Identifier: GPL-3.0-or-later
#include "program.h"

#include "command_line/help_format.h"
#include "command_line/misuse.h"
#include "commands/commands.h"

#include "networking/http_request_sender.h"
#include "storage/budget_inspection.h"
#include "storage/storage_error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

#include <iostream>

namespace kiv::app {
namespace {

QString oneLine(const char *text)
{
    return QString::fromUtf8(text).simplified();
}

/// "help bill add" is another way to say "bill add --help".
std::vector<std::string> plainWords(std::vector<std::string> words)
{
    if (!words.empty() && words.front() == "help") {
        words.erase(words.begin());
        words.emplace_back("--help");
    }
    return words;
}

} // namespace

Program::Program()
    : m_document({[] {
                      return foundation::UniqueQtPtr<networking::RequestSender>(
                          new networking::HttpRequestSender());
                  },
                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                      QStringLiteral("/rates")})
{
    m_log.setMutedWhile([this] { return m_document.requests().isBusy(); });
}

int Program::run(const std::vector<std::string> &words)
{
    int status = success;
    try {
        return parse(plainWords(words), status) ? execute() : status;
    } catch (const EntryError &error) {
        complain(error.message());
        return misused;
    } catch (const storage::StorageError &error) {
        QString sentence = told(error);
        // A file that is not there may have no folder either, and then no backup has a name.
        if (error.failure() == storage::StorageFailure::Damaged) {
            const QString backup = storage::backupOf(error.filePathName(), 1);
            if (QFile::exists(backup))
                sentence = withBackups(sentence, backup);
        }
        complain(sentence);
    } catch (const foundation::Error &error) {
        complain(told(error));
    } catch (const std::exception &error) {
        complain(oneLine(error.what()));
    }
    return refused;
}

bool Program::needsArguments(std::string_view command) const
{
    return m_words.empty() || std::ranges::find(m_words, command) != m_words.end();
}

std::unique_ptr<CLI::App> Program::commandTree(const std::vector<std::string> &words)
{
    m_words = words;
    const auto translated = [](const char *text) { return QObject::tr(text).toStdString(); };
    auto app = std::make_unique<CLI::App>(
        translated(QT_TRANSLATE_NOOP(
            "QObject",
            "Keeps a household's budget: accounts, banks, bills, wages and what is due.")),
        "kiv");
    // All commands below take these over.
    app->formatter(std::make_shared<HelpFormat>(m_terminal.width()));
    for (const char *label :
         {QT_TRANSLATE_NOOP("QObject", "Usage"), QT_TRANSLATE_NOOP("QObject", "Positionals"),
          QT_TRANSLATE_NOOP("QObject", "REQUIRED"), QT_TRANSLATE_NOOP("QObject", "OPTIONS"),
          QT_TRANSLATE_NOOP("QObject", "SUBCOMMAND")})
        app->get_formatter()->label(label, translated(label));
    app->option_defaults()->group(translated(QT_TRANSLATE_NOOP("QObject", "Options")));
    app->set_help_flag(
        "-h,--help", translated(QT_TRANSLATE_NOOP("QObject", "Print this help message and exit")));
    app->require_subcommand(1);
    app->set_version_flag(
        "--version", "kiv " + QCoreApplication::applicationVersion().toStdString(),
        translated(QT_TRANSLATE_NOOP("QObject", "Display program version information and exit")));
    app->footer(
        translated(QT_TRANSLATE_NOOP("QObject", "kiv COMMAND --help tells more about a command.")));
    Arguments arguments(*app, m_options);
    arguments.file()
        .flag("--json", m_options.isJson, QObject::tr("Print JSON for programs"))
        .flag("--verbose", m_options.isVerbose, QObject::tr("Show the log on standard error"));
    CommandGroup root(*app, *this);
    addCommands(root);
    return app;
}

bool Program::parse(const std::vector<std::string> &words, int &status)
{
    m_options = Options{};
    m_command = nullptr;
    const std::unique_ptr<CLI::App> app = commandTree(words);
    refuseUnknown(*app, words);
    try {
        // CLI11 takes the words from the back.
        app->parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() != 0) {
            complain(misuse(error));
            status = misused;
            return false;
        }
        std::ostringstream help;
        app->exit(error, help, help);
        if (m_isSilent)
            std::cerr << help.str();
        else
            m_terminal.write(QByteArray::fromStdString(help.str()));
        return false;
    }
    return true;
}

void Program::select(CommandKind kind, std::function<Report(Call &)> command)
{
    m_kind = kind;
    m_command = std::move(command);
}

int Program::execute()
{
    m_log.setVerbose(m_options.isVerbose);
    // A command may run others through this program, which replace both.
    const Options options = m_options;
    const CommandKind kind = m_kind;
    const auto command = m_command;

    if (kind != CommandKind::Standalone)
        openFile();
    const bool isSaved = kind == CommandKind::Change && !options.isDryRun;
    Report report;
    try {
        Call call{m_document, m_document.requests(), options, *this};
        report = command(call);
    } catch (...) {
        if (kind != CommandKind::Query)
            takeBack();
        throw;
    }
    if (isSaved && !report.isUnchanged())
        m_document.save();
    report.finish();
    if (kind == CommandKind::Change && options.isDryRun) {
        takeBack();
        report.line(QObject::tr("This was a dry run: nothing is saved."));
    }
    m_options = options;
    print(report);
    return report.status();
}

void Program::takeBack()
{
    if (!m_keepsBudget)
        return;
    try {
        m_document.revert();
    } catch (const std::exception &error) {
        complain(told(error));
    }
}

void Program::openFile()
{
    const QString named =
        m_options.file.isEmpty() ? qEnvironmentVariable("KIV_FILE") : m_options.file;
    if (named.isEmpty() && m_document.file().isEmpty())
        throw noFileNamed();
    if (m_document.file().isEmpty() ||
        (!m_options.file.isEmpty() && Document::withExtension(named) != m_document.file()))
        m_document.open(named);
}

void Program::print(const Report &report)
{
    if (m_isSilent)
        return;
    m_terminal.write(m_options.isJson ? report.toJson()
                                      : report.toText(m_terminal, m_document.displayAs()));
}

} // namespace kiv::app
