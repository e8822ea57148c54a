// SPDX-License-Identifier: GPL-3.0-or-later
// wizard, templates list|show
#include "commands/commands.h"

#include "output/json.h"

#include "workbench/document/starter_budget.h"

#include <sstream>

namespace kiv::app {

using navigation::BudgetWizardTemplates;

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

QJsonArray itemsJson(Requests &requests)
{
    QJsonArray rows;
    const BudgetView view(requests);
    view.budget().forEach(
        [&](const budgeting::BudgetedMoney &item) { rows.append(toJson(item, view)); });
    return rows;
}

Report itemsReport(const QJsonArray &rows)
{
    return Report::listing({{QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                            {QObject::tr("Name"), QStringLiteral("name")},
                            {QObject::tr("Every"), QStringLiteral("every"), wordText},
                            {QObject::tr("Next"), QStringLiteral("next"), dayText}},
                           rows, QObject::tr("There are no budget items."));
}

struct Wizard {
    QString file;
    NewName bank;
    NewName account;
    TemplateArgument household;
    workbench::StarterAnswers answers = {};

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("New file; .budget is added if it is missing"))
            .file()
            .exclusive("FILE", "--file")
            .optional("--template", household,
                      QObject::tr("Template, see kiv templates list (default: none)"))
            .optional("--currency", answers.preferred,
                      QObject::tr("Currency, which becomes the preferred one"))
            .required("--bank", bank, QObject::tr("Name of the bank"))
            .required("--account", account, QObject::tr("Name of the bank account"))
            .optional("--type", answers.type,
                      QObject::tr("Type of the bank account, such as checking (default)"))
            .optional("--balance", answers.balance, QObject::tr("Opening balance (default: 0)"));
    }
    Report run(Call &call) const
    {
        workbench::StarterAnswers given = answers;
        given.bank = bank.text;
        given.account = account.text;
        given.household = household.value;
        call.document.refuseUnsaved();
        const QString path = call.fileToMake(file);
        Document::refuseExisting(path);
        workbench::fillIn(call.requests, given);
        call.document.create(path, QObject::tr("Created the budget"));
        Report report = itemsReport(itemsJson(call.requests));
        return report.line(QObject::tr("Created the budget '%1'.").arg(call.document.file()));
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
        // This fills a budget in memory that is never saved; revert() restores that of a
        // shell.
        workbench::fillIn(call.requests,
                          {std::nullopt, QObject::tr("Bank"), banking::BankAccountTypes::Checking,
                           QObject::tr("Account"), std::nullopt, household.value});
        const QJsonArray rows = itemsJson(call.requests);
        call.document.revert();
        return itemsReport(rows);
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
