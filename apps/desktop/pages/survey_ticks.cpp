// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_ticks.h"

#include "models/survey_rows.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

SurveyTicks::SurveyTicks(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_rows(new TableModel(tickColumns(), this)),
      m_table(new Table(*m_rows, tr("Transactions to tick"), this)),
      m_all(new QPushButton(tr("Tick a&ll"), this))
{
    m_table->setObjectName(QStringLiteral("ticks"));
    m_table->installEventFilter(this);
    m_all->setObjectName(QStringLiteral("tickAll"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_table, 1);
    layout->addWidget(m_all, 0, Qt::AlignLeft);
    connect(m_table, &Table::opened, this, &SurveyTicks::ticked);
    connect(m_all, &QPushButton::clicked, this, &SurveyTicks::tickAllWanted);
}

void SurveyTicks::follow(const workbench::SurveySheet *sheet)
{
    m_rows->setRows(sheet ? tickRows(sheet->form, m_desk.requests()) : std::vector<Row>());
    m_table->settle();
}

void SurveyTicks::allow(const std::optional<QString> &whyNot)
{
    desktop::allow(*m_all, whyNot);
}

QWidget &SurveyTicks::table() noexcept
{
    return *m_table;
}

bool SurveyTicks::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Space)
        return QWidget::eventFilter(watched, event);
    const QString key = m_table->chosen().value(0);
    if (key.isEmpty())
        return true;
    // First: a screen reader breaks off what it says when the focus moves, and what the tick
    // comes to is worth more than the next row.
    if (const int next = m_rows->place(key) + 1; next < m_rows->rowCount())
        m_table->choose(m_rows->key(m_rows->index(next, 0)));
    emit ticked(key);
    return true;
}

} // namespace kiv::desktop
