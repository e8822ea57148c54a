// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/item_explained.h"

#include "pages/item_schedule.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/outlook/item_outlook.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

/// The heading and the parts of one account; further ones scroll.
constexpr int rowsMax = 6;

} // namespace

ItemExplained::ItemExplained(QWidget *parent)
    : QWidget(parent),
      m_outlook(new QLabel(this)),
      m_end(new QPushButton(tr("End &it"), this)),
      m_model(new TableModel(partColumns(), this)),
      m_table(new Table(*m_model, tr("How it comes about"), this)),
      m_schedule(new ItemSchedule(this))
{
    m_outlook->setTextFormat(Qt::PlainText);
    m_outlook->setWordWrap(true);
    m_end->setObjectName(QStringLiteral("end"));
    m_table->setObjectName(QStringLiteral("parts"));
    m_table->fit(rowsMax);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *line = new QHBoxLayout;
    line->addWidget(m_outlook, 1);
    line->addWidget(m_end);
    layout->addLayout(line);
    layout->addWidget(m_table);
    layout->addWidget(m_schedule);
    connect(m_end, &QPushButton::clicked, this, &ItemExplained::endWanted);
}

void ItemExplained::explain(workbench::Document &document, const ShownEnvelopes &envelopes,
                            const budgeting::BudgetItemIdentifier &item)
{
    const storage::BudgetStorage::Data present = document.present();
    const auto *found = budgeting::findBudgetItem(item, present.budget);
    const auto outlook = found ? workbench::outlookOf(present, *found, envelopes.displayAs)
                               : std::optional<workbench::ItemOutlook>();
    m_outlook->setText(outlook ? outlook->sentence : QString());
    m_outlook->setVisible(outlook.has_value());
    m_end->setVisible(outlook && outlook->shouldEnd());
    std::vector<Row> rows = found ? partRows(envelopes, item) : std::vector<Row>();
    m_table->setVisible(!rows.empty());
    m_schedule->showItem(document, item);
    setVisible(outlook || !rows.empty());
    m_model->setRows(std::move(rows));
    m_table->settle();
    layout()->activate(); // so that the page gives it room at once
}

void ItemExplained::allowChanges(const std::optional<QString> &whyNot)
{
    allow(*m_end, whyNot);
}

} // namespace kiv::desktop
