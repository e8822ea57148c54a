// SPDX-License-Identifier: GPL-3.0-or-later
// export
#include "commands/commands.h"

#include "output/json.h"

#include "interchange/ledger_writer.h"

namespace kiv::app {
namespace {

enum class ExportFormat { Journal, Csv, Json };

void readValue(const QString &text, ExportFormat &value)
{
    static const std::map<QString, ExportFormat> formats{
        {QStringLiteral("journal"), ExportFormat::Journal},
        {QStringLiteral("csv"), ExportFormat::Csv},
        {QStringLiteral("json"), ExportFormat::Json}};
    const auto found = formats.find(text);
    if (found == formats.end()) {
        throw notAChoice(
            text, {QStringLiteral("journal"), QStringLiteral("csv"), QStringLiteral("json")});
    }
    value = found->second;
}

/// The form that docs/import-export.md describes. Keys can be added under the same
/// version, but their meanings do not change.
Report everything(Requests &requests, const AccountIndex &index)
{
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
            QStringLiteral("transactions"),
            Rows(static_cast<qsizetype>(posted->size()), [posted](qsizetype at) {
                return toJson((*posted)[static_cast<std::size_t>(at)]);
            })};
}

struct Export {
    ExportFormat format = ExportFormat::Journal;

    void declare(Arguments &arguments)
    {
        arguments
            .optional("--format", format, QObject::tr("Format: journal (default), csv or json"))
            .exclusive("--format", "--json");
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        if (format == ExportFormat::Json || call.options.isJson)
            return everything(call.requests, index).setAlwaysJson();
        const std::vector<accounting::Transaction> transactions = call.requests.transactions();
        if (format == ExportFormat::Csv)
            return Report().raw(interchange::writeCsv(index.accounts(), transactions));
        return Report().raw(interchange::writeJournal(index.accounts(), transactions));
    }
};

} // namespace

void addExportCommands(CommandGroup &root)
{
    root.add("export", QObject::tr("Print the ledger for other programs"), CommandKind::Query,
             Export{});
}

} // namespace kiv::app
