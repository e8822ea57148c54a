// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/command_group.h"

#include "messages/errors.h"

#include <CLI/CLI.hpp>

namespace kiv::app {

namespace {

CLI::App *addTo(CLI::App &above, const char *name, const QString &help)
{
    CLI::App *app = above.add_subcommand(name, help.toStdString());
    app->group(QObject::tr("Subcommands").toStdString());
    // Made before the options' common group was known.
    app->set_help_flag("-h,--help", above.get_help_ptr()->get_description());
    return app;
}

} // namespace

CommandGroup CommandGroup::group(const char *name, const QString &help)
{
    CLI::App *app = addTo(m_app, name, help);
    app->require_subcommand(1);
    return {*app, m_declaring};
}

CommandGroup CommandGroup::addCommand(const char *name, const QString &help, CommandKind kind,
                                      const std::function<void(Arguments &)> &declare,
                                      const std::function<Report(Program &, const Options &)> &run)
{
    CLI::App *app = addTo(m_app, name, help);
    if (!m_declaring.needsArguments(name))
        return {*app, m_declaring};
    Options &options = m_declaring.options;
    Arguments arguments(*app, options);
    declare(arguments);
    if (kind != CommandKind::Standalone)
        arguments.file();
    if (arguments.rules().takesJson)
        arguments.flag("--json", options.isJson, QObject::tr("Print JSON for programs"));
    if (kind == CommandKind::Change)
        arguments.flag("--dry-run", options.isDryRun,
                       QObject::tr("Show what would come of it, save nothing"));
    arguments.flag("--verbose", options.isVerbose, QObject::tr("Show the log on standard error"));
    // CLI11 calls back for the commands above the one that is called, too.
    app->callback([&selection = m_declaring.selection, app, kind, run, rules = arguments.rules()] {
        if (!app->get_subcommands().empty())
            return;
        rules.check(*app);
        selection = {kind, run};
    });
    return {*app, m_declaring};
}

} // namespace kiv::app
