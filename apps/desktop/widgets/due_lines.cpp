// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/due_lines.h"

#include "widgets/allow.h"
#include "widgets/flow_layout.h"

#include <QtCore/QEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {
namespace {

constexpr int textColumns = 4;
constexpr std::size_t buttonsEach = 3;

} // namespace

DueLines::DueLines(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins({});
    m_grid->setHorizontalSpacing(2 * m_grid->horizontalSpacing());
    m_grid->setColumnStretch(2, 1);
}

void DueLines::setLines(const std::vector<Line> &lines)
{
    if (lines == m_lines)
        return;
    const auto focused = std::ranges::find_if(m_buttons, &QWidget::hasFocus);
    const auto place = static_cast<std::size_t>(focused - m_buttons.begin());
    const bool hadFocus = focused != m_buttons.end();
    while (QLayoutItem *item = m_grid->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater(); // one of its buttons may have asked for this
        delete item;
    }
    m_buttons.clear();
    m_lines = lines;
    for (std::size_t row = 0; row < lines.size(); ++row)
        addLine(static_cast<int>(row), lines[row]);
    align();
    if (hadFocus && !m_buttons.empty())
        m_buttons[std::min(place, m_buttons.size() - buttonsEach + place % buttonsEach)]->setFocus(
            Qt::OtherFocusReason);
}

void DueLines::addLine(int row, const Line &line)
{
    int column = 0;
    for (const QString &text : {line.day, line.when, line.item, line.amount}) {
        auto *label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        if (column == textColumns - 1)
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->addWidget(label, row, column++);
        label->show();
    }
    auto *buttons = new QWidget(this);
    auto *flow = new FlowLayout(buttons);
    QPushButton *pay = addButton(*flow, line.pay, line);
    QPushButton *skip = addButton(*flow, tr("Skip"), line);
    QPushButton *other = addButton(*flow, tr("Other amount …"), line);
    m_grid->addWidget(buttons, row, column);
    buttons->show();
    connect(pay, &QPushButton::clicked, this,
            [this, key = line.key, pay] { emit payWanted(key, pay); });
    connect(skip, &QPushButton::clicked, this,
            [this, key = line.key, skip] { emit skipWanted(key, skip); });
    connect(other, &QPushButton::clicked, this, [this, key = line.key] { emit otherWanted(key); });
}

QPushButton *DueLines::addButton(QLayout &buttons, const QString &text, const Line &line)
{
    auto *button = new QPushButton(text, buttons.parentWidget());
    // Each tells its line to those who do not see it.
    button->setAccessibleName(tr("%1: %2, %3, %4").arg(text, line.item, line.amount, line.when));
    buttons.addWidget(button);
    m_buttons.push_back(button);
    return button;
}

void DueLines::align()
{
    for (std::size_t column = 0; column < buttonsEach; ++column) {
        int widest = 0;
        for (std::size_t place = column; place < m_buttons.size(); place += buttonsEach) {
            m_buttons[place]->setMinimumWidth(0);
            widest = std::max(widest, m_buttons[place]->sizeHint().width());
        }
        for (std::size_t place = column; place < m_buttons.size(); place += buttonsEach)
            m_buttons[place]->setMinimumWidth(widest);
    }
}

void DueLines::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        align();
}

void DueLines::allowChanges(const std::optional<QString> &whyNot)
{
    for (std::size_t place = 0; place < m_buttons.size(); ++place) {
        if (place % buttonsEach != buttonsEach - 1)
            allow(*m_buttons[place], whyNot);
    }
}

} // namespace kiv::desktop
