// SPDX-License-Identifier: GPL-3.0-or-later
// rules list|add|test|remove
#include "commands/commands.h"

#include "output/json.h"

#include "workbench/statements/import_memory.h"

namespace kiv::app {

using workbench::ImportMemory;
using workbench::ImportRule;

namespace {

QJsonValue jsonOf(const std::optional<numira::Decimal> &bound)
{
    return bound ? QJsonValue(QString::fromStdString(bound->toText())) : QJsonValue();
}

QJsonObject jsonOf(const ImportRule &rule, qsizetype place, const AccountIndex &index)
{
    return {{QStringLiteral("rule"), qint64{place} + 1},
            {QStringLiteral("text"), rule.text},
            {QStringLiteral("pattern"), rule.isPattern},
            {QStringLiteral("from"), jsonOf(rule.least)},
            {QStringLiteral("to"), jsonOf(rule.most)},
            {QStringLiteral("of"), toJson(rule.of)},
            {QStringLiteral("account"), toJson(rule.target)},
            {QStringLiteral("path"), index.plainPath(rule.target)}};
}

struct ListRules {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
        QJsonArray rows;
        for (const ImportRule &rule : ImportMemory::of(call.document.notes()).rules)
            rows.append(jsonOf(rule, rows.size(), *index));
        return Report::listing(
            {{QObject::tr("Rule"), QStringLiteral("rule")},
             {QObject::tr("Text"), QStringLiteral("text")},
             {QObject::tr("Pattern"), QStringLiteral("pattern"),
              [](const QJsonValue &value) {
                  return value.toBool() ? QObject::tr("yes") : QString();
              }},
             {QObject::tr("From"), QStringLiteral("from")},
             {QObject::tr("To"), QStringLiteral("to")},
             {QObject::tr("Statements of"), QStringLiteral("of"), accountText(index)},
             {QObject::tr("For"), QStringLiteral("account"), accountText(index)}},
            rows, QObject::tr("There are no rules."));
    }
};

/// The amounts and the account that a rule is limited to, or an entry has.
struct RuleLimits {
    std::optional<Amount> least;
    std::optional<Amount> most;
    std::optional<AccountText> of;

    void declare(Arguments &arguments)
    {
        arguments.optional("--from", least, QObject::tr("The least amount, without its sign"))
            .optional("--to", most, QObject::tr("The highest amount, without its sign"))
            .optional("--of", of, QObject::tr("Only statements of this account"));
    }
};

struct AddRule {
    QString text;
    AccountText target;
    bool isPattern = false;
    RuleLimits limits;

    void declare(Arguments &arguments)
    {
        arguments.required("TEXT", text, QObject::tr("Text that the payee or the text contains"))
            .required("ACCOUNT", target, QObject::tr("Account or item that such entries are for"))
            .flag("--pattern", isPattern, QObject::tr("The text is a regular expression"));
        limits.declare(arguments);
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        workbench::TypedRule typed{text,        isPattern, limits.least,
                                   limits.most, {},        index.find(target.text).code().number()};
        if (limits.of)
            typed.of = index.find(limits.of->text).code().number();
        const ImportRule rule = ruleOf(typed, index);
        ImportMemory memory = ImportMemory::of(call.document.notes());
        memory.rules.push_back(rule);
        call.document.setNotes(memory.keptIn(call.document.notes()));
        return Report(jsonOf(rule, std::ssize(memory.rules) - 1, index))
            .line(QObject::tr("Added the rule “%1” for %2.")
                      .arg(rule.text, index.plainName(rule.target)));
    }
};

struct TestRules {
    QString text;
    std::optional<Amount> amount;
    std::optional<AccountText> of;

    void declare(Arguments &arguments)
    {
        arguments.required("TEXT", text, QObject::tr("What a bank says of an entry"))
            .optional("--amount", amount, QObject::tr("Amount of the entry"))
            .optional("--of", of, QObject::tr("Account of the statement"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const ImportMemory memory = ImportMemory::of(call.document.notes());
        interchange::StatementEntry entry{{}};
        entry.text = text;
        if (amount)
            entry.amount = amount->in(call.requests.preferredCurrency());
        const auto account =
            of ? index.find(of->text).code().number() : accounting::AccountNumber();
        const workbench::RuleBook book(memory.rules);
        const auto place = book.first(entry, account);
        const QString told = trialText(book, place, index);
        return Report(place ? QJsonValue(jsonOf(book.rules()[*place],
                                                static_cast<qsizetype>(*place), index))
                            : QJsonValue())
            .line(told);
    }
};

struct RemoveRules {
    std::vector<QString> places;

    void declare(Arguments &arguments)
    {
        arguments.severalRequired("RULE", places, QObject::tr("Numbers of rules, see rules list"));
    }
    Report run(Call &call) const
    {
        ImportMemory memory = ImportMemory::of(call.document.notes());
        std::set<qint64> numbers;
        for (const QString &text : places) {
            const qint64 number = text.toLongLong();
            if (number < 1 || number > std::ssize(memory.rules))
                throw workbench::notANumber(text, 1, std::ssize(memory.rules));
            numbers.insert(number);
        }
        // From the last one, so that the numbers of the others stay.
        for (auto number = numbers.rbegin(); number != numbers.rend(); ++number)
            memory.rules.erase(memory.rules.begin() + static_cast<std::ptrdiff_t>(*number) - 1);
        call.document.setNotes(memory.keptIn(call.document.notes()));
        return Report(QJsonObject{{QStringLiteral("rules"), qint64{std::ssize(memory.rules)}}})
            .line(QObject::tr("Removed %n rules.", nullptr, static_cast<int>(numbers.size())));
    }
};

} // namespace

void addRuleCommands(CommandGroup &root)
{
    using enum CommandKind;
    CommandGroup rules = root.group("rules", QObject::tr("Say what entries of statements are for"));
    rules.add("list", QObject::tr("List all rules"), Query, ListRules{});
    rules.add("add", QObject::tr("Add a rule"), Change, AddRule{});
    rules.add("test", QObject::tr("Tell which rule fits a text"), Query, TestRules{});
    rules.add("remove", QObject::tr("Remove rules"), Change, RemoveRules{});
}

} // namespace kiv::app
