// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"
#include "messages/message_log.h"
#include "output/terminal.h"

#include "workbench/document/document.h"

namespace kiv::app {

/// The command `kiv`: parses a command line, runs the command on the document's budget,
/// saves, prints, and returns the exit status.
class Program {
public:
    /// `declare` adds all commands.
    explicit Program(DeclareCommands declare);
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Runs one command line, without the program's name. An error is reported on
    /// standard error in one sentence.
    int run(const std::vector<std::string> &words);
    /// The sentence of the last call's error; empty without one.
    [[nodiscard]] const QString &complaint() const noexcept { return m_complaint; }
    /// Keeps the budget in memory from one call to the next, and writes it within a
    /// second. Failed calls and dry runs are then taken back in memory. Call it before a
    /// file is opened.
    void keepBudget();

    /// Prints no more reports.
    void setSilent() noexcept { m_isSilent = true; }

    /// Creates the tree of all commands. With `words`, only commands named there get
    /// their arguments. Parsing writes to this object, so it must outlive the tree.
    [[nodiscard]] std::unique_ptr<CLI::App> commandTree(const std::vector<std::string> &words = {});
    [[nodiscard]] workbench::Document &document() noexcept { return m_document; }
    [[nodiscard]] const Terminal &terminal() const noexcept { return m_terminal; }

private:
    /// Returns whether there is a command to execute; help and version are printed here.
    bool parse(const std::vector<std::string> &words);
    /// Executes the command that was parsed. Where an encrypted file lacks its passphrase, the
    /// command is repeated with it.
    int execute();
    int attempt();
    void complain(const QString &sentence);
    /// Takes back the changes of a call that must not stay in memory.
    void takeBack();
    void openFile(CommandKind kind);
    void openNamed(const QString &file, CommandKind kind);
    /// Warns of the reconciliations that broke.
    void warnOfBroken();
    /// Warns of what the user may not have meant, see workbench::entryNotices().
    void tellOfEntries(const storage::BudgetStorage::Data &before);
    void print(const Report &report);

    DeclareCommands m_declare;
    MessageLog m_log;
    workbench::Document m_document;
    Terminal m_terminal;
    Options m_options;
    Selection m_selection;
    QString m_complaint;
    bool m_keepsBudget = false;
    bool m_isSilent = false;
};

} // namespace kiv::app
