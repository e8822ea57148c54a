// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/due_rows.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/account_groups.h"
#include "workbench/requests/due_items.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using budgeting::BudgetItemTypes;
using navigation::Navigator;
using workbench::DueLine;

namespace {

Row rowOf(const DueLine &line, const ShownDue &due)
{
    const budgeting::BudgetItemDueIdentifier &id = line.due.id;
    // As the account sees it: what is paid leaves it.
    const bool comesIn = id.type == BudgetItemTypes::Wage;
    const numira::Money amount = comesIn ? line.due.amount : -line.due.amount;
    Cell when{workbench::whenText(id.dueOn, due.today)};
    if (id.dueOn < due.today)
        when.colour = Colour::Warning;
    const auto payer = line.account ? due.payers.find(*line.account) : due.payers.end();
    return {keyOf(id.item()),
            {{id.source.name()},
             dayCell(id.dueOn),
             when,
             amountCell(amount, due.displayAs),
             {payer == due.payers.end() ? QObject::tr("none") : payer->second},
             line.after ? amountCell(*line.after, due.displayAs)
                        : Cell{QStringLiteral("–"), QObject::tr("not known"), true},
             line.next ? dayCell(*line.next) : Cell{QObject::tr("no longer")}}};
}

} // namespace

ShownDue shownDue(workbench::Document &document, const workbench::SaidAccounts &said)
{
    workbench::Requests &requests = document.requests();
    const auto answer = requests.ask(&Navigator::showProcessBudgetItems,
                                     &Navigator::onPrepareShowProcessBudgetItems);
    const storage::BudgetStorage::Data data = document.present();
    ShownDue due{workbench::dueList(
                     data, std::get<std::vector<budgeting::BudgetItemAmountDue>>(answer), said),
                 std::get<std::chrono::days>(answer),
                 foundation::today(),
                 {},
                 std::get<navigation::CurrencyDisplayOptions>(answer)};
    for (const workbench::GroupedAccount &one : workbench::groupedAccounts(data)) {
        const bool isOwn = one.group == workbench::AccountGroup::Money ||
                           one.group == workbench::AccountGroup::Owed ||
                           one.group == workbench::AccountGroup::SetAside;
        if (isOwn && !one.account.isClosed())
            due.payers.emplace(one.account.code().number(), one.name);
    }
    return due;
}

QStringList dueColumns()
{
    return {QObject::tr("Item"),    QObject::tr("Due"),     QObject::tr("When"),
            QObject::tr("Amount"),  QObject::tr("Account"), QObject::tr("Its balance then"),
            QObject::tr("Next due")};
}

std::vector<Row> dueRows(const ShownDue &due)
{
    std::vector<Row> rows;
    for (const DueLine &line : due.list.lines)
        rows.push_back(rowOf(line, due));
    return rows;
}

QString keyOf(const budgeting::BudgetItemIdentifier &item)
{
    return workbench::kindWord(item.type) + u':' + item.source.name();
}

QString lackingRatesText(const std::set<numira::Currency> &currencies)
{
    if (currencies.empty())
        return {};
    QStringList codes;
    for (const numira::Currency &currency : currencies)
        codes += foundation::toQString(currency);
    return QObject::tr("There is no exchange rate for %1; balances leave it out.")
        .arg(QLocale().createSeparatedList(codes));
}

QString dueSummary(const ShownDue &due)
{
    const QString until = foundation::presentationText(due.today.addDays(due.within.count()));
    if (due.list.lines.empty())
        return QObject::tr("Nothing is due until %1.").arg(until);
    QStringList sentences =
        workbench::dueTotalTexts(due.list, due.today.addDays(due.within.count()), due.displayAs);
    sentences += lackingRatesText(due.list.lackingRates);
    return sentences.join(u' ').trimmed();
}

} // namespace kiv::desktop
