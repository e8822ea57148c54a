// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/command_group.h"

#include "errors.h"
#include "program.h"

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

QString Call::fileNamed() const
{
    for (const QString &path : {options.file, document.file(), qEnvironmentVariable("KIV_FILE")}) {
        if (!path.isEmpty())
            return path;
    }
    throw noFileNamed();
}

QString Call::fileToMake(const QString &given) const
{
    for (const QString &path : {given, options.file, qEnvironmentVariable("KIV_FILE")}) {
        if (!path.isEmpty())
            return path;
    }
    throw noFileNamed();
}

CommandGroup CommandGroup::group(const char *name, const QString &help)
{
    CLI::App *app = addTo(m_app, name, help);
    app->require_subcommand(1);
    return {*app, m_program};
}

CommandGroup CommandGroup::addCommand(const char *name, const QString &help, CommandKind kind,
                                      const std::function<void(Arguments &)> &declare,
                                      const std::function<Report(Call &)> &run)
{
    CLI::App *app = addTo(m_app, name, help);
    if (!m_program.needsArguments(name))
        return {*app, m_program};
    Options &options = m_program.options();
    Arguments arguments(*app, options);
    declare(arguments);
    if (kind != CommandKind::Standalone)
        arguments.file();
    arguments.flag("--json", options.isJson, QObject::tr("Print JSON for programs"));
    if (kind == CommandKind::Change)
        arguments.flag("--dry-run", options.isDryRun,
                       QObject::tr("Show what would come of it, save nothing"));
    arguments.flag("--verbose", options.isVerbose, QObject::tr("Show the log on standard error"));
    // CLI11 calls back for the commands above the one that is called, too.
    app->callback([&program = m_program, app, kind, run, rules = arguments.rules()] {
        if (!app->get_subcommands().empty())
            return;
        rules.check(*app);
        program.select(kind, run);
    });
    return {*app, m_program};
}

} // namespace kiv::app
