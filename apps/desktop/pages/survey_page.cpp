// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_page.h"

#include "models/account_rows.h"
#include "models/survey_rows.h"
#include "pages/past_surveys.h"
#include "pages/survey_drops.h"
#include "pages/survey_foot.h"
#include "pages/survey_shares.h"
#include "pages/survey_statement.h"
#include "pages/survey_ticks.h"
#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"

#include "foundation/clock.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::SurveySheet;

namespace {

const QString asidePart = QStringLiteral("aside");
const QString pastPart = QStringLiteral("past");
constexpr int statementTab = 0;
constexpr int asideTab = 1;
constexpr int pastTab = 2;

} // namespace

SurveyPage::SurveyPage(Desk &desk)
    : Page(desk, QStringLiteral("survey"), tr("Survey")),
      m_drafts(desk.document()),
      m_drops(new SurveyDrops(desk, this)),
      m_tabs(new QTabBar(this)),
      m_parts(new QStackedWidget(this)),
      m_statement(new SurveyStatement(
          desk, this,
          [this](AccountNumber account, const numira::Money &change) {
              draft()->sheet.addUnbooked(account, change);
              follow();
          },
          [this](AccountNumber account) { return draft()->sheet.missingFor(account); })),
      m_ticks(new SurveyTicks(desk, this)),
      m_shares(new SurveyShares(desk, this)),
      m_foot(new SurveyFoot(desk, this)),
      m_past(new PastSurveys(desk, this))
{
    auto *statement = new QWidget(m_parts);
    auto *sides = new QHBoxLayout(statement);
    sides->setContentsMargins({});
    sides->addWidget(m_statement);
    sides->addWidget(m_ticks, 1);
    for (QWidget *part :
         {statement, static_cast<QWidget *>(m_shares), static_cast<QWidget *>(m_past)})
        m_parts->addWidget(part);
    m_tabs->setAccessibleName(tr("Parts of the survey"));
    for (const QString &title :
         {tr("&1 Statement"), tr("&2 Set aside"), tr("&3 Past reconciliations")})
        m_tabs->addTab(title);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_drops);
    layout->addWidget(m_tabs, 0, Qt::AlignLeft);
    layout->addWidget(m_parts, 1);
    layout->addWidget(m_foot);
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
        m_parts->setCurrentIndex(tab);
        m_foot->setVisible(tab != pastTab);
    });
    connectParts();
}

void SurveyPage::connectParts()
{
    connect(m_statement, &SurveyStatement::accountChosen, this, &SurveyPage::showAll);
    connect(m_statement, &SurveyStatement::dayTyped, this, [this] {
        const SurveyDraft *known = draft();
        try {
            if (!known || m_statement->dayField().day() != known->sheet.form.date)
                showAll();
        } catch (const workbench::EntryError &) {
            // It is refused when it is used.
        }
    });
    connect(m_statement, &SurveyStatement::balanceTyped, this, [this] {
        SurveyDraft *known = draft();
        const QString typed = m_statement->balanceField().text();
        if (!known || known->balance == typed)
            return;
        known->balance = typed;
        known->isTouched = true;
        showFigures();
    });
    connect(m_statement, &SurveyStatement::compareWanted, this, &SurveyPage::compare);
    connect(m_statement, &SurveyStatement::fileWanted, this, &SurveyPage::layFile);
    connect(m_statement, &SurveyStatement::givenUp, this,
            [this] { m_ticks->table().setFocus(Qt::OtherFocusReason); });
    connect(m_statement, &SurveyStatement::importWanted, this, [this] {
        if (const SurveyDraft *known = draft())
            desk().importFile(m_statement->account(), known->file.file);
    });
    connect(m_ticks, &SurveyTicks::ticked, this, [this](const QString &key) {
        if (SurveyDraft *known = draft()) {
            turnTick(known->sheet.form, key);
            follow();
        }
    });
    connect(m_ticks, &SurveyTicks::tickAllWanted, this, [this] {
        workbench::SurveyForm &form = draft()->sheet.form;
        for (const accounting::Transaction &one : form.transactions())
            form.reconciled.insert(one.number().value());
        follow();
    });
    connect(m_shares, &SurveyShares::typed, this,
            [this](const budgeting::BudgetItemIdentifier &item,
                   const std::optional<numira::Money> &amount) {
                auto &typed = draft()->sheet.typed;
                typed.erase(item);
                if (amount)
                    typed.emplace(item, *amount);
                follow();
            });
    connect(m_shares, &SurveyShares::asProposedChosen, this, [this](bool isAsProposed) {
        draft()->sheet.isAsProposed = isAsProposed;
        follow();
    });
    connect(m_foot, &SurveyFoot::completeWanted, this, &SurveyPage::complete);
    connect(m_foot, &SurveyFoot::putOffWanted, this, &SurveyPage::putOff);
    connect(m_foot, &SurveyFoot::beginAnewWanted, this, &SurveyPage::beginAnew);
}

// ---- what is shown -----------------------------------------------------------------

void SurveyPage::goTo(const QString &detail)
{
    const QString part = detail.section(u'/', 0, 0);
    if (part == pastPart) {
        m_tabs->setCurrentIndex(pastTab);
        m_past->choose(detail.section(u'/', 1));
    } else if (part == asidePart) {
        m_tabs->setCurrentIndex(asideTab);
    } else {
        m_tabs->setCurrentIndex(statementTab);
        m_statement->choose(AccountNumber(detail.toUInt()));
        if (m_statement->account() != m_shown)
            showAll();
    }
}

QString SurveyPage::detail() const
{
    switch (m_tabs->currentIndex()) {
    case pastTab:
        return pastPart;
    case asideTab:
        return asidePart;
    default:
        return m_statement->account() ? keyOf(*m_statement->account()) : QString();
    }
}

QStringList SurveyPage::parts() const
{
    return {asidePart, pastPart};
}

QWidget *SurveyPage::firstFocus()
{
    QWidget *first = &m_statement->accountField();
    if (m_tabs->currentIndex() == asideTab)
        first = m_shares->firstFocus();
    else if (m_tabs->currentIndex() == pastTab)
        first = m_past->firstFocus();
    return first ? first : m_tabs;
}

void SurveyPage::forgetFile()
{
    m_drafts.forgetAll();
    m_shown.reset();
}

void SurveyPage::refresh()
{
    m_statement->offerAccounts();
    if (m_statement->dayField().text().isEmpty())
        m_statement->dayField().setDay(foundation::today());
    m_drops->refresh();
    m_past->refresh();
    showAll();
}

void SurveyPage::showAll()
{
    m_trouble.clear();
    if (!m_statement->account())
        m_trouble = tr("There is no account at a bank to reconcile.");
    try {
        renew();
    } catch (const foundation::Error &error) {
        m_trouble = workbench::userText(error);
    }
    showParts();
}

void SurveyPage::showParts()
{
    const SurveyDraft *known = m_trouble.isEmpty() ? draft() : nullptr;
    m_ticks->follow(known ? &known->sheet : nullptr);
    const bool hasMissing = known && !known->lacking.isEmpty();
    QStringList told = known ? known->notices : QStringList();
    if (hasMissing)
        told += known->lacking;
    m_statement->tell(told.join(u'\n'), hasMissing);
    showFigures();
    allowAll();
}

void SurveyPage::showFigures()
{
    SurveyDraft *known = m_trouble.isEmpty() ? draft() : nullptr;
    const bool hasBalance = known && takeBalance(*known);
    const SurveySheet *sheet = known ? &known->sheet : nullptr;
    m_statement->follow(sheet, hasBalance);
    m_shares->follow(sheet);
    if (known)
        m_foot->follow(*sheet, hasBalance);
    else
        m_foot->tell(m_trouble);
}

Explain SurveyPage::explanation()
{
    const std::optional<accounting::AccountNumber> account = m_statement->account();
    const SurveyDraft *const known = account ? draft() : nullptr;
    if (!known)
        return {};
    return [number = *account,
            balance = known->sheet.form.balance](const workbench::Explainer &explainer) {
        return std::vector{explainer.tolerance(number, balance)};
    };
}

void SurveyPage::follow()
{
    draft()->isTouched = true;
    showParts();
    m_foot->say();
}

void SurveyPage::allowAll()
{
    std::optional<QString> whyNot;
    if (!m_trouble.isEmpty())
        whyNot = m_trouble;
    const std::optional<AccountNumber> account = m_statement->account();
    allow(m_statement->fileButton(), account ? std::nullopt : whyNot);
    m_ticks->allow(whyNot);
    m_statement->allowUnbooked(whyNot);
    const auto notes = workbench::SurveyNotes::of(desk().document().notes());
    m_foot->allow(whyNot ? whyNot : desk().whyNoChange(),
                  account && notes.putOff.contains(*account));
}

// ---- the draft ---------------------------------------------------------------------

SurveyDraft *SurveyPage::draft()
{
    const std::optional<AccountNumber> account = m_statement->account();
    return account ? m_drafts.of(*account) : nullptr;
}

void SurveyPage::bringFields(AccountNumber account)
{
    const QSignalBlocker blocker(m_statement);
    m_shown = account;
    m_statement->clear();
    if (const SurveyDraft *known = draft()) {
        m_statement->dayField().setDay(known->sheet.form.date);
        m_statement->balanceField().setText(known->balance);
    }
}

void SurveyPage::renew()
{
    const std::optional<AccountNumber> account = m_statement->account();
    if (!account)
        return;
    if (m_shown != account)
        bringFields(*account);
    if (!m_drafts.renew(*account, [this] { return m_statement->dayField().day(); }))
        return;
    bringFields(*account);
    desk().say(draft()->notices.join(u' '));
}

bool SurveyPage::takeBalance(SurveyDraft &draft) const
{
    try {
        draft.sheet.form.balance = m_statement->balanceField().amount().in(draft.expected.code());
        return true;
    } catch (const foundation::Error &) {
        draft.sheet.form.balance = draft.expected;
        return false;
    }
}

// ---- what is done ------------------------------------------------------------------

workbench::Deed SurveyPage::placed(workbench::Deed deed) const
{
    deed.place = Place{id(), keyOf(m_statement->account().value())}.text();
    return deed;
}

void SurveyPage::complain(QWidget &field, const foundation::Error &error)
{
    m_tabs->setCurrentIndex(statementTab);
    m_statement->form().message().complain(&field, workbench::userText(error));
}

bool SurveyPage::isRenewed()
{
    try {
        renew();
    } catch (const foundation::Error &error) {
        complain(m_statement->dayField(), error);
        return false;
    }
    m_statement->form().message().withdraw();
    return true;
}

bool SurveyPage::readStatement()
{
    try {
        (void)m_statement->balanceField().amount().in(draft()->expected.code());
    } catch (const foundation::Error &error) {
        complain(m_statement->balanceField(), error);
        return false;
    }
    return isRenewed() && takeBalance(*draft());
}

void SurveyPage::compare()
{
    if (!isRenewed())
        return;
    showAll();
    m_ticks->table().setFocus(Qt::OtherFocusReason);
}

void SurveyPage::layFile()
{
    const QString path = desk().questions().fileToImport(this);
    if (path.isEmpty())
        return;
    const AccountNumber number = m_statement->account().value();
    if (!m_statement->form().read(m_statement->fileButton(),
                                  [&] { m_drafts.layFile(number, path); }))
        return;
    bringFields(number);
    showAll();
    m_foot->say();
    m_ticks->table().setFocus(Qt::OtherFocusReason);
}

void SurveyPage::complete()
{
    m_foot->message().withdraw();
    if (!readStatement())
        return;
    const SurveySheet sheet = draft()->sheet;
    const workbench::Deed deed = placed(sheet.form.deed(requests()));
    const auto work = [&] { workbench::complete(desk().document(), sheet, m_foot->hasConsent()); };
    bool isDone = false;
    if (m_foot->isAccepted()) {
        isDone = desk().perform(m_foot->message(), &m_foot->fieldAtFault(), deed, work);
    } else {
        m_tabs->setCurrentIndex(statementTab);
        isDone = m_statement->form().perform(m_statement->balanceField(), deed, work);
    }
    if (!isDone)
        return;
    m_drafts.forget(sheet.form.account.account.number);
    m_shown.reset();
    refresh();
    goTo(pastPart);
    firstFocus()->setFocus(Qt::OtherFocusReason);
}

void SurveyPage::putOff()
{
    m_foot->message().withdraw();
    if (!isRenewed())
        return;
    const bool hasBalance = takeBalance(*draft());
    const SurveySheet sheet = draft()->sheet;
    desk().perform(m_foot->message(), &m_foot->putOffButton(),
                   placed(putOffDeed(requests(), sheet)),
                   [&] { workbench::putOff(desk().document(), sheet, hasBalance); });
}

void SurveyPage::beginAnew()
{
    const AccountNumber account = m_statement->account().value();
    const QString name = requests().accounts().plainName(account);
    const bool isDone =
        desk().perform(m_foot->message(), &m_foot->putOffButton(),
                       placed({tr("Forgot the survey of “%1” that was put off.").arg(name),
                               tr("forgetting the survey of “%1”").arg(name),
                               {}}),
                       [&] { workbench::forgetPutOff(desk().document(), account); });
    if (!isDone)
        return;
    m_drafts.forget(account);
    m_shown.reset();
    refresh();
    m_statement->accountField().setFocus(Qt::OtherFocusReason);
}

} // namespace kiv::desktop
