// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/statement_import.h"

#include "commands/import_report.h"
#include "output/json.h"
#include "program/program.h"

#include "workbench/entry/description.h"
#include "workbench/statements/import_reading.h"

#include "foundation/presentation.h"
#include "interchange/csv_guess.h"

namespace kiv::app {

using workbench::ImportMatch;
using workbench::ImportMeaning;
using workbench::ImportMemory;
using workbench::ImportPreview;
using workbench::ImportReading;
using workbench::ImportRow;
using workbench::ImportSource;

namespace {

/// "12.50 USD, REWE | groceries, 2026-03-01", for questions.
QString entryText(const ImportRow &row, Call &call)
{
    return QStringLiteral("%1, %2, %3")
        .arg(foundation::presentationText(row.entry.date),
             amountText(toJson(row.entry.amount), call.document.displayAs()),
             workbench::Description{row.entry.payee, row.entry.text, {}}.shown());
}

std::size_t rowOf(const QString &text, const ImportPreview &preview)
{
    const qint64 entry = text.trimmed().toLongLong();
    const qint64 count = std::ssize(preview.rows());
    if (entry < 1 || entry > count)
        throw workbench::notANumber(text, 1, count);
    return static_cast<std::size_t>(entry) - 1;
}

/// The alternative that is this transaction, alone or with the other lines of its split.
ImportMeaning alternativeOf(const ImportPreview &preview, std::size_t row, const QString &text)
{
    accounting::TransactionNumber number;
    workbench::readValue(text, number);
    for (const ImportMeaning &meaning : preview.alternatives(row)) {
        const auto *match = std::get_if<ImportMatch>(&meaning);
        if (match && std::ranges::count(match->numbers, number) > 0)
            return meaning;
    }
    throw notTheSame(preview.rows()[row].entry.amount, text);
}

void correct(ImportPreview &preview, const EntryCorrections &corrections, const AccountIndex &index)
{
    for (const QString &text : corrections.fresh)
        preview.part(rowOf(text, preview));
    for (const QString &text : corrections.same) {
        const auto [entry, transaction] = workbench::assignment(text);
        const std::size_t row = rowOf(entry, preview);
        preview.mean(row, alternativeOf(preview, row, transaction));
    }
    for (const QString &text : corrections.purpose) {
        const auto [entry, account] = workbench::assignment(text);
        preview.setOther(rowOf(entry, preview), index.find(account).code().number());
    }
    for (const QString &text : corrections.leftOut)
        preview.setTicked(rowOf(text, preview), false);
}

/// Asks about all that somebody should look at.
class Questions {
public:
    Questions(Call &call, ImportPreview &preview)
        : m_call(call), m_preview(preview), m_index(call.requests.accounts())
    {
    }

    void ask()
    {
        for (std::size_t row = 0; row < m_preview.rows().size(); ++row) {
            const ImportRow &asked = m_preview.rows()[row];
            if (asked.isDoubtful && asked.isTicked && asked.meaning)
                askWhetherSame(row);
            if (asked.isDoubtful && asked.isTicked && asked.state == ImportRow::State::New)
                askPurpose(row);
        }
    }

private:
    void askWhetherSame(std::size_t row)
    {
        const ImportRow &asked = m_preview.rows()[row];
        const QString question = asked.state == ImportRow::State::Payment
                                     ? QObject::tr("Entry %1: %2. %3 Pay it with this?")
                                     : QObject::tr("Entry %1: %2. %3 Is it the same?");
        if (!m_dialogue.agrees(
                question.arg(QString::number(row + 1), entryText(asked, m_call), asked.reason),
                true))
            m_preview.part(row);
    }

    void askPurpose(std::size_t row)
    {
        const ImportRow &asked = m_preview.rows()[row];
        const QString known =
            asked.other ? m_index.plainName(*asked.other) : asked.opens.join(u':');
        const QString question =
            known.isEmpty()
                ? QObject::tr(
                      "Entry %1: %2. What was it for? (account or item; empty leaves it out)")
                : QObject::tr("Entry %1: %2. What was it for? (empty: %3)");
        m_dialogue.until((known.isEmpty()
                              ? question
                              : question.arg(QStringLiteral("%1"), QStringLiteral("%2"), known))
                             .arg(QString::number(row + 1), entryText(asked, m_call)),
                         [&](const QString &answer) {
                             if (!answer.isEmpty())
                                 m_preview.setOther(row, m_index.find(answer).code().number());
                             else if (known.isEmpty())
                                 m_preview.setTicked(row, false);
                         });
        const ImportRow &answered = m_preview.rows()[row];
        if (answered.otherBy == workbench::OtherSideBy::User &&
            !workbench::payeeKey(answered.entry.payee, answered.entry.text).isEmpty() &&
            m_dialogue.agrees(
                QObject::tr("Always %1 for this payee?").arg(m_index.plainName(*answered.other)),
                true))
            m_preview.setRemembered(row, true);
    }

    Call &m_call;
    ImportPreview &m_preview;
    AccountIndex m_index;
    Dialogue m_dialogue;
};

} // namespace

void EntryCorrections::declare(Arguments &arguments)
{
    arguments
        .several("--new", fresh, QObject::tr("Entry that is new, whatever is there (repeatable)"))
        .several("--same", same, QObject::tr("ENTRY=TRANSACTION, which is the same (repeatable)"))
        .several("--for", purpose, QObject::tr("ENTRY=ACCOUNT, which it is for (repeatable)"))
        .several("--leave-out", leftOut, QObject::tr("Entry that is not taken (repeatable)"));
}

/// Asks for the order of day and month where the table leaves it open.
void StatementImport::askDays(const QByteArray &bytes, interchange::CsvProfile &profile,
                              Dialogue &dialogue) const
{
    const interchange::CsvGuess guess =
        interchange::guessCsv(bytes, options.file, {profile, numira::Currency()});
    if (guess.dayReadings.size() < 2)
        return;
    for (const interchange::DayReading &reading : guess.dayReadings) {
        if (dialogue.agrees(QObject::tr("Is %1 the day %2?")
                                .arg(reading.written, foundation::presentationText(reading.day)))) {
            profile.dateFormat = reading.format;
            return;
        }
    }
}

Report StatementImport::run(Call &call, interchange::StatementFormat format,
                            const QByteArray &bytes) const
{
    const bool isAsking =
        !isAgreed && !call.options.isDryRun && !call.options.isJson && Dialogue::isPossible();
    const AccountIndex index = call.requests.accounts();
    ImportMemory memory = ImportMemory::of(call.document.notes());
    interchange::CsvProfile profile = options.readProfile();
    Dialogue dialogue;
    if (format == interchange::StatementFormat::Csv && isAsking && !profile.dateFormat)
        askDays(bytes, profile, dialogue);
    ImportSource source{options.file,     bytes, format, {profile, {}}, options.hasReading(),
                        options.statement};
    if (options.into)
        source.into = index.find(*options.into).code().number();
    ImportReading reading = workbench::readForImport(call.requests, memory, source);
    if (!reading.account) {
        QStringList names;
        for (const accounting::AccountNumber number : reading.possible)
            names += index.plainName(number);
        if (!isAsking || names.isEmpty())
            throw noAccountInto(names);
        dialogue.until(
            QObject::tr("Which account is it of? (%1)").arg(names.join(u", ")),
            [&](const QString &answer) { source.into = index.find(answer).code().number(); });
        reading = workbench::readForImport(call.requests, memory, source);
    }
    if (reading.isOfOtherAccount && !isAgreed && !call.options.isDryRun) {
        const QString said = reading.statement.notices.back();
        if (!isAsking)
            throw ofOtherAccount(said);
        if (!dialogue.agrees(said + u' ' + QObject::tr("Import it all the same?"), false))
            throw importGivenUp();
    }
    ImportPreview::Choices choices{memory, profile.rules};
    if (options.against)
        choices.otherwise = index.find(*options.against).code().number();
    choices.postsKnown = postsKnown;
    const auto preview = std::make_shared<ImportPreview>(
        workbench::previewOf(call.requests, std::move(reading), std::move(choices)));
    correct(*preview, corrections, index);
    if (isAsking && preview->counts().added + preview->counts().matched > 0) {
        Report shown;
        addRows(shown, preview, std::make_shared<const AccountIndex>(call.requests.accounts()));
        shown.writeText(call.program.terminal(), call.document.displayAs());
        Questions(call, *preview).ask();
        if (!dialogue.agrees(
                QObject::tr("Import %n entries?", nullptr,
                            static_cast<int>(preview->counts().added + preview->counts().matched)),
                true))
            throw importGivenUp();
    }
    return finished(call, preview, profile, format, bytes);
}

Report StatementImport::finished(Call &call, const std::shared_ptr<const ImportPreview> &preview,
                                 const interchange::CsvProfile &profile,
                                 interchange::StatementFormat format, const QByteArray &bytes) const
{
    // In a dry run, what is still open is shown.
    const bool isOpen = preview->counts().open > 0;
    if (isOpen && !call.options.isDryRun) {
        for (const ImportRow &row : preview->rows()) {
            if (row.isTicked && row.state == ImportRow::State::New && !row.other &&
                row.opens.isEmpty())
                throw noOtherAccount(entryText(row, call));
        }
    }
    ImportPreview::Done done;
    done.counts = preview->counts();
    if (!isOpen)
        done = preview->post(call.requests);
    Report report = importReport(call, preview, done);
    const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
    const accounting::AccountNumber account = preview->account().number();
    ImportMemory memory = preview->memory();
    if (call.options.isDryRun)
        addRows(report, preview, index);
    if (format == interchange::StatementFormat::Csv && (call.options.isDryRun || keepsColumns)) {
        const interchange::CsvGuess guess = interchange::guessCsv(
            bytes, options.file, {profile, index->find(account)->balance().code()});
        report.line(guess.summary);
        if (keepsColumns)
            memory.accounts[account].profile = guess.profile;
    }
    for (const QString &notice : preview->notices())
        report.line(notice);
    if (done.hasChanges() || keepsColumns)
        call.document.setNotes(memory.keptIn(call.document.notes()));
    else
        report.setUnchanged();
    if (!call.options.isDryRun)
        report.setFinish(options.storedProfile(options.readProfile()));
    const workbench::ImportCounts &counts = done.counts;
    report.line(QObject::tr("New: %1; matched: %2; already imported: %3; left out: %4; accounts "
                            "opened: %5.")
                    .arg(QString::number(counts.added), QString::number(counts.matched),
                         QString::number(counts.known), QString::number(counts.leftOut),
                         QString::number(done.opened.size())));
    if (const auto doubtful = static_cast<int>(counts.doubtful); doubtful > 0)
        report.line(
            call.options.isDryRun
                ? QObject::tr("%n entries with a ? should be looked at.", nullptr, doubtful)
                : QObject::tr("%n entries should be looked at; see the marks with --dry-run.",
                              nullptr, doubtful));
    return report;
}

} // namespace kiv::app
