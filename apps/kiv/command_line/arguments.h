// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/kind_words.h"
#include "workbench/entry/values.h"
#include "workbench/outlook/looking_ahead.h"

#include <functional>
#include <vector>

namespace CLI {
class App;
}

namespace kiv::app {

using workbench::Amount;
using workbench::kindText;
using workbench::kindWord;
using workbench::NewName;
using workbench::readPlain;
using workbench::readValue;

/// The word in capitals that stands for a value ("AMOUNT"), in the user's language.
[[nodiscard]] QString placeholder(const char *word);

/// A word of the command line. Throws a UsageError if it is not valid UTF-8.
[[nodiscard]] QString decoded(const std::string &word);

/// The words that show a command's help, such as "kiv bill add --help".
[[nodiscard]] QString helpOf(const CLI::App &command);

/// An account as typed, for options whose names do not tell that they take one.
struct AccountText {
    QString text;
};
inline void readValue(const QString &text, AccountText &value)
{
    value.text = text;
}

/// The word for an option's value in the help, by its type.
constexpr const char *valueWord(const QDate *)
{
    return "DATE";
}
constexpr const char *valueWord(const numira::Currency *)
{
    return "CURRENCY";
}
constexpr const char *valueWord(const Amount *)
{
    return "AMOUNT";
}
constexpr const char *valueWord(const foundation::Percentage *)
{
    return "PERCENT";
}
constexpr const char *valueWord(const std::chrono::days *)
{
    return "DAYS";
}
constexpr const char *valueWord(const workbench::OutlookDays *)
{
    return "DAYS";
}
constexpr const char *valueWord(const std::chrono::hours *)
{
    return "HOURS";
}
constexpr const char *valueWord(const accounting::AccountNumber *)
{
    return "NUMBER";
}
constexpr const char *valueWord(const accounting::TransactionNumber *)
{
    return "NUMBER";
}
constexpr const char *valueWord(const AccountText *)
{
    return "ACCOUNT";
}
constexpr const char *valueWord(const void *)
{
    return "TEXT";
}
template <typename T>
constexpr const char *valueWord(const std::optional<T> *)
{
    return valueWord(static_cast<const T *>(nullptr));
}

/// Options that every command has.
struct Options {
    QString file;
    QString passphraseFile;
    bool isJson = false;
    bool isDryRun = false;
    bool isVerbose = false;
    std::optional<QDate> date;
};

/// Rules on which arguments can be combined.
struct ArgumentRules {
    std::vector<std::pair<std::string, std::string>> exclusive = {};
    std::vector<std::pair<std::string, std::string>> dependent = {}; ///< the first needs the second
    bool takesJson = true;

    /// Throws a UsageError if a call of the command breaks a rule.
    void check(const CLI::App &command) const;
};

/// Declares the arguments of one command. A name in capitals ("NAME") is a positional
/// argument, a name with dashes ("--name") an option. The values must outlive the
/// parsing. Help texts are passed translated.
class Arguments {
public:
    Arguments(CLI::App &app, Options &options) : m_app(app), m_options(options) {}

    template <typename T>
    Arguments &required(const char *name, T &value, const QString &help)
    {
        return add(name, reader(value), valueWord(&value), help, Presence::Required);
    }
    template <typename T>
    Arguments &optional(const char *name, T &value, const QString &help)
    {
        return add(name, reader(value), valueWord(&value), help, Presence::Optional);
    }
    /// An argument that can be given several times.
    template <typename T>
    Arguments &several(const char *name, std::vector<T> &values, const QString &help)
    {
        return add(name, appender(values), valueWord(static_cast<T *>(nullptr)), help,
                   Presence::Repeated);
    }
    /// The same, at least once.
    template <typename T>
    Arguments &severalRequired(const char *name, std::vector<T> &values, const QString &help)
    {
        return add(name, appender(values), valueWord(static_cast<T *>(nullptr)), help,
                   Presence::RequiredRepeated);
    }
    Arguments &flag(const char *name, bool &value, const QString &help);
    /// Refuses calls with both arguments.
    Arguments &exclusive(const char *one, const char *other);
    /// Refuses calls with `name` but without `base`.
    Arguments &only(const char *name, const char *base);
    /// Adds --file and --passphrase-file.
    Arguments &file();
    /// Adds --date, the day that replaces today.
    Arguments &dated(const QString &help);

    /// The command refuses --json: what it prints is for programs already.
    Arguments &withoutJson();

    [[nodiscard]] const ArgumentRules &rules() const { return m_rules; }

private:
    using Reader = std::function<void(const std::string &)>;
    enum class Presence { Required, Optional, Repeated, RequiredRepeated };

    template <typename T>
    static Reader reader(T &value)
    {
        return [&value](const std::string &word) { readValue(decoded(word), value); };
    }
    template <typename T>
    static Reader appender(std::vector<T> &values)
    {
        return [&values](const std::string &word) {
            T value{};
            readValue(decoded(word), value);
            values.push_back(std::move(value));
        };
    }
    Arguments &add(const char *name, const Reader &read, const char *word, const QString &help,
                   Presence presence);

    CLI::App &m_app;
    Options &m_options;
    ArgumentRules m_rules;
};

} // namespace kiv::app
