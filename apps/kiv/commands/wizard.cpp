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

/// A child has no starter budget, so it is not offered.
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
    return Report(QJsonValue(rows))
        .table({{QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                {QObject::tr("Name"), QStringLiteral("name")},
                {QObject::tr("Every"), QStringLiteral("every"), wordText},
                {QObject::tr("Next"), QStringLiteral("next"), dayText}},
               rows, QObject::tr("It has no budget items."));
}

struct Wizard {
    QString file;
    NewName bank;
    NewName account;
    TemplateArgument household;
    workbench::StarterAnswers answers = {};

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("The file to be made; .budget is appended"))
            .file()
            .exclusive("FILE", "--file")
            .optional("--template", household, QObject::tr("The household; see templates list"))
            .optional("--currency", answers.preferred,
                      QObject::tr("Its currency, preferred from now on"))
            .required("--bank", bank, QObject::tr("The household's bank"))
            .required("--account", account, QObject::tr("The name of its account there"))
            .optional("--type", answers.type,
                      QObject::tr("The kind of account; checking unless given"))
            .optional("--balance", answers.balance,
                      QObject::tr("The account's balance; 0 otherwise"));
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
        call.document.create(path);
        Report report = itemsReport(itemsJson(call.requests));
        return report.line(QObject::tr("Made the budget '%1'.").arg(call.document.file()));
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
        return Report(QJsonValue(rows))
            .table({{QObject::tr("Template"), QStringLiteral("template")},
                    {QObject::tr("Household"), QStringLiteral("household"), wordText}},
                   rows, {});
    }
};

struct ShowTemplate {
    TemplateArgument household;

    void declare(Arguments &arguments)
    {
        arguments.required("TEMPLATE", household, QObject::tr("See templates list"));
    }
    Report run(Call &call) const
    {
        // On a budget in memory that is never saved; a shell's own comes back.
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
    root.add("wizard", QObject::tr("Make a new budget for a kind of household"),
             CommandKind::Standalone, Wizard{});
    CommandGroup group = root.group("templates", QObject::tr("Starter budgets for the wizard"));
    group.add("list", QObject::tr("List the kinds of household"), CommandKind::Standalone,
              ListTemplates{});
    group.add("show", QObject::tr("Show the budget items of one"), CommandKind::Standalone,
              ShowTemplate{});
}

} // namespace kiv::app
