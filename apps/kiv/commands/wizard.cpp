// SPDX-License-Identifier: GPL-3.0-or-later
// wizard, templates list|show
#include "commands/commands.h"

#include "commands/whether_encrypted.h"
#include "output/json.h"

#include "workbench/document/starter_budget.h"

#include <sstream>

namespace kiv::app {

using navigation::BudgetWizardTemplates;
using workbench::StarterChoice;

namespace {

struct Template {
    const char *word;
    BudgetWizardTemplates value;
};

/// Without Child, which has no items.
constexpr Template templates[] = {
    {"none", BudgetWizardTemplates::None},
    {"teenager", BudgetWizardTemplates::Teenager},
    {"adult-single", BudgetWizardTemplates::AdultSingle},
    {"adult-married-single-income", BudgetWizardTemplates::AdultMarriedSingleIncome},
    {"adult-married-double-income", BudgetWizardTemplates::AdultMarriedDoubleIncome},
};

struct TemplateArgument {
    BudgetWizardTemplates value = BudgetWizardTemplates::None;
};

void readValue(const QString &text, TemplateArgument &argument)
{
    QStringList choices;
    for (const Template &known : templates) {
        if (text == QLatin1String(known.word)) {
            argument.value = known.value;
            return;
        }
        choices += QLatin1String(known.word);
    }
    throw notAChoice(text, choices);
}

/// An amount for an item of the template: "Rent=1250", "goal:Car=50 of 900 2026-12-01".
struct ItemArgument {
    QString item; ///< as typed
    Amount amount;
    std::optional<Amount> target;
    std::optional<QDate> day;
};

constexpr const char *valueWord(const ItemArgument *)
{
    return "ITEM=AMOUNT";
}

/// Takes the day at the end, if there is one.
std::optional<QDate> takeDay(QStringList &words)
{
    std::optional<QDate> day;
    if (words.size() < 2)
        return day;
    try {
        workbench::readValue(words.back(), day);
        words.removeLast();
    } catch (const EntryError &) {
        // It belongs to the amount.
    }
    return day;
}

void readValue(const QString &text, ItemArgument &argument)
{
    const auto [item, value] = workbench::assignment(text);
    QStringList words = value.split(u' ', Qt::SkipEmptyParts);
    argument.item = item;
    argument.day = takeDay(words);
    const qsizetype of = words.indexOf(QStringLiteral("of"));
    if (of >= 0)
        workbench::readValue(words.sliced(of + 1).join(u' '), argument.target);
    workbench::readValue(words.first(of < 0 ? words.size() : of).join(u' '), argument.amount);
}

/// The item that is named, possibly with its kind: "goal:Car".
StarterChoice &chosen(std::vector<StarterChoice> &choices, const QString &text)
{
    const auto [kind, name] = workbench::withKind(text);
    std::vector<StarterChoice *> found;
    QStringList ways;
    QStringList known;
    for (StarterChoice &choice : choices) {
        known += choice.name;
        if (choice.name != name || choice.kind != kind.value_or(choice.kind))
            continue;
        found.push_back(&choice);
        ways += workbench::kindWord(choice.kind) + u':' + name;
    }
    if (found.empty())
        throw noSuchStarterItem(text, similarTo(name, known));
    if (found.size() > 1)
        throw ambiguousStarterItem(name, ways);
    return *found.front();
}

void apply(const ItemArgument &argument, std::vector<StarterChoice> &choices)
{
    StarterChoice &choice = chosen(choices, argument.item);
    if (choice.amount)
        throw givenTwice(argument.item);
    if (argument.target && choice.kind != budgeting::BudgetItemTypes::Goal)
        throw notAGoal(argument.item);
    choice.amount = argument.amount;
    choice.target = argument.target;
    choice.day = argument.day.value_or(choice.day);
}

QJsonArray itemsJson(Requests &requests)
{
    QJsonArray rows;
    const BudgetView view(requests);
    view.budget().forEach(
        [&](const budgeting::BudgetedMoney &item) { rows.append(toJson(item, view)); });
    return rows;
}

/// With the columns that all items have, or those of a template without amounts.
Report itemsReport(const QJsonArray &rows, bool hasAmounts)
{
    std::vector<Column> columns{{QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                                {QObject::tr("Name"), QStringLiteral("name")},
                                {QObject::tr("Every"), QStringLiteral("every"), wordText},
                                {QObject::tr("Next"), QStringLiteral("next"), dayText}};
    if (hasAmounts)
        columns.insert(columns.begin() + 2, {QObject::tr("Amount"), QStringLiteral("amount")});
    return Report::listing(columns, rows, QObject::tr("There are no budget items."));
}

struct Wizard {
    QString file;
    NewName bank;
    NewName account;
    TemplateArgument household;
    std::vector<ItemArgument> items = {};
    workbench::StarterAnswers answers = {};
    WhetherEncrypted encryption;

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("New file; .budget is added if it is missing"))
            .file()
            .exclusive("FILE", "--file")
            .optional("--template", household,
                      QObject::tr("Template, see kiv templates list (default: none)"))
            .several("--item", items,
                     QObject::tr("Amount of an item of the template, such as 'Rent=900', 'Rent=900 "
                                 "2026-03-31' or 'goal:Car=50 of 900' (repeatable); items without "
                                 "one are left out"))
            .optional("--currency", answers.preferred,
                      QObject::tr("Currency, which becomes the preferred one"))
            .required("--bank", bank, QObject::tr("Name of the bank"))
            .required("--account", account, QObject::tr("Name of the bank account"))
            .optional("--type", answers.type,
                      QObject::tr("Type of the bank account, such as checking (default)"))
            .optional("--balance", answers.balance, QObject::tr("Opening balance (default: 0)"));
        encryption.declare(arguments);
    }
    Report run(Call &call) const
    {
        workbench::StarterAnswers given = answers;
        given.bank = bank.text;
        given.account = account.text;
        given.items = workbench::starterChoices(household.value);
        for (const ItemArgument &item : items)
            apply(item, given.items);
        call.document.refuseUnsaved();
        const QString path = call.fileToMake(file);
        Document::refuseExisting(path);
        encryption.choose(call);
        workbench::fillIn(call.requests, given);
        call.document.create(path, QObject::tr("Created the budget"));
        Report report = itemsReport(itemsJson(call.requests), true);
        report.line(QObject::tr("Created the budget '%1'.").arg(call.document.file()));
        if (items.empty() && !given.items.empty()) {
            report.line(
                QObject::tr("Give its items amounts, such as --item '%1=100'; those without "
                            "one are left out.")
                    .arg(given.items.front().name));
        }
        return report;
    }
};

struct ListTemplates {
    void declare(Arguments &) {}
    Report run(Call &) const
    {
        QJsonArray rows;
        for (const Template &known : templates) {
            std::ostringstream text;
            text << known.value;
            rows.append(
                QJsonObject{{QStringLiteral("template"), QLatin1String(known.word)},
                            {QStringLiteral("household"), QString::fromStdString(text.str())}});
        }
        return Report::listing({{QObject::tr("Template"), QStringLiteral("template")},
                                {QObject::tr("Household"), QStringLiteral("household"), wordText}},
                               rows, {});
    }
};

struct ShowTemplate {
    TemplateArgument household;

    void declare(Arguments &arguments)
    {
        arguments.required("TEMPLATE", household, QObject::tr("Template, see kiv templates list"));
    }
    Report run(Call &call) const
    {
        QJsonArray rows;
        for (const StarterChoice &choice : workbench::starterChoices(household.value)) {
            const QDate day = workbench::comingDay(choice, call.date()).value_or(choice.day);
            rows.append(QJsonObject{{QStringLiteral("kind"), workbench::kindWord(choice.kind)},
                                    {QStringLiteral("name"), choice.name},
                                    {QStringLiteral("every"), budgeting::toQString(choice.every)},
                                    {QStringLiteral("next"), toJson(day)}});
        }
        return itemsReport(rows, false);
    }
};

} // namespace

void addWizardCommands(CommandGroup &root)
{
    root.add("wizard", QObject::tr("Create a budget from a template"), CommandKind::Standalone,
             Wizard{});
    CommandGroup group = root.group("templates", QObject::tr("Show the templates of kiv wizard"));
    group.add("list", QObject::tr("List all templates"), CommandKind::Standalone, ListTemplates{});
    group.add("show", QObject::tr("Show the budget items of a template"), CommandKind::Standalone,
              ShowTemplate{});
}

} // namespace kiv::app
