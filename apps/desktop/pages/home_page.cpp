// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/home_page.h"

#include "models/account_rows.h"
#include "models/balance_rows.h"
#include "widgets/due_lines.h"
#include "widgets/table.h"

#include "workbench/entry/money_text.h"
#include "workbench/outlook/outlook_text.h"
#include "workbench/requests/due_items.h"
#include "workbench/surveys/set_aside_text.h"

#include "foundation/presentation.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::Care;
using workbench::DueLine;

namespace {

/// More are on the page of what is due.
constexpr std::size_t dueLinesMax = 6;
constexpr int freeMax = 5;
constexpr int balancesMax = 12;

QString payText(budgeting::BudgetItemTypes kind)
{
    switch (kind) {
    case budgeting::BudgetItemTypes::Wage:
        return QObject::tr("Receive");
    case budgeting::BudgetItemTypes::Goal:
        return QObject::tr("Save");
    default:
        return QObject::tr("Pay");
    }
}

/// What is set aside, in the words of the page of items.
QString asidePartOf(const std::optional<accounting::AccountNumber> &account)
{
    const QString aside = QStringLiteral("aside");
    return account ? aside + u'/' + keyOf(*account) : aside;
}

/// Where the user can do something about it; without a page if nowhere.
Place placeOf(const Care &care)
{
    switch (care.about) {
    case Care::About::Reconciliation:
        return {QStringLiteral("register"), care.account ? keyOf(*care.account) : QString()};
    case Care::About::Difference:
    case Care::About::LongNotReconciled:
        return {QStringLiteral("survey"), care.account ? keyOf(*care.account) : QString()};
    case Care::About::SetAside:
        return {QStringLiteral("items"), asidePartOf(care.account)};
    case Care::About::Rates:
        return {QStringLiteral("rates"), {}};
    case Care::About::File:
    case Care::About::Health:
        break;
    }
    return {};
}

} // namespace

HomePage::HomePage(Desk &desk)
    : Page(desk, QStringLiteral("home"), tr("Home")),
      m_free(nullptr),
      m_stillDue(new QLabel(this)),
      m_freeRows(new TableModel(freeColumns(), this)),
      m_freeTable(new Table(*m_freeRows, tr("Free to spend"), this)),
      m_summary(nullptr),
      m_lines(new DueLines(this)),
      m_allDue(new QPushButton(this)),
      m_message(new FieldMessage(this)),
      m_ahead(nullptr),
      m_lookAhead(new QPushButton(tr("Look ahead"), this)),
      m_balances(new TableModel(balanceColumns(), this)),
      m_balanceTable(new Table(*m_balances, tr("Balances"), this)),
      m_balancesHeading(nullptr),
      m_noBalances(new QLabel(tr("There are no accounts yet."), this)),
      m_careHeading(nullptr),
      m_cares(new QWidget(this)),
      m_deeds(desk)
{
    auto *layout = new QVBoxLayout(this);
    m_free = addHeading(*layout, {});
    m_free->setWordWrap(true);
    m_stillDue->setTextFormat(Qt::PlainText);
    m_stillDue->setWordWrap(true);
    layout->addWidget(m_stillDue);
    layout->addWidget(m_freeTable);
    m_freeTable->setObjectName(QStringLiteral("free"));
    m_freeTable->fit(freeMax);
    m_summary = addHeading(*layout, {});
    m_summary->setWordWrap(true);
    layout->addWidget(m_lines);
    layout->addWidget(m_message);
    layout->addWidget(m_allDue, 0, Qt::AlignLeft);
    m_ahead = addHeading(*layout, {});
    m_ahead->setWordWrap(true);
    m_ahead->setObjectName(QStringLiteral("ahead"));
    layout->addWidget(m_lookAhead, 0, Qt::AlignLeft);
    m_balancesHeading = addHeading(*layout, {});
    m_balanceTable->setObjectName(QStringLiteral("balances"));
    m_noBalances->setTextFormat(Qt::PlainText);
    m_noBalances->setWordWrap(true);
    layout->addWidget(m_noBalances);
    layout->addWidget(m_balanceTable);
    m_balanceTable->fit(balancesMax);
    m_careHeading = addHeading(*layout, {});
    layout->addWidget(m_cares);
    layout->addStretch();
    auto *cares = new QVBoxLayout(m_cares);
    cares->setContentsMargins({});
    connect(m_allDue, &QPushButton::clicked, this, [this] {
        this->desk().goTo({QStringLiteral("due"), {}});
    });
    connect(m_lookAhead, &QPushButton::clicked, this, [this] {
        this->desk().goTo({QStringLiteral("outlook"), {}});
    });
    connect(m_lines, &DueLines::otherWanted, this, [this](const QString &key) {
        this->desk().goTo({QStringLiteral("due"), key});
    });
    connect(m_lines, &DueLines::payWanted, this, [this](const QString &key, QWidget *by) {
        if (const DueLine *line = lineOf(key))
            m_deeds.pay({*m_message, by}, {*line}, m_due.today);
    });
    connect(m_lines, &DueLines::skipWanted, this, [this](const QString &key, QWidget *by) {
        if (const DueLine *line = lineOf(key))
            m_deeds.skip({*m_message, by}, {*line});
    });
    connect(m_freeTable, &Table::opened, this, [this](const QString &key) {
        this->desk().goTo({QStringLiteral("items"), QStringLiteral("aside/") + key});
    });
    connect(m_balanceTable, &Table::opened, this, [this](const QString &key) {
        this->desk().goTo({QStringLiteral("register"), key});
    });
}

QLabel *HomePage::addHeading(QVBoxLayout &layout, const QString &text)
{
    layout.addSpacing(fontMetrics().height() / 2);
    auto *heading = new QLabel(text, this);
    heading->setTextFormat(Qt::PlainText);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    layout.addWidget(heading);
    return heading;
}

QWidget *HomePage::firstFocus()
{
    if (!m_lines->buttons().empty())
        return m_lines->buttons().front();
    return m_freeTable->isHidden() ? m_balanceTable : m_freeTable;
}

Explain HomePage::explanation()
{
    const QString key = m_balanceTable->chosen().value(0);
    if (focusWidget() == m_balanceTable && !key.isEmpty())
        return [number = accounting::AccountNumber(key.toUInt())](
                   const workbench::Explainer &explainer) {
            return std::vector{explainer.balance(number)};
        };
    return [isFree = !m_envelopes.all.accounts.empty()](const workbench::Explainer &explainer) {
        std::vector<workbench::Explanation> all;
        if (isFree)
            all = explainer.freeMoney();
        try {
            std::ranges::move(explainer.health(), std::back_inserter(all));
        } catch (const workbench::Refusal &) {
            // Without an income there is still what is free.
            if (all.empty())
                throw;
        }
        return all;
    };
}

const DueLine *HomePage::lineOf(const QString &key) const
{
    const auto found = std::ranges::find(
        m_due.list.lines, key, [](const DueLine &line) { return keyOf(line.due.id.item()); });
    return found == m_due.list.lines.end() ? nullptr : &*found;
}

void HomePage::refresh()
{
    m_message->withdraw();
    showFree();
    showDue();
    showAhead();
    showBalances();
    showCare();
    putKeysInOrder();
}

void HomePage::putKeysInOrder()
{
    // Buttons that were made anew would come last.
    std::vector<QWidget *> order{m_freeTable};
    std::ranges::copy(m_lines->buttons(), std::back_inserter(order));
    order.insert(order.end(), {m_allDue, m_lookAhead, m_balanceTable});
    std::ranges::copy(m_cares->findChildren<QPushButton *>(), std::back_inserter(order));
    for (std::size_t place = 1; place < order.size(); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void HomePage::showFree()
{
    m_envelopes = shownEnvelopes(desk().document());
    const workbench::Envelopes &all = m_envelopes.all;
    const bool isEmpty = all.accounts.empty();
    m_free->setVisible(!isEmpty);
    m_freeTable->setVisible(!isEmpty);
    m_free->setText(workbench::freeText(all, m_envelopes.displayAs));
    m_stillDue->setText(workbench::stillDueText(all, m_envelopes.displayAs));
    m_stillDue->setVisible(!isEmpty && !all.dueYet.empty());
    m_freeRows->setRows(freeRows(m_envelopes));
    m_freeTable->settle();
}

void HomePage::showDue()
{
    m_due = shownDue(desk().document(), {});
    m_summary->setText(dueSummary(m_due));
    std::vector<DueLines::Line> lines;
    for (const DueLine &line : m_due.list.lines) {
        if (lines.size() == dueLinesMax)
            break;
        const auto &id = line.due.id;
        lines.push_back({keyOf(id.item()), foundation::presentationText(id.dueOn),
                         workbench::whenText(id.dueOn, m_due.today), id.source.name(),
                         workbench::amountText(line.due.amount, m_due.displayAs),
                         payText(id.type)});
    }
    m_lines->setLines(lines);
    m_lines->allowChanges(desk().whyNoChange());
    m_lines->setVisible(!lines.empty());
    const auto left = static_cast<int>(m_due.list.lines.size() - lines.size());
    m_allDue->setVisible(left > 0);
    m_allDue->setText(tr("Show %n more", nullptr, left));
}

void HomePage::showAhead()
{
    const QString told = workbench::lowestAhead(requests(), m_due.today).text;
    m_ahead->setText(told);
    m_ahead->setVisible(!told.isEmpty());
    m_lookAhead->setVisible(!told.isEmpty());
}

void HomePage::showBalances()
{
    m_balances->setRows(balanceRows(desk().document(), m_envelopes));
    const bool isEmpty = m_balances->rows().empty();
    const bool isFree = !m_freeRows->rows().empty();
    m_balancesHeading->setText(isFree ? tr("Other balances") : tr("Balances"));
    m_balancesHeading->setVisible(!isEmpty || !isFree);
    m_noBalances->setVisible(isEmpty && !isFree);
    m_balanceTable->setVisible(!isEmpty);
    m_balanceTable->settle();
}

void HomePage::showCare()
{
    std::vector<Care> all = workbench::neededCare(desk().document(), m_due.today);
    std::ranges::move(setAsideCare(m_envelopes.all, m_envelopes.ledger, m_envelopes.displayAs),
                      std::back_inserter(all));
    QString heading = all.empty() ? tr("Nothing needs care") : tr("What needs care");
    if (const auto health = workbench::healthOf(requests());
        health && health->grade() != adviser::HealthGrade::Unknown)
        heading = tr("%1 (the budget's health: %2)")
                      .arg(heading, adviser::presentationText(health->grade()));
    m_careHeading->setText(heading);
    if (all == m_shownCare)
        return;
    m_shownCare = all;
    while (QLayoutItem *item = m_cares->layout()->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const Care &care : all)
        addCare(care);
}

void HomePage::addCare(const Care &care)
{
    auto *row = new QWidget(m_cares);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *text = new QLabel(u'\u26a0' + QStringLiteral(" ") + care.sentence, row);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    layout->addWidget(text, 1);
    const Place place = placeOf(care);
    if (!place.page.isEmpty()) {
        auto *show = new QPushButton(tr("Show"), row);
        show->setAccessibleName(tr("Show: %1").arg(care.sentence));
        connect(
            show, &QPushButton::clicked, this, [this, place] { desk().goTo(place); },
            Qt::QueuedConnection);
        layout->addWidget(show);
    }
    m_cares->layout()->addWidget(row);
    row->show();
}

} // namespace kiv::desktop
