// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/exports/export.h"

#include "workbench/internal/faults.h"
#include "workbench/json/json.h"

#include "interchange/ledger_writer.h"

#include <QtCore/QSaveFile>

namespace kiv::workbench {

QString wordOf(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Journal:
        return QStringLiteral("journal");
    case ExportFormat::Csv:
        return QStringLiteral("csv");
    case ExportFormat::Json:
        break;
    }
    return QStringLiteral("json");
}

void readValue(const QString &text, ExportFormat &value)
{
    QStringList words;
    for (const ExportFormat format :
         {ExportFormat::Journal, ExportFormat::Csv, ExportFormat::Json}) {
        words += wordOf(format);
        if (text == words.last()) {
            value = format;
            return;
        }
    }
    throw notAChoice(text, words);
}

ExportedBudget exportedBudget(Requests &requests)
{
    const AccountIndex index = requests.accounts();
    QJsonArray accounts;
    for (const accounting::Account &account : index.accounts())
        accounts.append(toJson(account, index));
    QJsonArray banks;
    for (const auto &[name, bank] : requests.banks())
        banks.append(toJson(bank, index));
    QJsonArray items;
    const BudgetView view(requests);
    view.budget().forEach(
        [&](const budgeting::BudgetedMoney &item) { items.append(toJson(item, view)); });
    const auto posted =
        std::make_shared<const std::vector<accounting::Transaction>>(requests.transactions());
    return {QJsonObject{{QStringLiteral("format"), QStringLiteral("kiv-export")},
                        {QStringLiteral("version"), 1},
                        {QStringLiteral("accounts"), accounts},
                        {QStringLiteral("banks"), banks},
                        {QStringLiteral("items"), items}},
            Rows(static_cast<qsizetype>(posted->size()), [posted](qsizetype at) {
                return toJson((*posted)[static_cast<std::size_t>(at)]);
            })};
}

void writeExport(Requests &requests, ExportFormat format, const Sink &sink)
{
    if (format == ExportFormat::Json) {
        const ExportedBudget whole = exportedBudget(requests);
        JsonText text(JsonText::Layout::Indented, sink);
        text.add(whole.rest, QStringLiteral("transactions"), whole.transactions);
        text.finish();
        return;
    }
    const AccountIndex index = requests.accounts();
    const std::vector<accounting::Transaction> transactions = requests.transactions();
    sink(format == ExportFormat::Csv ? interchange::writeCsv(index.accounts(), transactions)
                                     : interchange::writeJournal(index.accounts(), transactions));
}

namespace {

void writeWhole(const QString &file, const std::function<void(const Sink &)> &write)
{
    QSaveFile written(file);
    if (!written.open(QIODevice::WriteOnly))
        throw internal::cannotWrite(file, written.errorString());
    write([&written](const QByteArray &text) { written.write(text); });
    if (!written.commit())
        throw internal::cannotWrite(file, written.errorString());
}

} // namespace

void exportTo(Requests &requests, ExportFormat format, const QString &file)
{
    writeWhole(file, [&](const Sink &sink) { writeExport(requests, format, sink); });
}

void writeFile(const QString &file, const QByteArray &bytes)
{
    writeWhole(file, [&bytes](const Sink &sink) { sink(bytes); });
}

} // namespace kiv::workbench
