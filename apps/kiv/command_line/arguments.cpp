// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/arguments.h"

#include "messages/errors.h"

#include <QtCore/QStringDecoder>

#include <CLI/CLI.hpp>

#include <array>

namespace kiv::app {
namespace {

/// The placeholders of values in the help.
constexpr std::array placeholders{
    QT_TRANSLATE_NOOP("QObject", "ACCOUNT"),      QT_TRANSLATE_NOOP("QObject", "ACCOUNT=AMOUNT"),
    QT_TRANSLATE_NOOP("QObject", "AMOUNT"),       QT_TRANSLATE_NOOP("QObject", "BANK"),
    QT_TRANSLATE_NOOP("QObject", "BANK ACCOUNT"), QT_TRANSLATE_NOOP("QObject", "BASE"),
    QT_TRANSLATE_NOOP("QObject", "CURRENCY"),     QT_TRANSLATE_NOOP("QObject", "CURRENCY=RATE"),
    QT_TRANSLATE_NOOP("QObject", "DATE"),         QT_TRANSLATE_NOOP("QObject", "DAYS"),
    QT_TRANSLATE_NOOP("QObject", "FILE"),         QT_TRANSLATE_NOOP("QObject", "FROM"),
    QT_TRANSLATE_NOOP("QObject", "HOURS"),        QT_TRANSLATE_NOOP("QObject", "ITEM"),
    QT_TRANSLATE_NOOP("QObject", "ITEM=AMOUNT"),  QT_TRANSLATE_NOOP("QObject", "NAME"),
    QT_TRANSLATE_NOOP("QObject", "NEW-NAME"),     QT_TRANSLATE_NOOP("QObject", "NUMBER"),
    QT_TRANSLATE_NOOP("QObject", "ON"),           QT_TRANSLATE_NOOP("QObject", "PERCENT"),
    QT_TRANSLATE_NOOP("QObject", "TAG"),          QT_TRANSLATE_NOOP("QObject", "TEMPLATE"),
    QT_TRANSLATE_NOOP("QObject", "TEXT"),         QT_TRANSLATE_NOOP("QObject", "TO"),
    QT_TRANSLATE_NOOP("QObject", "WORDS"),
};

/// The placeholders of options whose values are texts.
constexpr std::pair<std::string_view, const char *> optionWords[]{
    {"--account", "ACCOUNT"},
    {"--against", "ACCOUNT"},
    {"--bank", "BANK"},
    {"--bank,--bank-account", "BANK"},
    {"--bank-account", "ACCOUNT"},
    {"--credit", "ACCOUNT"},
    {"--debit", "ACCOUNT"},
    {"--distribute", "ITEM=AMOUNT"},
    {"--extra", "ACCOUNT=AMOUNT"},
    {"--file", "FILE"},
    {"--from", "FILE"},
    {"--into", "ACCOUNT"},
    {"--item", "ITEM=AMOUNT"},
    {"--name", "NAME"},
    {"--new-passphrase-file", "FILE"},
    {"--passphrase-file", "FILE"},
    {"--tag", "TAG"},
    {"--template", "TEMPLATE"},
    {"--under", "ACCOUNT"},
};

/// The placeholder of an option's value, of which `word` is the kind.
std::string valueName(std::string_view name, const char *word)
{
    if (std::string_view(word) == "TEXT") {
        for (const auto &[option, own] : optionWords) {
            if (option == name)
                return placeholder(own).toStdString();
        }
    }
    return placeholder(word).toStdString();
}

/// The name as CLI11 and messages show it.
std::string shownName(const std::string &name)
{
    return name[0] == '-' ? name : placeholder(name.c_str()).toStdString();
}

/// Whether the option was given, possibly before the command.
bool isGiven(const CLI::App *app, const std::string &name)
{
    for (; app; app = app->get_parent()) {
        const CLI::Option *option = app->get_option_no_throw(shownName(name));
        if (option && option->count() > 0)
            return true;
    }
    return false;
}

} // namespace

QString helpOf(const CLI::App &app)
{
    QString line = QStringLiteral("--help");
    for (const CLI::App *at = &app; at; at = at->get_parent())
        line.prepend(QString::fromStdString(at->get_name()) + u' ');
    return line;
}

void ArgumentRules::check(const CLI::App &command) const
{
    const auto shown = [](const std::string &name) {
        return QString::fromStdString(shownName(name));
    };
    for (const auto &[one, other] : exclusive) {
        if (isGiven(&command, one) && isGiven(&command, other))
            throw contradiction(shown(one), shown(other));
    }
    for (const auto &[name, base] : dependent) {
        if (isGiven(&command, name) && !isGiven(&command, base))
            throw onlyWith(shown(name), shown(base));
    }
    if (!takesJson && isGiven(&command, "--json"))
        throw noSuchOption(QStringLiteral("--json"), {}, helpOf(command));
}

QString placeholder(const char *word)
{
    const bool isKnown =
        std::ranges::find(placeholders, std::string_view(word)) != placeholders.end();
    return isKnown ? QObject::tr(word) : QString::fromUtf8(word);
}

QString decoded(const std::string &word)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(QByteArrayView(word));
    if (decoder.hasError())
        throw notUtf8();
    return text;
}

Arguments &Arguments::flag(const char *name, bool &value, const QString &help)
{
    m_app.add_flag(name, value, help.toStdString());
    return *this;
}

Arguments &Arguments::exclusive(const char *one, const char *other)
{
    m_rules.exclusive.emplace_back(one, other);
    return *this;
}

Arguments &Arguments::only(const char *name, const char *base)
{
    m_rules.dependent.emplace_back(name, base);
    return *this;
}

Arguments &Arguments::withoutJson()
{
    m_rules.takesJson = false;
    return *this;
}

Arguments &Arguments::file()
{
    return optional("--file", m_options.file,
                    QObject::tr("Budget file (default: the variable KIV_FILE)"))
        .optional("--passphrase-file", m_options.passphraseFile,
                  QObject::tr("File with the passphrase of an encrypted budget (default: the "
                              "variable KIV_PASSPHRASE_FILE)"));
}

Arguments &Arguments::dated(const QString &help)
{
    return optional("--date", m_options.date, help);
}

Arguments &Arguments::add(const char *name, const Reader &read, const char *word,
                          const QString &help, Presence presence)
{
    const bool isRepeated =
        presence == Presence::Repeated || presence == Presence::RequiredRepeated;
    const auto readAll = [read](const std::vector<std::string> &texts) {
        for (const std::string &text : texts)
            read(text);
    };
    const bool isOption = name[0] == '-';
    const std::string shown = isOption ? name : placeholder(name).toStdString();
    CLI::Option *option =
        isRepeated ? m_app.add_option_function<std::vector<std::string>>(shown, readAll,
                                                                         help.toStdString())
                   : m_app.add_option_function<std::string>(shown, read, help.toStdString());
    // Each use of an option takes one value, so that it does not take the next argument.
    if (isRepeated && isOption)
        option->expected(1)->take_all();
    option->type_name(isOption ? valueName(name, word) : "");
    option->required(presence == Presence::Required || presence == Presence::RequiredRepeated);
    return *this;
}

} // namespace kiv::app
