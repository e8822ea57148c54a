// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/accounts_page.h"

#include "models/account_rows.h"
#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/table.h"

#include "workbench/requests/account_groups.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {

using accounting::AccountNumber;
using navigation::Navigator;

namespace {

const QString newAccount = QStringLiteral("new");

} // namespace

AccountsPage::AccountsPage(Desk &desk)
    : ListPage(desk, QStringLiteral("accounts"), tr("Accounts"), accountColumns(desk.showsTerms())),
      m_day(new DayEdit(this)),
      m_dayMessage(new FieldMessage(this)),
      m_totals(new QLabel(this)),
      m_open(addButton(QStringLiteral("show"), tr("&Show transactions"), [this] { enter(); })),
      m_new(addButton(QStringLiteral("new"), tr("&New account"), [this] { begin({}); })),
      m_change(addButton(QStringLiteral("change"), tr("&Change"), [this] { change(); })),
      m_close(addButton(QStringLiteral("close"), tr("C&lose"), [this] { closeOrOpen(); })),
      m_remove(addButton(QStringLiteral("remove"), tr("&Remove"), [this] { remove(); })),
      m_import(
          addButton(QStringLiteral("import"), tr("&Import a bank file"), [this] { importFile(); })),
      m_form(addForm(QStringLiteral("accountForm"))),
      m_fields(new AccountForm(desk, *m_form))
{
    addAbove(dayRow());
    setTabOrder(m_day, &table());
    m_totals->setTextFormat(Qt::PlainText);
    m_totals->setWordWrap(true);
    m_totals->setObjectName(QStringLiteral("totals"));
    addBelow(m_totals);
    addFormButtons(*m_form, [this] { save(); });
}

QWidget *AccountsPage::dayRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *label = new QLabel(tr("Balances on the &day (may be empty):"), row);
    label->setBuddy(m_day);
    m_day->setObjectName(QStringLiteral("on"));
    layout->addWidget(label);
    layout->addWidget(m_day);
    layout->addWidget(m_dayMessage, 1);
    layout->addStretch();
    m_day->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(m_day, &QLineEdit::editingFinished, this, &AccountsPage::readDay);
    return row;
}

void AccountsPage::forgetFile()
{
    ListPage::forgetFile();
    m_dayMessage->withdraw();
    m_day->clear();
    m_on.reset();
}

void AccountsPage::readDay()
{
    std::optional<QDate> on;
    try {
        if (!m_day->text().isEmpty())
            on = m_day->day();
    } catch (const foundation::Error &error) {
        // Who leaves the field is not held there.
        if (m_day->hasFocus())
            m_dayMessage->complain(m_day, workbench::userText(error));
        return;
    }
    m_dayMessage->withdraw();
    if (std::exchange(m_on, on) == on)
        return;
    refresh();
    desk().say(m_totals->text());
    emit figureChosen();
}

Explain AccountsPage::explanation()
{
    const accounting::Account *one = account();
    if (!one)
        return {};
    return [number = one->code().number(), on = m_on](const workbench::Explainer &explainer) {
        return std::vector{explainer.balance(number, on)};
    };
}

void AccountsPage::goTo(const QString &detail)
{
    closeForm();
    if (detail == newAccount)
        begin({});
    else
        choose(detail);
}

QString AccountsPage::detail() const
{
    return chosen();
}

QStringList AccountsPage::parts() const
{
    return {newAccount};
}

void AccountsPage::refresh()
{
    m_index = std::make_unique<workbench::AccountIndex>(requests().accounts());
    const auto shown = workbench::groupedAccounts(desk().document().present(), m_on);
    m_totals->setText(
        workbench::totalTexts(workbench::totalsOf(shown), requests().displayAs()).join(u'\n'));
    m_totals->setVisible(!m_totals->text().isEmpty());
    showRows(accountRows(desk().document(), shown, desk().showsTerms()),
             tr("There are no accounts yet. They come with banks and with the items of the "
                "budget."));
    // The account that was being changed may be gone.
    const std::optional<AccountNumber> changed = m_fields->changed();
    if (openForm() && changed && !m_index->find(*changed))
        closeForm();
}

const accounting::Account *AccountsPage::account() const
{
    return m_index && !chosen().isEmpty() ? m_index->find(AccountNumber(chosen().toUInt()))
                                          : nullptr;
}

std::optional<QString> AccountsPage::whyNot() const
{
    const accounting::Account *one = account();
    if (!one || desk().showsTerms() || !workbench::isItemAccount(*one))
        return std::nullopt;
    return tr("It belongs to the item “%1” and is changed with it, on the page of items.")
        .arg(workbench::plainNameOf(*one));
}

void AccountsPage::follow()
{
    for (QPushButton *button : {m_new, m_import})
        allow(*button, desk().whyNoChange());
    allow(*m_open, account() ? std::nullopt : std::optional(tr("No line is chosen.")));
    allowForRow({m_change, m_close, m_remove}, whyNot());
    const accounting::Account *one = account();
    m_close->setText(one && one->isClosed() ? tr("&Open again") : tr("C&lose"));
}

void AccountsPage::enter()
{
    if (!chosen().isEmpty())
        desk().goTo({QStringLiteral("register"), chosen()});
}

void AccountsPage::begin(std::optional<AccountNumber> changed)
{
    m_fields->begin(changed);
    open(*m_form, m_fields->firstField());
}

void AccountsPage::change()
{
    if (const accounting::Account *one = account(); one && m_change->isEnabled())
        begin(one->code().number());
}

void AccountsPage::save()
{
    const std::optional<AccountNumber> saved = m_fields->save();
    if (!saved)
        return;
    closeForm();
    choose(keyOf(*saved));
}

void AccountsPage::performOn(const QString &line, const QString &undone,
                             void (Navigator::*slot)(const accounting::AccountCode &))
{
    const accounting::Account *one = account();
    if (!one || !m_remove->isEnabled())
        return;
    const accounting::AccountCode code = one->code();
    const QString name = m_index->plainName(code.number());
    perform({line.arg(name), undone.arg(name), QStringLiteral("accounts/") + chosen()},
            [&] { requests().change(workbench::accountOutcome, slot, code); });
}

void AccountsPage::closeOrOpen()
{
    const accounting::Account *one = account();
    if (one && one->isClosed())
        performOn(tr("Opened “%1” again."), tr("opening “%1”"), &Navigator::onOpened);
    else
        performOn(tr("Closed “%1”."), tr("closing “%1”"), &Navigator::onClosed);
}

void AccountsPage::importFile()
{
    const accounting::Account *one = account();
    desk().importFile(one ? std::optional(one->code().number()) : std::nullopt);
}

void AccountsPage::remove()
{
    performOn(tr("Removed “%1”."), tr("removing “%1”"), &Navigator::onRemovedAct);
}

} // namespace kiv::desktop
