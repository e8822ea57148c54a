// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/command_tree.h"

#include "command_line/help_format.h"

#include <QtCore/QCoreApplication>

namespace kiv::app {

std::unique_ptr<CLI::App> commandTree(std::optional<int> width, const Declaring &declaring,
                                      const DeclareCommands &declare)
{
    Options &options = declaring.options;
    const auto translated = [](const char *text) { return QObject::tr(text).toStdString(); };
    auto app = std::make_unique<CLI::App>(
        translated(QT_TRANSLATE_NOOP(
            "QObject",
            "Keeps a household's budget: accounts, banks, bills, wages and what is due.")),
        "kiv");
    // All commands below take these over.
    app->formatter(std::make_shared<HelpFormat>(width));
    for (const auto &[label, text] : {std::pair("Usage", QT_TRANSLATE_NOOP("QObject", "Usage")),
                                      {"Positionals", QT_TRANSLATE_NOOP("QObject", "Arguments")},
                                      {"REQUIRED", QT_TRANSLATE_NOOP("QObject", "REQUIRED")},
                                      {"OPTIONS", QT_TRANSLATE_NOOP("QObject", "OPTIONS")},
                                      {"SUBCOMMAND", QT_TRANSLATE_NOOP("QObject", "COMMAND")}})
        app->get_formatter()->label(label, translated(text));
    app->option_defaults()->group(translated(QT_TRANSLATE_NOOP("QObject", "Options")));
    app->set_help_flag("-h,--help", translated(QT_TRANSLATE_NOOP("QObject", "Show this help")));
    app->require_subcommand(1);
    app->set_version_flag("--version",
                          "kiv " + QCoreApplication::applicationVersion().toStdString(),
                          translated(QT_TRANSLATE_NOOP("QObject", "Show the version of kiv")));
    app->footer(
        translated(QT_TRANSLATE_NOOP("QObject", "kiv COMMAND --help describes a command.")));
    Arguments arguments(*app, options);
    arguments.file()
        .flag("--json", options.isJson, QObject::tr("Print JSON, for programs"))
        .flag("--verbose", options.isVerbose, QObject::tr("Show the log on standard error"));
    declare(*app, declaring);
    return app;
}

} // namespace kiv::app
