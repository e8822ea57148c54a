// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/history_page.h"

#include "models/history_rows.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/versions/kept_versions.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using storage::BudgetStorage;

using namespace std::chrono_literals;

namespace {

/// An import may have posted thousands.
constexpr std::size_t shownMax = 200;

} // namespace

HistoryPage::HistoryPage(Desk &desk)
    : Page(desk, QStringLiteral("history"), tr("History")),
      m_unlocking(desk, this),
      m_model(new TableModel(historyColumns(), this)),
      m_table(new Table(*m_model, tr("Steps and versions"), this)),
      m_changes(new TableModel(changeColumns(), this)),
      m_changeTable(new Table(*m_changes, tr("What changed since"), this)),
      m_difference(new QLabel(this)),
      m_goBack(new QPushButton(tr("Go &back to this"), this)),
      m_unlock(new QPushButton(tr("T&ype its passphrase …"), this)),
      m_message(new FieldMessage(this)),
      m_pause(150ms, this, &HistoryPage::compare)
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 3);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_goBack);
    buttons->addWidget(m_unlock);
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addWidget(m_message);
    layout->addWidget(m_difference);
    layout->addWidget(m_changeTable, 2);
    m_table->setObjectName(QStringLiteral("steps"));
    m_changeTable->setObjectName(QStringLiteral("changes"));
    m_goBack->setObjectName(QStringLiteral("goBack"));
    m_unlock->setObjectName(QStringLiteral("unlock"));
    m_difference->setObjectName(QStringLiteral("difference"));
    m_difference->setTextFormat(Qt::PlainText);
    m_difference->setWordWrap(true);
    connect(m_table, &Table::chosenChanged, this, &HistoryPage::follow);
    connect(m_table, &Table::opened, this, &HistoryPage::goBack);
    connect(m_goBack, &QPushButton::clicked, this, &HistoryPage::goBack);
    connect(m_unlock, &QPushButton::clicked, this, &HistoryPage::unlock);
}

QWidget *HistoryPage::firstFocus()
{
    return m_table;
}

void HistoryPage::refresh()
{
    m_message->withdraw();
    showVersions();
    m_table->settle();
    follow();
}

void HistoryPage::showVersions()
{
    const workbench::Document &document = desk().document();
    m_model->setRows(historyRows(document.steps(),
                                 workbench::KeptVersions(document.file(), &document.keys()).all()));
}

void HistoryPage::follow()
{
    const HistoryTarget target = historyTarget(m_table->chosen().value(0));
    std::optional<QString> whyNot = desk().whyNoChange();
    if (!whyNot && !target.step && target.version.isEmpty())
        whyNot = tr("No line is chosen.");
    const std::vector<workbench::Step> steps = desk().document().steps();
    if (!whyNot && target.step && steps.at(static_cast<std::size_t>(*target.step)).isPresent)
        whyNot = tr("This is the present state.");
    allow(*m_goBack, whyNot);
    m_difference->hide();
    m_changeTable->hide();
    m_unlock->hide();
    m_pause.start();
}

void HistoryPage::compare()
{
    const HistoryTarget target = historyTarget(m_table->chosen().value(0));
    if (target.version.isEmpty() && !target.step)
        return;
    try {
        showChanges(thenOf(target));
    } catch (const storage::StorageError &error) {
        showTrouble(error);
        // While the keys go through the lines, nobody wants to be asked.
        m_unlock->setVisible(error.failure() == storage::StorageFailure::PassphraseNeeded);
    } catch (const foundation::Error &error) {
        showTrouble(error);
    }
}

void HistoryPage::showTrouble(const foundation::Error &error)
{
    m_difference->setText(workbench::userText(error));
    m_difference->show();
}

void HistoryPage::unlock()
{
    const HistoryTarget target = historyTarget(m_table->chosen().value(0));
    try {
        if (!m_unlocking.withPassphrases([&] { showChanges(thenOf(target)); }))
            return;
        m_table->setFocus(Qt::OtherFocusReason); // before the button with the focus goes
        m_unlock->hide();
        showVersions(); // which tell more now
    } catch (const foundation::Error &error) {
        showTrouble(error);
    }
}

BudgetStorage::Data HistoryPage::thenOf(const HistoryTarget &target) const
{
    const workbench::Document &document = desk().document();
    if (!target.step)
        return workbench::dataOf(
            workbench::KeptVersions(document.file(), &document.keys()).named(target.version),
            &document.keys());
    const workbench::History::Entry &step =
        document.history().at(static_cast<std::size_t>(*target.step));
    return step.content ? step.content->data() : workbench::dataOf(step.kept(), &document.keys());
}

void HistoryPage::showChanges(const BudgetStorage::Data &then)
{
    const std::vector<workbench::Change> changes =
        workbench::changesBetween(then, desk().document().present());
    const auto left = static_cast<int>(changes.size()) - static_cast<int>(shownMax);
    if (changes.empty())
        m_difference->setText(tr("Nothing changed since then."));
    else if (left > 0)
        m_difference->setText(
            tr("What changed since then. %n more changes are not shown.", nullptr, left));
    else
        m_difference->setText(tr("What changed since then:"));
    m_changes->setRows(changeRows(changes, shownMax));
    m_difference->show();
    m_changeTable->setVisible(!changes.empty());
    m_changeTable->settle();
}

void HistoryPage::goBack()
{
    if (!m_goBack->isEnabled())
        return;
    const HistoryTarget target = historyTarget(m_table->chosen().value(0));
    workbench::Document &document = desk().document();
    bool isDone = false;
    m_message->attempt(m_table, [&] {
        isDone = m_unlocking.withPassphrases([&] {
            if (target.step)
                document.goTo(*target.step);
            else
                document.undoTo(target.version);
        });
    });
    if (isDone)
        desk().say(tr("The budget is as it was then. Undo and redo go on from there."));
}

} // namespace kiv::desktop
