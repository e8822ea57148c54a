// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/import_journal_step.h"

#include "models/draft_rows.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/statements/journal_files.h"

#include "interchange/journal_reader.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

ImportJournalStep::ImportJournalStep(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_notices(new QLabel(this)),
      m_model(new TableModel(journalColumns(), this)),
      m_table(new Table(*m_model, tr("Transactions of the journal"), this)),
      m_message(new FieldMessage(this)),
      m_figures(new QLabel(this)),
      m_import(new QPushButton(this)),
      m_desk(desk)
{
    for (QLabel *label : {m_notices, m_figures}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_table->setObjectName(QStringLiteral("journal"));
    m_message->setObjectName(QStringLiteral("message"));
    m_figures->setObjectName(QStringLiteral("journalFigures"));
    m_import->setObjectName(QStringLiteral("importJournal"));
    auto *back = new QPushButton(tr("&Back"), this);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_figures, 1);
    foot->addWidget(m_import);
    foot->addWidget(back);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_notices);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    layout->addLayout(foot);
    connect(m_import, &QPushButton::clicked, this, &ImportJournalStep::importWanted);
    connect(back, &QPushButton::clicked, this, &ImportJournalStep::backWanted);
}

void ImportJournalStep::show(const QByteArray &bytes, const QString &file)
{
    interchange::JournalOptions options;
    options.preferred = m_desk.requests().preferredCurrency();
    options.include = workbench::JournalFiles(file);
    interchange::Draft draft = interchange::readJournal(bytes, file, options);
    const workbench::PostedImport planned =
        workbench::plannedImport(m_desk.requests(), draft, workbench::KnownTransactions::Skip);
    m_draft = std::move(draft);
    m_notices->setText(planned.notices.join(u'\n'));
    m_notices->setVisible(!planned.notices.isEmpty());
    m_model->setRows({});
    m_model->setRows(
        journalRows(planned, m_desk.requests().accounts(), m_desk.document().displayAs()));
    m_table->settle();
    m_summary = journalSummary(planned);
    m_figures->setText(journalPlan(planned));
    m_import->setText(planned.hasChanges() ? tr("Im&port %n transactions", nullptr,
                                                static_cast<int>(planned.posted()))
                                           : tr("Com&plete"));
    m_message->withdraw();
    allow();
}

const interchange::Draft *ImportJournalStep::draft() const noexcept
{
    return m_draft ? &*m_draft : nullptr;
}

void ImportJournalStep::forget()
{
    m_draft.reset();
    m_model->setRows({});
}

void ImportJournalStep::allow()
{
    desktop::allow(*m_import, m_desk.whyNoChange());
}

QWidget *ImportJournalStep::firstFocus() const
{
    return m_model->rows().empty() ? static_cast<QWidget *>(m_import) : m_table;
}

} // namespace kiv::desktop
