// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/entry_row.h"

#include "widgets/completion_keys.h"

#include "foundation/clock.h"

#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
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

using namespace std::chrono_literals;

namespace {

/// In larger budgets former entries are read when nothing is typed for a moment.
constexpr std::size_t sidesAtOnce = 10'000;

} // namespace

EntryRow::EntryRow(Desk &desk, QWidget *parent)
    : QFrame(parent),
      m_desk(desk),
      m_idle(400ms, this,
             [this] {
                 if (m_isFormerStale && isVisible())
                     readFormer();
             }),
      m_forms(new QTabBar(this)),
      m_taskLabel(new QLabel(this)),
      m_submit(new QPushButton(this)),
      m_message(new FieldMessage(this)),
      m_whyNot(new QLabel(this)),
      m_fields(new EntryFields(*m_message, this)),
      m_split(new SplitLines(desk, this)),
      m_addLine(new QPushButton(tr("Another &line"), this)),
      m_payees(new QStringListModel(this))
{
    setObjectName(QStringLiteral("entry"));
    setFrameShape(QFrame::StyledPanel);
    build();
    addPayees();
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
    m_taskLabel->setTextFormat(Qt::PlainText);
    m_taskLabel->setWordWrap(true);
    head->addWidget(m_taskLabel, 1);
    head->addStretch();
    head->addWidget(m_addLine);
    m_whyNot->setTextFormat(Qt::PlainText);
    m_whyNot->setWordWrap(true);
    layout->addLayout(head);
    layout->addWidget(m_whyNot);
    layout->addWidget(m_split);
    layout->addWidget(m_fields);
    layout->addWidget(m_message);
    m_message->setObjectName(QStringLiteral("message"));
    m_addLine->setObjectName(QStringLiteral("addLine"));
    m_addLine->setToolTip(tr("For one payment on several things: each line becomes a transaction"));
    m_fields->addButton(m_submit);
    connect(&m_fields->other(), &AccountBox::chosen, this, &EntryRow::followOther);
    connect(&m_fields->own(), &AccountBox::chosen, m_fields, &EntryFields::followCurrency);
    connect(m_forms, &QTabBar::currentChanged, this, &EntryRow::followForm);
    connect(m_submit, &QPushButton::clicked, this, &EntryRow::submit);
    connect(m_addLine, &QPushButton::clicked, this, &EntryRow::addLine);
    connect(m_split, &SplitLines::takenBack, this, &EntryRow::takeLine);
}

void EntryRow::addPayees()
{
    QLineEdit &payee = m_fields->payee();
    payee.setCompleter(new QCompleter(m_payees, this));
    payee.completer()->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    auto *keys = new CompletionKeys(*payee.completer(), payee, CompletionKeys::OnlyMatch::Stays);
    connect(keys, &CompletionKeys::taken, &payee, &QLineEdit::setText);
    connect(&payee, &QLineEdit::textEdited, this, [this](const QString &typed) {
        m_payees->setStringList(typed.isEmpty() ? QStringList() : former().payees(typed));
    });
    connect(&payee, &QLineEdit::editingFinished, this, &EntryRow::followPayee);
    connect(payee.completer(), qOverload<const QString &>(&QCompleter::activated), this,
            &EntryRow::followPayee, Qt::QueuedConnection);
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
    offerAccounts();
    followLines();
}

void EntryRow::setTask(Task task, std::optional<TransactionNumber> number)
{
    m_task = task;
    m_number = number;
    const bool isRefund = task == Task::Refund;
    m_forms->setVisible(!isRefund);
    m_fields->lockAllButAmount(isRefund);
    m_fields->allowExchange(task == Task::Enter);
    if (task != Task::Enter)
        m_split->clear();
    followLines();
    switch (task) {
    case Task::Enter:
        m_taskLabel->clear();
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
    if (isOther && m_task == Task::Enter && m_fields->isLineEmpty() && m_split->lines().empty())
        clearFields();
}

void EntryRow::offerAccounts()
{
    m_fields->offer(m_accounts, form());
}

void EntryRow::allow(const std::optional<QString> &whyNot)
{
    m_whyNot->setText(whyNot.value_or(QString()));
    m_whyNot->setVisible(whyNot.has_value());
    m_fields->setEnabled(!whyNot);
    m_split->setEnabled(!whyNot);
    followLines();
}

void EntryRow::begin(EntryForm form)
{
    setTask(Task::Enter, std::nullopt);
    m_message->withdraw();
    setForm(form);
    clearFields();
    m_fields->amount().setFocus(Qt::OtherFocusReason);
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
    m_fields->amount().setMoney(workbench::leftToRefund(transaction, *m_accounts));
    m_fields->amount().selectAll();
    setTask(Task::Refund, transaction.number());
}

void EntryRow::load(const Entry &entry)
{
    m_message->withdraw();
    setForm(entry.form);
    m_fields->load(entry);
}

void EntryRow::clearFields()
{
    m_split->clear();
    followLines();
    m_fields->clear(m_accounts && m_shownAccount ? m_accounts->find(*m_shownAccount) : nullptr);
}

void EntryRow::giveUp()
{
    startAnew();
    emit leaving();
}

void EntryRow::startAnew()
{
    setTask(Task::Enter, std::nullopt);
    m_message->withdraw();
    clearFields();
    m_fields->day().setDay(foundation::today());
}

void EntryRow::forgetFile()
{
    startAnew();
    m_fields->own().setAccount(std::nullopt);
}

// ---- what follows from what is typed -----------------------------------------------

void EntryRow::followOther()
{
    m_fields->followCurrency();
    const auto other = m_fields->other().accountIfAny();
    if (!other || !m_fields->own().isEmpty() || form() == EntryForm::Moved)
        return;
    const accounting::Account *account = m_accounts->find(*other);
    if (!account)
        return;
    m_fields->own().setAccount(workbench::paidFrom(m_desk.requests(), *account));
    m_fields->followCurrency();
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
    QLineEdit &payee = m_fields->payee();
    if (!m_accounts || m_task != Task::Enter || payee.text().trimmed().isEmpty() ||
        !m_split->lines().empty())
        return;
    const workbench::FormerEntries::Entry *entry = former().newest(payee.text());
    if (!entry)
        return;
    const bool isEarned = form() == EntryForm::Earned;
    const AccountNumber own = isEarned ? entry->debited : entry->credited;
    const AccountNumber other = isEarned ? entry->credited : entry->debited;
    const auto offers = [](const AccountBox &box, AccountNumber number) {
        return box.findData(number.integer()) >= 0;
    };
    if (!offers(m_fields->own(), own) || !offers(m_fields->other(), other))
        return; // it was another form
    payee.setText(entry->payee);
    if (m_fields->other().isEmpty())
        m_fields->other().setAccount(other);
    if (m_fields->own().isEmpty())
        m_fields->own().setAccount(own);
    m_fields->followCurrency();
    if (m_fields->reason().text().isEmpty())
        m_fields->reason().setText(entry->reason);
    if (m_fields->amount().text().isEmpty())
        m_fields->amount().setMoney(entry->amount);
}

// ---- the lines of a split ------------------------------------------------------------

void EntryRow::followLines()
{
    const bool isSplit = !m_split->lines().empty();
    // The lines are all of one form.
    m_forms->setEnabled(m_fields->isEnabled() && !isSplit);
    m_addLine->setEnabled(m_fields->isEnabled() && m_task == Task::Enter &&
                          form() != EntryForm::Moved);
    if (m_task == Task::Enter)
        m_submit->setText(isSplit ? tr("Add all") : tr("Add"));
}

void EntryRow::addLine()
{
    const std::optional<workbench::SplitLine> line = m_fields->line();
    const std::optional<workbench::SplitEntry> head = line ? m_fields->splitHead() : std::nullopt;
    if (!head)
        return;
    const accounting::Account *own = m_accounts->find(head->own);
    if (!own || !m_fields->read(&m_fields->amount(),
                                [&] { m_split->add(*line, *m_accounts, own->balance().code()); }))
        return;
    m_message->withdraw();
    m_fields->clearLine();
    followLines();
    m_fields->amount().setFocus(Qt::OtherFocusReason);
}

void EntryRow::takeLine(const workbench::SplitLine &line)
{
    m_fields->amount().setText(line.amount.text);
    m_fields->other().setAccount(line.other);
    m_fields->followCurrency();
    followLines();
    m_fields->amount().setFocus(Qt::OtherFocusReason);
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

QString EntryRow::place(TransactionNumber number) const
{
    const QString account =
        m_shownAccount ? accounting::presentationText(*m_shownAccount) : QStringLiteral("all");
    return QStringLiteral("register/%1/%2").arg(account, accounting::presentationText(number));
}

void EntryRow::perform(QWidget *asker, workbench::Deed deed,
                       const std::function<TransactionNumber()> &work)
{
    TransactionNumber number;
    const bool isDone = m_desk.enter(*m_message, asker, deed, [&] {
        number = work();
        // The deed is kept when this has returned; only now its place is known.
        deed.place = place(number);
    });
    if (isDone)
        settle(number);
}

void EntryRow::enter()
{
    if (m_task == Task::Change)
        change(m_number.value());
    else if (!m_split->lines().empty())
        enterSplit();
    else if (m_fields->isExchange())
        exchange();
    else
        enterOne();
}

void EntryRow::change(TransactionNumber number)
{
    const std::optional<Entry> entry = m_fields->entry();
    workbench::Requests &requests = m_desk.requests();
    workbench::Deed deed;
    if (!entry || !m_fields->read(&m_fields->amount(), [&] {
            deed = workbench::changeDeed(requests, requests.transaction(number));
        }))
        return;
    perform(m_fields->fieldOf(workbench::doubtfulPart(*entry, *m_accounts)), deed, [&] {
        workbench::changeInto(requests, number, *entry);
        return number;
    });
}

void EntryRow::enterOne()
{
    const std::optional<Entry> entry = m_fields->entry();
    workbench::Requests &requests = m_desk.requests();
    workbench::Deed deed;
    if (!entry || !m_fields->read(&m_fields->amount(),
                                  [&] { deed = workbench::enterDeed(requests, *entry); }))
        return;
    perform(m_fields->fieldOf(workbench::doubtfulPart(*entry, *m_accounts)), deed,
            [&] { return workbench::enter(requests, *entry); });
}

void EntryRow::enterSplit()
{
    std::optional<workbench::SplitEntry> entry = m_fields->splitHead();
    if (!entry)
        return;
    entry->lines = m_split->lines();
    if (!m_fields->isLineEmpty()) {
        const std::optional<workbench::SplitLine> last = m_fields->line();
        if (!last)
            return;
        entry->lines.push_back(*last);
    }
    workbench::Requests &requests = m_desk.requests();
    workbench::Deed deed;
    if (!m_fields->read(&m_fields->amount(),
                        [&] { deed = workbench::splitDeed(requests, *entry); }))
        return;
    perform(m_fields->fieldOf(workbench::doubtfulPart(*entry, *m_accounts).first), deed,
            [&] { return workbench::enterSplit(requests, *entry).back(); });
}

void EntryRow::exchange()
{
    const std::optional<workbench::Exchange> given = m_fields->exchange();
    workbench::Requests &requests = m_desk.requests();
    workbench::Deed deed;
    if (!given || !m_fields->read(&m_fields->amount(),
                                  [&] { deed = workbench::exchangeDeed(requests, *given); }))
        return;
    perform(&m_fields->amount(), deed, [&] { return workbench::exchange(requests, *given).given; });
}

void EntryRow::refund()
{
    workbench::Requests &requests = m_desk.requests();
    workbench::Amount amount;
    QDate day;
    workbench::Deed deed;
    const auto readAmount = [&] {
        amount = m_fields->amount().amount();
        deed = workbench::refundDeed(requests, amount, requests.transaction(*m_number));
    };
    if (!m_fields->read(&m_fields->amount(), readAmount) ||
        !m_fields->read(&m_fields->day(), [&] { day = m_fields->day().day(); }))
        return;
    perform(&m_fields->amount(), deed,
            [&] { return workbench::refund(requests, *m_number, amount, day); });
}

void EntryRow::settle(TransactionNumber number)
{
    const bool wasNew = m_task == Task::Enter;
    setTask(Task::Enter, std::nullopt);
    clearFields();
    emit entered(number);
    // The next one is often of the same day. One that was changed is looked at again.
    if (wasNew)
        m_fields->amount().setFocus(Qt::OtherFocusReason);
    else
        emit leaving();
}

} // namespace kiv::desktop
