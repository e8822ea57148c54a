// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/survey_rows.h"

#include "models/account_rows.h"
#include "models/due_rows.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/entry_forms.h"
#include "workbench/surveys/difference_guess.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using accounting::AccountNumber;
using accounting::Transaction;
using workbench::JudgedReconciliation;
using workbench::SurveyForm;

namespace {

const QString itemKey = QStringLiteral("item ");
const QString accountKey = QStringLiteral("account ");

Row unbookedRow(const QString &key, const QString &name, const numira::Money &amount,
                const SurveyForm &form, navigation::CurrencyDisplayOptions displayAs)
{
    return {key,
            {dayCell(form.date),
             amountCell(amount, displayAs),
             {QObject::tr("not booked yet")},
             {name},
             {}}};
}

/// Why a transaction that is not ticked is a special one; usually empty.
QString openText(const Transaction &transaction, const SurveyForm &form,
                 const workbench::AccountIndex &index)
{
    // What stays in the account is not on the statement, but can be ticked.
    if (form.isWithin(transaction))
        return QObject::tr("stays in the account");
    const bool isElsewhere = std::ranges::find(form.elsewhere, transaction.number(),
                                               &Transaction::number) != form.elsewhere.end();
    return isElsewhere ? QObject::tr("reconciled with %1, not yet seen here")
                             .arg(index.plainName(form.otherOf(transaction)))
                       : QString();
}

Cell tickCell(const Transaction &transaction, const SurveyForm &form,
              const workbench::AccountIndex &index)
{
    const QString special = openText(transaction, form, index);
    const auto with = [&special](const QString &word) {
        return special.isEmpty() ? word : QStringLiteral("%1, %2").arg(word, special);
    };
    if (form.reconciled.contains(transaction.number().value()))
        return {with(QObject::tr("ticked")), {}, false, Colour::Good};
    return {special, with(QObject::tr("not ticked"))};
}

QString windowText(const workbench::SheetFigures &figures, const workbench::SurveySheet &sheet)
{
    const QString window = presentationText(sheet.window);
    if (sheet.form.isOwed())
        return QObject::tr("Of what is owed, any difference is accepted.");
    return figures.isAccepted
               ? QObject::tr("That is inside the survey window of %1.").arg(window)
               : QObject::tr("That is beyond the survey window of %1: the survey cannot be "
                             "completed.")
                     .arg(window);
}

void tellDifference(ShownFigures &shown, const workbench::SheetFigures &figures,
                    const workbench::SurveySheet &sheet, workbench::Document &document)
{
    workbench::Requests &requests = document.requests();
    const auto displayAs = requests.displayAs();
    const QString far = workbench::belowBankText(figures.difference, displayAs);
    shown.headline = figures.percentText().isEmpty()
                         ? QObject::tr("%1, the books are %2").arg(shown.headline, far)
                         : QObject::tr("%1, the books are %2 (%3)")
                               .arg(shown.headline, far, figures.percentText());
    shown.details += u' ' + windowText(figures, sheet);
    if (figures.after().isZero())
        shown.details += u' ' + QObject::tr("It makes up for the earlier difference.");
    if (figures.wantsConsent())
        shown.toAgreeTo = figures.difference;
    shown.isAccepted = figures.isAccepted;
    const auto guesses = workbench::guessesOf(sheet.form, figures.difference);
    if (!guesses.empty())
        shown.guess =
            workbench::guessText(guesses.front(), sheet.form, requests.accounts(), displayAs);
}

} // namespace

QStringList tickColumns()
{
    return {QObject::tr("Day"), QObject::tr("Change"), QObject::tr("On the statement"),
            QObject::tr("Item or account"), QObject::tr("Text")};
}

std::vector<Row> tickRows(const SurveyForm &form, workbench::Requests &requests)
{
    const workbench::AccountIndex index = requests.accounts();
    const auto displayAs = requests.displayAs();
    std::vector<Row> rows;
    for (const Transaction &transaction : form.transactions()) {
        const accounting::TransactionNumber number = transaction.number().value();
        rows.push_back({accounting::presentationText(number),
                        {dayCell(transaction.occurredOn()),
                         amountCell(form.changeBy(transaction), displayAs),
                         tickCell(transaction, form, index),
                         {index.plainName(form.otherOf(transaction))},
                         {workbench::payeeAndReason(transaction)}}});
    }
    for (const auto &[id, amount] : form.items)
        rows.push_back(unbookedRow(itemKey + keyOf(id), id.source.name(), amount, form, displayAs));
    for (const auto &[number, amount] : form.extras)
        rows.push_back(unbookedRow(accountKey + keyOf(number), index.plainName(number), amount,
                                   form, displayAs));
    return rows;
}

void turnTick(SurveyForm &form, const QString &key)
{
    std::erase_if(form.items,
                  [&key](const auto &one) { return key == itemKey + keyOf(one.first); });
    std::erase_if(form.extras,
                  [&key](const auto &one) { return key == accountKey + keyOf(one.first); });
    const accounting::TransactionNumber number(static_cast<std::uint16_t>(key.toUInt()));
    if (key.toUInt() != 0 && form.reconciled.erase(number) == 0)
        form.reconciled.insert(number);
}

ShownFigures shownFigures(const workbench::SurveySheet &sheet, bool hasBalance,
                          workbench::Document &document)
{
    const auto displayAs = document.requests().displayAs();
    const auto count = static_cast<int>(sheet.form.reconciled.size());
    ShownFigures shown;
    shown.headline = QObject::tr("%n ticked", nullptr, count);
    try {
        const workbench::SheetFigures figures = sheet.figures();
        const QString calculated = workbench::amountText(figures.calculated, displayAs);
        shown.details =
            hasBalance ? QObject::tr("Calculated %1, statement %2.")
                             .arg(calculated, workbench::amountText(figures.statement, displayAs))
                       : QObject::tr("Calculated %1. Type the balance of the statement to compare.")
                             .arg(calculated);
        if (sheet.before)
            shown.details +=
                u' ' + sheet.before->sentence(document.present().generalLedger, displayAs);
        if (!hasBalance)
            return shown;
        if (figures.difference.isZero())
            shown.headline = QObject::tr("%1, no difference").arg(shown.headline);
        else
            tellDifference(shown, figures, sheet, document);
    } catch (const foundation::Error &error) {
        shown.details = workbench::userText(error);
    }
    return shown;
}

QStringList reconciliationColumns()
{
    return {QObject::tr("Account"), QObject::tr("Bank"),          QObject::tr("Reconciled on"),
            QObject::tr("Balance"), QObject::tr("Not set aside"), QObject::tr("Transactions"),
            QObject::tr("State")};
}

std::vector<Row> reconciliationRows(workbench::Document &document)
{
    const workbench::AccountIndex index = document.requests().accounts();
    const auto displayAs = document.requests().displayAs();
    const storage::BudgetStorage::Data data = document.present();
    std::vector<Row> rows;
    for (const JudgedReconciliation &one : document.reconciliations()) {
        const auto survey = data.surveys.lookUpSurvey(one.account);
        const bool isLast = survey && survey->reconciled().reconciledOn() == one.day;
        Cell state{QObject::tr("unchanged since")};
        if (!one.holds())
            state = {QObject::tr("changed since"), {}, false, Colour::Warning};
        rows.push_back({QString::number(rows.size()),
                        {{index.plainName(one.account.account.number)},
                         {one.account.bank.institution()},
                         dayCell(one.day),
                         amountCell(one.balance, displayAs),
                         isLast ? amountCell(survey->nonDistributed(), displayAs) : Cell{},
                         {QLocale().toString(qulonglong{one.transactions}), {}, true},
                         state}});
    }
    std::ranges::reverse(rows);
    return rows;
}

} // namespace kiv::desktop
