// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/import_report.h"

#include "output/json.h"

#include "workbench/entry/description.h"

namespace kiv::app {

using workbench::ImportCounts;
using workbench::ImportMatch;
using workbench::ImportPayment;
using workbench::ImportPreview;
using workbench::ImportRow;
using workbench::PostedImport;

namespace {

// ---- journals --------------------------------------------------------------------

Rows importedRows(std::vector<workbench::ImportedTransaction> transactions,
                  const std::shared_ptr<const AccountIndex> &index)
{
    const auto all = std::make_shared<const std::vector<workbench::ImportedTransaction>>(
        std::move(transactions));
    return {std::ssize(*all), [all, index](qsizetype at) {
                const auto &[transaction, place, isSkipped] = (*all)[static_cast<std::size_t>(at)];
                QJsonObject row = withPaths(toJson(transaction), *index);
                row.remove(QStringLiteral("number"));
                row.insert(QStringLiteral("line"), qint64{place.line});
                row.insert(QStringLiteral("duplicate"), isSkipped);
                return row;
            }};
}

void preview(Report &report, const QJsonArray &accounts, const Rows &rows,
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

// ---- statements ------------------------------------------------------------------

const char *wordOf(ImportRow::State state)
{
    switch (state) {
    case ImportRow::State::New:
        return QT_TRANSLATE_NOOP("QObject", "new");
    case ImportRow::State::Payment:
        return QT_TRANSLATE_NOOP("QObject", "due");
    case ImportRow::State::Matched:
        return QT_TRANSLATE_NOOP("QObject", "matched");
    case ImportRow::State::Known:
        return QT_TRANSLATE_NOOP("QObject", "known");
    default:
        return QT_TRANSLATE_NOOP("QObject", "left out");
    }
}

/// What it is for: an account, an item, or transactions that are there.
QString purposeOf(const ImportRow &row, const AccountIndex &index)
{
    if (row.meaning) {
        if (const auto *payment = std::get_if<ImportPayment>(&*row.meaning))
            return payment->id.source.name();
        QStringList numbers;
        for (const accounting::TransactionNumber number :
             std::get<ImportMatch>(*row.meaning).numbers)
            numbers += u'(' + accounting::presentationText(number) + u')';
        return numbers.join(u' ');
    }
    return row.other ? index.plainName(*row.other) : row.opens.join(u':');
}

QJsonObject jsonOf(const ImportRow &row, qsizetype place, const AccountIndex &index)
{
    const interchange::StatementEntry &entry = row.entry;
    const bool isTaken = row.isTicked && row.state != ImportRow::State::LeftOut;
    QJsonObject json{
        {QStringLiteral("entry"), qint64{place} + 1},
        {QStringLiteral("line"), qint64{entry.place.line}},
        {QStringLiteral("date"), toJson(entry.date)},
        {QStringLiteral("amount"), toJson(entry.amount)},
        {QStringLiteral("description"),
         workbench::Description{entry.payee, entry.text, {}}.text().value_or(QString())},
        {QStringLiteral("identifier"), entry.bankId},
        {QStringLiteral("state"),
         QLatin1String(wordOf(isTaken ? row.state : ImportRow::State::LeftOut))},
        {QStringLiteral("reason"), row.reason},
        {QStringLiteral("doubtful"), row.isDoubtful},
        {QStringLiteral("for"), purposeOf(row, index)}};
    if (row.other && row.state == ImportRow::State::New) {
        json.insert(QStringLiteral("account"), toJson(*row.other));
        json.insert(QStringLiteral("path"), index.path(*row.other));
    }
    if (!row.meaning)
        return json;
    if (const auto *payment = std::get_if<ImportPayment>(&*row.meaning)) {
        json.insert(QStringLiteral("item"),
                    toJson(budgeting::BudgetItemAmountDue{payment->id, payment->expected}));
    } else {
        QJsonArray numbers;
        for (const accounting::TransactionNumber number :
             std::get<ImportMatch>(*row.meaning).numbers)
            numbers.append(toJson(std::optional(number)));
        json.insert(QStringLiteral("transactions"), numbers);
    }
    return json;
}

/// Made one by one: there may be many, and often nobody reads them.
Rows previewRows(const std::shared_ptr<const ImportPreview> &preview,
                 const std::shared_ptr<const AccountIndex> &index)
{
    return {std::ssize(preview->rows()), [preview, index](qsizetype at) {
                return jsonOf(preview->rows()[static_cast<std::size_t>(at)], at, *index);
            }};
}

} // namespace

Report importReport(Call &call, PostedImport import)
{
    const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
    QJsonArray accounts;
    for (const accounting::Account &account : import.opened)
        accounts.append(toJson(account, *index));
    const qint64 posted = import.posted();
    const qint64 skipped = import.skipped();
    const bool hasChanges = import.hasChanges();
    const Rows rows = importedRows(std::move(import.transactions), index);
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

void addRows(Report &report, const std::shared_ptr<const ImportPreview> &preview,
             const std::shared_ptr<const AccountIndex> &index)
{
    const auto word = [](const QJsonValue &state) {
        return QObject::tr(state.toString().toUtf8().constData());
    };
    const auto mark = [](const QJsonValue &isDoubtful) {
        return isDoubtful.toBool() ? QStringLiteral("?") : QString();
    };
    report.table({{QObject::tr("Entry"), QStringLiteral("entry")},
                  {QObject::tr("Date"), QStringLiteral("date"), dayText},
                  {QObject::tr("Description"), QStringLiteral("description"), descriptionText},
                  {QObject::tr("Amount"), QStringLiteral("amount")},
                  {QString(), QStringLiteral("doubtful"), mark},
                  {QObject::tr("What"), QStringLiteral("state"), word},
                  {QObject::tr("For"), QStringLiteral("for")},
                  {QObject::tr("Why"), QStringLiteral("reason")}},
                 previewRows(preview, index),
                 QObject::tr("There are no transactions in the file."));
}

Report importReport(Call &call, const std::shared_ptr<const ImportPreview> &preview,
                    const ImportPreview::Done &done)
{
    const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
    const ImportCounts &counts = done.counts;
    QJsonArray accounts;
    for (const accounting::Account &account : done.opened)
        accounts.append(toJson(account, *index));
    Report report(
        QJsonObject{{QStringLiteral("account"), toJson(preview->account().number())},
                    {QStringLiteral("accounts"), accounts},
                    {QStringLiteral("new"), counts.added},
                    {QStringLiteral("matched"), counts.matched},
                    {QStringLiteral("known"), counts.known},
                    {QStringLiteral("leftOut"), counts.leftOut},
                    {QStringLiteral("doubtful"), counts.doubtful},
                    {QStringLiteral("notices"), QJsonArray::fromStringList(preview->notices())}},
        QStringLiteral("entries"), previewRows(preview, index));
    report.setChange(QObject::tr("Imported %n entries of %1", nullptr,
                                 static_cast<int>(counts.added + counts.matched))
                         .arg(index->plainName(preview->account().number())));
    return report;
}

} // namespace kiv::app
