// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/survey_rows.h"

#include "models/account_rows.h"
#include "models/due_rows.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/entry_forms.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using accounting::AccountNumber;
using accounting::Transaction;
using workbench::JudgedReconciliation;
using workbench::SurveyForm;

namespace {

const QString itemKey = QStringLiteral("item ");
const QString accountKey = QStringLiteral("account ");

/// The account at the other side of the surveyed ones.
AccountNumber otherOf(const Transaction &transaction, const SurveyForm &form)
{
    const AccountNumber debit = transaction.debiting().number();
    const AccountNumber credit = transaction.crediting().number();
    if (credit == form.account.account.number)
        return debit;
    return form.accounts.contains(debit) ? credit : debit;
}

Row unbookedRow(const QString &key, const QString &name, const numira::Money &amount,
                const SurveyForm &form, navigation::CurrencyDisplayOptions displayAs)
{
    return {key,
            {dayCell(form.date),
             {},
             {name},
             amountCell(amount, displayAs),
             {QObject::tr("not booked yet")}}};
}

} // namespace

QStringList tickColumns()
{
    return {QObject::tr("Day"), QObject::tr("Text"), QObject::tr("Item or account"),
            QObject::tr("Change"), QObject::tr("On the statement")};
}

std::vector<Row> tickRows(const SurveyForm &form, workbench::Requests &requests)
{
    const workbench::AccountIndex index = requests.accounts();
    const auto displayAs = requests.displayAs();
    std::vector<Row> rows;
    for (const Transaction &transaction : form.transactions()) {
        const accounting::TransactionNumber number = transaction.number().value();
        // What stays in the account is not on the statement, but can be ticked.
        Cell ticked{form.isWithin(transaction) ? QObject::tr("stays in the account") : QString(),
                    QObject::tr("not ticked")};
        if (form.reconciled.contains(number))
            ticked = {QObject::tr("ticked"), {}, false, Colour::Good};
        rows.push_back({accounting::presentationText(number),
                        {dayCell(transaction.occurredOn()),
                         {workbench::payeeAndReason(transaction)},
                         {index.plainName(otherOf(transaction, form))},
                         amountCell(form.changeBy(transaction), displayAs),
                         ticked}});
    }
    for (const auto &[id, amount] : form.items)
        rows.push_back(unbookedRow(itemKey + keyOf(id), id.source.name(), amount, form, displayAs));
    for (const auto &[number, amount] : form.extras)
        rows.push_back(unbookedRow(accountKey + keyOf(number), index.plainName(number), amount,
                                   form, displayAs));
    return rows;
}

TickTarget tickTarget(const SurveyForm &form, const QString &key)
{
    for (const auto &[id, amount] : form.items) {
        if (key == itemKey + keyOf(id))
            return {{}, id, {}};
    }
    for (const auto &[number, amount] : form.extras) {
        if (key == accountKey + keyOf(number))
            return {{}, {}, number};
    }
    if (const uint number = key.toUInt())
        return {accounting::TransactionNumber(static_cast<std::uint16_t>(number)), {}, {}};
    return {};
}

QString tickSummary(const SurveyForm &form, navigation::CurrencyDisplayOptions displayAs)
{
    const auto count = static_cast<int>(form.reconciled.size());
    const QString ticked = QObject::tr("%n ticked", nullptr, count);
    try {
        const numira::Money missing = form.missing();
        if (missing.isZero())
            return QObject::tr("%1, nothing missing").arg(ticked);
        return QObject::tr("%1, %2 missing").arg(ticked, workbench::amountText(missing, displayAs));
    } catch (const foundation::Error &error) {
        return QObject::tr("%1. %2").arg(ticked, workbench::userText(error));
    }
}

QStringList shareColumns()
{
    return {QObject::tr("Item"), QObject::tr("Kind"), QObject::tr("Set aside"),
            QObject::tr("Expected"), QObject::tr("Next")};
}

std::vector<Row> shareRows(const SurveyForm &form, navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const auto &[id, share] : form.distribution)
        rows.push_back({keyOf(id),
                        {{id.source.name()},
                         {workbench::kindText(id.type)},
                         amountCell(share.distributed(), displayAs),
                         amountCell(share.expected().rounded(), displayAs),
                         dayCell(share.nextOccurOn())}});
    return rows;
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
        rows.push_back(
            {QString::number(rows.size()),
             {{index.plainName(one.account.account.number)},
              {one.account.bank.institution()},
              dayCell(one.day),
              amountCell(one.balance, displayAs),
              isLast ? amountCell(survey->nonDistributed(), displayAs) : Cell{{}, {}, true},
              {QLocale().toString(qulonglong{one.transactions}), {}, true},
              state}});
    }
    std::ranges::reverse(rows);
    return rows;
}

} // namespace kiv::desktop
