// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/manual.h"

#include <CLI/CLI.hpp>

#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>

namespace kiv::app {
namespace {

/// The text as a line of a manual page, with its special characters escaped.
QByteArray plain(const std::string &text)
{
    QByteArray line = QByteArray::fromStdString(text);
    line.replace('\\', "\\e").replace('-', "\\-");
    if (line.startsWith('.') || line.startsWith('\''))
        line.prepend("\\&");
    return line;
}

bool isCommon(const CLI::Option &option)
{
    constexpr std::array common{"--help", "--file",    "--passphrase-file",
                                "--json", "--dry-run", "--verbose"};
    return std::ranges::count(common, option.get_name()) != 0;
}

/// "\fINAME\fR" for a positional argument, "\fB\-\-name\fR \fIDATE\fR" for an option.
QByteArray title(const CLI::Option &option)
{
    QByteArray text;
    if (option.get_positional()) {
        text = "\\fI" + plain(option.get_name()) + "\\fR";
    } else {
        text = "\\fB" + plain(option.get_name(false, true)) + "\\fR";
        text.replace(",", "\\fR, \\fB");
        if (option.get_items_expected_max() > 0)
            text += " \\fI" + plain(option.get_type_name()) + "\\fR";
    }
    return text;
}

QByteArray synopsis(const CLI::App &command, const QByteArray &path)
{
    QByteArray text = "\\fB" + path + "\\fR";
    for (const CLI::Option *option : command.get_options()) {
        if (isCommon(*option) || (option->nonpositional() && !option->get_required()))
            continue;
        QByteArray part = title(*option);
        if (option->get_items_expected_max() > 1)
            part += " …";
        text += option->get_required() ? ' ' + part : " [" + part + ']';
    }
    return text;
}

void describe(const CLI::App &command, const QByteArray &path, QByteArray &manual)
{
    const auto below = command.get_subcommands({});
    const bool isRoot = command.get_parent() == nullptr;
    std::string heading;
    if (command.get_require_subcommand_min() == 0) {
        manual += ".SS " + path + '\n' + synopsis(command, path) + "\n.PP\n" +
                  plain(command.get_description()) + ".\n";
        for (const CLI::Option *option : command.get_options()) {
            if (!isCommon(*option))
                manual += ".TP\n" + title(*option) + '\n' + plain(option->get_description()) + '\n';
        }
    }
    for (const CLI::App *next : below) {
        if (isRoot && next->get_group() != std::exchange(heading, next->get_group()))
            manual +=
                ".SH " + plain(QString::fromStdString(heading).toUpper().toStdString()) + '\n';
        describe(*next, path + ' ' + plain(next->get_name()), manual);
    }
}

} // namespace

QByteArray manualOfCommands(const CLI::App &commands)
{
    QByteArray manual;
    describe(commands, plain(commands.get_name()), manual);
    return manual;
}

} // namespace kiv::app
