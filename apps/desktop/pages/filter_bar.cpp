// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/filter_bar.h"

#include "widgets/flow_layout.h"

#include "workbench/errors.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <chrono>

namespace kiv::desktop {

using workbench::FilterKind;
using workbench::FilterPart;
using namespace std::chrono_literals;

FilterBar::FilterBar(QWidget *parent)
    : QWidget(parent),
      m_field(new QLineEdit(this)),
      m_marks(nullptr),
      m_periods(nullptr),
      m_accounts(nullptr),
      m_result(new QLabel(this)),
      m_message(new FieldMessage(this)),
      m_delay(50ms, this, &FilterBar::search)
{
    m_field->setObjectName(QStringLiteral("search"));
    m_field->setClearButtonEnabled(true);
    m_field->setPlaceholderText(tr("groceries >50 march not:reconciled"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(tr("F&ind"), this);
    label->setBuddy(m_field);
    row->addWidget(label);
    row->addWidget(m_field, 1);
    layout->addLayout(row);
    layout->addWidget(m_message);
    auto *choices = new FlowLayout;
    layout->addLayout(choices);

    m_marks = addChoice(tr("Mark"), tr("Any mark"));
    m_marks->addItem(tr("Open"), QStringLiteral("is:open"));
    m_marks->addItem(tr("Cleared"), QStringLiteral("is:cleared"));
    m_marks->addItem(tr("Reconciled"), QStringLiteral("is:reconciled"));
    m_marks->addItem(tr("Not reconciled"), QStringLiteral("not:reconciled"));
    m_periods = addChoice(tr("Period"), tr("Any day"));
    m_periods->addItem(tr("This month"), QStringLiteral("this month"));
    m_periods->addItem(tr("Last month"), QStringLiteral("last month"));
    m_periods->addItem(tr("This year"), QStringLiteral("this year"));
    m_periods->addItem(tr("Last year"), QStringLiteral("last year"));
    m_accounts = addChoice(tr("Account or item"), tr("Any account or item"));
    // A long name does not make the window wide.
    m_accounts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_accounts->setMinimumContentsLength(16);
    for (QComboBox *choice : {m_marks, m_periods, m_accounts})
        choices->addWidget(choice);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setObjectName(QStringLiteral("result"));
    choices->addWidget(m_result);

    connect(m_field, &QLineEdit::textChanged, this, [this] { m_delay.start(); });
    const auto follow = [this](QComboBox *choice, FilterKind kind) {
        connect(choice, &QComboBox::activated, this,
                [this, choice, kind] { choose(kind, choice->currentData().toString()); });
    };
    follow(m_marks, FilterKind::Mark);
    follow(m_periods, FilterKind::Days);
    follow(m_accounts, FilterKind::Account);
}

QComboBox *FilterBar::addChoice(const QString &name, const QString &anything)
{
    auto *choice = new QComboBox(this);
    choice->setAccessibleName(name);
    choice->setToolTip(name);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    choice->addItem(anything, QString());
    return choice;
}

QString FilterBar::text() const
{
    return m_field->text();
}

void FilterBar::setText(const QString &text)
{
    m_field->setText(text);
    search();
}

QWidget *FilterBar::field() const
{
    return m_field;
}

bool FilterBar::offer(const workbench::AccountIndex &accounts)
{
    QStringList names = accounts.plainNames();
    std::ranges::sort(names, [](const QString &a, const QString &b) {
        return QString::localeAwareCompare(a, b) < 0;
    });
    QStringList present;
    for (int row = 1; row < m_accounts->count(); ++row)
        present += m_accounts->itemText(row);
    if (present == names)
        return false;
    while (m_accounts->count() > 1)
        m_accounts->removeItem(m_accounts->count() - 1);
    for (const QString &name : names)
        m_accounts->addItem(name, FilterPart{FilterKind::Account, name, false}.text());
    followText();
    return true;
}

void FilterBar::showResult(const QString &result)
{
    m_result->setText(result);
    m_result->setToolTip(result); // it may be longer than the bar
}

void FilterBar::complain(const QString &sentence)
{
    m_message->complain(m_field, sentence);
}

void FilterBar::choose(FilterKind kind, const QString &chosen)
{
    std::vector<FilterPart> parts;
    try {
        parts = workbench::filterParts(m_field->text());
    } catch (const workbench::EntryError &) {
        // What cannot be understood makes place for what can.
    }
    std::erase_if(parts, [kind](const FilterPart &part) { return part.kind == kind; });
    setText((workbench::filterText(parts) + u' ' + chosen).trimmed());
}

void FilterBar::followText()
{
    std::vector<FilterPart> parts;
    try {
        parts = workbench::filterParts(m_field->text());
    } catch (const workbench::EntryError &) {
        return; // the sentence stands below the field
    }
    for (const auto &[choice, kind] : {std::pair(m_marks, FilterKind::Mark),
                                       {m_periods, FilterKind::Days},
                                       {m_accounts, FilterKind::Account}}) {
        const auto found = std::ranges::find(parts, kind, &FilterPart::kind);
        const int row = found == parts.end() ? 0 : choice->findData(found->text());
        choice->setCurrentIndex(row);
    }
}

void FilterBar::search()
{
    m_delay.stop();
    followText();
    m_message->withdraw();
    emit searched(m_field->text());
}

void FilterBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        search();
        break;
    case Qt::Key_Escape:
        setText({});
        emit leaving();
        break;
    case Qt::Key_Down:
        emit leaving();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace kiv::desktop
