// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_drops.h"

#include "models/account_rows.h"
#include "widgets/allow.h"

#include "workbench/surveys/set_aside_text.h"
#include "workbench/surveys/survey_sheet.h"

#include "foundation/clock.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::Envelopes;
using workbench::SetAside;
using workbench::StrandedAmount;

namespace {

bool isAtNoUse(const StrandedAmount &one)
{
    return one.why == StrandedAmount::Why::AccountClosed ||
           one.why == StrandedAmount::Why::AccountGone;
}

} // namespace

SurveyDrops::SurveyDrops(Desk &desk, QWidget *parent)
    : QWidget(parent), m_desk(desk), m_rows(new QVBoxLayout), m_message(new FieldMessage(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(m_rows);
    layout->addWidget(m_message);
}

void SurveyDrops::refresh()
{
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    m_message->withdraw();
    workbench::Document &document = m_desk.document();
    const auto displayAs = document.requests().displayAs();
    const storage::BudgetStorage::Data books = document.present();
    const Envelopes all =
        workbench::envelopes(books, document.keptReconciliations(), foundation::today());
    std::map<banking::BankAccount, Envelopes> atNoUse;
    for (const StrandedAmount &one : all.stranded) {
        if (isAtNoUse(one))
            atNoUse[one.account].stranded.push_back(one);
    }
    for (const auto &[account, stranded] : atNoUse)
        add(sharedNoticesOf(stranded, books.generalLedger, displayAs).join(u' '), account);
    for (SetAside one : all.accounts) {
        if (!one.free().isNegative() || !one.reconciledOn)
            continue;
        // What else is to be known of it is told beside its lines.
        one.lines.clear();
        one.leftOut.clear();
        add(noticesOf(one, books.generalLedger, displayAs).join(u' '), one.account);
    }
    setVisible(m_rows->count() > 0);
}

void SurveyDrops::add(const QString &sentences, const banking::BankAccount &account)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *text = new QLabel(sentences, row);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *button = new QPushButton(row);
    layout->addWidget(text, 1);
    layout->addWidget(button);
    button->setText(tr("Set nothing aside there any more"));
    allow(*button, m_desk.whyNoChange());
    connect(button, &QPushButton::clicked, this,
            [this, button, account] { drop(*button, account); });
    button->setObjectName(QStringLiteral("drop ") + keyOf(account.account.number));
    button->setAccessibleDescription(text->text());
    m_rows->addWidget(row);
}

void SurveyDrops::drop(QWidget &asker, const banking::BankAccount &account)
{
    workbench::Requests &requests = m_desk.requests();
    const QString name = requests.accounts().plainName(account.account.number);
    const workbench::Deed deed{QObject::tr("Nothing is set aside at %1 any more.").arg(name),
                               tr("setting nothing aside at “%1”").arg(name),
                               QStringLiteral("survey/aside")};
    m_desk.perform(*m_message, &asker, deed, [&] { dropSetAside(m_desk.document(), account); });
}

} // namespace kiv::desktop
