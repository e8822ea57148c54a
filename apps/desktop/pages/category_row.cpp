// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/category_row.h"

#include "workbench/requests/entry_forms.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

CategoryRow::CategoryRow(QWidget *parent)
    : QFrame(parent),
      m_label(new QLabel(this)),
      m_box(new AccountBox(this)),
      m_submit(new QPushButton(tr("Change"), this)),
      m_message(new FieldMessage(this))
{
    setObjectName(QStringLiteral("category"));
    setFrameShape(QFrame::StyledPanel);
    m_label->setBuddy(m_box);
    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    row->addWidget(m_label);
    row->addWidget(m_box, 1);
    row->addWidget(m_submit);
    layout->addLayout(row);
    layout->addWidget(m_message);
    connect(m_submit, &QPushButton::clicked, this, &CategoryRow::submit);
    hide();
}

void CategoryRow::ask(std::size_t count, std::shared_ptr<const workbench::AccountIndex> accounts)
{
    using enum workbench::EntryForm;
    std::vector<accounting::AccountNumber> offered = workbench::otherAccounts(Spent, *accounts);
    const auto earned = workbench::otherAccounts(Earned, *accounts);
    offered.insert(offered.end(), earned.begin(), earned.end());
    m_box->offer(std::move(accounts), offered);
    m_box->setAccount(std::nullopt);
    m_label->setText(tr("Put %n transaction(s) under", nullptr, static_cast<int>(count)));
    m_message->withdraw();
    show();
    m_box->setFocus(Qt::OtherFocusReason);
}

void CategoryRow::submit()
{
    m_message->attempt(
        m_box, [this] { emit chosen(m_box->account(tr("Choose an item or a category."))); });
}

void CategoryRow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        submit();
        break;
    case Qt::Key_Escape:
        emit leaving();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

} // namespace kiv::desktop
