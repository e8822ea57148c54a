// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/import_wizard.h"

#include "models/account_rows.h"
#include "wizards/import_columns_step.h"
#include "wizards/import_file_step.h"
#include "wizards/import_journal_step.h"
#include "wizards/import_rows_step.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QStackedWidget>

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::Deed;
using workbench::ImportPreview;
using workbench::ImportReading;

ImportWizard::ImportWizard(Desk &desk)
    : Page(desk, QStringLiteral("import"), tr("Import")),
      m_steps(new QStackedWidget(this)),
      m_file(new ImportFileStep(desk, m_steps)),
      m_columns(new ImportColumnsStep(desk, m_steps)),
      m_rows(new ImportRowsStep(desk, m_steps)),
      m_journal(new ImportJournalStep(desk, m_steps))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_steps);
    for (const auto &[step, name] : {std::pair<QWidget *, const char *>(m_file, "file"),
                                     {m_columns, "columns"},
                                     {m_rows, "rows"},
                                     {m_journal, "journal"}}) {
        step->setObjectName(QLatin1String(name));
        m_steps->addWidget(step);
    }
    connect(m_file, &ImportFileStep::statementRead, this, &ImportWizard::showRows);
    connect(m_file, &ImportFileStep::journalChosen, this, &ImportWizard::showJournal);
    connect(m_file, &ImportFileStep::asked, this, &ImportWizard::followQuestion);
    connect(m_file, &ImportFileStep::givenUp, this, &ImportWizard::forget);
    connect(m_file, &ImportFileStep::columnsWanted, this, &ImportWizard::showColumns);
    connect(m_columns, &ImportColumnsStep::goOnWanted, this,
            [this] { m_file->readWith(m_columns->profile()); });
    connect(m_columns, &ImportColumnsStep::backWanted, this, &ImportWizard::goBack);
    connect(m_rows, &ImportRowsStep::backWanted, this, &ImportWizard::goBack);
    connect(m_journal, &ImportJournalStep::backWanted, this, &ImportWizard::goBack);
    connect(m_rows, &ImportRowsStep::importWanted, this, &ImportWizard::importRows);
    connect(m_journal, &ImportJournalStep::importWanted, this, &ImportWizard::importJournal);
    connect(&desk, &Desk::importWanted, this, &ImportWizard::choose);
    connect(&desk.document().news(), &workbench::DocumentNews::changed, this, [this] {
        m_isOutdated = true;
        if (isVisible())
            compareAnew();
    });
}

// ---- what is shown -----------------------------------------------------------------

void ImportWizard::showStep(QWidget *step)
{
    m_steps->setCurrentWidget(step);
    firstFocus()->setFocus(Qt::OtherFocusReason);
}

void ImportWizard::goTo(const QString &detail)
{
    if (parts().contains(detail))
        showStep(m_steps->findChild<QWidget *>(detail, Qt::FindDirectChildrenOnly));
}

QString ImportWizard::detail() const
{
    return m_steps->currentWidget()->objectName();
}

QStringList ImportWizard::parts() const
{
    QStringList parts{m_file->objectName()};
    if (m_columns->isShowing())
        parts += m_columns->objectName();
    if (m_rows->preview())
        parts += m_rows->objectName();
    if (m_journal->draft())
        parts += m_journal->objectName();
    return parts;
}

QWidget *ImportWizard::firstFocus()
{
    if (m_steps->currentWidget() == m_rows)
        return m_rows->firstFocus();
    if (m_steps->currentWidget() == m_columns)
        return m_columns->firstFocus();
    return m_steps->currentWidget() == m_journal ? m_journal->firstFocus() : m_file->firstFocus();
}

void ImportWizard::forgetFile()
{
    forget();
    m_file->startAnew();
}

void ImportWizard::refresh()
{
    m_file->refresh();
    m_rows->allow();
    m_journal->allow();
    compareAnew();
}

void ImportWizard::compareAnew()
{
    if (m_isImporting || !std::exchange(m_isOutdated, false))
        return;
    try {
        if (m_journal->draft()) {
            m_journal->show(m_file->bytes(), m_file->file());
        } else if (m_rows->preview()) {
            if (!requests().accounts().find(*m_reading->account))
                throw workbench::Refusal(tr("The account of the file is no longer there."));
            m_rows->show(preview(*m_reading));
        }
    } catch (const foundation::Error &error) {
        forget();
        m_file->complain(workbench::userText(error));
    }
}

void ImportWizard::choose(std::optional<AccountNumber> into, const QString &file)
{
    desk().goTo({id(), m_file->objectName()});
    m_file->choose(into, file);
}

void ImportWizard::showColumns(std::optional<AccountNumber> account)
{
    fillColumns(account);
    showStep(m_columns);
    m_columns->isReadable();
}

void ImportWizard::fillColumns(std::optional<AccountNumber> account)
{
    const workbench::AccountIndex index = requests().accounts();
    const accounting::Account *into = account ? index.find(*account) : nullptr;
    const workbench::ImportSource &source = m_file->source();
    interchange::CsvProfile profile = source.options.profile;
    const auto memory = workbench::ImportMemory::of(desk().document().notes());
    const auto known = account ? memory.accounts.find(*account) : memory.accounts.end();
    if (!source.hasProfile && known != memory.accounts.end() && known->second.profile)
        profile = *known->second.profile;
    m_columns->show(source.bytes, source.file,
                    {profile, into ? into->balance().code() : requests().preferredCurrency()},
                    into ? index.plainName(*account) : QString());
}

void ImportWizard::followQuestion(const QString &sentence, bool isOfFile)
{
    if (isOfFile && m_steps->currentWidget() == m_columns)
        m_columns->complain(sentence);
    else if (m_steps->currentWidget() != m_file)
        showStep(m_file);
}

workbench::ImportMemory ImportWizard::memory(AccountNumber account) const
{
    auto memory = workbench::ImportMemory::of(desk().document().notes());
    if (m_file->source().hasProfile && m_columns->isKept())
        memory.accounts[account].profile = m_file->source().options.profile;
    return memory;
}

ImportPreview ImportWizard::preview(const ImportReading &reading) const
{
    ImportPreview anew = previewOf(requests(), reading, {memory(reading.account.value())});
    const ImportPreview *former = m_rows->preview();
    if (!former || m_reading->account != reading.account ||
        m_reading->statement.entries != reading.statement.entries)
        return anew;
    for (std::size_t row = 0; row < anew.rows().size(); ++row) {
        const workbench::ImportRow &said = former->rows()[row];
        anew.setTicked(row, said.isTicked);
        if (said.otherBy == workbench::OtherSideBy::User && said.other)
            anew.setOther(row, *said.other);
        anew.setRemembered(row, said.isRemembered);
    }
    return anew;
}

void ImportWizard::showRows(const ImportReading &reading)
{
    try {
        m_rows->show(preview(reading));
    } catch (const foundation::Error &error) {
        m_file->complain(workbench::userText(error));
        return;
    }
    m_journal->forget();
    m_reading = reading;
    m_isOutdated = false;
    // As its columns were kept, nobody looked at them; "Back" leads there.
    if (!m_file->source().hasProfile) {
        m_columns->forget();
        if (m_file->source().format == interchange::StatementFormat::Csv)
            fillColumns(reading.account);
    }
    showStep(m_rows);
    desk().say(draftSummary(m_rows->preview()->counts()));
}

void ImportWizard::showJournal()
{
    m_journal->show(m_file->bytes(), m_file->file()); // what it throws is shown at the file
    m_rows->forget();
    m_reading.reset();
    m_isOutdated = false;
    showStep(m_journal);
}

void ImportWizard::forget()
{
    m_columns->forget();
    m_rows->forget();
    m_journal->forget();
    m_reading.reset();
    m_steps->setCurrentWidget(m_file);
}

void ImportWizard::goBack()
{
    const bool hasColumns = m_steps->currentWidget() == m_rows && m_columns->isShowing();
    showStep(hasColumns ? static_cast<QWidget *>(m_columns) : m_file);
}

void ImportWizard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_steps->currentWidget() != m_file)
        goBack();
    else
        Page::keyPressEvent(event);
}

// ---- the import --------------------------------------------------------------------

void ImportWizard::leaveTo(const Place &place, const QString &line)
{
    forget();
    m_file->startAnew();
    desk().goTo(place);
    desk().say(line); // over the name of the page
}

void ImportWizard::importRows()
{
    const ImportPreview &preview = *m_rows->preview();
    const AccountNumber account = preview.account().number();
    const QString name = requests().accounts().plainName(account);
    const workbench::ImportCounts counts = preview.counts();
    QString line = tr("Nothing was imported.");
    if (hasWork(counts))
        line = tr("Imported into “%1”: %2.").arg(name, draftSummary(counts));
    else if (counts.known > 0 && counts.leftOut == 0)
        line = tr("All %n entries are there already.", nullptr, static_cast<int>(counts.known));
    const Deed deed{line, tr("importing into “%1”").arg(name),
                    Place{QStringLiteral("register"), keyOf(account)}.text()};
    ImportPreview::Done done;
    interchange::Place refused;
    const QScopedValueRollback importing(m_isImporting, true);
    const bool isDone = desk().perform(m_rows->message(), m_rows->firstFocus(), deed, [&] {
        try {
            done = preview.post(requests());
        } catch (const interchange::ImportError &error) {
            refused = error.place();
            throw;
        }
        workbench::Document &document = desk().document();
        document.setNotes(preview.memory().keptIn(document.notes()));
    });
    if (!isDone) {
        m_rows->complain(QString(m_rows->message().sentence()), refused);
        return;
    }
    QString first;
    for (const auto &numbers : {done.recognised, done.posted}) {
        if (!numbers.empty())
            first = u'/' + accounting::presentationText(numbers.front());
    }
    leaveTo(Place::fromText(deed.place + first), deed.line);
}

void ImportWizard::importJournal()
{
    const interchange::Draft draft = *m_journal->draft();
    const Deed deed{tr("Imported the journal: %1.").arg(m_journal->summary()),
                    tr("importing the journal"), QStringLiteral("register/all")};
    const QScopedValueRollback importing(m_isImporting, true);
    const bool isDone = desk().perform(m_journal->message(), m_journal->firstFocus(), deed, [&] {
        (void)postDraft(requests(), draft, workbench::KnownTransactions::Skip);
    });
    if (isDone)
        leaveTo(Place::fromText(deed.place), deed.line);
}

} // namespace kiv::desktop
