// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/item_rows.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/paying_account.h"

#include <array>

namespace kiv::desktop {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using navigation::CurrencyDisplayOptions;
using storage::BudgetStorage;

namespace {

struct KindTexts {
    const char *title;
    const char *none;
};

/// In the order of the kinds.
constexpr std::array<KindTexts, 5> texts{{
    {QT_TRANSLATE_NOOP("QObject", "Bills"),
     QT_TRANSLATE_NOOP("QObject", "There are no bills; kiv bill add makes one.")},
    {QT_TRANSLATE_NOOP("QObject", "Debts"),
     QT_TRANSLATE_NOOP("QObject", "There are no debts; kiv debt add makes one.")},
    {QT_TRANSLATE_NOOP("QObject", "Goals"),
     QT_TRANSLATE_NOOP("QObject", "There are no goals; kiv goal add makes one.")},
    {QT_TRANSLATE_NOOP("QObject", "Free spending"),
     QT_TRANSLATE_NOOP("QObject", "There is no free spending; kiv nontrack add makes it.")},
    {QT_TRANSLATE_NOOP("QObject", "Wages"),
     QT_TRANSLATE_NOOP("QObject", "There are no wages; kiv wage add makes one.")},
}};

const KindTexts &textsOf(BudgetItemTypes kind)
{
    return texts.at(static_cast<std::size_t>(kind) - 1);
}

/// "$200.00 of $1,200.00"
QString partText(const numira::Money &part, const numira::Money &whole,
                 CurrencyDisplayOptions displayAs)
{
    return QObject::tr("%1 of %2")
        .arg(workbench::amountText(part, displayAs), workbench::amountText(whole, displayAs));
}

/// What was set aside for the item in the last surveys.
QString setAsideText(const BudgetStorage::Data &data, const BudgetItemIdentifier &id,
                     CurrencyDisplayOptions displayAs)
{
    QStringList parts;
    for (const auto &[account, survey] : data.surveys) {
        const auto found = survey.distribution().find(id);
        if (found != survey.distribution().end())
            parts += partText(found->second.distributed(), found->second.expected(), displayAs);
    }
    return parts.join(QStringLiteral("; "));
}

/// How far a debt or a goal has come.
QString progressText(const BudgetStorage::Data &data, const BudgetedMoney &item,
                     CurrencyDisplayOptions displayAs)
{
    const auto account = workbench::accountOf(data, workbench::identify(item));
    if (!account || !data.generalLedger.hasLedger(*account))
        return {};
    const numira::Money balance = data.generalLedger.ledger(*account).balance();
    if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
        return partText(balance, goal->final(), displayAs);
    const auto *debt = dynamic_cast<const budgeting::Debt *>(&item);
    if (!debt)
        return {};
    return QObject::tr("%1 still owed of %2")
        .arg(workbench::amountText(balance, displayAs),
             workbench::amountText(debt->borrowed(), displayAs));
}

bool hasProgress(BudgetItemTypes kind)
{
    return kind == BudgetItemTypes::Debt || kind == BudgetItemTypes::Goal;
}

Row rowOf(const BudgetedMoney &item, const BudgetStorage::Data &data,
          CurrencyDisplayOptions displayAs)
{
    const BudgetItemIdentifier id = workbench::identify(item);
    QStringList tags;
    for (const tagging::Tag &tag : data.itemTags.tags(id))
        tags += tag.name();
    const numira::Money monthly =
        budgeting::accumulateOver(budgeting::EventFrequency::Monthly, item.amount(), item.period())
            .rounded();
    Row row{id.source.name(),
            {{id.source.name()},
             amountCell(item.amount(), displayAs),
             {budgeting::presentationText(item.period())},
             dayCell(item.nextOccurOn()),
             amountCell(monthly, displayAs)}};
    if (hasProgress(id.type))
        row.cells.push_back({progressText(data, item, displayAs)});
    if (id.type != BudgetItemTypes::Wage)
        row.cells.push_back({setAsideText(data, id, displayAs)});
    row.cells.push_back({tags.join(QStringLiteral(", "))});
    return row;
}

} // namespace

OverviewSection itemSection(BudgetItemTypes kind)
{
    QStringList columns{QObject::tr("Name"), QObject::tr("Amount"), QObject::tr("Every"),
                        QObject::tr("Next"), QObject::tr("A month's share")};
    if (hasProgress(kind))
        columns += QObject::tr("Progress");
    if (kind != BudgetItemTypes::Wage)
        columns += QObject::tr("Set aside");
    columns += QObject::tr("Tags");
    const auto rows = [kind](workbench::Document &document) {
        const BudgetStorage::Data data = document.present();
        const CurrencyDisplayOptions displayAs = document.requests().displayAs();
        std::vector<Row> made;
        data.budget.forEach([&](const BudgetedMoney &item) {
            if (budgeting::toBudgetItemTypes(item) == kind)
                made.push_back(rowOf(item, data, displayAs));
        });
        return made;
    };
    const KindTexts &text = textsOf(kind);
    return {workbench::kindWord(kind), QObject::tr(text.title), QObject::tr(text.none), columns,
            rows};
}

} // namespace kiv::desktop
