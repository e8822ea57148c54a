// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/explanation_panel.h"

#include "models/table_model.h"
#include "widgets/table.h"

#include "foundation/clock.h"
#include "numira/error.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::ExplainedLine;
using workbench::Explanation;

namespace {

/// Further lines scroll.
constexpr int explainedLinesMax = 8;

} // namespace

ExplanationPanel::ExplanationPanel(Desk &desk, QWidget *parent)
    : QFrame(parent),
      m_desk(desk),
      m_title(new QLabel(this)),
      m_close(new QPushButton(tr("Close"), this)),
      m_model(new TableModel({tr("What"), tr("Date"), tr("Amount")}, this)),
      m_table(new Table(*m_model, tr("Explanation"), this))
{
    setObjectName(QStringLiteral("explanation"));
    setFrameShape(QFrame::StyledPanel);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_table->fit(explainedLinesMax);
    auto *layout = new QVBoxLayout(this);
    auto *line = new QHBoxLayout;
    line->addWidget(m_title, 1);
    line->addWidget(m_close, 0, Qt::AlignTop);
    layout->addLayout(line);
    layout->addWidget(m_table);
    connect(m_close, &QPushButton::clicked, this, &ExplanationPanel::close);
    connect(m_table, &Table::opened, this, [this](const QString &key) {
        if (const auto entry = m_entries.find(key); entry != m_entries.end())
            m_desk.goTo({QStringLiteral("register"),
                         QStringLiteral("all/%1").arg(entry->second.integer())});
    });
    hide();
}

void ExplanationPanel::open(const Explain &explain)
{
    m_focusBefore = QApplication::focusWidget();
    this->explain(explain);
    show();
    if (m_table->isHidden())
        m_close->setFocus(Qt::OtherFocusReason);
    else
        m_table->setFocus(Qt::OtherFocusReason);
    m_desk.say(m_title->text());
}

void ExplanationPanel::explain(const Explain &explain)
{
    std::vector<Row> rows;
    m_entries.clear();
    const auto refused = refusalOf([&] {
        rows = rowsOf(explain(workbench::Explainer(m_desk.document(), foundation::today())));
    });
    if (refused)
        m_title->setText(*refused);
    m_table->setVisible(!rows.empty());
    m_model->setRows(std::move(rows));
    m_table->settle();
}

std::vector<Row> ExplanationPanel::rowsOf(const std::vector<Explanation> &all)
{
    const auto displayAs = m_desk.requests().displayAs();
    m_title->setText(all.size() == 1 ? all.front().heading(displayAs) : tr("Explanation"));
    std::vector<Row> rows;
    for (const Explanation &one : all) {
        if (all.size() > 1)
            rows.push_back({QString::number(rows.size()), {{one.heading(displayAs)}}, true});
        for (const ExplainedLine &line : one.lines) {
            const QString key = QString::number(rows.size());
            if (line.entry)
                m_entries.emplace(key, *line.entry);
            rows.push_back({key,
                            {{line.text},
                             dayCell(line.day),
                             line.amount ? amountCell(line.amount->rounded(), displayAs)
                                         : Cell{line.valueText(displayAs), {}, true}}});
        }
    }
    return rows;
}

void ExplanationPanel::close()
{
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
    hide();
}

void ExplanationPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QFrame::keyPressEvent(event);
}

} // namespace kiv::desktop
