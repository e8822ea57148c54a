// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/survey_report.h"

#include "output/json.h"
#include "output/set_aside_json.h"
#include "output/survey_json.h"

#include "workbench/requests/entry_forms.h"
#include "workbench/surveys/difference_guess.h"

#include "foundation/presentation.h"

namespace kiv::app {

using foundation::presentationText;
using workbench::AccountIndex;

namespace {

const Column itemColumn()
{
    return {QObject::tr("Item or account"), QStringLiteral("name")};
}

QString tickText(const QJsonValue &isTicked)
{
    return isTicked.toBool() ? QObject::tr("ticked") : QString();
}

/// "inside the window of 2.75 %", and what that is about; empty for what is owed.
QString windowText(const SurveySheet &sheet, const workbench::SheetFigures &figures)
{
    if (sheet.form.isOwed())
        return QObject::tr("which is never refused for what is owed");
    const QString window = presentationText(sheet.window);
    return figures.isAccepted
               ? QObject::tr("inside the window of %1").arg(window)
               : QObject::tr("outside the window of %1: the survey is refused").arg(window);
}

} // namespace

Report surveyReport(Document &document, const SurveySheet &sheet)
{
    workbench::Requests &requests = document.requests();
    const QJsonObject json = toJson(sheet, requests);
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
    addSetAside(report, document, sheet);
    const auto ledger = document.present().generalLedger;
    for (const QString &notice : sheet.notices(ledger, document.displayAs()))
        report.line(notice);
    return report;
}

void addTicks(Report &report, Document &document, const SurveySheet &sheet)
{
    const AccountIndex index = document.requests().accounts();
    QJsonArray rows;
    for (const accounting::Transaction &one : sheet.form.transactions()) {
        rows.append(QJsonObject{
            {QStringLiteral("transaction"), toJson(one.number())},
            {QStringLiteral("date"), toJson(one.occurredOn())},
            {QStringLiteral("description"), workbench::payeeAndReason(one)},
            {QStringLiteral("name"), index.plainName(sheet.form.otherOf(one))},
            {QStringLiteral("change"), toJson(sheet.form.changeBy(one))},
            {QStringLiteral("ticked"), sheet.form.reconciled.contains(one.number().value())}});
    }
    report.table({{QObject::tr("Number"), QStringLiteral("transaction")},
                  {QObject::tr("Date"), QStringLiteral("date"), dayText},
                  {QObject::tr("Description"), QStringLiteral("description")},
                  itemColumn(),
                  {QObject::tr("Change"), QStringLiteral("change")},
                  {QString(), QStringLiteral("ticked"), tickText}},
                 rows, QObject::tr("Nothing is open up to this day."));
    for (const accounting::Transaction &one : sheet.form.elsewhere)
        report.line(QObject::tr("%1, was reconciled with %2 and is not yet seen here.")
                        .arg(entryText(one, sheet.form, index, document.displayAs()),
                             index.plainName(sheet.form.otherOf(one))));
}

void addFigures(Report &report, Document &document, const SurveySheet &sheet)
{
    const auto displayAs = document.displayAs();
    const workbench::SheetFigures figures = sheet.figures();
    const QJsonObject json{{QStringLiteral("calculated"), toJson(figures.calculated)},
                           {QStringLiteral("statement"), toJson(figures.statement)},
                           {QStringLiteral("difference"), toJson(figures.difference)}};
    report.list({{QObject::tr("Calculated"), QStringLiteral("calculated")},
                 {QObject::tr("Statement"), QStringLiteral("statement")},
                 {QObject::tr("Difference"), QStringLiteral("difference")}},
                json);
    if (figures.difference.isZero()) {
        report.line(QObject::tr("The books agree with the statement."));
    } else {
        QString sentence = QObject::tr("The books are %1")
                               .arg(workbench::belowBankText(figures.difference, displayAs));
        if (figures.percent)
            sentence += QStringLiteral(" (%1)").arg(figures.percentText());
        report.line(QStringLiteral("%1, %2.").arg(sentence, windowText(sheet, figures)));
        if (figures.after().isZero())
            report.line(QObject::tr("With it, the books are as the bank has them again."));
    }
    const AccountIndex index = document.requests().accounts();
    for (const workbench::DifferenceGuess &guess : guessesOf(sheet.form, figures.difference))
        report.line(guessText(guess, sheet.form, index, displayAs));
}

void addSetAside(Report &report, Document &document, const SurveySheet &sheet)
{
    if (sheet.form.isOwed())
        return;
    const QJsonObject json = toJson(sheet, document.requests());
    report.heading(QObject::tr("Set aside"));
    addSetAside(report, json.value(QLatin1String("lines")).toArray(),
                {{QObject::tr("Proposed"), QStringLiteral("proposed")}});
    report.list({{QObject::tr("Free"), QStringLiteral("nonDistributed")}}, json);
    QJsonArray due;
    for (const budgeting::BudgetItemAmountDue &one : sheet.dueYet)
        due.append(toJson(one));
    report.heading(QObject::tr("Still due in %1, of what is paid monthly")
                       .arg(QLocale().toString(sheet.form.date, QStringLiteral("MMMM yyyy"))));
    report.table({{QObject::tr("Due"), QStringLiteral("due"), dayText},
                  {QObject::tr("Item"), QStringLiteral("name")},
                  {QObject::tr("Amount"), QStringLiteral("amount")}},
                 due, QObject::tr("Nothing is due."));
}

void addPostings(Report &report, Document &document, const SurveySheet &sheet)
{
    if (sheet.form.items.empty() && sheet.form.extras.empty())
        return;
    const AccountIndex index = document.requests().accounts();
    QJsonArray rows;
    const auto add = [&rows](const QString &name, const numira::Money &change) {
        rows.append(QJsonObject{{QStringLiteral("name"), name},
                                {QStringLiteral("change"), toJson(change)}});
    };
    for (const auto &[id, change] : sheet.form.items)
        add(id.source.name(), change);
    for (const auto &[number, change] : sheet.form.extras)
        add(index.plainName(number), change);
    report.heading(QObject::tr("To be posted, of %1").arg(presentationText(sheet.form.date)))
        .table({itemColumn(), {QObject::tr("Change"), QStringLiteral("change")}}, rows, {});
}

void tellDifferences(Report &report, Document &document)
{
    const std::vector<workbench::BooksDifference> all = booksDifferences(document);
    if (all.empty())
        return;
    const auto ledger = document.present().generalLedger;
    for (const workbench::BooksDifference &one : all)
        report.line(one.sentence(ledger, document.displayAs()));
}

} // namespace kiv::app
