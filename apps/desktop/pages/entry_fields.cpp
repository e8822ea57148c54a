// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/entry_fields.h"

#include "workbench/entry/description.h"

#include "foundation/clock.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {

using workbench::Entry;
using workbench::EntryForm;
using workbench::EntryPart;

EntryFields::EntryFields(FieldMessage &message, QWidget *parent)
    : QWidget(parent),
      m_message(message),
      m_amount(new MoneyEdit(this)),
      m_own(new AccountBox(this)),
      m_other(new AccountBox(this)),
      m_payee(new QLineEdit(this)),
      m_received(new MoneyEdit(this)),
      m_reason(new QLineEdit(this)),
      m_day(new DayEdit(this)),
      m_grid(new QGridLayout(this))
{
    m_amount->setObjectName(QStringLiteral("amount"));
    m_own->setObjectName(QStringLiteral("own"));
    m_other->setObjectName(QStringLiteral("other"));
    m_payee->setObjectName(QStringLiteral("payee"));
    m_received->setObjectName(QStringLiteral("received"));
    m_reason->setObjectName(QStringLiteral("reason"));
    m_day->setObjectName(QStringLiteral("day"));
    m_grid->setContentsMargins({});
    addField(0, 0, m_amountLabel, tr("&Amount"), m_amount);
    addField(0, 1, m_ownLabel, {}, m_own);
    addField(0, 2, m_otherLabel, {}, m_other);
    addField(1, 0, m_payeeLabel, {}, m_payee);
    addField(1, 0, m_receivedLabel, tr("In e&xchange"), m_received);
    addField(1, 1, m_reasonLabel, tr("Reaso&n"), m_reason);
    addField(1, 2, m_dayLabel, tr("Da&y"), m_day);
    m_day->setDay(foundation::today());
}

void EntryFields::addField(int row, int column, QLabel *&label, const QString &text, QWidget *field)
{
    QWidget *before = m_grid->count() > 0 ? m_grid->itemAt(m_grid->count() - 1)->widget() : nullptr;
    label = new QLabel(text, this);
    label->setBuddy(field);
    m_grid->addWidget(label, row, 2 * column);
    m_grid->addWidget(field, row, 2 * column + 1);
    m_grid->setColumnStretch(2 * column + 1, column == 0 ? 2 : 3);
    if (before)
        setTabOrder(before, field);
}

void EntryFields::addButton(QPushButton *button)
{
    m_grid->addWidget(button, 1, 6);
    setTabOrder(m_day, button);
}

void EntryFields::followForm()
{
    m_ownLabel->setText(m_form == EntryForm::Earned ? tr("T&o") : tr("F&rom"));
    switch (m_form) {
    case EntryForm::Spent:
        m_otherLabel->setText(tr("&On"));
        break;
    case EntryForm::Earned:
        m_otherLabel->setText(tr("F&rom"));
        break;
    case EntryForm::Moved:
        m_otherLabel->setText(tr("T&o"));
        break;
    }
    m_payeeLabel->setText(m_form == EntryForm::Earned ? tr("&Payer") : tr("&Payee"));
}

void EntryFields::offer(std::shared_ptr<const workbench::AccountIndex> accounts, EntryForm form)
{
    m_accounts = std::move(accounts);
    m_form = form;
    followForm();
    if (!m_accounts)
        return;
    m_own->offer(m_accounts, workbench::ownAccounts(*m_accounts));
    m_other->offer(m_accounts, workbench::otherAccounts(form, *m_accounts));
    followCurrency();
}

void EntryFields::allowExchange(bool isAllowed)
{
    m_isExchangeAllowed = isAllowed;
    followCurrency();
}

void EntryFields::load(const Entry &entry)
{
    m_own->setAccount(entry.own);
    m_other->setAccount(entry.other);
    followCurrency();
    m_amount->setMoney(entry.amount.in(numira::Currency()));
    m_payee->setText(entry.payee);
    m_reason->setText(entry.reason);
    m_day->setDay(entry.day);
    m_amount->setFocus(Qt::OtherFocusReason);
    m_amount->selectAll();
}

void EntryFields::clear(const accounting::Account *shown)
{
    // Unlike clear() of a field this also forgets what was typed, so that undo is that of
    // the budget.
    for (QLineEdit *field : {static_cast<QLineEdit *>(m_amount), m_payee,
                             static_cast<QLineEdit *>(m_received), m_reason})
        field->setText({});
    m_other->setAccount(std::nullopt);
    // The account that is looked at, or the one of the entry before.
    if (shown && workbench::keepsMoney(*shown) && !shown->isClosed())
        m_own->setAccount(shown->code().number());
    else if (shown)
        m_other->setAccount(shown->code().number());
    m_day->setText(m_day->text());
    followCurrency();
}

void EntryFields::clearLine()
{
    m_amount->setText({});
    m_other->setAccount(std::nullopt);
    followCurrency();
}

void EntryFields::lockAllButAmount(bool isLocked)
{
    for (QWidget *field : {static_cast<QWidget *>(m_own), static_cast<QWidget *>(m_other),
                           static_cast<QWidget *>(m_payee), static_cast<QWidget *>(m_reason)})
        field->setEnabled(!isLocked);
}

const accounting::Account *EntryFields::accountIn(const AccountBox &box) const
{
    const auto number = m_accounts ? box.accountIfAny() : std::nullopt;
    return number ? m_accounts->find(*number) : nullptr;
}

bool EntryFields::isExchange() const
{
    if (!m_isExchangeAllowed || m_form != EntryForm::Moved)
        return false;
    const accounting::Account *own = accountIn(*m_own);
    const accounting::Account *other = accountIn(*m_other);
    return own && other && own->balance().code() != other->balance().code();
}

void EntryFields::followCurrency()
{
    const bool isExchanged = isExchange();
    m_received->setVisible(isExchanged);
    m_receivedLabel->setVisible(isExchanged);
    m_payee->setVisible(!isExchanged);
    m_payeeLabel->setVisible(!isExchanged);
    // What moves is an amount of the account that receives it, unless both are typed.
    const bool isOthers = m_form == EntryForm::Moved && !isExchanged;
    if (const accounting::Account *account = accountIn(isOthers ? *m_other : *m_own))
        m_amount->setCurrency(account->balance().code());
    if (const accounting::Account *other = accountIn(*m_other); other && isExchanged)
        m_received->setCurrency(other->balance().code());
}

QString EntryFields::noOwn() const
{
    return m_form == EntryForm::Earned ? tr("Choose the account that the money came to.")
                                       : tr("Choose the account that the money left.");
}

QString EntryFields::noOther() const
{
    return m_form == EntryForm::Spent    ? tr("Choose what the money was spent on.")
           : m_form == EntryForm::Earned ? tr("Choose where the money came from.")
                                         : tr("Choose the account that the money went to.");
}

std::optional<Entry> EntryFields::entry()
{
    const std::optional<workbench::SplitLine> one = line();
    const std::optional<workbench::SplitEntry> head = one ? splitHead() : std::nullopt;
    if (!head)
        return std::nullopt;
    return Entry{m_form, one->amount, head->own, one->other, head->payee, head->reason, head->day};
}

std::optional<workbench::SplitLine> EntryFields::line()
{
    workbench::SplitLine line;
    const bool isRead = read(m_amount, [&] { line.amount = m_amount->amount(); }) &&
                        read(m_other, [&] { line.other = m_other->account(noOther()); });
    return isRead ? std::optional(line) : std::nullopt;
}

bool EntryFields::isLineEmpty() const
{
    return m_amount->text().trimmed().isEmpty() && m_other->isEmpty();
}

std::optional<workbench::SplitEntry> EntryFields::splitHead()
{
    workbench::SplitEntry head;
    head.form = m_form;
    head.payee = m_payee->text();
    head.reason = m_reason->text();
    const bool isRead = read(m_own, [&] { head.own = m_own->account(noOwn()); }) &&
                        read(m_day, [&] { head.day = m_day->day(); });
    return isRead ? std::optional(head) : std::nullopt;
}

std::optional<workbench::Exchange> EntryFields::exchange()
{
    const std::optional<Entry> moved = entry();
    if (!moved)
        return std::nullopt;
    workbench::Exchange exchange{accounting::presentationText(moved->own),
                                 accounting::presentationText(moved->other),
                                 moved->amount,
                                 {},
                                 moved->reason,
                                 moved->day};
    if (!read(m_received, [&] { exchange.received = m_received->amount(); }))
        return std::nullopt;
    return exchange;
}

QWidget *EntryFields::fieldOf(EntryPart part) const
{
    switch (part) {
    case EntryPart::Own:
        return m_own;
    case EntryPart::Other:
        return m_other;
    case EntryPart::Day:
        return m_day;
    case EntryPart::Amount:
        break;
    }
    return m_amount;
}

} // namespace kiv::desktop
