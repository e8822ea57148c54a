// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>

#include <QtCore/QString>

namespace kiv::app {

/// Lays the help out in lines of at most so many columns, as they show: CLI11
/// itself counts bytes and never breaks a line.
class HelpFormat final : public CLI::Formatter {
public:
    /// Nothing makes it wider than 80 columns, beyond which lines are hard to read.
    explicit HelpFormat(std::optional<int> terminalWidth);

    std::string make_description(const CLI::App *app) const override;
    std::string make_usage(const CLI::App *app, std::string name) const override;
    std::string make_option(const CLI::Option *option, bool isPositional) const override;
    std::string make_subcommand(const CLI::App *command) const override;
    std::string make_footer(const CLI::App *app) const override;

private:
    /// A name, and what it means in a column beside or below it.
    [[nodiscard]] std::string row(const std::string &name, const std::string &meaning) const;
    /// `begun`, and then the words in lines of which all but the first are indented.
    [[nodiscard]] std::string wrapped(QString begun, const std::string &words, int indent) const;

    int m_width;
    int m_column; ///< where the meanings begin
};

} // namespace kiv::app
