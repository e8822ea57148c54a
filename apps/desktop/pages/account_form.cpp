// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/account_form.h"

#include "models/account_rows.h"
#include "widgets/account_box.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"

#include "workbench/document/account_conversion.h"
#include "workbench/requests/account_changes.h"

#include "foundation/clock.h"

#include <QtWidgets/QComboBox>

namespace kiv::desktop {

using accounting::Account;
using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::AccountTypes;
using workbench::Deed;

AccountForm::AccountForm(Desk &desk, Form &form)
    : QObject(&form),
      m_desk(desk),
      m_form(form),
      m_name(new QLineEdit),
      m_kind(new QComboBox),
      m_number(new QLineEdit),
      m_parent(new AccountBox),
      m_opening(new MoneyEdit),
      m_day(new DayEdit)
{
    addFields();
    offerKinds();
}

void AccountForm::addFields()
{
    m_form.add(QStringLiteral("name"), tr("&Name:"), m_name);
    m_form.add(QStringLiteral("kind"), tr("&Kind:"), m_kind);
    m_form.add(QStringLiteral("number"), tr("N&umber (may be empty):"), m_number);
    m_form.add(QStringLiteral("parent"), tr("&Part of (may be empty):"), m_parent);
    m_form.add(QStringLiteral("opening"), tr("Ba&lance at first:"), m_opening);
    m_form.add(QStringLiteral("day"), tr("On the da&y:"), m_day);
}

void AccountForm::offerKinds()
{
    const auto add = [this](const QString &text, AccountTypes type) {
        m_kind->addItem(text, static_cast<int>(type));
    };
    add(tr("spending"), AccountTypes::Expense);
    add(tr("earning"), AccountTypes::Income);
    add(tr("owned"), AccountTypes::Asset);
    add(tr("owed"), AccountTypes::Liability);
    if (m_desk.showsTerms())
        add(accounting::presentationText(AccountTypes::Equity), AccountTypes::Equity);
}

QWidget &AccountForm::firstField() const
{
    return *m_name;
}

void AccountForm::begin(std::optional<AccountNumber> changed)
{
    m_changed = changed;
    m_before = AccountCode();
    const auto index =
        std::make_shared<const workbench::AccountIndex>(m_desk.requests().accounts());
    std::vector<AccountNumber> offered;
    for (const Account &account : index->accounts()) {
        if (!account.isClosed() && account.code().number() != changed)
            offered.push_back(account.code().number());
    }
    m_parent->offer(index, offered);
    m_parent->setAccount(std::nullopt);
    m_name->clear();
    m_kind->setCurrentIndex(0);
    m_number->clear();
    m_opening->clear();
    m_opening->setCurrency(m_desk.requests().preferredCurrency());
    m_day->setDay(foundation::today());
    m_form.setHeading(tr("New account"));
    m_form.setShown(*m_kind, true);
    if (const Account *account = changed ? index->find(*changed) : nullptr)
        show(*account);
    m_form.setShown(*m_number, m_desk.showsTerms());
    m_form.setShown(*m_opening, !changed);
    m_form.setShown(*m_day, !changed);
}

void AccountForm::show(const Account &account)
{
    m_before = account.code();
    m_form.setHeading(tr("Change the account “%1”").arg(m_before.name()));
    m_name->setText(m_before.name());
    m_number->setText(keyOf(m_before.number()));
    m_parent->setAccount(m_before.parent());
    const int kind = m_kind->findData(static_cast<int>(account.type()));
    m_kind->setCurrentIndex(kind);
    m_form.setShown(*m_kind, kind >= 0);
}

std::optional<AccountNumber> AccountForm::number() const
{
    const QString typed = m_number->isHidden() ? QString() : m_number->text().trimmed();
    std::optional<AccountNumber> number;
    if (!typed.isEmpty())
        workbench::readValue(typed, number);
    return number;
}

std::optional<AccountNumber> AccountForm::parent() const
{
    return m_parent->isEmpty() ? std::nullopt : std::optional(m_parent->account({}));
}

std::optional<AccountNumber> AccountForm::save()
{
    const auto name = m_form.read(*m_name, [this] {
        workbench::NewName typed;
        workbench::readValue(m_name->text().trimmed(), typed);
        return typed.text;
    });
    if (!name)
        return std::nullopt;
    const auto chosen = m_form.read(*m_number, [this] { return number(); });
    if (!chosen)
        return std::nullopt;
    const auto under = m_form.read(*m_parent, [this] { return parent(); });
    if (!under)
        return std::nullopt;
    const AccountNumber usual = m_changed ? *m_changed : m_desk.requests().accounts().nextNumber();
    const AccountCode code(chosen->value_or(usual), *name, *under);
    return m_changed ? change(code) : add(code);
}

QWidget &AccountForm::suspect(const AccountCode &code) const
{
    if (code.parent() != m_before.parent())
        return *m_parent;
    if (!m_number->isHidden() && code.number() != m_before.number())
        return *m_number;
    return *m_name;
}

std::optional<AccountNumber> AccountForm::add(const AccountCode &code)
{
    const auto opening = m_form.read(*m_opening, [this] {
        const numira::Currency usual = m_desk.requests().preferredCurrency();
        return m_opening->text().trimmed().isEmpty() ? numira::Money(usual)
                                                     : m_opening->amount().in(usual);
    });
    if (!opening)
        return std::nullopt;
    const auto day = m_form.read(*m_day, [this] { return m_day->day(); });
    if (!day)
        return std::nullopt;
    const Deed deed{tr("Added the account “%1”.").arg(code.name()),
                    tr("adding the account “%1”").arg(code.name()),
                    QStringLiteral("accounts/") + keyOf(code.number())};
    const bool isDone = m_form.perform(suspect(code), deed, [&] {
        const auto type = static_cast<AccountTypes>(m_kind->currentData().toInt());
        workbench::addAccount(m_desk.requests(),
                              {code.name(), type, *opening, code.number(), code.parent(), *day});
    });
    return isDone ? std::optional(code.number()) : std::nullopt;
}

std::optional<AccountNumber> AccountForm::change(const AccountCode &code)
{
    const Deed deed{tr("Changed the account “%1”.").arg(code.name()),
                    tr("changing the account “%1”").arg(code.name()),
                    QStringLiteral("accounts/") + keyOf(code.number())};
    const auto type = static_cast<AccountTypes>(m_kind->currentData().toInt());
    const auto index = m_desk.requests().accounts();
    const bool isConverted = !m_kind->isHidden() && type != index.find(m_before.number())->type();
    QStringList told;
    const bool isDone = m_form.perform(suspect(code), deed, [&] {
        if (code != m_before)
            m_desk.requests().change(workbench::accountOutcome, &navigation::Navigator::onRecoded,
                                     m_before, code);
        m_form.blame(*m_kind);
        if (isConverted) {
            const workbench::Conversion said{code.number(), type};
            told = workbench::toldOf(m_desk.requests(),
                                     workbench::convertAccount(m_desk.document(), said), said);
        }
    });
    if (isDone && isConverted)
        m_desk.say(deed.line + u' ' + told.join(u' '));
    return isDone ? std::optional(code.number()) : std::nullopt;
}

} // namespace kiv::desktop
