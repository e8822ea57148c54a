// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/help_format.h"

#include "output/terminal.h"

#include <QtCore/QStringList>

namespace kiv::app {
namespace {

constexpr int widest = 80;
constexpr int narrowest = 20;

} // namespace

HelpFormat::HelpFormat(std::optional<int> terminalWidth)
    : m_width(std::clamp(terminalWidth.value_or(widest), narrowest, widest)),
      m_column(m_width >= 60 ? 30 : 6)
{
}

std::string HelpFormat::make_description(const CLI::App *app) const
{
    return wrapped({}, Formatter::make_description(app), 0);
}

std::string HelpFormat::make_usage(const CLI::App *app, std::string name) const
{
    return wrapped({}, Formatter::make_usage(app, std::move(name)), 2);
}

std::string HelpFormat::make_option(const CLI::Option *option, bool isPositional) const
{
    return row(make_option_name(option, isPositional) + make_option_opts(option),
               make_option_desc(option));
}

std::string HelpFormat::make_subcommand(const CLI::App *command) const
{
    return row(command->get_display_name(true), command->get_description());
}

std::string HelpFormat::make_footer(const CLI::App *app) const
{
    const std::string footer = Formatter::make_footer(app);
    return footer.empty() ? footer : wrapped({}, footer, 0);
}

std::string HelpFormat::row(const std::string &name, const std::string &meaning) const
{
    const std::string shown = wrapped(QStringLiteral("  "), name, 4);
    QString line = QString::fromStdString(shown).chopped(1);
    const int used = displayWidth(line.section(u'\n', -1));
    line += used < m_column ? QString(m_column - used, u' ') : u'\n' + QString(m_column, u' ');
    return wrapped(line, meaning, m_column);
}

std::string HelpFormat::wrapped(QString begun, const std::string &words, int indent) const
{
    int used = displayWidth(begun.section(u'\n', -1));
    bool isFirst = true;
    for (const QString &word : QString::fromStdString(words).simplified().split(u' ')) {
        const int width = displayWidth(word);
        if (isFirst) {
            begun += word;
            used += width;
        } else if (used + 1 + width <= m_width) {
            begun += u' ' + word;
            used += 1 + width;
        } else {
            begun += u'\n' + QString(indent, u' ') + word;
            used = indent + width;
        }
        isFirst = false;
    }
    return begun.toStdString() + '\n';
}

} // namespace kiv::app
