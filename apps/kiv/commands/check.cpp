// SPDX-License-Identifier: GPL-3.0-or-later
// check
#include "commands/commands.h"

#include "output/json.h"
#include "program.h"

#include "foundation/presentation.h"
#include "storage/budget_inspection.h"

#include <QtCore/QFileInfo>

namespace kiv::app {

using accounting::Account;
using storage::BudgetStorage;
using storage::FilePromise;
using storage::Verdict;

namespace {

/// One promise of a budget file as it is told: its word for programs, its
/// sentence for people, and what became of it.
struct Told {
    const char *word;
    QString sentence;
    Verdict verdict = Verdict::NotJudged;
    QStringList reasons = {};
};

Told told(const storage::Judgement &judgement)
{
    switch (judgement.promise) {
    case FilePromise::Identity:
        return {"identity", QObject::tr("It is a budget file of a known version"),
                judgement.verdict, judgement.reasons};
    case FilePromise::Tables:
        return {"tables", QObject::tr("Its tables are those of that version"), judgement.verdict,
                judgement.reasons};
    case FilePromise::Seal:
        return {"seal", QObject::tr("Its rows are those that were written"), judgement.verdict,
                judgement.reasons};
    case FilePromise::Rules:
        return {"rules", QObject::tr("Its books obey the rules of the ledger"), judgement.verdict,
                judgement.reasons};
    case FilePromise::Ties:
        break;
    }
    return {"ties", QObject::tr("Its items, accounts and banks fit together"), judgement.verdict,
            judgement.reasons};
}

/// A sum that grows by amounts of one currency after the other.
using Sums = std::map<numira::Currency, numira::Money>;

void add(Sums &sums, const numira::Money &amount)
{
    sums.try_emplace(amount.code(), amount.code()).first->second += amount;
}

/// Adds up the transactions account by account, and finds whether that gives the
/// balances, and the same sum on both sides.
std::vector<Told> judgeSums(const std::optional<BudgetStorage::Data> &data)
{
    Told balances{"balances", QObject::tr("Every balance is the sum of its transactions")};
    Told sides{"sides", QObject::tr("In every currency the debits equal the credits")};
    if (!data)
        return {balances, sides};
    Sums debits;
    Sums credits;
    for (const Account &account : data->generalLedger.accounts()) {
        numira::Money sum(account.balance().code());
        for (const accounting::Transaction &transaction : account.transactions()) {
            const bool isDebit = transaction.debiting().number() == account.code().number();
            const numira::Money &amount = transaction.amountFor(account.code().number());
            sum += isDebit == accounting::isDebitNormal(account.type()) ? amount : -amount;
            // One that goes from one currency to another is in neither sum.
            if (transaction.debitAmount().code() == transaction.creditAmount().code())
                add(isDebit ? debits : credits, amount);
        }
        if (sum != account.balance())
            balances.reasons += accounting::presentationText(account.code());
    }
    balances.verdict = balances.reasons.isEmpty() ? Verdict::Kept : Verdict::Broken;
    sides.verdict = debits == credits ? Verdict::Kept : Verdict::Broken;
    for (const auto &[_, sum] : debits)
        sides.reasons += amountText(toJson(sum), navigation::CurrencyDisplayOptions::IsoCode);
    return {balances, sides};
}

const char *wordOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Kept:
        return "kept";
    case Verdict::Mended:
        return "mended";
    case Verdict::Broken:
        return "broken";
    case Verdict::NotJudged:
        break;
    }
    return "not judged";
}

QString verdictText(const QJsonValue &word)
{
    const QString text = word.toString();
    return text == u"kept"     ? QObject::tr("kept")
           : text == u"mended" ? QObject::tr("mended when it is opened")
           : text == u"broken" ? QObject::tr("BROKEN")
                               : QObject::tr("not judged");
}

struct Check {
    QString file;

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("A budget file or one of its backups")).file();
    }
    Report run(Call &call) const
    {
        const QString path = named(call);
        const storage::BudgetInspection found = storage::inspectBudget(path);
        std::vector<Told> promises;
        promises.reserve(found.judgements.size());
        for (const storage::Judgement &judgement : found.judgements)
            promises.push_back(told(judgement));
        std::ranges::move(judgeSums(found.data), std::back_inserter(promises));

        QJsonArray rows;
        bool isWhole = true;
        for (const Told &promise : promises) {
            isWhole = isWhole && promise.verdict != Verdict::Broken;
            rows.append(QJsonObject{
                {QStringLiteral("promise"), QLatin1String(promise.word)},
                {QStringLiteral("text"), promise.sentence},
                {QStringLiteral("verdict"), QLatin1String(wordOf(promise.verdict))},
                {QStringLiteral("details"), QJsonArray::fromStringList(promise.reasons)}});
        }
        Report report(QJsonObject{{QStringLiteral("file"), path},
                                  {QStringLiteral("whole"), isWhole},
                                  {QStringLiteral("promises"), rows}});
        report
            .table({{QObject::tr("Promise"), QStringLiteral("text")},
                    {QObject::tr("Verdict"), QStringLiteral("verdict"), verdictText},
                    {QObject::tr("Details"), QStringLiteral("details")}},
                   rows, {})
            .line(isWhole ? QObject::tr("The budget '%1' is whole.").arg(path)
                          : QObject::tr("The budget '%1' is not whole; kiv check FILE tells which "
                                        "of its backups (%1.backup-1, …) is.")
                                .arg(path));
        report.setStatus(isWhole ? Program::success : Program::refused);
        return report;
    }

private:
    /// The file that is meant: a backup has no extension of its own.
    [[nodiscard]] QString named(const Call &call) const
    {
        const QString path = file.isEmpty() ? call.fileNamed() : file;
        return QFileInfo(path).isFile() ? path : Session::withExtension(path);
    }
};

} // namespace

void addCheckCommand(CommandGroup &root)
{
    root.add("check", QObject::tr("Verify a budget file and tell each of its promises"),
             CommandKind::Standalone, Check{});
}

} // namespace kiv::app
