// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_page.h"

#include "models/account_rows.h"
#include "models/due_rows.h"
#include "models/survey_rows.h"
#include "pages/form.h"
#include "widgets/account_box.h"
#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"
#include "widgets/table.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/account_groups.h"

#include "foundation/clock.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::GroupedAccount;
using workbench::SurveyForm;

namespace {

const QString pastPart = QStringLiteral("past");
constexpr int bankRole = Qt::UserRole + 1;
constexpr int pastTab = 1;

} // namespace

SurveyPage::SurveyPage(Desk &desk)
    : Page(desk, QStringLiteral("survey"), tr("Survey")),
      m_tabs(new QTabBar(this)),
      m_parts(new QStackedWidget(this)),
      m_ticks(new TableModel(tickColumns(), this)),
      m_shares(new TableModel(shareColumns(), this)),
      m_past(new TableModel(reconciliationColumns(), this))
{
    auto *statement = new QWidget(m_parts);
    auto *sides = new QHBoxLayout(statement);
    sides->setContentsMargins(0, 0, 0, 0);
    auto *left = new QVBoxLayout;
    left->addWidget(makeStatement());
    left->addStretch();
    sides->addLayout(left);
    sides->addWidget(makeTicks(), 1);
    // The last in the order of keys, and always on the screen.
    m_complete = new QPushButton(tr("C&omplete"), statement);
    m_complete->setObjectName(QStringLiteral("complete"));
    connect(m_complete, &QPushButton::clicked, this, &SurveyPage::complete);
    left->addWidget(m_complete, 0, Qt::AlignLeft);
    m_parts->addWidget(statement);
    m_parts->addWidget(makePast());
    m_tabs->setAccessibleName(tr("Parts of the survey"));
    m_tabs->addTab(tr("Statement"));
    m_tabs->addTab(tr("Past reconciliations"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 0, Qt::AlignLeft);
    layout->addWidget(m_parts, 1);
    connect(m_tabs, &QTabBar::currentChanged, m_parts, &QStackedWidget::setCurrentIndex);
}

QWidget *SurveyPage::makeStatement()
{
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_statement = new Form(desk(), side);
    m_statement->setHeading(tr("What the bank's statement says:"));
    m_account = m_statement->add(QStringLiteral("account"), tr("&Account:"), new QComboBox);
    m_day = m_statement->add(QStringLiteral("day"), tr("&Day:"), new DayEdit);
    m_balance = m_statement->add(QStringLiteral("balance"), tr("&Balance:"), new MoneyEdit);
    m_statement->addButton(QStringLiteral("compare"), tr("&Compare"), [this] { compare(); });
    m_sign = new QLabel(side);
    m_sign->setWordWrap(true);
    m_unbooked = new Form(desk(), side);
    m_unbooked->setHeading(tr("On the statement, but not booked yet:"));
    m_unbookedAccount =
        m_unbooked->add(QStringLiteral("unbooked"), tr("&Item or account:"), new AccountBox);
    m_unbookedAmount =
        m_unbooked->add(QStringLiteral("unbookedAmount"), tr("A&mount:"), new MoneyEdit);
    m_unbooked->addButton(QStringLiteral("addUnbooked"), tr("&Put on the list"),
                          [this] { addUnbooked(); });
    layout->addWidget(m_statement);
    layout->addWidget(m_sign);
    layout->addSpacing(fontMetrics().lineSpacing() / 2);
    layout->addWidget(m_unbooked);
    connect(m_account, &QComboBox::activated, this, [this] {
        forgetTyping();
        refresh();
    });
    connect(m_day, &QLineEdit::editingFinished, this, &SurveyPage::followDay);
    connect(m_balance, &QLineEdit::textChanged, this, &SurveyPage::sayFigures);
    connect(m_statement, &Form::givenUp, this, [this] {
        m_balance->clear();
        m_account->setFocus(Qt::OtherFocusReason);
    });
    connect(m_unbooked, &Form::givenUp, this, [this] {
        m_unbookedAccount->setAccount(std::nullopt);
        m_unbookedAmount->clear();
        m_tickTable->setFocus(Qt::OtherFocusReason);
    });
    return side;
}

QWidget *SurveyPage::makeTicks()
{
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_tickTable = new Table(*m_ticks, tr("Transactions to tick"), side);
    m_tickTable->setObjectName(QStringLiteral("ticks"));
    m_tickTable->installEventFilter(this);
    m_figures = new QLabel(side);
    m_figures->setObjectName(QStringLiteral("figures"));
    m_figures->setTextFormat(Qt::PlainText);
    m_figures->setWordWrap(true);
    m_tickAll = new QPushButton(tr("Tick a&ll"), side);
    m_tickAll->setObjectName(QStringLiteral("tickAll"));
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_figures, 1);
    foot->addWidget(m_tickAll);
    m_notSetAside = new QLabel(side);
    m_notSetAside->setTextFormat(Qt::PlainText);
    m_notSetAside->setWordWrap(true);
    m_shareTable = new Table(*m_shares, tr("What is set aside"), side);
    m_shareTable->setObjectName(QStringLiteral("shares"));
    m_shareTable->fit(4);
    m_shareForm = new Form(desk(), side);
    m_share = m_shareForm->add(QStringLiteral("share"), tr("&Set aside for it:"), new MoneyEdit);
    m_shareForm->addButton(QStringLiteral("setAside"), tr("&Keep this amount"),
                           [this] { setAside(); });
    layout->addWidget(m_tickTable, 1);
    layout->addLayout(foot);
    layout->addWidget(m_notSetAside);
    layout->addWidget(m_shareTable);
    layout->addWidget(m_shareForm);
    connect(m_tickTable, &Table::opened, this, [this](const QString &key) { tick(key, false); });
    connect(m_tickAll, &QPushButton::clicked, this, &SurveyPage::tickAll);
    connect(m_shareTable, &Table::chosenChanged, this, &SurveyPage::followShare);
    connect(m_shareTable, &Table::opened, this, [this] {
        m_share->setFocus(Qt::OtherFocusReason);
        m_share->selectAll();
    });
    connect(m_shareForm, &Form::givenUp, this, [this] {
        followShare();
        m_shareTable->setFocus(Qt::OtherFocusReason);
    });
    return side;
}

QWidget *SurveyPage::makePast()
{
    auto *past = new QWidget(m_parts);
    auto *layout = new QVBoxLayout(past);
    layout->setContentsMargins(0, 0, 0, 0);
    m_pastTable = new Table(*m_past, tr("Past reconciliations"), past);
    m_pastTable->setObjectName(QStringLiteral("past"));
    m_pastState = new QLabel(past);
    m_pastState->setTextFormat(Qt::PlainText);
    m_pastState->setWordWrap(true);
    layout->addWidget(m_pastTable, 1);
    layout->addWidget(m_pastState);
    layout->addStretch();
    connect(m_pastTable, &Table::chosenChanged, this, &SurveyPage::followPast);
    return past;
}

// ---- what is shown -----------------------------------------------------------------

void SurveyPage::goTo(const QString &detail)
{
    if (detail.section(u'/', 0, 0) == pastPart) {
        m_tabs->setCurrentIndex(pastTab);
        m_pastTable->choose(detail.section(u'/', 1));
        return;
    }
    m_tabs->setCurrentIndex(0);
    const int place = m_account->findData(detail.toUInt());
    if (place >= 0 && place != m_account->currentIndex()) {
        m_account->setCurrentIndex(place);
        forgetTyping();
        refresh();
    }
}

QString SurveyPage::detail() const
{
    return m_tabs->currentIndex() == pastTab ? pastPart : m_account->currentData().toString();
}

QStringList SurveyPage::parts() const
{
    return {pastPart};
}

QWidget *SurveyPage::firstFocus()
{
    if (m_tabs->currentIndex() == pastTab)
        return m_past->rows().empty() ? static_cast<QWidget *>(m_tabs) : m_pastTable;
    return m_account;
}

void SurveyPage::refresh()
{
    QFont large = font();
    if (large.pointSizeF() > 0)
        large.setPointSizeF(large.pointSizeF() * 1.5);
    else
        large.setPixelSize(large.pixelSize() * 3 / 2);
    m_figures->setFont(large);
    offerAccounts();
    if (m_day->text().isEmpty())
        m_day->setDay(foundation::today());
    QString trouble;
    try {
        propose();
    } catch (const foundation::Error &error) {
        m_survey.reset();
        trouble = workbench::userText(error);
    }
    showForm();
    if (!trouble.isEmpty())
        m_figures->setText(trouble);
    m_past->setRows(reconciliationRows(desk().document()));
    m_pastTable->setVisible(!m_past->rows().empty());
    m_pastTable->settle();
    followPast();
}

void SurveyPage::offerAccounts()
{
    const QVariant chosen = m_account->currentData();
    const std::vector<GroupedAccount> all = workbench::groupedAccounts(desk().document().present());
    m_account->clear();
    std::vector<AccountNumber> others;
    for (const GroupedAccount &one : all) {
        const AccountNumber number = one.account.code().number();
        if (one.account.isClosed())
            continue;
        others.push_back(number);
        if (!one.bank)
            continue;
        m_account->addItem(tr("%1 (%2)").arg(one.name, one.bank->institution()), number.integer());
        m_account->setItemData(m_account->count() - 1, one.bank->institution(), bankRole);
    }
    m_account->setCurrentIndex(std::max(0, m_account->findData(chosen)));
    m_unbookedAccount->offer(std::make_shared<const workbench::AccountIndex>(requests().accounts()),
                             others);
}

void SurveyPage::propose()
{
    if (m_account->count() == 0) {
        m_survey.reset();
        return;
    }
    SurveyForm form = SurveyForm::propose(requests(), m_account->currentData(bankRole).toString(),
                                          m_account->currentData().toString(), m_day->day());
    form.settleGoals(requests());
    const std::set<accounting::TransactionNumber> all = std::exchange(form.reconciled, {});
    if (m_survey && m_survey->account == form.account) {
        std::ranges::set_intersection(all, m_survey->reconciled,
                                      std::inserter(form.reconciled, form.reconciled.end()));
        form.items = m_survey->items;
        form.extras = m_survey->extras;
    }
    for (const auto &[id, amount] : m_typedShares) {
        if (const auto share = form.distribution.find(id); share != form.distribution.end())
            share->second = amount;
    }
    m_survey = std::move(form);
}

void SurveyPage::followDay()
{
    try {
        if (m_survey && m_day->day() != m_survey->date)
            refresh();
    } catch (const workbench::EntryError &) {
        // It is refused when it is used.
    }
}

void SurveyPage::compare()
{
    const auto isRead = m_statement->read(*m_day, [this] {
        propose();
        return true;
    });
    if (!isRead || !m_survey)
        return;
    m_statement->message().withdraw();
    showForm();
    m_tickTable->setFocus(Qt::OtherFocusReason);
}

void SurveyPage::showForm()
{
    const auto displayAs = requests().displayAs();
    m_ticks->setRows(m_survey ? tickRows(*m_survey, requests()) : std::vector<Row>());
    m_tickTable->settle();
    const bool isShared = m_survey && !m_survey->isOwed();
    m_shares->setRows(isShared ? shareRows(*m_survey, displayAs) : std::vector<Row>());
    m_shareTable->settle();
    m_shareTable->setVisible(isShared);
    m_shareForm->setVisible(isShared);
    m_notSetAside->setVisible(m_survey.has_value());
    m_sign->setVisible(m_survey.has_value());
    if (m_survey) {
        const numira::Currency currency = m_survey->proposal.expectedBalance().code();
        for (MoneyEdit *field : {m_balance, m_unbookedAmount, m_share})
            field->setCurrency(currency);
        m_sign->setText(m_survey->isOwed()
                            ? tr("What you owe stands without a minus; money that the bank owes "
                                 "you has one.")
                            : tr("Money in the account stands without a minus; an overdrawn "
                                 "account has one."));
    }
    followShare();
    sayFigures();
    allowAll();
}

void SurveyPage::sayFigures()
{
    if (m_account->count() == 0) {
        m_figures->setText(tr("There is no account at a bank to reconcile."));
        return;
    }
    if (!m_survey)
        return;
    const auto displayAs = requests().displayAs();
    try {
        m_survey->balance = m_balance->amount().in(m_survey->proposal.expectedBalance().code());
        m_figures->setText(tickSummary(*m_survey, displayAs));
    } catch (const workbench::EntryError &) {
        m_survey->balance = m_survey->proposal.expectedBalance();
        m_figures->setText(tr("%n ticked", nullptr, static_cast<int>(m_survey->reconciled.size())));
    }
    if (m_survey->isOwed()) {
        m_notSetAside->setText(tr("Nothing is set aside of what is owed."));
        return;
    }
    try {
        m_notSetAside->setText(tr("Set aside from it for items; %1 is left:")
                                   .arg(workbench::amountText(m_survey->left(), displayAs)));
    } catch (const foundation::Error &error) {
        m_notSetAside->setText(workbench::userText(error));
    }
}

void SurveyPage::allowAll()
{
    std::optional<QString> whyNot;
    if (!m_survey)
        whyNot = m_account->count() == 0 ? tr("There is no account at a bank to reconcile.")
                                         : m_figures->text();
    allow(*m_tickAll, whyNot);
    m_unbooked->allow(whyNot);
    if (!whyNot)
        whyNot = desk().whyNoChange();
    allow(*m_complete, whyNot);
}

void SurveyPage::followPast()
{
    const std::vector<workbench::JudgedReconciliation> all = desk().document().reconciliations();
    const QString key = m_pastTable->chosen().value(0);
    if (all.empty())
        m_pastState->setText(tr("No account was reconciled yet."));
    else if (const auto place = key.toULongLong(); !key.isEmpty() && place < all.size())
        m_pastState->setText(all[place].fault ? desk().document().sentence(all[place])
                                              : tr("Its transactions are as they were then."));
}

// ---- what is done ------------------------------------------------------------------

bool SurveyPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tickTable && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        tick(m_tickTable->chosen().value(0), true);
        return true;
    }
    return Page::eventFilter(watched, event);
}

void SurveyPage::tick(const QString &key, bool goesDown)
{
    if (!m_survey || key.isEmpty())
        return;
    const int place = m_ticks->place(key);
    const TickTarget target = tickTarget(*m_survey, key);
    if (target.item)
        m_survey->items.erase(*target.item);
    else if (target.account)
        m_survey->extras.erase(*target.account);
    else if (target.transaction && m_survey->reconciled.erase(*target.transaction) == 0)
        m_survey->reconciled.insert(*target.transaction);
    m_ticks->setRows(tickRows(*m_survey, requests()));
    m_tickTable->settle();
    if (goesDown && m_ticks->place(key) == place && place + 1 < m_ticks->rowCount())
        m_tickTable->choose(m_ticks->key(m_ticks->index(place + 1, 0)));
    sayFigures();
    desk().say(m_figures->text());
}

void SurveyPage::tickAll()
{
    for (const accounting::Transaction &transaction : m_survey->transactions())
        m_survey->reconciled.insert(transaction.number().value());
    showForm();
    desk().say(m_figures->text());
}

void SurveyPage::addUnbooked()
{
    const auto number = m_unbooked->read(*m_unbookedAccount, [this] {
        return m_unbookedAccount->account(tr("For which item or account?"));
    });
    if (!number)
        return;
    const auto amount = m_unbooked->read(*m_unbookedAmount, [this] {
        return m_unbookedAmount->amount().in(m_survey->proposal.expectedBalance().code());
    });
    if (!amount)
        return;
    const std::vector<GroupedAccount> all = workbench::groupedAccounts(desk().document().present());
    const auto found = std::ranges::find(
        all, *number, [](const GroupedAccount &one) { return one.account.code().number(); });
    if (found != all.end() && found->item)
        m_survey->items.insert_or_assign(*found->item, *amount);
    else
        m_survey->extras.insert_or_assign(*number, *amount);
    m_unbooked->message().withdraw();
    m_unbookedAccount->setAccount(std::nullopt);
    m_unbookedAmount->clear();
    showForm();
    desk().say(m_figures->text());
    m_unbookedAccount->setFocus(Qt::OtherFocusReason);
}

void SurveyPage::followShare()
{
    const QString key = m_shareTable->chosen().value(0);
    std::optional<QString> whyNot = tr("No item is chosen.");
    m_share->clear();
    if (m_survey) {
        for (const auto &[id, share] : m_survey->distribution) {
            if (keyOf(id) != key)
                continue;
            m_share->setMoney(share.distributed());
            whyNot.reset();
            if (id.type == budgeting::BudgetItemTypes::Goal)
                whyNot = tr("For a goal, what was moved to its account is set aside.");
        }
    }
    m_shareForm->allow(whyNot);
}

void SurveyPage::setAside()
{
    const QString key = m_shareTable->chosen().value(0);
    const auto amount = m_shareForm->read(*m_share, [this] {
        return m_share->amount().in(m_survey->proposal.expectedBalance().code());
    });
    if (!amount)
        return;
    for (auto &[id, share] : m_survey->distribution) {
        if (keyOf(id) != key)
            continue;
        share = *amount;
        m_typedShares[id] = *amount;
    }
    m_shareForm->message().withdraw();
    showForm();
    desk().say(m_notSetAside->text());
    m_shareTable->setFocus(Qt::OtherFocusReason);
}

void SurveyPage::complete()
{
    const auto balance = m_statement->read(*m_balance, [this] {
        return m_balance->amount().in(m_survey->proposal.expectedBalance().code());
    });
    const auto isRead = balance ? m_statement->read(*m_day,
                                                    [this] {
                                                        propose();
                                                        return true;
                                                    })
                                : std::nullopt;
    if (!isRead || !m_survey)
        return;
    SurveyForm form = *m_survey;
    form.balance = *balance;
    workbench::Deed deed = form.deed(requests());
    deed.place = Place{id(), keyOf(form.account.account.number)}.text();
    const bool isDone = m_statement->perform(*m_balance, deed, [&] {
        form.nonDistributed = form.left();
        form.complete(requests());
    });
    if (!isDone)
        return;
    forgetTyping();
    refresh();
    m_tabs->setCurrentIndex(pastTab);
    m_pastTable->choose(m_past->key(m_past->index(0, 0)));
    m_pastTable->setFocus(Qt::OtherFocusReason);
}

void SurveyPage::forgetTyping()
{
    m_survey.reset();
    m_typedShares.clear();
    m_balance->clear();
    m_unbookedAccount->setAccount(std::nullopt);
    m_unbookedAmount->clear();
    m_statement->message().withdraw();
}

} // namespace kiv::desktop
