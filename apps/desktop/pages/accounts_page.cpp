// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/accounts_page.h"

#include "models/account_rows.h"
#include "widgets/table.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

AccountsPage::AccountsPage(Desk &desk)
    : Page(desk, QStringLiteral("accounts"), tr("Accounts")),
      m_model(new TableModel(accountColumns(desk.showsTerms()), this)),
      m_table(new Table(*m_model, title(), this)),
      m_open(new QPushButton(tr("&Show transactions"), this)),
      m_none(new QLabel(tr("There are no accounts yet. They come with banks and with the items "
                           "of the budget."),
                        this))
{
    auto *layout = new QVBoxLayout(this);
    m_none->setWordWrap(true);
    layout->addWidget(m_none);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_open, 0, Qt::AlignLeft);
    connect(m_table, &Table::opened, this, &AccountsPage::openRegister);
    connect(m_open, &QPushButton::clicked, this,
            [this] { openRegister(m_table->chosen().value(0)); });
}

void AccountsPage::openRegister(const QString &number)
{
    if (!number.isEmpty())
        desk().goTo({QStringLiteral("register"), number});
}

void AccountsPage::goTo(const QString &detail)
{
    m_table->choose(detail);
}

QString AccountsPage::detail() const
{
    return m_table->chosen().value(0);
}

QWidget *AccountsPage::firstFocus()
{
    return m_table;
}

void AccountsPage::refresh()
{
    m_model->setRows(accountRows(desk().document(), desk().showsTerms()));
    const bool isEmpty = m_model->rows().empty();
    m_none->setVisible(isEmpty);
    m_table->setVisible(!isEmpty);
    m_open->setVisible(!isEmpty);
    m_table->settle();
}

} // namespace kiv::desktop
