// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/item_explained.h"

#include "pages/form.h"
#include "pages/item_schedule.h"
#include "widgets/account_box.h"
#include "widgets/day_edit.h"
#include "widgets/table.h"

#include "workbench/outlook/item_outlook.h"

#include "foundation/clock.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

/// The heading and the parts of one account; further ones scroll.
constexpr int rowsMax = 6;

} // namespace

ItemExplained::ItemExplained(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_outlook(new QLabel(this)),
      m_end(new Form(desk, this)),
      m_spentOn(
          m_end->add(QStringLiteral("spentOn"), tr("S&pent on (may be empty):"), new AccountBox)),
      m_day(m_end->add(QStringLiteral("endDay"), tr("On the da&y:"), new DayEdit)),
      m_model(new TableModel(partColumns(), this)),
      m_table(new Table(*m_model, tr("How it comes about"), this)),
      m_schedule(new ItemSchedule(this))
{
    m_outlook->setTextFormat(Qt::PlainText);
    m_outlook->setWordWrap(true);
    m_end->addButton(QStringLiteral("end"), tr("End &it"), [this] { emit endWanted(); });
    m_table->setObjectName(QStringLiteral("parts"));
    m_table->fit(rowsMax);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_outlook);
    layout->addWidget(m_end);
    layout->addWidget(m_table);
    layout->addWidget(m_schedule);
    connect(m_end, &Form::givenUp, m_spentOn, [this] { m_spentOn->setAccount(std::nullopt); });
}

void ItemExplained::explain(workbench::Document &document, const ShownEnvelopes &envelopes,
                            const budgeting::BudgetItemIdentifier &item)
{
    const storage::BudgetStorage::Data present = document.present();
    const auto *found = budgeting::findBudgetItem(item, present.budget);
    const auto outlook = found ? workbench::outlookOf(present, *found, envelopes.displayAs)
                               : std::optional<workbench::ItemOutlook>();
    m_outlook->setText(outlook ? outlook->sentence : QString());
    m_outlook->setVisible(outlook.has_value());
    const bool canEnd = outlook && outlook->canEnd();
    m_end->setVisible(canEnd);
    if (canEnd)
        allowEnd(document, item);
    std::vector<Row> rows = found ? partRows(envelopes, item) : std::vector<Row>();
    m_table->setVisible(!rows.empty());
    m_schedule->showItem(document, item);
    setVisible(outlook || !rows.empty());
    m_model->setRows(std::move(rows));
    m_table->settle();
    layout()->activate(); // so that the page gives it room at once
}

void ItemExplained::allowEnd(workbench::Document &document,
                             const budgeting::BudgetItemIdentifier &item)
{
    const bool isGoal = item.type == budgeting::BudgetItemTypes::Goal;
    m_end->setShown(*m_spentOn, isGoal);
    m_end->setShown(*m_day, isGoal);
    const auto index =
        std::make_shared<const workbench::AccountIndex>(document.requests().accounts());
    std::vector<accounting::AccountNumber> open;
    for (const accounting::Account &account : index->accounts()) {
        if (!account.isClosed())
            open.push_back(account.code().number());
    }
    m_spentOn->offer(index, open);
    if (std::exchange(m_item, item) == item)
        return; // what was typed stays
    m_spentOn->setAccount(std::nullopt);
    m_day->setDay(foundation::today());
    m_end->message().withdraw();
}

void ItemExplained::forgetItem()
{
    m_item = {};
    m_schedule->forgetItem();
}

void ItemExplained::allowChanges(const std::optional<QString> &whyNot)
{
    m_end->allow(whyNot);
}

std::optional<ItemExplained::Spending> ItemExplained::spending()
{
    const auto on = m_end->read(*m_spentOn, [this] {
        return m_spentOn->isEmpty() ? std::nullopt : std::optional(m_spentOn->account({}));
    });
    const auto day = on ? m_end->read(*m_day, [this] { return m_day->day(); }) : std::nullopt;
    return day ? std::optional<Spending>({*on, *day}) : std::nullopt;
}

} // namespace kiv::desktop
