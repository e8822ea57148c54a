// SPDX-License-Identifier: GPL-3.0-or-later
// survey show|complete|run
#include "commands/commands.h"

#include "output/dialogue.h"
#include "output/json.h"
#include "output/survey_json.h"
#include "parsing/json_input.h"
#include "program/program.h"

#include "workbench/entry/description.h"

#include "foundation/presentation.h"

#include <QtCore/QJsonDocument>

namespace kiv::app {

using navigation::Navigator;

namespace {

/// The bank account to survey, and the day.
struct SurveyArguments {
    QString bank;
    QString account;

    void declare(Arguments &arguments)
    {
        arguments.required("BANK", bank, QObject::tr("Name of the bank"))
            .required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .dated(QObject::tr("Day of the statement (default: today)"));
    }
    [[nodiscard]] SurveyForm propose(Call &call) const
    {
        return SurveyForm::propose(call.requests, bank, account, call.date());
    }
};

Report formReport(Requests &requests, const SurveyForm &form)
{
    const QJsonObject json = toJson(form, requests);
    const auto account = accountText(std::make_shared<const AccountIndex>(requests.accounts()));
    Report report{QJsonValue(json)};
    report.list({{QObject::tr("Bank"), QStringLiteral("bank")},
                 {QObject::tr("Account"), QStringLiteral("account"), account},
                 {QObject::tr("Day of the statement"), QStringLiteral("date"), dayText},
                 {QObject::tr("Last reconciled on"), QStringLiteral("reconciledOn"), dayText},
                 {QObject::tr("Reconciled balance"), QStringLiteral("reconciledBalance")},
                 {QObject::tr("Changes since"), QStringLiteral("start"), dayText},
                 {QObject::tr("Expected balance"), QStringLiteral("expectedBalance")},
                 {QObject::tr("Still due this month"), QStringLiteral("amountDue")}},
                json);
    const auto changes = [&](const QString &title, const char *key, const Column &what) {
        report.heading(title).table(
            {what,
             {QObject::tr("Transaction"), QStringLiteral("transaction")},
             {QObject::tr("Date"), QStringLiteral("date"), dayText},
             {QObject::tr("Description"), QStringLiteral("description"), descriptionText},
             {QObject::tr("Change"), QStringLiteral("change")}},
            json.value(QLatin1String(key)).toArray(), QObject::tr("There are none."));
    };
    changes(QObject::tr("Changes by budget item"), "itemChanges",
            {QObject::tr("Item"), QStringLiteral("name")});
    changes(QObject::tr("Other changes"), "accountChanges",
            {QObject::tr("Account"), QStringLiteral("account"), account});
    if (form.isOwed())
        return report;
    report.heading(QObject::tr("Proposed distribution"))
        .table({{QObject::tr("Item"), QStringLiteral("name")},
                {QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                {QObject::tr("Set aside"), QStringLiteral("distributed")},
                {QObject::tr("Expected"), QStringLiteral("expected")},
                {QObject::tr("Next"), QStringLiteral("next"), dayText}},
               json.value(QLatin1String("distribution")).toArray(),
               QObject::tr("There are no items to set money aside for."))
        .list({{QObject::tr("Not distributed"), QStringLiteral("nonDistributed")}}, json);
    return report;
}

Report complete(Requests &requests, const SurveyForm &form)
{
    form.complete(requests);
    const accounting::AccountNumber number = form.account.account.number;
    const AccountIndex index = requests.accounts();
    Report report(toJson(form, requests));
    report.setChange(QObject::tr("Survey of %1, %2")
                         .arg(index.plainName(number), foundation::presentationText(form.date)));
    return report.line(QObject::tr("Reconciled %1 at %2 with a balance of %3.")
                           .arg(index.label(number), form.account.bank.institution(),
                                amountText(toJson(form.balance), requests.displayAs())));
}

struct ShowSurvey {
    SurveyArguments which;

    void declare(Arguments &arguments) { which.declare(arguments); }
    Report run(Call &call) const { return formReport(call.requests, which.propose(call)); }
};

struct CompleteSurvey {
    std::optional<QString> bank;
    std::optional<QString> account;
    std::optional<QString> file;
    std::optional<Amount> balance;
    std::vector<accounting::TransactionNumber> ticked;
    bool isAllTicked = false;
    std::vector<QString> items;
    std::vector<QString> extras;
    std::vector<QString> distribution;
    std::optional<Amount> nonDistributed;

    void declare(Arguments &arguments)
    {
        arguments.optional("BANK", bank, QObject::tr("Name of the bank"))
            .optional("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .optional("--from", file,
                      QObject::tr("Edited output of survey show --json; - for standard input"))
            .optional("--balance", balance, QObject::tr("Balance of the statement"))
            .several("--tick", ticked,
                     QObject::tr("Number of a transaction on the statement (repeatable)"))
            .flag("--tick-all", isAllTicked, QObject::tr("All transactions are on the statement"))
            .several("--item", items,
                     QObject::tr("Unbooked money of an item, negative if it went out (repeatable)"))
            .several("--extra", extras,
                     QObject::tr("Unbooked money of another account (repeatable)"))
            .several("--distribute", distribution,
                     QObject::tr("Amount to set aside for an item (repeatable)"))
            .optional("--not-distributed", nonDistributed,
                      QObject::tr("Amount that is not distributed (default: the rest)"))
            .dated(QObject::tr("Day of the statement (default: today)"))
            .exclusive("--from", "BANK")
            .exclusive("--from", "--date")
            .exclusive("--tick-all", "--tick");
    }
    Report run(Call &call) const
    {
        SurveyForm form = start(call);
        const numira::Currency currency = form.balance.code();
        if (balance)
            form.balance = balance->in(currency);
        if (!isAllTicked && (!file || !ticked.empty()))
            form.reconciled.clear();
        form.reconciled.insert(ticked.begin(), ticked.end());
        for (const QString &text : items)
            form.addItem(call.requests, text);
        for (const QString &text : extras)
            form.addExtra(call.requests, text);
        for (const QString &text : distribution)
            form.distribute(call.requests, text);
        form.nonDistributed = nonDistributed ? nonDistributed->in(currency) : form.left();
        form.settleGoals(call.requests);
        return complete(call.requests, form);
    }

private:
    [[nodiscard]] SurveyForm start(Call &call) const
    {
        if (file)
            return surveyFromJson(call.requests, readJson(*file).object());
        if (!account)
            throw missing(placeholder(bank ? "ACCOUNT" : "BANK ACCOUNT"));
        if (!balance)
            throw missing(QStringLiteral("--balance"));
        return SurveyForm::propose(call.requests, *bank, *account, call.date());
    }
};

/// Asks about a statement, question by question.
struct RunSurvey {
    SurveyArguments which;

    void declare(Arguments &arguments) { which.declare(arguments); }
    Report run(Call &call) const
    {
        SurveyForm form = which.propose(call);
        const Terminal &terminal = call.program.terminal();
        formReport(call.requests, form).writeText(terminal, call.document.displayAs());
        Dialogue dialogue;

        const std::set<accounting::TransactionNumber> all = std::exchange(form.reconciled, {});
        for (const accounting::TransactionNumber number : all) {
            const accounting::Transaction transaction = call.requests.transaction(number);
            if (dialogue.agrees(
                    QObject::tr("Is transaction %1 of %2, '%3', %4, on the statement?")
                        .arg(accounting::presentationText(number),
                             foundation::presentationText(transaction.occurredOn()),
                             workbench::Description::of(transaction.description()).shown(),
                             amountText(toJson(form.changeBy(transaction)),
                                        call.document.displayAs()))))
                form.reconciled.insert(number);
        }
        dialogue.until(QObject::tr("Balance of the statement"), [&](const QString &answer) {
            Amount amount;
            readValue(answer, amount);
            form.balance = amount.in(form.balance.code());
        });
        dialogue.each(QObject::tr("Unbooked money of an item, as ITEM=AMOUNT"),
                      [&](const QString &text) { form.addItem(call.requests, text); });
        dialogue.each(QObject::tr("Unbooked money of another account, as ACCOUNT=AMOUNT"),
                      [&](const QString &text) { form.addExtra(call.requests, text); });
        if (!form.isOwed()) {
            dialogue.each(QObject::tr("Amount to set aside for an item, as ITEM=AMOUNT"),
                          [&](const QString &text) { form.distribute(call.requests, text); });
        }
        form.nonDistributed = form.left();
        form.settleGoals(call.requests);
        if (!dialogue.agrees(QObject::tr("Complete the survey?")))
            throw surveyGivenUp();
        return complete(call.requests, form);
    }
};

} // namespace

void addSurveyCommands(CommandGroup &root)
{
    using enum CommandKind;
    CommandGroup survey =
        root.group("survey", QObject::tr("Compare the books with a bank statement"));
    survey.add("show", QObject::tr("Show the changes since the last survey"), Query, ShowSurvey{});
    survey.add("complete", QObject::tr("Reconcile an account with a statement"), Change,
               CompleteSurvey{});
    survey.add("run", QObject::tr("Reconcile an account question by question"), Change,
               RunSurvey{});
}

} // namespace kiv::app
