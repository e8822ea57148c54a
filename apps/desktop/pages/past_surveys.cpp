// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/past_surveys.h"

#include "models/survey_rows.h"
#include "widgets/table.h"

#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

PastSurveys::PastSurveys(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_rows(new TableModel(reconciliationColumns(), this)),
      m_table(new Table(*m_rows, tr("Past reconciliations"), this)),
      m_state(new QLabel(this))
{
    m_table->setObjectName(QStringLiteral("past"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_table, 1);
    layout->addWidget(m_state);
    layout->addStretch();
    connect(m_table, &Table::chosenChanged, this, &PastSurveys::follow);
}

void PastSurveys::refresh()
{
    m_rows->setRows(reconciliationRows(m_desk.document()));
    m_table->setVisible(!m_rows->rows().empty());
    m_table->settle();
    follow();
}

void PastSurveys::choose(const QString &key)
{
    m_table->choose(m_rows->place(key) >= 0 ? key : m_rows->key(m_rows->index(0, 0)));
}

QWidget *PastSurveys::firstFocus() noexcept
{
    return m_rows->rows().empty() ? nullptr : m_table;
}

void PastSurveys::follow()
{
    const std::vector<workbench::JudgedReconciliation> all = m_desk.document().reconciliations();
    const QString key = m_table->chosen().value(0);
    if (all.empty())
        m_state->setText(tr("No account was reconciled yet."));
    else if (const auto place = key.toULongLong(); !key.isEmpty() && place < all.size())
        m_state->setText(all[place].fault ? m_desk.document().sentence(all[place])
                                          : tr("Its transactions are as they were then."));
}

} // namespace kiv::desktop
