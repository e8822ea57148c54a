// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/command_group.h"

#include "messages/errors.h"

#include <CLI/CLI.hpp>

namespace kiv::app {

CLI::App *CommandGroup::addNode(const char *name, const QString &help)
{
    CLI::App *app = m_app.add_subcommand(name, help.toStdString());
    app->group(m_heading.toStdString());
    // CLI11 creates --help before the common group of options is set.
    app->set_help_flag("-h,--help", m_app.get_help_ptr()->get_description());
    return app;
}

CommandGroup CommandGroup::group(const char *name, const QString &help)
{
    CLI::App *app = addNode(name, help);
    app->require_subcommand(1);
    return {*app, m_declaring};
}

CommandGroup CommandGroup::addCommand(const char *name, const QString &help, CommandKind kind,
                                      const std::function<void(Arguments &)> &declare,
                                      const std::function<Report(Program &, const Options &)> &run)
{
    CLI::App *app = addNode(name, help);
    if (!m_declaring.needsArguments(name))
        return {*app, m_declaring};
    app->footer("");
    Options &options = m_declaring.options;
    Arguments arguments(*app, options);
    declare(arguments);
    if (kind != CommandKind::Standalone)
        arguments.file();
    if (arguments.rules().takesJson)
        arguments.flag("--json", options.isJson, QObject::tr("Print JSON, for programs"));
    if (isSaving(kind))
        arguments.flag("--dry-run", options.isDryRun, QObject::tr("Show the result, save nothing"));
    arguments.flag("--verbose", options.isVerbose, QObject::tr("Show the log on standard error"));
    // CLI11 also calls back for the commands above the called one.
    app->callback([&selection = m_declaring.selection, app, kind, run, rules = arguments.rules()] {
        if (!app->get_subcommands().empty())
            return;
        rules.check(*app);
        selection = {kind, run};
    });
    return {*app, m_declaring};
}

} // namespace kiv::app
