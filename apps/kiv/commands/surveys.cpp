// SPDX-License-Identifier: GPL-3.0-or-later
// survey show|complete|run|drop
#include "commands/commands.h"

#include "commands/survey_run.h"
#include "output/json.h"
#include "output/survey_json.h"
#include "output/survey_report.h"
#include "parsing/json_input.h"

#include <QtCore/QJsonDocument>

namespace kiv::app {

namespace {

struct ShowSurvey {
    SheetArguments which;

    void declare(Arguments &arguments) { which.declare(arguments); }
    Report run(Call &call) const
    {
        SurveySheet sheet = which.begin(call, call.options.date, call.date()).sheet;
        // As if the statement agreed with the books, to be edited.
        if (!which.bankFile)
            sheet.form.reconciled = sheet.readTicks(QStringLiteral("all"));
        return surveyReport(call.document, sheet);
    }
};

struct CompleteSurvey {
    SheetArguments which;
    std::optional<QString> file;
    std::optional<Amount> balance;
    std::vector<QString> ticked;
    bool isAllTicked = false;
    std::vector<QString> items;
    std::vector<QString> extras;
    std::vector<QString> distribution;
    std::optional<QString> remainder;
    std::optional<Amount> nonDistributed;
    bool hasConsent = false;

    void declare(Arguments &arguments)
    {
        which.declare(arguments);
        arguments
            .optional("--from", file,
                      QObject::tr("Edited output of survey show --json; - for standard input"))
            .optional("--balance", balance, QObject::tr("Balance of the statement"))
            .several("--tick", ticked,
                     QObject::tr("What is on the statement: 3, 1-5,9, 'all but 4' or 'none' "
                                 "(repeatable; default: what is marked as seen at the bank)"))
            .flag("--tick-all", isAllTicked, QObject::tr("All transactions are on the statement"))
            .several("--item", items,
                     QObject::tr("Unbooked money of an item, negative if it went out (repeatable)"))
            .several("--extra", extras,
                     QObject::tr("Unbooked money of another account (repeatable)"))
            .optional("--difference-to", remainder,
                      QObject::tr("Item or account to which the difference is posted, such as "
                                  "the interest of a loan"))
            .flag("--accept-difference", hasConsent,
                  QObject::tr("A difference may stay; it is told until it is gone"))
            .several("--distribute", distribution,
                     QObject::tr("Amount to set aside for an item (repeatable)"))
            .optional("--not-distributed", nonDistributed,
                      QObject::tr("Amount that is not distributed (default: the rest)"))
            .exclusive("--from", "BANK")
            .exclusive("--from", "--date")
            .exclusive("--from", "--bank-file")
            .exclusive("--from", "--as-proposed")
            .exclusive("--tick-all", "--tick");
    }
    Report run(Call &call) const
    {
        SurveySheet sheet = start(call);
        SurveyForm &form = sheet.form;
        const numira::Currency currency = form.balance.code();
        if (balance)
            form.balance = balance->in(currency);
        if (isAllTicked)
            form.reconciled = sheet.readTicks(QStringLiteral("all"));
        else if (!ticked.empty())
            tick(sheet);
        for (const QString &text : items)
            form.addItem(call.requests, text);
        for (const QString &text : extras)
            form.addExtra(call.requests, text);
        if (remainder) {
            const auto number = call.requests.accounts().find(*remainder).code().number();
            sheet.addUnbooked(number, sheet.missingFor(number));
        }
        for (const QString &text : distribution)
            sheet.setAside(call.requests, text);
        if (nonDistributed)
            sheet.nonDistributed = nonDistributed->in(currency);
        return call.options.isDryRun ? tried(call, sheet) : completed(call, sheet, hasConsent);
    }

private:
    [[nodiscard]] SurveySheet start(Call &call) const
    {
        if (file)
            return surveyFromJson(call.document, readJson(*file).object());
        SheetArguments::Begun begun = which.begin(call, call.options.date, call.date());
        if (!balance && !(begun.statement && begun.statement->balance))
            throw missing(QStringLiteral("--balance"));
        return std::move(begun.sheet);
    }
    /// All that completing it would do, also if the difference stands against it.
    [[nodiscard]] static Report tried(Call &call, const SurveySheet &sheet)
    {
        Report report(toJson(sheet, call.requests));
        addFigures(report, call.document, sheet);
        addPostings(report, call.document, sheet);
        addSetAside(report, call.document, sheet);
        if (sheet.figures().isAccepted)
            complete(call.document, sheet, true); // for what else is refused
        else
            report.setStatus(1);
        return report;
    }
    void tick(SurveySheet &sheet) const
    {
        std::set<accounting::TransactionNumber> all;
        for (const QString &text : ticked)
            all.merge(sheet.readTicks(text));
        sheet.tick(all);
    }
};

/// Sets nothing aside at an account any more.
struct DropSetAside {
    QString bank;
    QString account;

    void declare(Arguments &arguments)
    {
        arguments.required("BANK", bank, QObject::tr("Name of the bank"))
            .required("ACCOUNT", account, QObject::tr("Account: number, name or path"));
    }
    Report run(Call &call) const
    {
        const accounting::AccountNumber number =
            call.requests.accounts().find(account).code().number();
        const banking::BankAccount dropped = recordedAt(call, number);
        dropSetAside(call.document, dropped);
        Report report(toJson(number));
        return report.line(QObject::tr("Nothing is set aside at %1 any more.")
                               .arg(call.requests.accounts().plainName(number)));
    }

private:
    /// The account at that bank, also when the bank keeps it no more but has a record of it.
    [[nodiscard]] banking::BankAccount recordedAt(Call &call,
                                                  accounting::AccountNumber number) const
    {
        for (const auto &[one, survey] : call.document.present().surveys) {
            if (one.account.number == number && one.bank.institution() == bank)
                return one;
        }
        (void)call.requests.bank(bank);
        return call.requests.bankAccount(number, account);
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
    survey.add("drop", QObject::tr("Set nothing aside at an account any more"), Change,
               DropSetAside{});
}

} // namespace kiv::app
