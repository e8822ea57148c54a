// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>

#include <QtCore/QString>

namespace kiv::app {

/// Wraps the help to the width of the terminal. CLI11 itself counts bytes and never
/// breaks a line.
class HelpFormat final : public CLI::Formatter {
public:
    /// Lines have at most 80 columns, even on a wider terminal.
    explicit HelpFormat(std::optional<int> terminalWidth);

    std::string make_description(const CLI::App *app) const override;
    std::string make_usage(const CLI::App *app, std::string name) const override;
    std::string make_option(const CLI::Option *option, bool isPositional) const override;
    std::string make_subcommand(const CLI::App *command) const override;
    std::string make_footer(const CLI::App *app) const override;

private:
    /// A name, and its meaning in a column beside or below it.
    [[nodiscard]] std::string row(const std::string &name, const std::string &meaning) const;
    /// `begun` and then the words; all lines but the first are indented.
    [[nodiscard]] std::string wrapped(QString begun, const std::string &words, int indent) const;

    int m_width;
    int m_column; ///< the first column of the meanings
};

} // namespace kiv::app
