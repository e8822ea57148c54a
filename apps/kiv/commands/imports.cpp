// SPDX-License-Identifier: GPL-3.0-or-later
// import
#include "commands/commands.h"
#include "commands/import_options.h"

#include "output/json.h"
#include "parsing/json_input.h"

#include "workbench/statements/statement_books.h"

#include "foundation/presentation.h"
#include "interchange/duplicates.h"
#include "interchange/statement_plan.h"

namespace kiv::app {

using accounting::Transaction;
using interchange::Place;
using navigation::Navigator;

namespace {

/// A transaction of a file, with its place there.
struct Found {
    Transaction transaction;
    Place place;
    bool isKnown = false;     ///< whether the budget has it already
    QStringList notices = {}; ///< shown if it is posted
};

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
        const AccountIndex before = requests.accounts();
        const interchange::AccountPlan plan = interchange::planAccounts(draft, before.accounts());
        interchange::Duplicates duplicates(requests.transactions());
        for (const accounting::Account &account : plan.missing)
            requests.change(workbench::accountOutcome, &Navigator::onAddedAct, account);
        std::vector<Found> found;
        for (const interchange::DraftTransaction &drafted : draft.transactions) {
            const Transaction transaction(
                drafted.date, plan.codes[drafted.debit], plan.codes[drafted.credit], drafted.amount,
                drafted.text.isEmpty() ? std::nullopt : std::optional(drafted.text));
            found.push_back({transaction.withStatuses(drafted.debitStatus, drafted.creditStatus),
                             drafted.place, duplicates.take(transaction)});
        }
        return post(call, found, plan.missing, draft.notices);
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
        const interchange::Statement statement = [&] {
            if (format == ImportFormat::Ofx)
                return interchange::readOfx(bytes, options.file, options.ofx());
            if (format == ImportFormat::Qif)
                return interchange::readQif(bytes, options.file, options.qif(profile, currency));
            return interchange::readCsv(bytes, options.file, {profile, currency});
        }();
        const interchange::StatementPlan plan = interchange::planStatement(
            statement, workbench::statementBooks(requests, account),
            {profile.rules, options.against,
             [&index](const QString &name) { return index.find(name).code(); }});
        std::vector<Found> found;
        for (const interchange::PlannedEntry &planned : plan.entries) {
            const interchange::StatementEntry &entry = planned.entry;
            if (planned.chosenBy == interchange::ChosenBy::Nobody)
                throw noOtherAccount(
                    QStringLiteral("'%1', %2")
                        .arg(entry.text, foundation::presentationText(entry.date)));
            found.push_back(
                {planned.transaction, entry.place, planned.isDuplicate, textsOf(planned.notices)});
        }
        Report report = post(call, found, {}, textsOf(plan.notices));
        if (!call.options.isDryRun)
            report.setFinish(options.storedProfile(profile));
        return report;
    }

    [[nodiscard]] static QStringList
    textsOf(const std::vector<interchange::StatementNotice> &notices)
    {
        QStringList texts;
        for (const interchange::StatementNotice &notice : notices)
            texts += notice.text;
        return texts;
    }

    // ---- both --------------------------------------------------------------------

    [[nodiscard]] Report post(Call &call, const std::vector<Found> &found,
                              const std::vector<accounting::Account> &opened,
                              QStringList notices) const
    {
        QJsonArray rows;
        qint64 posted = 0;
        const AccountIndex index = call.requests.accounts();
        for (const auto &[transaction, place, isKnown, told] : found) {
            const bool isDuplicate = isKnown && !keepsDuplicates;
            if (!isDuplicate) {
                postOne(call.requests, transaction, place);
                ++posted;
                notices += told;
            }
            QJsonObject row = toJson(transaction);
            row.remove(QStringLiteral("number"));
            row.insert(QStringLiteral("debitPath"), index.path(transaction.debiting().number()));
            row.insert(QStringLiteral("creditPath"), index.path(transaction.crediting().number()));
            row.insert(QStringLiteral("line"), qint64{place.line});
            row.insert(QStringLiteral("duplicate"), isDuplicate);
            rows.append(row);
        }
        notices.removeDuplicates();
        QJsonArray accounts;
        for (const accounting::Account &account : opened)
            accounts.append(toJson(account, index));
        const auto duplicated = qint64{rows.size()} - posted;
        Report report(
            QJsonObject{{QStringLiteral("accounts"), accounts},
                        {QStringLiteral("transactions"), rows},
                        {QStringLiteral("posted"), posted},
                        {QStringLiteral("duplicates"), duplicated},
                        {QStringLiteral("notices"), QJsonArray::fromStringList(notices)}});
        if (call.options.isDryRun)
            preview(report, accounts, rows);
        for (const QString &notice : notices)
            report.line(notice);
        // Saving an unchanged budget would only push out an older version.
        if (posted == 0 && opened.empty())
            report.setUnchanged();
        return report.line(
            QObject::tr("Transactions posted: %1; duplicates skipped: %2; accounts opened: %3.")
                .arg(QString::number(posted), QString::number(duplicated),
                     QString::number(opened.size())));
    }

    static void postOne(Requests &requests, const Transaction &transaction, const Place &place)
    {
        try {
            requests.change(workbench::transactionOutcome, &Navigator::onAddedTransaction,
                            transaction);
        } catch (const Refusal &refusal) {
            throw interchange::ImportError(place, refusal.message());
        }
    }

    static void preview(Report &report, const QJsonArray &accounts, const QJsonArray &rows)
    {
        if (!accounts.isEmpty())
            report.table({{QObject::tr("Number"), QStringLiteral("number")},
                          {QObject::tr("New account"), QStringLiteral("path")}},
                         accounts, QString());
        report.table({{QObject::tr("Line"), QStringLiteral("line")},
                      {QObject::tr("Date"), QStringLiteral("date"), dayText},
                      {QObject::tr("Description"), QStringLiteral("description")},
                      {QObject::tr("Debit"), QStringLiteral("debitPath")},
                      {QObject::tr("Credit"), QStringLiteral("creditPath")},
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
