// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/due_page.h"

#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/flow_layout.h"
#include "widgets/money_edit.h"
#include "widgets/table.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <array>

namespace kiv::desktop {

using workbench::DueLine;

DuePage::DuePage(Desk &desk)
    : Page(desk, QStringLiteral("due"), tr("Due")),
      m_model(new TableModel(dueColumns(), this)),
      m_table(new Table(*m_model, tr("What is due"), this)),
      m_summary(new QLabel(this)),
      m_form(new QWidget(this)),
      m_account(new QComboBox(m_form)),
      m_day(new DayEdit(m_form)),
      m_amount(new MoneyEdit(m_form)),
      m_isExtra(new QCheckBox(tr("&In addition: it stays due"), m_form)),
      m_pay(new QPushButton(tr("&Pay"), m_form)),
      m_skip(new QPushButton(tr("S&kip"), m_form)),
      m_payAmount(new QPushButton(tr("Pay this am&ount"), m_form)),
      m_message(new FieldMessage(this)),
      m_deeds(desk)
{
    build();
    connect(m_table, &Table::chosenChanged, this, &DuePage::follow);
    connect(m_table, &Table::chosenChanged, this, &DuePage::figureChosen);
    connect(m_table, &Table::opened, this, [this] { m_pay->setFocus(Qt::OtherFocusReason); });
    connect(m_account, &QComboBox::activated, this, &DuePage::sayAccount);
    connect(m_pay, &QPushButton::clicked, this, &DuePage::pay);
    connect(m_skip, &QPushButton::clicked, this, &DuePage::skip);
    connect(m_payAmount, &QPushButton::clicked, this, &DuePage::payAmount);
    connect(m_amount, &QLineEdit::returnPressed, this, &DuePage::payAmount);
    connect(m_day, &QLineEdit::returnPressed, this, &DuePage::pay);
}

void DuePage::build()
{
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_table->chooseSeveral();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_form);
    layout->addStretch(); // the room of the table, which hides while nothing is due
    addForm();
}

void DuePage::addForm()
{
    auto *form = new QVBoxLayout(m_form);
    form->setContentsMargins({});
    const auto pair = [this](const QString &text, QWidget *field) {
        auto *both = new QWidget(m_form);
        auto *row = new QHBoxLayout(both);
        row->setContentsMargins({});
        auto *label = new QLabel(text, both);
        label->setBuddy(field);
        row->addWidget(label);
        row->addWidget(field);
        return both;
    };
    const auto addRow = [form](std::initializer_list<QWidget *> parts) {
        auto *row = new FlowLayout;
        form->addLayout(row);
        for (QWidget *part : parts)
            row->addWidget(part);
    };
    m_account->setObjectName(QStringLiteral("account"));
    m_day->setObjectName(QStringLiteral("day"));
    m_amount->setObjectName(QStringLiteral("amount"));
    m_pay->setObjectName(QStringLiteral("pay"));
    m_skip->setObjectName(QStringLiteral("skip"));
    m_payAmount->setObjectName(QStringLiteral("payAmount"));
    addRow({pair(tr("&Account:"), m_account), pair(tr("On the da&y:"), m_day), m_pay, m_skip});
    addRow({pair(tr("Another a&mount:"), m_amount), m_isExtra, m_payAmount});
    const std::array<QWidget *, 8> order{m_table, m_account, m_day,     m_pay,
                                         m_skip,  m_amount,  m_isExtra, m_payAmount};
    for (std::size_t place = 1; place < order.size(); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void DuePage::goTo(const QString &detail)
{
    m_table->choose(detail);
}

QString DuePage::detail() const
{
    const QStringList keys = m_table->chosen();
    return keys.size() == 1 ? keys.first() : QString();
}

Explain DuePage::explanation()
{
    const QString key = detail();
    const auto &lines = m_due.list.lines;
    const auto found = std::ranges::find_if(
        lines, [&key](const DueLine &line) { return keyOf(line.due.id.item()) == key; });
    if (found == lines.end() || !found->after)
        return {};
    return [list = m_due.list, at = static_cast<std::size_t>(found - lines.begin())](
               const workbench::Explainer &explainer) {
        return std::vector{explainer.leftAfter(list, at)};
    };
}

QWidget *DuePage::firstFocus()
{
    return m_table;
}

void DuePage::forgetFile()
{
    m_message->withdraw();
    forgetTyping();
    m_today = m_day->text(); // so that it follows the calendar again
    m_said.clear();
}

void DuePage::refresh()
{
    m_due = shownDue(desk().document(), m_said);
    m_summary->setText(dueSummary(m_due));
    // Until a row is chosen again nothing could be done, and the focus would leave its field.
    QSignalBlocker quiet(m_table);
    m_model->setRows(dueRows(m_due));
    const bool isEmpty = m_due.list.lines.empty();
    m_table->setVisible(!isEmpty);
    m_form->setVisible(!isEmpty);
    m_message->withdraw();
    // Another day stays until it is changed.
    if (m_day->text() == m_today) {
        m_day->setDay(m_due.today);
        m_today = m_day->text();
    }
    m_account->clear();
    for (const auto &[number, name] : m_due.payers)
        m_account->addItem(name, number.integer());
    m_table->settle();
    quiet.unblock();
    follow();
    emit figureChosen();
}

std::vector<DueLine> DuePage::chosen() const
{
    const QStringList keys = m_table->chosen();
    std::vector<DueLine> lines;
    for (const DueLine &line : m_due.list.lines) {
        if (keys.contains(keyOf(line.due.id.item())))
            lines.push_back(line);
    }
    return lines;
}

void DuePage::follow()
{
    const std::vector<DueLine> lines = chosen();
    std::optional<QString> whyNot = desk().whyNoChange();
    if (!whyNot && lines.empty())
        whyNot = tr("No line is chosen.");
    std::optional<QString> whyNoAmount = whyNot;
    if (!whyNoAmount && lines.size() > 1)
        whyNoAmount = tr("Another amount is for one line.");
    for (QWidget *widget : {static_cast<QWidget *>(m_account), static_cast<QWidget *>(m_day),
                            static_cast<QWidget *>(m_pay), static_cast<QWidget *>(m_skip)})
        allow(*widget, whyNot);
    for (QWidget *widget : {static_cast<QWidget *>(m_amount), static_cast<QWidget *>(m_isExtra),
                            static_cast<QWidget *>(m_payAmount)})
        allow(*widget, whyNoAmount);
    // Several lines show the account that all of them have.
    int place = -1;
    if (!lines.empty() && lines.front().account) {
        const auto account = lines.front().account;
        const bool isSame = std::ranges::all_of(
            lines, [&account](const DueLine &line) { return line.account == account; });
        place = isSame ? m_account->findData(account->integer()) : -1;
    }
    m_account->setCurrentIndex(place);
    if (!lines.empty())
        m_amount->setCurrency(lines.front().due.amount.code());
}

void DuePage::sayAccount()
{
    const accounting::AccountNumber number(m_account->currentData().toUInt());
    for (const DueLine &line : chosen())
        m_said[line.due.id.item()] = number;
    refresh();
}

std::optional<QDate> DuePage::day()
{
    QDate day;
    return m_message->attempt(m_day, [&] { day = m_day->day(); }) ? std::optional(day)
                                                                  : std::nullopt;
}

void DuePage::pay()
{
    if (const auto on = day(); on && m_deeds.pay({*m_message, m_pay}, chosen(), *on))
        forgetTyping();
}

void DuePage::forgetTyping()
{
    // What was typed is done, so that undo is that of the budget.
    m_day->setText(m_day->text());
    m_amount->setText({});
    m_isExtra->setChecked(false);
}

void DuePage::skip()
{
    m_deeds.skip({*m_message, m_skip}, chosen());
}

void DuePage::payAmount()
{
    std::vector<DueLine> lines = chosen();
    const std::optional<QDate> on = day();
    if (!on || lines.size() != 1)
        return;
    numira::Money &due = lines.front().due.amount;
    if (!m_message->attempt(m_amount, [&] { due = m_amount->amount().in(due.code()); }))
        return;
    const bool isDone = m_isExtra->isChecked()
                            ? m_deeds.payExtra({*m_message, m_amount}, lines.front(), *on)
                            : m_deeds.pay({*m_message, m_amount}, lines, *on);
    if (isDone)
        forgetTyping();
}

} // namespace kiv::desktop
