// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/misuse.h"

#include "messages/errors.h"

#include "workbench/entry/similar.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

#include <CLI/CLI.hpp>

#include <utility>

namespace kiv::app {
namespace {

QStringList commandsOf(const CLI::App &app)
{
    QStringList names;
    for (const CLI::App *command : app.get_subcommands({}))
        names += QString::fromStdString(command->get_name());
    return names;
}

QStringList optionsOf(const CLI::App &app)
{
    QStringList names;
    for (const CLI::Option *option : app.get_options()) {
        for (const std::string &name : option->get_lnames())
            names += QStringLiteral("--") + QString::fromStdString(name);
    }
    return names;
}

/// What CLI11 says of a wrong call, and the same to be translated, with the
/// parts that the first one captures.
struct Wording {
    const char *form;
    const char *sentence;
};
constexpr Wording wordings[] = {
    {"(.*) is required", QT_TRANSLATE_NOOP("QObject", "%1 is required.")},
    {"(.*): 1 required (.*) missing", QT_TRANSLATE_NOOP("QObject", "%1 needs a value (%2).")},
    {"The following argument was not expected: (.*)",
     QT_TRANSLATE_NOOP("QObject",
                       "The following argument was not expected: %1; --help tells which are.")},
    {"The following arguments were not expected: (.*)",
     QT_TRANSLATE_NOOP("QObject",
                       "The following arguments were not expected: %1; --help tells which are.")},
    {"(.*): At Most (\\d+) required but received (\\d+)",
     QT_TRANSLATE_NOOP("QObject", "%1 was given %3 times, where %2 is the most.")},
    {"Could not convert: (.*) = (.*)", QT_TRANSLATE_NOOP("QObject", "Could not convert: %1 = %2.")},
};

/// The sentence in the user's language; empty for another text.
QString translated(const Wording &wording, const QString &text)
{
    const QRegularExpression form(QRegularExpression::anchoredPattern(QLatin1String(wording.form)));
    const QStringList parts = form.match(text).capturedTexts();
    const QString sentence = QObject::tr(wording.sentence);
    switch (parts.size()) {
    case 2:
        return sentence.arg(parts[1]);
    case 3:
        return sentence.arg(parts[1], parts[2]);
    case 4:
        return sentence.arg(parts[1], parts[2], parts[3]);
    default:
        return {};
    }
}

} // namespace

void refuseUnknown(const CLI::App &app, const std::vector<std::string> &words)
{
    const CLI::App *reached = &app;
    bool isValue = false;
    for (const std::string &word : words) {
        const QString name = QString::fromStdString(word.substr(0, word.find('=')));
        if (std::exchange(isValue, false))
            continue;
        if (word == "--")
            return;
        if (word.starts_with("--")) {
            const QStringList options = optionsOf(*reached);
            if (!options.contains(name))
                throw noSuchOption(name, workbench::similarTo(name, options));
            const CLI::Option *option = reached->get_option(name.toStdString());
            isValue = option->get_items_expected_max() > 0 && word.find('=') == std::string::npos;
        } else if (const QStringList commands = commandsOf(*reached);
                   !commands.isEmpty() && !word.starts_with('-')) {
            const QString command = QString::fromStdString(word);
            if (!commands.contains(command))
                throw noSuchCommand(command, workbench::similarTo(command, commands));
            reached = reached->get_subcommand(word);
        }
    }
}

QString misuse(const CLI::ParseError &error)
{
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError) &&
        std::string_view(error.what()).starts_with("A subcommand"))
        return QObject::tr("A command is missing; --help lists those that there are.");
    const QString text = QString::fromUtf8(error.what()).simplified();
    for (const Wording &wording : wordings) {
        if (QString sentence = translated(wording, text); !sentence.isEmpty())
            return sentence;
    }
    return text.endsWith(u'.') ? text : text + u'.';
}

} // namespace kiv::app
