// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/envelope_rows.h"

#include "models/account_rows.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/surveys/set_aside_text.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

namespace kiv::desktop {

using foundation::presentationText;
using workbench::SetAside;
using workbench::SetAsideHere;
using workbench::SetAsideLine;

namespace {

QString nameOf(const SetAside &account, const ShownEnvelopes &shown)
{
    return workbench::plainNameOf(shown.ledger.ledger(account.account.account.number));
}

QString itemWords(const budgeting::BudgetItemIdentifier &item)
{
    return workbench::kindWord(item.type) + u'/' + item.source.name();
}

Cell unknownCell()
{
    return {QStringLiteral("–"), QObject::tr("not known"), true};
}

/// "Checking: $8,482.50 = $500.00 set aside + $7,982.50 free"
QString accountHeading(const SetAside &account, const ShownEnvelopes &shown)
{
    const auto text = [&shown](const numira::Money &money) {
        return workbench::amountText(money, shown.displayAs);
    };
    const QString name = nameOf(account, shown);
    if (!account.reconciledOn || account.paid.isZero())
        return QObject::tr("%1: %2 = %3 set aside + %4 free")
            .arg(name, text(account.balance), text(account.total), text(account.free()));
    return QObject::tr("%1: %2 = %3 set aside + %4 free; paid since %5: %6")
        .arg(name, text(account.balance), text(account.total), text(account.free()),
             presentationText(*account.reconciledOn), text(account.paid));
}

Row lineRow(const SetAside &account, const SetAsideLine &line, const ShownEnvelopes &shown)
{
    const auto cell = [&](const numira::Money &money) {
        return amountCell(money, shown.displayAs);
    };
    Row row{keyOf(account.account.account.number) + u'/' + itemWords(line.item),
            {{line.item.source.name()}}};
    if (const auto &parts = line.parts)
        for (const numira::Money &part :
             {parts->before, parts->added, -parts->paid, parts->adjusted, parts->now()})
            row.cells.push_back(cell(part));
    else
        row.cells.insert(row.cells.end(), 5, unknownCell());
    row.cells.push_back(cell(line.expected.rounded()));
    row.cells.push_back(dayCell(line.next));
    return row;
}

void addParts(std::vector<Row> &rows, const SetAsideHere &here, const ShownEnvelopes &shown)
{
    const SetAside &account = *here.account;
    const SetAsideLine &line = *here.line;
    const QString key = keyOf(account.account.account.number);
    rows.push_back({key, {{QObject::tr("Set aside at %1").arg(nameOf(account, shown))}}, true});
    const auto add = [&](const QString &id, const QString &name, const Cell &amount,
                         const QString &why) {
        rows.push_back({key + u' ' + id, {{name}, amount, {why}}});
    };
    const auto cell = [&](const numira::Money &money) {
        return amountCell(money, shown.displayAs);
    };
    const QString lacking =
        line.lackingRate ? workbench::lackingRateText(*line.lackingRate) : QString();
    if (!line.parts) {
        add(QStringLiteral("now"), QObject::tr("Now"), unknownCell(), lacking);
        return;
    }
    const workbench::PartReasons why =
        reasonsOf(line, account, shown.displayAs, daysIn(shown.ledger));
    add(QStringLiteral("before"), QObject::tr("Before"), cell(line.parts->before), why.before);
    add(QStringLiteral("added"), QObject::tr("Added"), cell(line.parts->added), why.added);
    add(QStringLiteral("paid"), QObject::tr("Paid"), cell(-line.parts->paid), why.paid);
    if (!line.parts->adjusted.isZero())
        add(QStringLiteral("adjusted"), QObject::tr("Adjusted"), cell(line.parts->adjusted),
            why.adjusted);
    add(QStringLiteral("now"), QObject::tr("Now"), cell(line.parts->now()), lacking);
}

} // namespace

workbench::PostingName daysIn(const accounting::GeneralLedger &ledger)
{
    return [&ledger](accounting::TransactionNumber number) {
        const auto posted = ledger.lookUpTransaction(number);
        return posted ? presentationText(posted->occurredOn()) : QString();
    };
}

ShownEnvelopes shownEnvelopes(workbench::Document &document)
{
    const storage::BudgetStorage::Data data = document.present();
    return {workbench::envelopes(data, document.keptReconciliations(), foundation::today()),
            data.generalLedger, document.requests().displayAs()};
}

QStringList freeColumns()
{
    return {QObject::tr("Account"), QObject::tr("Bank"), QObject::tr("Balance"),
            QObject::tr("Set aside"), QObject::tr("Free")};
}

std::vector<Row> freeRows(const ShownEnvelopes &shown)
{
    const auto cell = [&](const numira::Money &money) {
        return amountCell(money, shown.displayAs);
    };
    std::vector<Row> rows;
    for (const SetAside &one : shown.all.accounts)
        rows.push_back({keyOf(one.account.account.number),
                        {{nameOf(one, shown)},
                         {one.account.bank.institution()},
                         cell(one.balance),
                         cell(one.total),
                         cell(one.free())}});
    return rows;
}

QStringList setAsideColumns()
{
    return {QObject::tr("Item"),     QObject::tr("Before"),   QObject::tr("Added"),
            QObject::tr("Paid"),     QObject::tr("Adjusted"), QObject::tr("Now"),
            QObject::tr("Expected"), QObject::tr("Next")};
}

std::vector<Row> setAsideRows(const ShownEnvelopes &shown)
{
    std::vector<Row> rows;
    for (const SetAside &one : shown.all.accounts) {
        rows.push_back({keyOf(one.account.account.number), {{accountHeading(one, shown)}}, true});
        for (const SetAsideLine &line : one.lines)
            rows.push_back(lineRow(one, line, shown));
    }
    if (shown.all.accounts.empty() || shown.all.dueYet.empty())
        return rows;
    const QString due = QStringLiteral("due");
    rows.push_back({due,
                    {{QObject::tr("Still due until %1, of what is paid monthly")
                          .arg(presentationText(shown.all.dueUntil))}},
                    true});
    for (const budgeting::BudgetItemAmountDue &one : shown.all.dueYet)
        rows.push_back({due + u'/' + itemWords(one.id.item()),
                        {{one.id.source.name()},
                         {},
                         {},
                         {},
                         {},
                         {},
                         amountCell(one.amount, shown.displayAs),
                         dayCell(one.id.dueOn)}});
    return rows;
}

QString itemPart(const QString &key)
{
    return key.section(u'/', 1);
}

QStringList setAsideSentences(const ShownEnvelopes &shown)
{
    QStringList sentences;
    if (const QString free = freeText(shown.all, shown.displayAs); !free.isEmpty())
        sentences += free;
    for (const SetAside &one : shown.all.accounts)
        sentences += noticesOf(one, shown.ledger, shown.displayAs);
    return sentences + sharedNoticesOf(shown.all, shown.ledger, shown.displayAs);
}

QString nowText(const ShownEnvelopes &shown, const budgeting::BudgetItemIdentifier &item)
{
    const std::vector<SetAsideHere> lines = linesOf(shown.all, item);
    QStringList texts;
    for (const auto &[account, line] : lines) {
        const QString now = line->parts ? workbench::amountText(line->parts->now(), shown.displayAs)
                                        : QObject::tr("not known");
        texts +=
            lines.size() == 1 ? now : QObject::tr("%1 at %2").arg(now, nameOf(*account, shown));
    }
    return texts.join(QStringLiteral("; "));
}

QStringList partColumns()
{
    return {QObject::tr("Part"), QObject::tr("Amount"), QObject::tr("Why")};
}

std::vector<Row> partRows(const ShownEnvelopes &shown, const budgeting::BudgetItemIdentifier &item)
{
    std::vector<Row> rows;
    for (const SetAsideHere &here : linesOf(shown.all, item))
        addParts(rows, here, shown);
    return rows;
}

} // namespace kiv::desktop
