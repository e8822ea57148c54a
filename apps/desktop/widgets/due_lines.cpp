// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/due_lines.h"

#include "widgets/allow.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {
namespace {

constexpr int texts = 4;
constexpr std::size_t buttonsEach = 3;

} // namespace

DueLines::DueLines(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
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
        if (column == texts - 1)
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->addWidget(label, row, column++);
        label->show();
    }
    QPushButton *pay = addButton(row, column++, line.pay, line);
    QPushButton *skip = addButton(row, column++, tr("Skip"), line);
    QPushButton *other = addButton(row, column, tr("Other amount …"), line);
    connect(pay, &QPushButton::clicked, this,
            [this, key = line.key, pay] { emit payWanted(key, pay); });
    connect(skip, &QPushButton::clicked, this,
            [this, key = line.key, skip] { emit skipWanted(key, skip); });
    connect(other, &QPushButton::clicked, this, [this, key = line.key] { emit otherWanted(key); });
}

QPushButton *DueLines::addButton(int row, int column, const QString &text, const Line &line)
{
    auto *button = new QPushButton(text, this);
    // Each tells its line to those who do not see it.
    button->setAccessibleName(tr("%1: %2, %3, %4").arg(text, line.item, line.amount, line.when));
    m_grid->addWidget(button, row, column);
    m_buttons.push_back(button);
    button->show();
    return button;
}

void DueLines::allowChanges(const std::optional<QString> &whyNot)
{
    for (std::size_t place = 0; place < m_buttons.size(); ++place) {
        if (place % buttonsEach != buttonsEach - 1)
            allow(*m_buttons[place], whyNot);
    }
}

} // namespace kiv::desktop
