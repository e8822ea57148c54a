// SPDX-License-Identifier: GPL-3.0-or-later
// export
#include "commands/commands.h"

#include "output/json.h"

#include "workbench/exports/export.h"

namespace kiv::app {

using workbench::ExportFormat;

namespace {

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
        call.tellReadable();
        if (format == ExportFormat::Json || call.options.isJson) {
            auto [rest, transactions] = workbench::exportedBudget(call.requests);
            return Report(std::move(rest), QStringLiteral("transactions"), std::move(transactions))
                .setAlwaysJson();
        }
        QByteArray document;
        workbench::writeExport(call.requests, format,
                               [&document](const QByteArray &text) { document += text; });
        return Report().raw(document);
    }
};

} // namespace

void addExportCommands(CommandGroup &root)
{
    root.add("export", QObject::tr("Print the ledger for other programs"), CommandKind::Query,
             Export{});
}

} // namespace kiv::app
