// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/list_page.h"

#include "models/table_model.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

/// So many buttons stand side by side in a small window with large text.
constexpr int buttonsInRow = 3;

} // namespace

ListPage::ListPage(Desk &desk, const QString &id, const QString &title, const QStringList &columns)
    : Page(desk, id, title),
      m_model(new TableModel(columns, this)),
      m_table(new Table(*m_model, title, this)),
      m_none(new QLabel(this)),
      m_message(new FieldMessage(this)),
      m_list(new QVBoxLayout),
      m_buttons(new QWidget(this)),
      m_grid(new QGridLayout(m_buttons)),
      m_side(new QWidget(this))
{
    auto *whole = new QVBoxLayout(this);
    auto *sides = new QHBoxLayout;
    whole->addLayout(sides, 1);
    sides->addLayout(m_list, 3);
    sides->addWidget(m_side, 2);
    (new QVBoxLayout(m_side))->setContentsMargins({});
    m_side->hide();
    m_none->setTextFormat(Qt::PlainText);
    m_none->setWordWrap(true);
    m_list->addWidget(m_none);
    m_list->addWidget(m_table, 1);
    m_list->addWidget(m_message);
    m_list->addWidget(m_buttons);
    m_list->addStretch();
    m_grid->setContentsMargins({});
    m_grid->setColumnStretch(buttonsInRow, 1);
    connect(m_table, &Table::chosenChanged, this, [this] {
        follow();
        emit figureChosen();
    });
    connect(m_table, &Table::opened, this, [this] { enter(); });
    connect(m_table, &Table::changeWanted, this, [this] { change(); });
    connect(m_table, &Table::removalWanted, this, [this] { remove(); });
}

void ListPage::addAbove(QWidget *widget)
{
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, widget);
    setTabOrder(widget, m_table);
}

void ListPage::addBelow(QWidget *widget)
{
    m_list->insertWidget(m_list->indexOf(m_message), widget);
}

QPushButton *ListPage::addButton(const QString &id, const QString &text,
                                 const std::function<void()> &run)
{
    auto *button = new QPushButton(text, m_buttons);
    button->setObjectName(id);
    connect(button, &QPushButton::clicked, this, run);
    const int place = m_grid->count();
    m_grid->addWidget(button, place / buttonsInRow, place % buttonsInRow);
    return button;
}

Form *ListPage::addForm(const QString &id)
{
    auto *form = new Form(desk(), m_side);
    form->setObjectName(id);
    form->hide();
    connect(form, &Form::givenUp, this, &ListPage::closeForm);
    static_cast<QVBoxLayout *>(m_side->layout())->addWidget(form, 0, Qt::AlignTop);
    return form;
}

void ListPage::addFormButtons(Form &form, const std::function<void()> &save)
{
    form.addButton(QStringLiteral("save"), tr("&Save"), save);
    form.addButton(QStringLiteral("cancel"), tr("Cancel"), [this] { closeForm(); });
}

void ListPage::open(Form &form, QWidget &first)
{
    if (m_open && m_open != &form)
        m_open->hide();
    m_open = &form;
    m_first = &first;
    m_message->withdraw();
    form.message().withdraw();
    allowForm();
    form.show();
    m_side->show();
    m_buttons->hide(); // the form has its own
    first.setFocus(Qt::OtherFocusReason);
}

void ListPage::closeForm()
{
    Form *const form = std::exchange(m_open, nullptr);
    if (!form)
        return;
    m_buttons->show();
    listFocus()->setFocus(Qt::OtherFocusReason);
    form->hide();
    m_side->hide();
}

void ListPage::allowForm()
{
    if (!m_open)
        return;
    m_open->allow(desk().whyNoChange());
    m_open->findChild<QWidget *>(QStringLiteral("cancel"))->setEnabled(true);
    followForm();
}

QWidget *ListPage::firstFocus()
{
    return m_open ? m_first : listFocus();
}

QWidget *ListPage::listFocus() const
{
    return m_table->isHidden() ? m_grid->itemAt(0)->widget() : m_table;
}

void ListPage::showRows(std::vector<Row> rows, const QString &none)
{
    m_message->withdraw();
    m_model->setRows(std::move(rows));
    const bool isEmpty = m_model->rows().empty();
    m_none->setText(none);
    m_none->setVisible(isEmpty);
    m_table->setVisible(!isEmpty);
    m_table->settle();
    allowForm();
    follow();
}

QString ListPage::chosen() const
{
    return m_table->chosen().value(0);
}

void ListPage::choose(const QString &key)
{
    m_table->choose(key);
}

void ListPage::allowForRow(std::initializer_list<QWidget *> buttons,
                           const std::optional<QString> &whyNot) const
{
    std::optional<QString> reason = desk().whyNoChange();
    if (!reason && chosen().isEmpty())
        reason = tr("No line is chosen.");
    if (!reason)
        reason = whyNot;
    for (QWidget *button : buttons)
        allow(*button, reason);
}

bool ListPage::perform(const workbench::Deed &deed, const std::function<void()> &work)
{
    if (!desk().perform(*m_message, listFocus(), deed, work))
        return false;
    listFocus()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace kiv::desktop
