// SPDX-License-Identifier: GPL-3.0-or-later
// import
#include "commands/commands.h"
#include "commands/import_options.h"

#include "output/json.h"
#include "parsing/json_input.h"

#include "workbench/statements/posted_import.h"
#include "workbench/statements/statement_books.h"

#include "foundation/presentation.h"
#include "interchange/statement_reader.h"

namespace kiv::app {

using workbench::PostedImport;

namespace {

struct Import {
    ImportOptions options;
    bool keepsDuplicates = false;

    void declare(Arguments &arguments)
    {
        options.declare(arguments);
        arguments.flag("--keep-duplicates", keepsDuplicates, QObject::tr("Post duplicates, too"));
    }

    Report run(Call &call) const
    {
        const QByteArray bytes = readInput(options.file);
        const ImportFormat format = options.formatOf(bytes);
        return format == ImportFormat::Journal ? importJournal(call, bytes)
                                               : importStatement(call, format, bytes);
    }

private:
    // ---- journals ----------------------------------------------------------------

    [[nodiscard]] Report importJournal(Call &call, const QByteArray &bytes) const
    {
        Requests &requests = call.requests;
        const interchange::Draft draft = interchange::readJournal(
            bytes, options.file, options.journal(requests.preferredCurrency()));
        return report(call, workbench::postDraft(requests, draft, known()));
    }

    // ---- bank statements ---------------------------------------------------------

    [[nodiscard]] Report importStatement(Call &call, ImportFormat format,
                                         const QByteArray &bytes) const
    {
        if (!options.into)
            throw noAccountInto();
        Requests &requests = call.requests;
        const AccountIndex index = requests.accounts();
        const accounting::Account &account = index.find(*options.into);
        const numira::Currency currency = account.balance().code();
        const interchange::CsvProfile profile = options.readProfile();
        const interchange::Statement statement = interchange::chosenStatement(
            [&] {
                if (format == ImportFormat::Ofx)
                    return interchange::readOfx(bytes, options.file, options.bank());
                if (format == ImportFormat::Qif)
                    return interchange::readQif(bytes, options.file,
                                                options.qif(profile, currency));
                return std::vector{interchange::readCsv(bytes, options.file, {profile, currency})};
            }(),
            options.statement(), options.file);
        const interchange::StatementPlan plan = interchange::planStatement(
            statement, workbench::statementBooks(requests, account),
            {profile.rules, options.against,
             [&index](const QString &name) { return index.find(name).code(); }});
        for (const interchange::PlannedEntry &planned : plan.entries) {
            const interchange::StatementEntry &entry = planned.entry;
            if (planned.chosenBy == interchange::ChosenBy::Nobody)
                throw noOtherAccount(QStringLiteral("'%1', %2")
                                         .arg(entry.payee.isEmpty() ? entry.text : entry.payee,
                                              foundation::presentationText(entry.date)));
        }
        Report told = report(call, workbench::postStatement(requests, plan, known()));
        if (!call.options.isDryRun)
            told.setFinish(options.storedProfile(profile));
        return told;
    }

    // ---- both --------------------------------------------------------------------

    [[nodiscard]] workbench::KnownTransactions known() const
    {
        using enum workbench::KnownTransactions;
        return keepsDuplicates ? Post : Skip;
    }

    [[nodiscard]] static Rows rowsOf(std::vector<workbench::ImportedTransaction> transactions,
                                     const std::shared_ptr<const AccountIndex> &index)
    {
        const auto all = std::make_shared<const std::vector<workbench::ImportedTransaction>>(
            std::move(transactions));
        return {std::ssize(*all), [all, index](qsizetype at) {
                    const auto &[transaction, place, isSkipped] =
                        (*all)[static_cast<std::size_t>(at)];
                    QJsonObject row = withPaths(toJson(transaction), *index);
                    row.remove(QStringLiteral("number"));
                    row.insert(QStringLiteral("line"), qint64{place.line});
                    row.insert(QStringLiteral("duplicate"), isSkipped);
                    return row;
                }};
    }

    [[nodiscard]] static Report report(Call &call, PostedImport import)
    {
        const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
        QJsonArray accounts;
        for (const accounting::Account &account : import.opened)
            accounts.append(toJson(account, *index));
        const qint64 posted = import.posted();
        const qint64 skipped = import.skipped();
        const bool hasChanges = import.hasChanges();
        const Rows rows = rowsOf(std::move(import.transactions), index);
        Report report(
            QJsonObject{{QStringLiteral("accounts"), accounts},
                        {QStringLiteral("posted"), posted},
                        {QStringLiteral("duplicates"), skipped},
                        {QStringLiteral("notices"), QJsonArray::fromStringList(import.notices)}},
            QStringLiteral("transactions"), rows);
        if (call.options.isDryRun)
            preview(report, accounts, rows, index);
        for (const QString &notice : import.notices)
            report.line(notice);
        if (!hasChanges)
            report.setUnchanged();
        report.setChange(QObject::tr("Imported %n entries", nullptr, static_cast<int>(posted)));
        return report.line(
            QObject::tr("Transactions posted: %1; duplicates skipped: %2; accounts opened: %3.")
                .arg(QString::number(posted), QString::number(skipped),
                     QString::number(import.opened.size())));
    }

    static void preview(Report &report, const QJsonArray &accounts, const Rows &rows,
                        const std::shared_ptr<const AccountIndex> &index)
    {
        if (!accounts.isEmpty())
            report.table({{QObject::tr("Number"), QStringLiteral("number")},
                          {QObject::tr("New account"), QStringLiteral("path"), plainText}},
                         accounts, QString());
        report.table({{QObject::tr("Line"), QStringLiteral("line")},
                      {QObject::tr("Date"), QStringLiteral("date"), dayText},
                      {QObject::tr("Description"), QStringLiteral("description"), descriptionText},
                      {QObject::tr("Debit"), QStringLiteral("debit"), accountText(index)},
                      {QObject::tr("Credit"), QStringLiteral("credit"), accountText(index)},
                      {QObject::tr("Amount"), QStringLiteral("amount")},
                      {QString(), QStringLiteral("duplicate"),
                       [](const QJsonValue &isDuplicate) {
                           return isDuplicate.toBool() ? QObject::tr("duplicate") : QString();
                       }}},
                     rows, QObject::tr("There are no transactions in the file."));
    }
};

} // namespace

void addImportCommands(CommandGroup &root)
{
    root.add("import", QObject::tr("Import a journal or statement, all or nothing"),
             CommandKind::Change, Import{});
}

} // namespace kiv::app
