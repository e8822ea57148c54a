// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/candidates.h"

#include "workbench/document/document.h"
#include "workbench/entry/kind_words.h"
#include "workbench/requests/budget_view.h"
#include "workbench/statements/import_format.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>

namespace kiv::app {

using workbench::AccountIndex;
using workbench::BudgetView;
using workbench::Document;
using workbench::identify;
using workbench::kindWord;
using workbench::Requests;

namespace {

using Words = std::vector<std::string>;

/// Follows the words of a line from left to right.
class Reading {
public:
    explicit Reading(const CLI::App &commands) : m_reached(&commands) {}

    void take(const std::string &word)
    {
        const std::string name = word.substr(0, word.find('='));
        if (m_awaiting && word == "=") {
            // bash splits --file=home.budget into three words.
        } else if (m_awaiting) {
            remember(word);
            m_awaiting = nullptr;
        } else if (word == "--") {
            m_onlyPlaces = true;
        } else if (word.starts_with('-') && !m_onlyPlaces) {
            m_awaiting = m_reached->get_option_no_throw(name);
            const bool isFlag = !m_awaiting || m_awaiting->get_items_expected_max() == 0;
            if (name != word && !isFlag)
                remember(word.substr(name.size() + 1));
            if (isFlag || name != word)
                m_awaiting = nullptr;
        } else if (const CLI::App *next = subcommand(word)) {
            m_path.push_back(word);
            m_reached = next;
        } else {
            ++m_placed;
        }
    }

    /// The option that needs a value, or else the next positional argument; null if
    /// there is none.
    [[nodiscard]] const CLI::Option *turn() const
    {
        if (m_awaiting)
            return m_awaiting;
        const auto places = m_reached->get_options(
            [](const CLI::Option *option) { return option->get_positional(); });
        if (m_placed < places.size())
            return places[m_placed];
        const bool isRepeated = !places.empty() && places.back()->get_items_expected_max() > 1;
        return isRepeated ? places.back() : nullptr;
    }
    [[nodiscard]] bool awaitsValue() const noexcept { return m_awaiting != nullptr; }
    [[nodiscard]] const CLI::App &reached() const noexcept { return *m_reached; }
    /// The names of the commands from the root to the current one.
    [[nodiscard]] const Words &path() const noexcept { return m_path; }
    [[nodiscard]] const QString &file() const noexcept { return m_file; }

private:
    [[nodiscard]] const CLI::App *subcommand(const std::string &name) const
    {
        for (const CLI::App *command : m_reached->get_subcommands({})) {
            if (command->get_name() == name)
                return command;
        }
        return nullptr;
    }
    void remember(const std::string &value)
    {
        if (m_awaiting->get_name() == "--file")
            m_file = QString::fromStdString(value);
    }

    const CLI::App *m_reached;
    const CLI::Option *m_awaiting = nullptr;
    bool m_onlyPlaces = false;
    std::size_t m_placed = 0;
    Words m_path;
    QString m_file;
};

Words accountNames(Requests &requests)
{
    Words names;
    for (const QString &name : requests.accounts().plainNames())
        names.push_back(name.toStdString());
    return names;
}

Words bankNames(Requests &requests)
{
    Words names;
    for (const banking::BankName &bank : requests.banks().names())
        names.push_back(bank.institution().toStdString());
    return names;
}

/// The names of all items of this kind, or of all kinds if it is empty.
Words itemNames(Requests &requests, const std::string &kind)
{
    Words names;
    BudgetView(requests).budget().forEach([&](const budgeting::BudgetedMoney &item) {
        if (kind.empty() || kindWord(identify(item).type).toStdString() == kind)
            names.push_back(item.source().name().toStdString());
    });
    return names;
}

template <typename Enumeration, typename Name>
Words choices(Enumeration lowest, Enumeration highest, Name name)
{
    Words words;
    for (auto value = static_cast<int>(lowest); value <= static_cast<int>(highest); ++value)
        words.push_back(name(static_cast<Enumeration>(value)).replace(u' ', u'-').toStdString());
    return words;
}

/// The choices of an argument; empty if it takes free values.
Words choicesOf(const std::string &name, const Words &path)
{
    const auto named = [](auto value) { return toQString(value); };
    if (name == "--every") {
        using enum budgeting::EventFrequency;
        return choices(None, EveryTenYears, named);
    }
    if (name == "--kind") {
        using enum budgeting::BudgetItemTypes;
        return choices(Bill, Wage, kindWord);
    }
    if (name == "--type" && path.front() == "account") {
        using enum accounting::AccountTypes;
        return choices(Asset, Income, named);
    }
    if (name == "--type") {
        using enum banking::BankAccountTypes;
        return choices(Checking, Cash, named);
    }
    if (name == "--format" && path.front() == "import") {
        using enum workbench::ImportFormat;
        return choices(Journal, Camt, workbench::importFormatWord);
    }
    if (name == "--format")
        return {"journal", "csv", "json"};
    constexpr std::array currencies{"--currency", "--preferred", "--usable", "CURRENCY", "BASE"};
    if (std::ranges::count(currencies, name) != 0) {
        Words codes;
        for (const numira::Currency &currency : numira::activeCurrencies())
            codes.emplace_back(currency.code());
        return codes;
    }
    return {};
}

Words namesOf(const std::string &name, const Words &path, Requests &requests)
{
    constexpr std::array accounts{"ACCOUNT",   "FROM",           "TO",       "ON",
                                  "--account", "--bank-account", "--debit",  "--credit",
                                  "--under",   "--into",         "--against"};
    // Elsewhere these two are days or files.
    const bool isOwn = (name == "--from" && path.front() == "spend") ||
                       (name == "--to" && path.front() == "earn") ||
                       ((name == "--from" || name == "--to") && path.front() == "transaction");
    constexpr std::array kinds{"bill", "debt", "goal", "nontrack", "wage"};
    if (isOwn || std::ranges::count(accounts, name) != 0)
        return accountNames(requests);
    if (name == "BANK" || name == "--bank")
        return bankNames(requests);
    if (name == "ITEM")
        return itemNames(requests, {});
    // The name of a new item cannot be completed.
    if (name == "NAME" && std::ranges::count(kinds, path.front()) != 0 && path.back() != "add")
        return itemNames(requests, path.front());
    return {};
}

} // namespace

Candidates candidatesAfter(const CLI::App &commands, const std::vector<std::string> &before,
                           Document &document)
{
    Reading reading(commands);
    for (const std::string &word : before)
        reading.take(word);

    Candidates candidates;
    if (!reading.awaitsValue()) {
        for (const CLI::App *command : reading.reached().get_subcommands({}))
            candidates.values.push_back(command->get_name());
    }
    if (const CLI::Option *turn = reading.turn(); turn && !reading.path().empty()) {
        const std::string name = turn->get_name();
        candidates.values = choicesOf(name, reading.path());
        const QString file =
            reading.file().isEmpty() ? qEnvironmentVariable("KIV_FILE") : reading.file();
        // It never asks for a passphrase.
        if (document.file().isEmpty() && !file.isEmpty() &&
            !document.keys().isLocked(Document::withExtension(file)))
            document.open(file);
        if (candidates.values.empty() && !document.file().isEmpty())
            candidates.values = namesOf(name, reading.path(), document.requests());
    }
    if (!reading.awaitsValue()) {
        for (const CLI::Option *option : reading.reached().get_options()) {
            if (option->nonpositional())
                candidates.options.push_back(option->get_name());
        }
    }
    return candidates;
}

} // namespace kiv::app
