// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/banks_page.h"

#include "widgets/allow.h"

#include "workbench/document/bank_steps.h"

#include <QtWidgets/QPushButton>

namespace kiv::desktop {

using navigation::Navigator;
using Task = BankForm::Task;

namespace {

struct FormPlace {
    const char *detail;
    Task task;
};
constexpr std::array<FormPlace, 3> formPlaces{
    {{"new", Task::AddBank}, {"add", Task::AddAccount}, {"assign", Task::AssignAccount}}};

} // namespace

BanksPage::BanksPage(Desk &desk)
    : ListPage(desk, QStringLiteral("banks"), tr("Banks"), bankColumns()),
      m_new(addButton(QStringLiteral("new"), tr("&New bank"), [this] { begin(Task::AddBank); })),
      m_add(addButton(QStringLiteral("add"), tr("&Add an account"),
                      [this] { begin(Task::AddAccount); })),
      m_assign(addButton(QStringLiteral("assign"), tr("Ass&ign an account"),
                         [this] { begin(Task::AssignAccount); })),
      m_change(addButton(QStringLiteral("change"), tr("&Change"), [this] { change(); })),
      m_close(addButton(QStringLiteral("close"), tr("C&lose"), [this] { closeOrOpen(); })),
      m_separate(
          addButton(QStringLiteral("separate"), tr("Separate from &bank"), [this] { separate(); })),
      m_move(addButton(QStringLiteral("move"), tr("&Move to another bank"),
                       [this] { begin(Task::MoveAccount); })),
      m_replace(addButton(QStringLiteral("replace"), tr("Re&place"),
                          [this] { begin(Task::ReplaceAccount); })),
      m_remove(addButton(QStringLiteral("remove"), tr("&Remove"), [this] { remove(); })),
      m_form(addForm(QStringLiteral("bankForm"))),
      m_fields(new BankForm(desk, *m_form))
{
    addFormButtons(*m_form, [this] { save(); });
}

std::optional<BankTarget> BanksPage::target() const
{
    return bankTarget(desk().document(), chosen());
}

void BanksPage::goTo(const QString &detail)
{
    closeForm();
    for (const FormPlace &place : formPlaces) {
        if (detail == QLatin1String(place.detail)) {
            begin(place.task);
            return;
        }
    }
    choose(detail);
}

QString BanksPage::detail() const
{
    return chosen();
}

QStringList BanksPage::parts() const
{
    QStringList parts;
    for (const FormPlace &place : formPlaces)
        parts += QString::fromLatin1(place.detail);
    return parts;
}

void BanksPage::refresh()
{
    showRows(
        bankRows(desk().document()),
        tr("There are no banks yet. A bank keeps your accounts, as its statements show them."));
    // What was being changed may be gone.
    if (openForm() && !m_formRow.isEmpty() && model().place(m_formRow) < 0)
        closeForm();
}

void BanksPage::follow()
{
    allow(*m_new, desk().whyNoChange());
    const std::optional<BankTarget> row = target();
    allowForRow({m_add, m_assign, m_change, m_close, m_remove});
    std::optional<QString> whyNot;
    if (row && !row->account)
        whyNot = tr("This is for an account.");
    allowForRow({m_separate, m_move, m_replace}, whyNot);
    m_close->setText(row && row->isClosed ? tr("&Open again") : tr("C&lose"));
}

void BanksPage::followForm()
{
    m_fields->follow();
}

void BanksPage::begin(Task task)
{
    const bool isNew = task == Task::AddBank;
    m_formRow = isNew ? QString() : chosen();
    m_fields->begin(task, isNew ? std::nullopt : target());
    open(*m_form, m_fields->firstField());
}

void BanksPage::change()
{
    if (const auto row = target(); row && m_change->isEnabled())
        begin(row->account ? Task::ChangeAccount : Task::RenameBank);
}

void BanksPage::save()
{
    const std::optional<QString> key = m_fields->save();
    if (!key)
        return;
    closeForm();
    choose(*key);
}

QString BanksPage::nameOf(const BankTarget &target) const
{
    return target.account ? requests().accounts().plainName(*target.account)
                          : target.bank.institution();
}

void BanksPage::performOn(const BankTarget &target, const QString &line, const QString &undone,
                          const std::function<void()> &work)
{
    const QString name = nameOf(target);
    perform({line.arg(name), undone.arg(name), QStringLiteral("banks/") + chosen()}, work);
}

void BanksPage::closeOrOpen()
{
    const auto row = target();
    if (!row)
        return;
    const auto step = [&] {
        if (!row->account) {
            row->isClosed ? workbench::openBank(requests(), row->bank)
                          : workbench::closeBank(requests(), row->bank);
            return;
        }
        const accounting::AccountCode code = requests().accounts().find(*row->account)->code();
        requests().change(workbench::accountOutcome,
                          row->isClosed ? &Navigator::onOpened : &Navigator::onClosed, code);
    };
    if (row->isClosed)
        performOn(*row, tr("Opened “%1” again."), tr("opening “%1”"), step);
    else
        performOn(*row, tr("Closed “%1”."), tr("closing “%1”"), step);
}

void BanksPage::separate()
{
    const auto row = target();
    if (!row || !row->account)
        return;
    performOn(*row, tr("Separated “%1” from its bank."), tr("separating “%1” from its bank"), [&] {
        workbench::detachBankAccount(requests(), {row->bank, {*row->account, row->kind}});
    });
}

void BanksPage::remove()
{
    const auto row = target();
    if (!row)
        return;
    performOn(*row, tr("Removed “%1”."), tr("removing “%1”"), [&] {
        if (row->account)
            requests().change(workbench::bankAccountOutcome, &Navigator::onRemovedBankAccount,
                              requests().accounts().find(*row->account)->code());
        else
            workbench::removeBank(requests(), row->bank);
    });
}

} // namespace kiv::desktop
