// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/item_rows.h"

#include "models/due_rows.h"

#include "workbench/entry/money_text.h"
#include "workbench/entry/tags_text.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/item_figures.h"

#include <QtCore/QLocale>

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
constexpr std::array<KindTexts, 5> kindTexts{{
    {QT_TRANSLATE_NOOP("QObject", "Bills"),
     QT_TRANSLATE_NOOP("QObject", "There are no bills yet: what must be paid, such as rent.")},
    {QT_TRANSLATE_NOOP("QObject", "Debts"),
     QT_TRANSLATE_NOOP("QObject", "There are no debts yet: money that you pay back.")},
    {QT_TRANSLATE_NOOP("QObject", "Goals"),
     QT_TRANSLATE_NOOP("QObject", "There are no goals yet: what you save for.")},
    {QT_TRANSLATE_NOOP("QObject", "Free spending"),
     QT_TRANSLATE_NOOP("QObject", "There is no free spending yet: money that you spend without "
                                  "noting each purchase.")},
    {QT_TRANSLATE_NOOP("QObject", "Wages"),
     QT_TRANSLATE_NOOP("QObject", "There are no wages yet: money that comes in.")},
}};

const KindTexts &textsOf(BudgetItemTypes kind)
{
    return kindTexts.at(static_cast<std::size_t>(kind) - 1);
}

/// "$200.00 of $1,200.00"
QString partText(const numira::Money &part, const numira::Money &whole,
                 CurrencyDisplayOptions displayAs)
{
    return QObject::tr("%1 of %2")
        .arg(workbench::amountText(part, displayAs), workbench::amountText(whole, displayAs));
}

/// How far a debt or a goal has come.
QString progressText(const BudgetStorage::Data &data, const BudgetedMoney &item,
                     CurrencyDisplayOptions displayAs)
{
    const auto progress = workbench::progressOf(data, item);
    if (!progress)
        return {};
    const bool isDebt = budgeting::toBudgetItemTypes(item) == BudgetItemTypes::Debt;
    QString parts = isDebt ? QObject::tr("%1 still owed of %2")
                                 .arg(workbench::amountText(progress->part, displayAs),
                                      workbench::amountText(progress->whole, displayAs))
                           : partText(progress->part, progress->whole, displayAs);
    if (!progress->percent)
        return parts;
    if (progress->isReached())
        return isDebt ? QObject::tr("paid off") : QObject::tr("reached: %1").arg(parts);
    const QString percent = QLocale().toString(*progress->percent);
    return isDebt ? QObject::tr("%1 (%2 % paid off)").arg(parts, percent)
                  : QObject::tr("%1 (%2 %)").arg(parts, percent);
}

bool hasProgress(BudgetItemTypes kind)
{
    return kind == BudgetItemTypes::Debt || kind == BudgetItemTypes::Goal;
}

Row rowOf(const BudgetedMoney &item, const BudgetStorage::Data &data,
          const ShownEnvelopes &envelopes)
{
    const CurrencyDisplayOptions displayAs = envelopes.displayAs;
    const BudgetItemIdentifier id = workbench::identify(item);
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
        row.cells.push_back({nowText(envelopes, id), {}, true});
    row.cells.push_back({workbench::tagsText(data.itemTags.tags(id))});
    return row;
}

} // namespace

QString itemsTitle(BudgetItemTypes kind)
{
    return QObject::tr(textsOf(kind).title);
}

QString noItems(BudgetItemTypes kind)
{
    return QObject::tr(textsOf(kind).none);
}

QStringList itemColumns(BudgetItemTypes kind)
{
    QStringList columns{QObject::tr("Name"), QObject::tr("Amount"), QObject::tr("Every"),
                        QObject::tr("Next"), QObject::tr("A month's share")};
    if (hasProgress(kind))
        columns += QObject::tr("Progress");
    if (kind != BudgetItemTypes::Wage)
        columns += QObject::tr("Set aside");
    columns += QObject::tr("Tags");
    return columns;
}

std::vector<Row> itemRows(workbench::Document &document, const ShownEnvelopes &envelopes,
                          BudgetItemTypes kind)
{
    const BudgetStorage::Data data = document.present();
    std::vector<Row> rows;
    data.budget.forEach([&](const BudgetedMoney &item) {
        if (budgeting::toBudgetItemTypes(item) == kind)
            rows.push_back(rowOf(item, data, envelopes));
    });
    return rows;
}

} // namespace kiv::desktop
