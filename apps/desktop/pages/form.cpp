// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/form.h"

#include "widgets/allow.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace kiv::desktop {
namespace {

/// The narrowest field shows so many letters.
constexpr int fieldLetters = 14;

} // namespace

Form::Form(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_heading(new QLabel(this)),
      m_fields(new QFormLayout),
      m_message(new FieldMessage(this)),
      m_foot(new QHBoxLayout)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_heading->hide();
    m_message->setObjectName(QStringLiteral("message"));
    layout->addWidget(m_heading);
    layout->addLayout(m_fields);
    layout->addWidget(m_message);
    layout->addLayout(m_foot);
    m_foot->addStretch();
    // A label stands above a field that would otherwise be cut off.
    m_fields->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void Form::setHeading(const QString &heading)
{
    m_heading->setText(heading);
    m_heading->show();
    setAccessibleName(heading);
}

void Form::addField(const QString &id, const QString &label, QWidget *field)
{
    field->setObjectName(id);
    field->setParent(this);
    // The widest field makes room for all.
    field->setSizePolicy(QSizePolicy::Expanding, field->sizePolicy().verticalPolicy());
    widen(*field);
    m_rows.push_back({new QLabel(label, this), field});
    m_rows.back().label->setBuddy(field);
    m_fields->addRow(m_rows.back().label, field);
}

void Form::widen(QWidget &field) const
{
    // A day can be read. Without the room for it, the field stands below its label.
    if (qobject_cast<QLineEdit *>(&field))
        field.setMinimumWidth(fontMetrics().averageCharWidth() * fieldLetters);
}

void Form::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    for (const FieldRow &row : m_rows)
        widen(*row.field);
}

Form::FieldRow &Form::rowOf(const QWidget &field)
{
    return *std::ranges::find(m_rows, &field, &FieldRow::field);
}

void Form::setShown(QWidget &field, bool isShown)
{
    FieldRow &row = rowOf(field);
    if (std::exchange(row.isShown, isShown) == isShown)
        return;
    // One that is only hidden would take the height of another that is shown before it (Qt 6.4,
    // where labels may stand above their fields).
    if (isShown) {
        const auto place = std::ranges::count(m_rows.data(), &row, true, &FieldRow::isShown);
        m_fields->insertRow(static_cast<int>(place), row.label, row.field);
    } else {
        const QFormLayout::TakeRowResult taken = m_fields->takeRow(row.field);
        delete taken.labelItem;
        delete taken.fieldItem;
    }
    row.label->setVisible(isShown);
    row.field->setVisible(isShown);
}

void Form::setLabel(QWidget &field, const QString &label)
{
    rowOf(field).label->setText(label);
}

QPushButton *Form::addButton(const QString &id, const QString &text,
                             const std::function<void()> &run)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(id);
    connect(button, &QPushButton::clicked, this, run);
    m_foot->insertWidget(static_cast<int>(m_buttons.size()), button);
    m_buttons += button;
    return button;
}

void Form::allow(const std::optional<QString> &whyNot)
{
    for (const FieldRow &row : m_rows)
        desktop::allow(*row.field, whyNot);
    for (QPushButton *button : m_buttons)
        desktop::allow(*button, whyNot);
}

bool Form::perform(QWidget &field, const workbench::Deed &deed, const std::function<void()> &work)
{
    m_blamed = &field;
    if (m_desk.perform(*m_message, &field, deed, work))
        return true;
    if (m_blamed != &field)
        m_message->complain(m_blamed, QString(m_message->sentence()));
    return false;
}

bool Form::apply(QWidget &field, const QString &line, const std::function<void()> &work)
{
    return m_desk.apply(*m_message, &field, line, work);
}

void Form::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        auto *button = qobject_cast<QPushButton *>(focusWidget());
        if (!button)
            button = m_buttons.value(0);
        if (button)
            button->click();
        return;
    }
    case Qt::Key_Escape:
        m_message->withdraw();
        emit givenUp();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace kiv::desktop
