// SPDX-License-Identifier: GPL-3.0-or-later
// import
#include "commands/commands.h"
#include "commands/import_options.h"

#include "output/json.h"
#include "parsing/json_input.h"

#include "foundation/presentation.h"
#include "interchange/duplicates.h"
#include "interchange/ofx_reader.h"

namespace kiv::app {

using accounting::AccountCode;
using accounting::Transaction;
using banking::BankAccountTypes;
using interchange::Place;
using navigation::Navigator;

namespace {

/// A transaction that a file holds, with where it stands there.
struct Found {
    Transaction transaction;
    Place place;
    QStringList notices = {}; ///< to be told when it is posted
};

struct Import {
    ImportOptions options;
    std::optional<QString> into;
    std::optional<QString> against;
    bool keepsDuplicates = false;

    void declare(Arguments &arguments)
    {
        options.declare(arguments);
        arguments
            .optional("--into", into, QObject::tr("The account that a bank statement is about"))
            .optional("--against", against,
                      QObject::tr("The other account of entries that no rule knows"))
            .flag("--keep-duplicates", keepsDuplicates,
                  QObject::tr("Post what is there already, too"));
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
        for (const auto &[given, name] : {std::pair(into, "--into"), {against, "--against"}}) {
            if (given)
                throw contradiction(QLatin1String(name), QStringLiteral("--format journal"));
        }
        Session &session = call.session;
        const interchange::Draft draft = interchange::readJournal(
            bytes, options.file, options.journal(session.preferredCurrency()));
        const AccountIndex before = session.accounts();
        const interchange::AccountPlan plan = interchange::planAccounts(draft, before.accounts());
        interchange::Duplicates duplicates(session.transactions());
        for (const accounting::Account &account : plan.missing)
            session.change(accountOutcome, &Navigator::onAddedAct, account);
        std::vector<Found> found;
        for (const interchange::DraftTransaction &drafted : draft.transactions) {
            const Transaction transaction(
                drafted.date, plan.codes[drafted.debit], plan.codes[drafted.credit], drafted.amount,
                drafted.text.isEmpty() ? std::nullopt : std::optional(drafted.text));
            found.push_back({transaction.withStatuses(drafted.debitStatus, drafted.creditStatus),
                             drafted.place});
        }
        return post(call, found, duplicates, plan.missing, draft.notices);
    }

    // ---- bank statements ---------------------------------------------------------

    [[nodiscard]] Report importStatement(Call &call, ImportFormat format,
                                         const QByteArray &bytes) const
    {
        if (!into)
            throw noAccountInto();
        Session &session = call.session;
        const AccountIndex index = session.accounts();
        const accounting::Account &account = index.find(*into);
        const numira::Currency currency = account.balance().code();
        const interchange::CsvProfile profile = options.readProfile();
        interchange::Statement statement = [&] {
            if (format == ImportFormat::Ofx)
                return interchange::readOfx(bytes, options.file, options.statement(),
                                            options.encoding());
            if (format == ImportFormat::Qif)
                return interchange::readQif(bytes, options.file, options.qif(profile, currency));
            return interchange::readCsvStatement(bytes, options.file, profile, currency);
        }();
        interchange::forgetSharedIds(statement.entries);

        QStringList notices;
        if (statement.hasPending)
            notices += QObject::tr("Entries that are not booked yet are left out.");
        std::vector<Found> found;
        const std::optional<QDate> opened = openedOn(session, account.code());
        for (const interchange::StatementEntry &entry : statement.entries) {
            QStringList told;
            const auto transaction = transactionOf(entry, account, profile, index, told);
            if (!transaction) {
                notices += told;
                continue;
            }
            if (opened && entry.date < *opened)
                told += QObject::tr("Some entries are older than the opening balance of %1, which "
                                    "may hold them already.")
                            .arg(foundation::presentationText(*opened));
            found.push_back({*transaction, entry.place, told});
        }
        interchange::Duplicates duplicates(session.transactions(), account.code().number(),
                                           keptByBanks(session));
        Report report = post(call, found, duplicates, {}, notices);
        if (!call.options.isDryRun)
            options.saveProfile(profile);
        return report;
    }

    /// Nothing, and a notice, for what moves no money.
    [[nodiscard]] std::optional<Transaction> transactionOf(const interchange::StatementEntry &entry,
                                                           const accounting::Account &account,
                                                           const interchange::CsvProfile &profile,
                                                           const AccountIndex &index,
                                                           QStringList &notices) const
    {
        const numira::Currency currency = account.balance().code();
        if (entry.amount.code() != currency)
            throw interchange::faults::otherCurrency(entry.place,
                                                     foundation::toQString(entry.amount.code()),
                                                     foundation::toQString(currency));
        if (entry.amount.isZero()) {
            notices += QObject::tr("Entries of nothing are left out.");
            return std::nullopt;
        }
        const AccountCode other = otherSide(entry, profile, index, notices);
        // Other programs write an opening balance so.
        if (entry.isTransfer && other == account.code()) {
            notices += QObject::tr("What moves from '%1' to itself, such as an opening balance, "
                                   "is left out.")
                           .arg(index.path(other.number()));
            return std::nullopt;
        }
        const bool isIn = entry.amount.isPositive();
        const QString text = interchange::withBankId(entry.text, entry.bankId);
        return Transaction(entry.date, isIn ? account.code() : other, isIn ? other : account.code(),
                           entry.amount.abs(), text.isEmpty() ? std::nullopt : std::optional(text));
    }

    [[nodiscard]] static std::optional<QDate> openedOn(Session &session, const AccountCode &code)
    {
        const auto ledger = std::get<accounting::LedgerAccount>(
            session.ask(&Navigator::showLedger, &Navigator::onSelectedLedger, code));
        const auto opening = ledger.openedBy();
        return opening ? std::optional(session.transaction(*opening).occurredOn()) : std::nullopt;
    }

    /// Those that banks send statements of.
    [[nodiscard]] static std::set<accounting::AccountNumber> keptByBanks(Session &session)
    {
        std::set<accounting::AccountNumber> kept;
        for (const auto &[name, bank] : session.banks()) {
            for (const auto &[number, type] : bank.accounts()) {
                if (type != BankAccountTypes::Cash && type != BankAccountTypes::GoalSubAccount)
                    kept.insert(number);
            }
        }
        return kept;
    }

    /// The account by the first rule that knows the text, by the category that
    /// another program gave, or the one for all others.
    [[nodiscard]] AccountCode otherSide(const interchange::StatementEntry &entry,
                                        const interchange::CsvProfile &profile,
                                        const AccountIndex &index, QStringList &notices) const
    {
        for (const interchange::AccountRule &rule : profile.rules) {
            if (entry.text.contains(rule.contains, Qt::CaseInsensitive))
                return index.find(rule.account).code();
        }
        if (!entry.category.isEmpty()) {
            for (const accounting::Account &account : index.accounts()) {
                const AccountCode &code = account.code();
                if (code.name() == entry.category || index.path(code.number()) == entry.category)
                    return index.find(entry.category).code(); // refused when there are several
            }
        }
        if (!against)
            throw noOtherAccount(QStringLiteral("'%1', %2")
                                     .arg(entry.text, foundation::presentationText(entry.date)));
        AccountCode code = index.find(*against).code();
        if (entry.isTransfer)
            notices += QObject::tr("There is no account '%1'; what was moved there goes to '%2'.")
                           .arg(entry.category, index.path(code.number()));
        return code;
    }

    // ---- both --------------------------------------------------------------------

    [[nodiscard]] Report post(Call &call, const std::vector<Found> &found,
                              interchange::Duplicates &duplicates,
                              const std::vector<accounting::Account> &opened,
                              QStringList notices) const
    {
        QJsonArray rows;
        qint64 posted = 0;
        const AccountIndex index = call.session.accounts();
        const std::vector<bool> known = knownAmong(found, duplicates);
        for (std::size_t at = 0; at < found.size(); ++at) {
            const auto &[transaction, place, told] = found[at];
            const bool isDuplicate = known[at] && !keepsDuplicates;
            if (!isDuplicate) {
                postOne(call.session, transaction, place);
                ++posted;
                notices += told;
                if (!known[at] && duplicates.takeTransfer(transaction))
                    notices += QObject::tr("Line %1 may be a transfer that is there already, from "
                                           "the statement of its other account.")
                                   .arg(place.line);
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
        // A save of the same again would only push a former version out.
        if (posted == 0 && opened.empty())
            report.setUnchanged();
        return report.line(QObject::tr("Transactions posted: %1; duplicates left out: %2; accounts "
                                       "opened: %3.")
                               .arg(QString::number(posted), QString::number(duplicated),
                                    QString::number(opened.size())));
    }

    [[nodiscard]] static std::vector<bool> knownAmong(const std::vector<Found> &found,
                                                      interchange::Duplicates &duplicates)
    {
        std::vector<bool> known;
        known.reserve(found.size());
        for (const Found &one : found)
            known.push_back(duplicates.take(one.transaction));
        return known;
    }

    static void postOne(Session &session, const Transaction &transaction, const Place &place)
    {
        try {
            session.change(transactionOutcome, &Navigator::onAddedTransaction, transaction);
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
    root.add("import",
             QObject::tr("Post what a journal or a bank statement holds, or nothing of it"),
             CommandKind::Change, Import{});
}

} // namespace kiv::app
