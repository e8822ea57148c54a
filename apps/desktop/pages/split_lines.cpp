// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/split_lines.h"

#include "workbench/entry/money_text.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {

using workbench::SplitLine;

SplitLines::SplitLines(Desk &desk, QWidget *parent)
    : QWidget(parent), m_desk(desk), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("split"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *back = new QPushButton(tr("Take the last line &back"), this);
    back->setObjectName(QStringLiteral("takeBack"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text, 1);
    layout->addWidget(back);
    connect(back, &QPushButton::clicked, this, &SplitLines::takeBack);
    hide();
}

void SplitLines::add(const SplitLine &line, const workbench::AccountIndex &accounts,
                     const numira::Currency &currency)
{
    m_currency = currency;
    (void)line.amount.in(currency);
    m_lines.push_back(line);
    m_names += accounts.plainName(line.other);
    show();
}

void SplitLines::clear()
{
    m_lines.clear();
    m_names.clear();
    hide();
}

void SplitLines::takeBack()
{
    const SplitLine line = m_lines.back();
    m_lines.pop_back();
    m_names.removeLast();
    show();
    emit takenBack(line);
}

void SplitLines::show()
{
    const auto displayAs = m_desk.document().displayAs();
    QStringList texts;
    for (std::size_t place = 0; place < m_lines.size(); ++place)
        texts +=
            tr("%1 %2").arg(m_names[static_cast<qsizetype>(place)],
                            workbench::amountText(m_lines[place].amount.in(m_currency), displayAs));
    m_text->setText(tr("Together with this line: %1").arg(texts.join(QStringLiteral(", "))));
    setVisible(!m_lines.empty());
    if (!m_lines.empty())
        m_desk.say(m_text->text());
}

} // namespace kiv::desktop
