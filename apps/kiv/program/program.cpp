// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program.h"

#include "command_line/command_tree.h"
#include "command_line/misuse.h"
#include "messages/errors.h"
#include "messages/exit_status.h"
#include "program/passphrases.h"

#include "workbench/requests/entry_notices.h"
#include "workbench/versions/kept_versions.h"

#include "networking/http_request_sender.h"
#include "storage/storage_error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>

#include <CLI/CLI.hpp>

#include <iostream>

namespace kiv::app {
namespace {

QString oneLine(const char *text)
{
    return QString::fromUtf8(text).simplified();
}

/// Whether the file is gone or damaged, and can be brought back.
bool isLost(const storage::StorageError &error)
{
    using enum storage::StorageFailure;
    return (error.failure() == NotFound || error.failure() == Damaged) &&
           workbench::hasFormerVersions(error.filePathName());
}

/// "help bill add" means "bill add --help".
std::vector<std::string> plainWords(std::vector<std::string> words)
{
    if (!words.empty() && words.front() == "help") {
        words.erase(words.begin());
        words.emplace_back("--help");
    }
    return words;
}

} // namespace

Program::Program(DeclareCommands declare)
    : m_declare(std::move(declare)),
      m_document({[] {
                      return foundation::UniqueQtPtr<networking::RequestSender>(
                          new networking::HttpRequestSender());
                  },
                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                      QStringLiteral("/rates")})
{
    m_log.setMutedWhile([this] { return m_document.requests().isBusy(); });
}

void Program::keepBudget()
{
    m_keepsBudget = true;
    m_document.setKeeping(workbench::Document::Keeping::WithinASecond);
    // Before another thread waits for signals, and may need it.
    (void)m_document.navigator();
}

void Program::complain(const QString &sentence)
{
    m_complaint = sentence;
    app::complain(sentence);
}

int Program::run(const std::vector<std::string> &words)
{
    m_complaint.clear();
    try {
        return parse(plainWords(words)) ? execute() : ExitStatus::success;
    } catch (const EntryError &error) {
        complain(error.message());
        return ExitStatus::misused;
    } catch (const storage::StorageError &error) {
        complain(isLost(error) ? withFormerVersions(told(error)) : told(error));
    } catch (const foundation::Error &error) {
        complain(told(error));
    } catch (const std::exception &error) {
        complain(oneLine(error.what()));
    }
    return ExitStatus::refused;
}

std::unique_ptr<CLI::App> Program::commandTree(const std::vector<std::string> &words)
{
    return app::commandTree(m_terminal.width(), {m_options, m_selection, words}, m_declare);
}

bool Program::parse(const std::vector<std::string> &words)
{
    m_options = Options{};
    m_selection = Selection{};
    const std::unique_ptr<CLI::App> app = commandTree(words);
    refuseUnknown(*app, words);
    try {
        // CLI11 expects the words in reverse order.
        app->parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() != 0)
            throw misuse(*app, error);
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

int Program::execute()
{
    const Options options = m_options;
    const Selection selection = m_selection;
    while (true) {
        try {
            return attempt();
        } catch (const storage::StorageError &error) {
            const QString path = error.filePathName();
            if (error.failure() != storage::StorageFailure::PassphraseNeeded ||
                !m_document.keys().isLocked(path))
                throw;
            Passphrases(options).unlock(m_document.keys(), path);
        }
        m_options = options;
        m_selection = selection;
    }
}

int Program::attempt()
{
    m_log.setVerbose(m_options.isVerbose);
    // A command may run others with this object, which replace both.
    const Options options = m_options;
    const auto [kind, command] = m_selection;

    if (kind != CommandKind::Standalone)
        openFile(kind);
    const bool isSaved = isSaving(kind) && !options.isDryRun;
    std::optional<storage::BudgetStorage::Data> before;
    if (kind == CommandKind::Entry)
        before = m_document.present();
    Report report;
    try {
        report = command(*this, options);
    } catch (...) {
        if (kind != CommandKind::Query)
            takeBack();
        throw;
    }
    if (before)
        tellOfEntries(*before);
    if (isSaved && !report.isUnchanged()) {
        m_document.save(report.change());
        warnOfBroken();
    }
    report.finish();
    if (isSaving(kind) && options.isDryRun) {
        takeBack();
        report.line(QObject::tr("Dry run: nothing is saved."));
    }
    m_options = options;
    print(report);
    return report.status();
}

void Program::tellOfEntries(const storage::BudgetStorage::Data &before)
{
    for (const QString &notice : workbench::entryNotices(
             before, m_document.present(), foundation::today(), m_document.displayAs()))
        warn(notice);
}

void Program::takeBack()
{
    if (!m_keepsBudget)
        return;
    try {
        m_document.revert();
    } catch (const std::exception &error) {
        app::complain(told(error));
    }
}

void Program::openFile(CommandKind kind)
{
    const QString named =
        m_options.file.isEmpty() ? qEnvironmentVariable("KIV_FILE") : m_options.file;
    if (named.isEmpty() && m_document.file().isEmpty())
        throw noFileNamed();
    if (m_document.file().isEmpty() ||
        (!m_options.file.isEmpty() &&
         workbench::Document::withExtension(named) != m_document.file()))
        openNamed(named, kind);
    warnOfBroken();
}

void Program::openNamed(const QString &file, CommandKind kind)
{
    try {
        // A session may change it with a later command.
        m_document.open(file, kind == CommandKind::Query && !m_keepsBudget
                                  ? workbench::Document::Access::Reading
                                  : workbench::Document::Access::Change);
    } catch (const storage::StorageError &error) {
        if (kind != CommandKind::Restore || !isLost(error))
            throw;
        m_document.openLost(file);
    }
}

void Program::warnOfBroken()
{
    for (const workbench::JudgedReconciliation &broken : m_document.takeBroken()) {
        qWarning().noquote()
            << QObject::tr("%1 See kiv reconciliations.").arg(m_document.sentence(broken));
    }
}

void Program::print(const Report &report)
{
    if (m_isSilent)
        return;
    if (m_options.isJson)
        report.writeJson(m_terminal);
    else
        report.writeText(m_terminal, m_document.displayAs());
}

} // namespace kiv::app
