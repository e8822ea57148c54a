// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/misuse.h"

#include "command_line/arguments.h"

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

/// The last command among the parsed words.
const CLI::App &reachedIn(const CLI::App &app)
{
    const CLI::App *reached = &app;
    while (!reached->get_subcommands().empty())
        reached = reached->get_subcommands().front();
    return *reached;
}

/// A message of CLI11, and what replaces it: a sentence without its end, with the
/// parts that the form captures.
struct Wording {
    const char *form;
    const char *sentence;
};
constexpr Wording wordings[] = {
    {"(.*) is required", QT_TRANSLATE_NOOP("QObject", "%1 is missing")},
    {"(.*): 1 required (.*) missing", QT_TRANSLATE_NOOP("QObject", "%1 needs a value (%2)")},
    {"The following argument was not expected: (.*)",
     QT_TRANSLATE_NOOP("QObject", "Unexpected argument: %1")},
    {"The following arguments were not expected: (.*)",
     QT_TRANSLATE_NOOP("QObject", "Unexpected arguments: %1")},
    {"(.*): At Most (\\d+) required but received (\\d+)",
     QT_TRANSLATE_NOOP("QObject", "%1 was given %3 times, at most %2 is allowed")},
    {"Could not convert: (.*) = (.*)",
     QT_TRANSLATE_NOOP("QObject", "%1 does not accept the value '%2'")},
};

/// The sentence in the user's language; empty if the form does not match.
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
        const std::size_t equals = word.find('=');
        const QString name = QString::fromStdString(word.substr(0, equals));
        if (std::exchange(isValue, false))
            continue;
        if (word == "--")
            return;
        if (word.starts_with("--")) {
            const QStringList options = optionsOf(*reached);
            if (!options.contains(name))
                throw noSuchOption(name, workbench::similarTo(name, options), helpOf(*reached));
            const CLI::Option *option = reached->get_option(name.toStdString());
            const bool takesValue = option->get_items_expected_max() > 0;
            if (!takesValue && equals != std::string::npos)
                throw wrongCall(QObject::tr("%1 does not accept the value '%2'")
                                    .arg(name, QString::fromStdString(word.substr(equals + 1))),
                                helpOf(*reached));
            isValue = takesValue && equals == std::string::npos;
        } else if (const QStringList commands = commandsOf(*reached);
                   !commands.isEmpty() && !word.starts_with('-')) {
            const QString command = QString::fromStdString(word);
            if (!commands.contains(command))
                throw noSuchCommand(command, workbench::similarTo(command, commands),
                                    helpOf(*reached));
            reached = reached->get_subcommand(word);
        }
    }
}

UsageError misuse(const CLI::App &app, const CLI::ParseError &error)
{
    const QString help = helpOf(reachedIn(app));
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError) &&
        std::string_view(error.what()).starts_with("A subcommand"))
        return wrongCall(QObject::tr("No command given"), help);
    QString text = QString::fromUtf8(error.what()).simplified();
    for (const Wording &wording : wordings) {
        if (const QString sentence = translated(wording, text); !sentence.isEmpty())
            return wrongCall(sentence, help);
    }
    if (text.endsWith(u'.'))
        text.chop(1);
    return wrongCall(text, help);
}

} // namespace kiv::app
