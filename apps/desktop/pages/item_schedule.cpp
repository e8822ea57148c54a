// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/item_schedule.h"

#include "widgets/money_edit.h"
#include "widgets/table.h"

#include "workbench/requests/requests.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::Payoff;

namespace {

/// Further ones scroll.
constexpr int scheduleRowsMax = 5;

} // namespace

ItemSchedule::ItemSchedule(QWidget *parent)
    : QWidget(parent),
      m_more(new MoneyEdit(this)),
      m_spared(new QLabel(this)),
      m_message(new FieldMessage(this)),
      m_model(new TableModel({QObject::tr("Date"), QObject::tr("Amount"), QObject::tr("Interest"),
                              QObject::tr("Left")},
                             this)),
      m_table(new Table(*m_model, tr("Payments to come"), this))
{
    auto *label = new QLabel(tr("If so much more were paid a month:"), this);
    label->setBuddy(m_more);
    m_more->setObjectName(QStringLiteral("more"));
    m_spared->setObjectName(QStringLiteral("spared"));
    m_spared->setTextFormat(Qt::PlainText);
    m_spared->setWordWrap(true);
    m_table->setObjectName(QStringLiteral("schedule"));
    m_table->fit(scheduleRowsMax);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    auto *line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_more);
    line->addWidget(m_spared, 1);
    layout->addLayout(line);
    layout->addWidget(m_message);
    layout->addWidget(m_table);
    connect(m_more, &QLineEdit::returnPressed, this, &ItemSchedule::ask);
}

void ItemSchedule::showItem(workbench::Document &document,
                            const budgeting::BudgetItemIdentifier &item)
{
    // What was refused would take the focus again.
    if (m_item != item || !m_message->sentence().isEmpty()) {
        m_more->clear();
        m_message->withdraw();
    }
    m_item = item;
    m_data = document.present();
    m_displayAs = document.requests().displayAs();
    const auto *found = budgeting::findBudgetItem(item, m_data->budget);
    try {
        m_present = found ? workbench::payoffOf(*m_data, *found, foundation::today()) : Payoff();
    } catch (const foundation::Error &) {
        m_present = {}; // of an item that has no schedule
    }
    m_more->setCurrency(m_present.left.code());
    setVisible(m_present.left.isPositive());
    if (m_present.left.isPositive())
        ask();
}

void ItemSchedule::ask()
{
    m_spared->clear();
    if (m_more->text().trimmed().isEmpty()) {
        m_message->withdraw();
        showPayments(m_present);
        return;
    }
    try {
        const numira::Money more = m_more->amount().in(m_present.left.code());
        const Payoff faster = workbench::payoffOf(
            *m_data, *budgeting::findBudgetItem(m_item, m_data->budget), foundation::today(), more);
        m_spared->setText(workbench::sparedText(m_present, faster, more, m_displayAs));
        m_message->withdraw();
        showPayments(faster);
    } catch (const foundation::Error &error) {
        m_message->complain(m_more, workbench::userText(error));
        showPayments(m_present);
    }
}

void ItemSchedule::showPayments(const Payoff &payoff)
{
    std::vector<Row> rows;
    for (const workbench::ScheduledPayment &one : payoff.payments)
        rows.push_back(
            {QString::number(rows.size()),
             {dayCell(one.day), amountCell(one.amount, m_displayAs),
              amountCell(one.interest, m_displayAs), amountCell(one.left, m_displayAs)}});
    m_model->setRows(std::move(rows));
    m_table->setVisible(!m_model->rows().empty());
    m_table->settle();
}

void ItemSchedule::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || m_more->text().isEmpty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_more->clear();
    ask();
}

} // namespace kiv::desktop
