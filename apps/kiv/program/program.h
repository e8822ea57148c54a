// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"
#include "messages/message_log.h"
#include "output/terminal.h"

#include "workbench/document/document.h"

namespace kiv::app {

/// The command `kiv`: understands a command line, runs the command on the
/// document's budget, saves, prints, and gives the exit status.
class Program {
public:
    /// `declare` adds the commands that there are.
    explicit Program(DeclareCommands declare);
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Runs one command line, without the program's own name. Its refusal is
    /// told on standard error in one sentence.
    int run(const std::vector<std::string> &words);
    /// From now on the budget is kept from one call to the next, so a call
    /// that failed or tried something dry is taken back in memory, too.
    void keepBudget() noexcept { m_keepsBudget = true; }

    /// From now on no report is printed.
    void setSilent() noexcept { m_isSilent = true; }

    /// All commands. With `words`, only those that stand among them have their
    /// arguments, since a call reaches no other; without any, all have. The
    /// arguments' values are this program's, so it must outlive the tree.
    [[nodiscard]] std::unique_ptr<CLI::App> commandTree(const std::vector<std::string> &words = {});
    [[nodiscard]] workbench::Document &document() noexcept { return m_document; }
    [[nodiscard]] const Terminal &terminal() const noexcept { return m_terminal; }

private:
    /// Tells whether there is a command to be executed; otherwise `status` is
    /// the exit status.
    bool parse(const std::vector<std::string> &words, int &status);
    int execute();
    /// What a call has changed, when the next one shall not find it.
    void takeBack();
    void openFile();
    void print(const Report &report);

    DeclareCommands m_declare;
    MessageLog m_log;
    workbench::Document m_document;
    Terminal m_terminal;
    Options m_options;
    Selection m_selection;
    bool m_keepsBudget = false;
    bool m_isSilent = false;
};

} // namespace kiv::app
