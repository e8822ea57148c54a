// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/entry_row.h"

#include "widgets/completion_keys.h"

#include "foundation/clock.h"

#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

#include <chrono>

namespace kiv::desktop {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using workbench::AccountIndex;
using workbench::Entry;
using workbench::EntryForm;
using workbench::EntryPart;

using namespace std::chrono_literals;

namespace {

/// In larger budgets former entries are read when nothing is typed for a moment.
constexpr std::size_t sidesAtOnce = 10'000;

} // namespace

EntryRow::EntryRow(Desk &desk, QWidget *parent)
    : QFrame(parent),
      m_desk(desk),
      m_forms(new QTabBar(this)),
      m_taskLabel(new QLabel(this)),
      m_amount(new MoneyEdit(this)),
      m_own(new AccountBox(this)),
      m_other(new AccountBox(this)),
      m_payee(new QLineEdit(this)),
      m_reason(new QLineEdit(this)),
      m_day(new DayEdit(this)),
      m_submit(new QPushButton(this)),
      m_message(new FieldMessage(this)),
      m_whyNot(new QLabel(this)),
      m_fields(new QWidget(this)),
      m_payees(new QStringListModel(this))
{
    setObjectName(QStringLiteral("entry"));
    setFrameShape(QFrame::StyledPanel);
    build();
    m_day->setDay(foundation::today());
    followForm();
    setTask(Task::Enter, std::nullopt);
}

void EntryRow::build()
{
    auto *layout = new QVBoxLayout(this);
    auto *head = new QHBoxLayout;
    m_forms->setObjectName(QStringLiteral("forms"));
    m_forms->setAccessibleName(tr("Kind of transaction"));
    m_forms->setDrawBase(false);
    for (const QString &text : {tr("&Spent"), tr("Earne&d"), tr("&Moved")})
        m_forms->addTab(text);
    head->addWidget(m_forms);
    head->addWidget(m_taskLabel);
    head->addStretch();
    m_whyNot->setTextFormat(Qt::PlainText);
    m_whyNot->setWordWrap(true);
    layout->addLayout(head);
    layout->addWidget(m_whyNot);
    layout->addWidget(m_fields);
    layout->addWidget(m_message);

    m_amount->setObjectName(QStringLiteral("amount"));
    m_own->setObjectName(QStringLiteral("own"));
    m_other->setObjectName(QStringLiteral("other"));
    m_payee->setObjectName(QStringLiteral("payee"));
    m_reason->setObjectName(QStringLiteral("reason"));
    m_day->setObjectName(QStringLiteral("day"));
    m_message->setObjectName(QStringLiteral("message"));
    new QGridLayout(m_fields);
    m_fields->layout()->setContentsMargins(0, 0, 0, 0);
    addField(0, 0, m_amountLabel, tr("&Amount"), m_amount);
    addField(0, 1, m_ownLabel, {}, m_own);
    addField(0, 2, m_otherLabel, {}, m_other);
    addField(1, 0, m_payeeLabel, {}, m_payee);
    addField(1, 1, m_reasonLabel, tr("Reaso&n"), m_reason);
    addField(1, 2, m_dayLabel, tr("Da&y"), m_day);
    auto *grid = static_cast<QGridLayout *>(m_fields->layout());
    grid->addWidget(m_submit, 1, 6);
    setTabOrder(m_day, m_submit);

    m_payee->setCompleter(new QCompleter(m_payees, this));
    m_payee->completer()->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    auto *keys =
        new CompletionKeys(*m_payee->completer(), *m_payee, CompletionKeys::OnlyMatch::Stays);
    connect(keys, &CompletionKeys::taken, m_payee, &QLineEdit::setText);
    connect(m_payee, &QLineEdit::textEdited, this, [this](const QString &typed) {
        m_payees->setStringList(typed.isEmpty() ? QStringList() : former().payees(typed));
    });
    m_idle.setSingleShot(true);
    m_idle.setInterval(400ms);
    connect(&m_idle, &QTimer::timeout, this, [this] {
        if (m_isFormerStale && isVisible())
            readFormer();
    });
    connect(m_payee, &QLineEdit::editingFinished, this, &EntryRow::followPayee);
    connect(m_payee->completer(), qOverload<const QString &>(&QCompleter::activated), this,
            &EntryRow::followPayee, Qt::QueuedConnection);
    connect(m_other, &AccountBox::chosen, this, &EntryRow::followOther);
    connect(m_own, &AccountBox::chosen, this, &EntryRow::followCurrency);
    connect(m_forms, &QTabBar::currentChanged, this, &EntryRow::followForm);
    connect(m_submit, &QPushButton::clicked, this, &EntryRow::submit);
}

void EntryRow::addField(int row, int column, QLabel *&label, const QString &text, QWidget *field)
{
    auto *grid = static_cast<QGridLayout *>(m_fields->layout());
    label = new QLabel(text, m_fields);
    label->setBuddy(field);
    field->setParent(m_fields);
    grid->addWidget(label, row, 2 * column);
    grid->addWidget(field, row, 2 * column + 1);
    grid->setColumnStretch(2 * column + 1, column == 0 ? 2 : 3);
    if (column + row > 0)
        setTabOrder(grid->itemAt(grid->count() - 3)->widget(), field);
}

// ---- what it is for ----------------------------------------------------------------

EntryForm EntryRow::form() const
{
    return static_cast<EntryForm>(m_forms->currentIndex());
}

void EntryRow::setForm(EntryForm form)
{
    m_forms->setCurrentIndex(static_cast<int>(form));
}

void EntryRow::followForm()
{
    const EntryForm form = this->form();
    m_ownLabel->setText(form == EntryForm::Earned ? tr("T&o") : tr("F&rom"));
    switch (form) {
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
    m_payeeLabel->setText(form == EntryForm::Earned ? tr("&Payer") : tr("&Payee"));
    offerAccounts();
}

void EntryRow::setTask(Task task, std::optional<TransactionNumber> number)
{
    m_task = task;
    m_number = number;
    const bool isRefund = task == Task::Refund;
    m_forms->setVisible(!isRefund);
    for (QWidget *field : {static_cast<QWidget *>(m_own), static_cast<QWidget *>(m_other),
                           static_cast<QWidget *>(m_payee), static_cast<QWidget *>(m_reason)})
        field->setEnabled(!isRefund);
    switch (task) {
    case Task::Enter:
        m_taskLabel->clear();
        m_submit->setText(tr("Add"));
        break;
    case Task::Change:
        m_taskLabel->setText(tr("Change:"));
        m_submit->setText(tr("Save"));
        break;
    case Task::Refund:
        m_taskLabel->setText(tr("Refund: the amount that was given back, and the day."));
        m_submit->setText(tr("Refund"));
        break;
    }
    m_taskLabel->setVisible(task != Task::Enter);
}

void EntryRow::refresh(std::shared_ptr<const AccountIndex> accounts,
                       std::optional<AccountNumber> shownAccount)
{
    m_accounts = std::move(accounts);
    m_isFormerStale = true;
    m_idle.start();
    const bool isOther = std::exchange(m_shownAccount, shownAccount) != shownAccount;
    offerAccounts();
    if (isOther && m_task == Task::Enter && m_amount->text().isEmpty() && m_other->isEmpty())
        clearFields();
}

void EntryRow::offerAccounts()
{
    if (!m_accounts)
        return;
    m_own->offer(m_accounts, workbench::ownAccounts(*m_accounts));
    m_other->offer(m_accounts, workbench::otherAccounts(form(), *m_accounts));
    followCurrency();
}

void EntryRow::allow(const std::optional<QString> &whyNot)
{
    m_whyNot->setText(whyNot.value_or(QString()));
    m_whyNot->setVisible(whyNot.has_value());
    m_fields->setEnabled(!whyNot);
    m_forms->setEnabled(!whyNot);
}

void EntryRow::begin(EntryForm form)
{
    setTask(Task::Enter, std::nullopt);
    m_message->withdraw();
    setForm(form);
    clearFields();
    m_amount->setFocus(Qt::OtherFocusReason);
}

void EntryRow::beginChange(const Transaction &transaction)
{
    setTask(Task::Change, transaction.number());
    load(workbench::entryOf(transaction, *m_accounts));
}

void EntryRow::beginAgain(const Transaction &transaction)
{
    setTask(Task::Enter, std::nullopt);
    Entry entry = workbench::entryOf(transaction, *m_accounts);
    entry.day = foundation::today();
    load(entry);
}

void EntryRow::beginRefund(const Transaction &transaction)
{
    Entry entry = workbench::entryOf(transaction, *m_accounts);
    entry.day = foundation::today();
    load(entry);
    m_amount->setMoney(workbench::leftToRefund(transaction, *m_accounts));
    m_amount->selectAll();
    setTask(Task::Refund, transaction.number());
}

void EntryRow::load(const Entry &entry)
{
    m_message->withdraw();
    setForm(entry.form);
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

void EntryRow::clearFields()
{
    // Unlike clear() this also forgets what was typed, so that undo is that of the budget.
    for (QLineEdit *field : {static_cast<QLineEdit *>(m_amount), m_payee, m_reason})
        field->setText({});
    m_other->setAccount(std::nullopt);
    // The account that is looked at, or the one of the entry before.
    const workbench::AccountIndex *accounts = m_accounts.get();
    const accounting::Account *shown =
        accounts && m_shownAccount ? accounts->find(*m_shownAccount) : nullptr;
    if (shown && workbench::keepsMoney(*shown) && !shown->isClosed())
        m_own->setAccount(m_shownAccount);
    else if (shown)
        m_other->setAccount(m_shownAccount);
    followCurrency();
}

void EntryRow::giveUp()
{
    setTask(Task::Enter, std::nullopt);
    m_message->withdraw();
    clearFields();
    m_day->setDay(foundation::today());
    emit leaving();
}

// ---- what follows from what is typed -----------------------------------------------

void EntryRow::followCurrency()
{
    if (!m_accounts)
        return;
    // What moves is an amount of the account that receives it.
    const AccountBox *box = form() == EntryForm::Moved ? m_other : m_own;
    const auto number = box->accountIfAny();
    const accounting::Account *account = number ? m_accounts->find(*number) : nullptr;
    if (account)
        m_amount->setCurrency(account->balance().code());
}

void EntryRow::followOther()
{
    followCurrency();
    const auto other = m_other->accountIfAny();
    if (!other || !m_own->isEmpty() || form() == EntryForm::Moved)
        return;
    const accounting::Account *account = m_accounts->find(*other);
    if (!account)
        return;
    m_own->setAccount(workbench::paidFrom(m_desk.requests(), *account));
    followCurrency();
}

const workbench::FormerEntries &EntryRow::former()
{
    std::size_t sides = 0;
    for (const accounting::Account &account : m_accounts->accounts())
        sides += account.transactions().size();
    if (m_isFormerStale && sides <= sidesAtOnce)
        readFormer();
    return m_former;
}

void EntryRow::readFormer()
{
    m_former = workbench::FormerEntries(m_desk.requests().transactions());
    m_isFormerStale = false;
}

void EntryRow::followPayee()
{
    if (!m_accounts || m_task != Task::Enter || m_payee->text().trimmed().isEmpty())
        return;
    const workbench::FormerEntries::Entry *entry = former().newest(m_payee->text());
    if (!entry)
        return;
    const bool isEarned = form() == EntryForm::Earned;
    const AccountNumber own = isEarned ? entry->debited : entry->credited;
    const AccountNumber other = isEarned ? entry->credited : entry->debited;
    const auto offers = [](const AccountBox *box, AccountNumber number) {
        return box->findData(number.integer()) >= 0;
    };
    if (!offers(m_own, own) || !offers(m_other, other))
        return; // it was another form
    m_payee->setText(entry->payee);
    if (m_other->isEmpty())
        m_other->setAccount(other);
    if (m_own->isEmpty())
        m_own->setAccount(own);
    followCurrency();
    if (m_reason->text().isEmpty())
        m_reason->setText(entry->reason);
    if (m_amount->text().isEmpty())
        m_amount->setMoney(entry->amount);
}

// ---- doing it ----------------------------------------------------------------------

void EntryRow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_fields->isEnabled())
            submit();
        break;
    case Qt::Key_Escape:
        giveUp();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void EntryRow::submit()
{
    if (m_task == Task::Refund)
        refund();
    else
        enter();
}

template <typename Read>
bool EntryRow::readField(QWidget *field, Read read)
{
    try {
        read();
        return true;
    } catch (const foundation::Error &error) {
        m_message->complain(field, workbench::userText(error));
        return false;
    }
}

std::optional<Entry> EntryRow::read()
{
    Entry entry;
    entry.form = form();
    entry.payee = m_payee->text();
    entry.reason = m_reason->text();
    const QString noOther =
        entry.form == EntryForm::Spent    ? tr("Choose what the money was spent on.")
        : entry.form == EntryForm::Earned ? tr("Choose where the money came from.")
                                          : tr("Choose the account that the money went to.");
    const QString noOwn = entry.form == EntryForm::Earned
                              ? tr("Choose the account that the money came to.")
                              : tr("Choose the account that the money left.");
    const bool isRead = readField(m_amount, [&] { entry.amount = m_amount->amount(); }) &&
                        readField(m_other, [&] { entry.other = m_other->account(noOther); }) &&
                        readField(m_own, [&] { entry.own = m_own->account(noOwn); }) &&
                        readField(m_day, [&] { entry.day = m_day->day(); });
    return isRead ? std::optional(entry) : std::nullopt;
}

QWidget *EntryRow::fieldOf(EntryPart part) const
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

QString EntryRow::place(TransactionNumber number) const
{
    const QString account =
        m_shownAccount ? accounting::presentationText(*m_shownAccount) : QStringLiteral("all");
    return QStringLiteral("register/%1/%2").arg(account, accounting::presentationText(number));
}

void EntryRow::enter()
{
    const std::optional<Entry> entry = read();
    if (!entry)
        return;
    workbench::Requests &requests = m_desk.requests();
    workbench::Deed deed;
    const bool isChange = m_task == Task::Change;
    if (!readField(m_amount, [&] {
            deed = workbench::enterDeed(requests, *entry);
            if (isChange)
                deed = workbench::changeDeed(requests, requests.transaction(*m_number));
        }))
        return;
    TransactionNumber number = m_number.value_or(TransactionNumber());
    QWidget *asker = fieldOf(workbench::doubtfulPart(*entry, *m_accounts));
    const bool isDone = m_desk.perform(*m_message, asker, deed, [&] {
        if (isChange)
            workbench::changeInto(requests, number, *entry);
        else
            number = workbench::enter(requests, *entry);
        // The deed is kept when this has returned; only now its place is known.
        deed.place = place(number);
    });
    if (isDone)
        settle(number);
}

void EntryRow::refund()
{
    workbench::Requests &requests = m_desk.requests();
    workbench::Amount amount;
    QDate day;
    workbench::Deed deed;
    if (!readField(m_amount,
                   [&] {
                       amount = m_amount->amount();
                       deed =
                           workbench::refundDeed(requests, amount, requests.transaction(*m_number));
                   }) ||
        !readField(m_day, [&] { day = m_day->day(); }))
        return;
    TransactionNumber number;
    const bool isDone = m_desk.perform(*m_message, m_amount, deed, [&] {
        number = workbench::refund(requests, *m_number, amount, day);
        deed.place = place(number);
    });
    if (isDone)
        settle(number);
}

void EntryRow::settle(TransactionNumber number)
{
    const bool wasNew = m_task == Task::Enter;
    setTask(Task::Enter, std::nullopt);
    clearFields();
    m_day->setText(m_day->text()); // see clearFields()
    emit entered(number);
    // The next one is often of the same day. One that was changed is looked at again.
    if (wasNew)
        m_amount->setFocus(Qt::OtherFocusReason);
    else
        emit leaving();
}

} // namespace kiv::desktop
