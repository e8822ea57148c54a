// SPDX-License-Identifier: GPL-3.0-or-later
// import
#include "commands/commands.h"
#include "commands/import_report.h"
#include "commands/statement_import.h"

#include "parsing/json_input.h"

namespace kiv::app {

namespace {

struct Import {
    ImportOptions options;
    EntryCorrections corrections;
    bool keepsDuplicates = false;
    bool isAgreed = false;
    bool keepsColumns = false;

    void declare(Arguments &arguments)
    {
        options.declare(arguments);
        corrections.declare(arguments);
        arguments.flag("--keep-duplicates", keepsDuplicates, QObject::tr("Post duplicates, too"))
            .flag("--keep-columns", keepsColumns,
                  QObject::tr("Read the account's tables like this from now on (csv)"))
            .flag("--yes", isAgreed, QObject::tr("Take the preview as it is, and ask nothing"));
    }

    Report run(Call &call) const
    {
        const QByteArray bytes = readInput(options.file);
        const ImportFormat format = options.formatOf(bytes);
        refuseUnused(format);
        if (const auto statement = workbench::statementFormat(format))
            return StatementImport{options, corrections, isAgreed, keepsDuplicates, keepsColumns}
                .run(call, *statement, bytes);
        return importJournal(call, bytes);
    }

private:
    /// Options without effect, as those of reading.
    void refuseUnused(ImportFormat format) const
    {
        const QString form = QStringLiteral("--format %1").arg(workbench::importFormatWord(format));
        if (keepsColumns && format != ImportFormat::Csv)
            throw contradiction(QStringLiteral("--keep-columns"), form);
        if (format != ImportFormat::Journal)
            return;
        for (const auto &[option, isGiven] : {std::pair("--new", !corrections.fresh.empty()),
                                              {"--same", !corrections.same.empty()},
                                              {"--for", !corrections.purpose.empty()},
                                              {"--leave-out", !corrections.leftOut.empty()},
                                              {"--yes", isAgreed}}) {
            if (isGiven)
                throw contradiction(QLatin1String(option), form);
        }
    }

    [[nodiscard]] Report importJournal(Call &call, const QByteArray &bytes) const
    {
        using enum workbench::KnownTransactions;
        Requests &requests = call.requests;
        const interchange::Draft draft = interchange::readJournal(
            bytes, options.file, options.journal(requests.preferredCurrency()));
        return importReport(call,
                            workbench::postDraft(requests, draft, keepsDuplicates ? Post : Skip));
    }
};

} // namespace

void addImportCommands(CommandGroup &root)
{
    root.add("import", QObject::tr("Import a journal or statement, all or nothing"),
             CommandKind::Change, Import{});
}

} // namespace kiv::app
