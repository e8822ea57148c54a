// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/bank_form.h"

#include "widgets/account_box.h"
#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"

#include "workbench/document/bank_moves.h"
#include "workbench/document/bank_steps.h"

#include "foundation/clock.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>

namespace kiv::desktop {

using accounting::AccountCode;
using accounting::AccountNumber;
using banking::BankAccountTypes;
using banking::BankName;
using navigation::Navigator;
using workbench::Deed;

BankForm::BankForm(Desk &desk, Form &form)
    : QObject(&form),
      m_desk(desk),
      m_form(form),
      m_name(new QLineEdit),
      m_account(new AccountBox),
      m_bank(new QComboBox),
      m_kind(new QComboBox),
      m_opening(new MoneyEdit),
      m_day(new DayEdit),
      m_keepOpen(new QCheckBox)
{
    addFields();
}

void BankForm::addFields()
{
    m_form.add(QStringLiteral("name"), tr("&Name:"), m_name);
    m_form.add(QStringLiteral("account"), tr("&Account:"), m_account);
    m_form.add(QStringLiteral("bank"), tr("&Bank:"), m_bank);
    m_form.add(QStringLiteral("kind"), tr("&Kind:"), m_kind);
    m_form.add(QStringLiteral("opening"), tr("Ba&lance at first:"), m_opening);
    m_form.add(QStringLiteral("day"), tr("On the da&y:"), m_day);
    m_form.add(QStringLiteral("keepOpen"), tr("It stays &open:"), m_keepOpen);
    for (QComboBox *box : {m_bank, m_kind}) {
        box->setMinimumContentsLength(8); // a long name makes the form no wider
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
}

QWidget &BankForm::firstField() const
{
    if (m_task == Task::AssignAccount || m_task == Task::ReplaceAccount)
        return *m_account;
    if (m_task == Task::MoveAccount)
        return *m_bank;
    if (m_task == Task::ChangeAccount && isOfItem())
        return *m_kind;
    return *m_name;
}

void BankForm::begin(Task task, const std::optional<BankTarget> &target)
{
    m_task = task;
    m_target = target;
    const bool isAccount = target && target->account;
    m_name->clear();
    if (task == Task::RenameBank && target)
        m_name->setText(target->bank.institution());
    if (task == Task::ChangeAccount && isAccount)
        m_name->setText(m_desk.requests().accounts().plainName(*target->account));
    m_opening->clear();
    m_opening->setCurrency(m_desk.requests().preferredCurrency());
    m_day->setDay(foundation::today());
    m_keepOpen->setChecked(false);
    offerBanks();
    offerKinds();
    offerAccounts();
    showTask();
}

void BankForm::showTask()
{
    const auto is = [this](std::initializer_list<Task> tasks) {
        return std::ranges::find(tasks, m_task) != tasks.end();
    };
    m_form.setShown(*m_name, !is({Task::AssignAccount, Task::MoveAccount, Task::ReplaceAccount}));
    m_form.setShown(*m_account, is({Task::AssignAccount, Task::ReplaceAccount}));
    m_form.setShown(*m_bank, is({Task::AddAccount, Task::AssignAccount, Task::MoveAccount}));
    m_form.setShown(*m_kind, is({Task::AddAccount, Task::AssignAccount, Task::ChangeAccount}));
    m_form.setShown(*m_opening, is({Task::AddAccount}));
    m_form.setShown(*m_day, is({Task::AddAccount, Task::ReplaceAccount}));
    m_form.setShown(*m_keepOpen, is({Task::ReplaceAccount}));
    switch (m_task) {
    case Task::AddBank:
        return m_form.setHeading(tr("New bank"));
    case Task::RenameBank:
        return m_form.setHeading(tr("Another name for the bank"));
    case Task::AddAccount:
        return m_form.setHeading(tr("New account at a bank"));
    case Task::AssignAccount:
        return m_form.setHeading(tr("An account that is already here belongs to a bank"));
    case Task::ChangeAccount:
        return m_form.setHeading(tr("Name and kind of the account"));
    case Task::MoveAccount:
        return m_form.setHeading(tr("Another bank keeps “%1” from now on").arg(nameOfTarget()));
    case Task::ReplaceAccount:
        return m_form.setHeading(
            tr("Another account takes the money of “%1”, its goals, and what is set aside there")
                .arg(nameOfTarget()));
    }
}

QString BankForm::nameOfTarget() const
{
    return m_target && m_target->account
               ? m_desk.requests().accounts().plainName(*m_target->account)
               : QString();
}

void BankForm::follow()
{
    std::optional<QString> whyNot = m_desk.whyNoChange();
    if (!whyNot && m_task == Task::ChangeAccount && isOfItem())
        whyNot = tr("This account has the name of its item.");
    allow(*m_name, whyNot);
}

bool BankForm::isOfItem() const
{
    if (!m_target || !m_target->account)
        return false;
    const workbench::AccountIndex index = m_desk.requests().accounts();
    const accounting::Account *account = index.find(*m_target->account);
    return account && workbench::isItemAccount(*account);
}

void BankForm::offerBanks()
{
    m_bank->clear();
    for (const auto &[name, bank] : m_desk.requests().banks()) {
        const bool isOwn = m_target && name == m_target->bank;
        if (!bank.isClosed() && !(m_task == Task::MoveAccount && isOwn))
            m_bank->addItem(name.institution());
    }
    if (m_target)
        m_bank->setCurrentIndex(std::max(0, m_bank->findText(m_target->bank.institution())));
}

void BankForm::offerKinds()
{
    m_kind->clear();
    constexpr int last = static_cast<int>(BankAccountTypes::Cash);
    for (int value = static_cast<int>(BankAccountTypes::Checking); value <= last; ++value) {
        const auto kind = static_cast<BankAccountTypes>(value);
        // The account of a goal comes with the goal.
        if (m_task != Task::AddAccount || kind != BankAccountTypes::GoalSubAccount)
            m_kind->addItem(banking::presentationText(kind), value);
    }
    if (m_target && m_target->account)
        m_kind->setCurrentIndex(std::max(0, m_kind->findData(static_cast<int>(m_target->kind))));
}

void BankForm::offerAccounts()
{
    const auto index =
        std::make_shared<const workbench::AccountIndex>(m_desk.requests().accounts());
    const banking::BankMap banks = m_desk.requests().banks();
    std::vector<AccountNumber> offered;
    for (const accounting::Account &account : index->accounts()) {
        const AccountNumber number = account.code().number();
        const bool isWanted = m_task == Task::ReplaceAccount
                                  ? banks.find(number) && !account.isClosed() &&
                                        !workbench::isItemAccount(account) &&
                                        number != m_target->account
                                  : !banks.find(number);
        if (workbench::keepsMoney(account) && isWanted)
            offered.push_back(number);
    }
    m_account->offer(index, offered);
    m_account->setAccount(std::nullopt);
}

std::optional<BankName> BankForm::bank()
{
    return m_form.read(*m_bank,
                       [this] { return m_desk.requests().bank(m_bank->currentText()).name(); });
}

BankAccountTypes BankForm::kind() const
{
    return static_cast<BankAccountTypes>(m_kind->currentData().toInt());
}

std::optional<QString> BankForm::name()
{
    return m_form.read(*m_name, [this] {
        workbench::NewName name;
        workbench::readValue(m_name->text().trimmed(), name);
        return name.text;
    });
}

std::optional<QString> BankForm::save()
{
    switch (m_task) {
    case Task::AddBank:
    case Task::RenameBank:
        return saveBank();
    case Task::AddAccount:
        return addAccount();
    case Task::AssignAccount:
        return assignAccount();
    case Task::ChangeAccount:
        return changeAccount();
    case Task::MoveAccount:
        return moveAccount();
    case Task::ReplaceAccount:
        return replaceAccount();
    }
    return std::nullopt;
}

std::optional<QString> BankForm::saveBank()
{
    const std::optional<QString> typed = name();
    if (!typed)
        return std::nullopt;
    const BankName made(*typed);
    Deed deed{tr("Added the bank “%1”.").arg(*typed), tr("adding the bank “%1”").arg(*typed),
              QStringLiteral("banks/") + keyOf(made)};
    if (m_target) {
        const QString before = m_target->bank.institution();
        deed.line = tr("The bank “%1” is now called “%2”.").arg(before, *typed);
        deed.undone = tr("renaming “%1” to “%2”").arg(before, *typed);
    }
    const bool isDone = m_form.perform(*m_name, deed, [&] {
        if (m_target)
            workbench::renameBank(m_desk.requests(), m_target->bank, made);
        else
            workbench::addBank(m_desk.requests(), made);
    });
    return isDone ? std::optional(keyOf(made)) : std::nullopt;
}

std::optional<QString> BankForm::addAccount()
{
    const std::optional<QString> typed = name();
    if (!typed)
        return std::nullopt;
    const auto opening = m_form.read(*m_opening, [this] {
        const numira::Currency usual = m_desk.requests().preferredCurrency();
        return m_opening->text().trimmed().isEmpty() ? numira::Money(usual)
                                                     : m_opening->amount().in(usual);
    });
    if (!opening)
        return std::nullopt;
    const auto day = m_form.read(*m_day, [this] { return m_day->day(); });
    const std::optional<BankName> keeper = bank();
    if (!day || !keeper)
        return std::nullopt;
    AccountNumber added;
    const Deed deed{tr("Added the account “%1” at “%2”.").arg(*typed, keeper->institution()),
                    tr("adding the account “%1”").arg(*typed), QStringLiteral("banks")};
    const bool isDone = m_form.perform(*m_name, deed, [&] {
        added =
            workbench::addBankAccount(m_desk.document(), {*typed, *keeper, kind(), *opening, *day});
    });
    return isDone ? std::optional(bankKeyOf(added)) : std::nullopt;
}

std::optional<QString> BankForm::assignAccount()
{
    const auto account =
        m_form.read(*m_account, [this] { return m_account->account(tr("Choose an account.")); });
    const std::optional<BankName> keeper = account ? bank() : std::nullopt;
    if (!keeper)
        return std::nullopt;
    const QString typed = m_account->currentText();
    const Deed deed{tr("“%1” belongs to the bank “%2”.").arg(typed, keeper->institution()),
                    tr("assigning “%1” to “%2”").arg(typed, keeper->institution()),
                    QStringLiteral("banks/") + bankKeyOf(*account)};
    const bool isDone = m_form.perform(*m_kind, deed, [&] {
        workbench::attachBankAccount(m_desk.document(), *keeper, *account, kind());
    });
    return isDone ? std::optional(bankKeyOf(*account)) : std::nullopt;
}

std::optional<QString> BankForm::changeAccount()
{
    const std::optional<QString> typed = name();
    if (!typed || !m_target || !m_target->account)
        return std::nullopt;
    const workbench::AccountIndex index = m_desk.requests().accounts();
    const QString before = index.plainName(*m_target->account);
    const bool isRenamed = *typed != before;
    const QString key = bankKeyOf(*m_target->account);
    Deed deed{tr("Changed the account “%1”.").arg(*typed),
              tr("changing the account “%1”").arg(*typed), QStringLiteral("banks/") + key};
    const bool isDone = m_form.perform(*m_name, deed, [&] {
        if (isRenamed) {
            const AccountCode from = index.find(*m_target->account)->code();
            m_desk.requests().change(workbench::bankAccountOutcome,
                                     &Navigator::onRenamedBankAccount, from,
                                     AccountCode(from.number(), *typed, from.parent()));
        }
        m_form.blame(*m_kind);
        if (kind() != m_target->kind)
            workbench::attachBankAccount(m_desk.document(), m_target->bank, *m_target->account,
                                         kind());
    });
    return isDone ? std::optional(key) : std::nullopt;
}

std::optional<QString> BankForm::moveAccount()
{
    const std::optional<BankName> to = bank();
    if (!to || !m_target || !m_target->account)
        return std::nullopt;
    const AccountNumber account = *m_target->account;
    Deed deed = workbench::moveDeed(m_desk.requests(), account, *to);
    deed.place = QStringLiteral("banks/") + bankKeyOf(account);
    const bool isDone = m_form.perform(
        *m_bank, deed, [&] { workbench::moveBankAccount(m_desk.document(), account, *to); });
    return isDone ? std::optional(bankKeyOf(account)) : std::nullopt;
}

std::optional<QString> BankForm::replaceAccount()
{
    const auto by =
        m_form.read(*m_account, [this] { return m_account->account(tr("Choose an account.")); });
    const auto day = m_form.read(*m_day, [this] { return m_day->day(); });
    if (!by || !day || !m_target || !m_target->account)
        return std::nullopt;
    workbench::Requests &requests = m_desk.requests();
    const workbench::Replacement said{*m_target->account, *by, *day, m_keepOpen->isChecked()};
    Deed deed = workbench::replaceDeed(requests, said);
    deed.place = QStringLiteral("banks/") + bankKeyOf(*by);
    workbench::Replaced done;
    if (!m_form.perform(*m_account, deed,
                        [&] { done = workbench::replaceBankAccount(m_desk.document(), said); }))
        return std::nullopt;
    m_desk.say(deed.line + u' ' + workbench::toldOf(requests, done, said).join(u' '));
    return bankKeyOf(*by);
}

} // namespace kiv::desktop
