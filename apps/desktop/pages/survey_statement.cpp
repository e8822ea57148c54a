// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_statement.h"

#include "models/account_rows.h"
#include "widgets/account_box.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"
#include "widgets/offer.h"

#include "workbench/requests/account_groups.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::GroupedAccount;
using workbench::SurveySheet;

SurveyStatement::SurveyStatement(Desk &desk, QWidget *parent, Add add, MissingFor missingFor)
    : QWidget(parent),
      m_desk(desk),
      m_add(std::move(add)),
      m_missingFor(std::move(missingFor)),
      m_form(new Form(desk, this)),
      m_account(m_form->add(QStringLiteral("account"), tr("&Account:"), new QComboBox)),
      m_day(m_form->add(QStringLiteral("day"), tr("&Day:"), new DayEdit)),
      m_balance(m_form->add(QStringLiteral("balance"), tr("&Balance:"), new MoneyEdit)),
      m_sign(new QLabel(this)),
      m_told(new QLabel(this)),
      m_import(new QPushButton(tr("Import &what is missing"), this)),
      m_unbooked(new Form(desk, this))
{
    m_form->setHeading(tr("What the bank's statement says:"));
    m_form->addButton(QStringLiteral("compare"), tr("&Compare"), [this] { emit compareWanted(); });
    m_file = m_form->addButton(QStringLiteral("layFile"), tr("Lay a ban&k's file beside …"),
                               [this] { emit fileWanted(); });
    m_told->setObjectName(QStringLiteral("told"));
    m_import->setObjectName(QStringLiteral("importMissing"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_form);
    for (QLabel *label : {m_sign, m_told}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addWidget(m_import, 0, Qt::AlignLeft);
    layout->addSpacing(fontMetrics().lineSpacing() / 2);
    layout->addWidget(m_unbooked);
    layout->addStretch();
    makeUnbooked();
    connect(m_account, &QComboBox::activated, this, &SurveyStatement::accountChosen);
    connect(m_day, &QLineEdit::editingFinished, this, &SurveyStatement::dayTyped);
    connect(m_balance, &QLineEdit::textChanged, this, &SurveyStatement::balanceTyped);
    connect(m_import, &QPushButton::clicked, this, &SurveyStatement::importWanted);
    connect(m_form, &Form::givenUp, this, [this] {
        m_balance->clear();
        m_account->setFocus(Qt::OtherFocusReason);
    });
    tell({}, false);
}

void SurveyStatement::makeUnbooked()
{
    m_unbookedAccount =
        m_unbooked->add(QStringLiteral("unbooked"), tr("&Item or account:"), new AccountBox);
    m_unbookedAmount =
        m_unbooked->add(QStringLiteral("unbookedAmount"), tr("A&mount:"), new MoneyEdit);
    m_unbooked->addButton(QStringLiteral("addUnbooked"), tr("&Put on the list"),
                          [this] { addUnbooked(); });
    connect(m_unbookedAccount, &AccountBox::chosen, this, &SurveyStatement::offerMissing);
    connect(m_unbooked, &Form::givenUp, this, [this] {
        m_unbookedAccount->setAccount(std::nullopt);
        m_unbookedAmount->clear();
        emit givenUp();
    });
}

void SurveyStatement::offerAccounts()
{
    const QVariant chosen = m_account->currentData();
    Offers items;
    std::vector<AccountNumber> others;
    for (const GroupedAccount &one : workbench::groupedAccounts(m_desk.document().present())) {
        const AccountNumber number = one.account.code().number();
        if (one.account.isClosed())
            continue;
        others.push_back(number);
        if (one.bank)
            items.emplace_back(tr("%1 (%2)").arg(one.name, one.bank->institution()),
                               number.integer());
    }
    offer(*m_account, items);
    m_account->setCurrentIndex(std::max(0, m_account->findData(chosen)));
    m_unbookedAccount->offer(
        std::make_shared<const workbench::AccountIndex>(m_desk.requests().accounts()), others);
}

void SurveyStatement::choose(AccountNumber account)
{
    if (const int place = m_account->findData(account.integer()); place >= 0)
        m_account->setCurrentIndex(place);
}

std::optional<AccountNumber> SurveyStatement::account() const
{
    const QVariant number = m_account->currentData();
    return number.isValid() ? std::optional(AccountNumber(number.toUInt())) : std::nullopt;
}

void SurveyStatement::follow(const SurveySheet *sheet, bool hasBalance)
{
    m_sign->setVisible(sheet != nullptr);
    m_isMissing = false;
    if (!sheet)
        return;
    const bool isOwed = sheet->form.isOwed();
    m_sign->setText(isOwed ? tr("What you owe stands without a minus; money that the bank owes you "
                                "has one.")
                           : tr("Money in the account stands without a minus; an overdrawn account "
                                "has one."));
    m_unbooked->setHeading(isOwed ? tr("On the statement, but not booked yet (interest, for "
                                       "example):")
                                  : tr("On the statement, but not booked yet:"));
    m_currency = sheet->form.proposal.expectedBalance().code();
    for (MoneyEdit *field : {m_balance, m_unbookedAmount})
        field->setCurrency(m_currency);
    try {
        m_isMissing = hasBalance && !sheet->figures().difference.isZero();
    } catch (const foundation::Error &) {
        // Without an exchange rate nothing can be offered.
    }
}

void SurveyStatement::tell(const QString &sentences, bool hasFile)
{
    m_told->setText(sentences);
    m_told->setVisible(!sentences.isEmpty());
    m_import->setVisible(hasFile);
}

void SurveyStatement::allowUnbooked(const std::optional<QString> &whyNot)
{
    m_unbooked->allow(whyNot);
}

void SurveyStatement::clear()
{
    m_balance->clear();
    m_unbookedAccount->setAccount(std::nullopt);
    m_unbookedAmount->clear();
    m_form->message().withdraw();
    m_unbooked->message().withdraw();
}

void SurveyStatement::offerMissing()
{
    const auto account = m_unbookedAccount->accountIfAny();
    if (m_isMissing && account && m_unbookedAmount->text().isEmpty())
        m_unbookedAmount->setMoney(m_missingFor(*account));
}

void SurveyStatement::addUnbooked()
{
    offerMissing();
    const auto number = m_unbooked->read(*m_unbookedAccount, [this] {
        return m_unbookedAccount->account(tr("For which item or account?"));
    });
    if (!number)
        return;
    const auto amount = m_unbooked->read(
        *m_unbookedAmount, [this] { return m_unbookedAmount->amount().in(m_currency); });
    if (!amount || !m_unbooked->read(*m_unbookedAccount, [&] { m_add(*number, *amount); }))
        return;
    m_unbooked->message().withdraw();
    m_unbookedAccount->setAccount(std::nullopt);
    m_unbookedAmount->clear();
    m_unbookedAccount->setFocus(Qt::OtherFocusReason);
}

} // namespace kiv::desktop
