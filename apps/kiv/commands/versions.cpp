// SPDX-License-Identifier: GPL-3.0-or-later
// undo, history [diff]
#include "commands/commands.h"

#include "output/change_table.h"

#include "workbench/versions/kept_versions.h"

#include "foundation/local_dates.h"
#include "storage/budget_file.h"

namespace kiv::app {

namespace {

/// The number of a kept version; 0 is the file itself.
struct VersionNumber {
    unsigned value = 0;
};

void readValue(const QString &text, VersionNumber &version)
{
    bool isNumber = false;
    version.value = text.toUInt(&isNumber);
    if (!isNumber || version.value > storage::BudgetFile::backupsByDefault)
        throw workbench::notANumber(text, 0, storage::BudgetFile::backupsByDefault);
}

constexpr const char *valueWord(const VersionNumber *)
{
    return "NUMBER";
}

QString localTime(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    return foundation::localText(local.date()) + local.time().toString(QStringLiteral(" HH:mm:ss"));
}

QJsonObject toJson(const workbench::Version &version)
{
    QJsonObject json{{QStringLiteral("version"), qint64{version.number}},
                     {QStringLiteral("savedAt"), version.found.savedAt.toString(Qt::ISODateWithMs)},
                     {QStringLiteral("bytes"), version.found.size},
                     {QStringLiteral("file"), version.path},
                     {QStringLiteral("whole"), version.found.data.has_value()}};
    if (const auto &data = version.found.data) {
        qint64 items = 0;
        data->budget.forEach([&items](const budgeting::BudgetedMoney &) { ++items; });
        json.insert(QStringLiteral("items"), items);
        json.insert(QStringLiteral("accounts"),
                    static_cast<qint64>(data->generalLedger.accounts().size()));
        json.insert(QStringLiteral("transactions"),
                    static_cast<qint64>(data->generalLedger.transactions().size()));
    }
    return json;
}

struct Undo {
    VersionNumber to{1};

    void declare(Arguments &arguments)
    {
        arguments.optional("--to", to,
                           QObject::tr("Number of the version, see kiv history (default: 1)"));
    }
    Report run(Call &call) const
    {
        if (to.value == 0)
            throw notAFormerVersion();
        const QString file = call.document.file();
        const storage::BudgetStorage::Data present = workbench::versionOf(file, 0).data();
        const workbench::Version former = workbench::versionOf(file, to.value);
        const Rows changes = rowsOf(workbench::changesBetween(present, former.data()));
        call.document.recall(former.data());
        Report report(QJsonObject{{QStringLiteral("restored"), toJson(former)}},
                      QStringLiteral("changes"), changes);
        report.line(
            QObject::tr("Restored the version saved at %1.").arg(localTime(former.found.savedAt)));
        tabulate(report, changes, QObject::tr("Both versions are the same."), shownMax);
        return report;
    }

private:
    /// Fits on a screen: an undone import may have posted thousands.
    static constexpr qsizetype shownMax = 20;
};

// history and history diff open no document, so they also work with damaged files.
struct History {
    void declare(Arguments &arguments) { arguments.file(); }
    Report run(Call &call) const
    {
        QJsonArray rows;
        for (const workbench::Version &version :
             workbench::versionsOf(Document::withExtension(call.fileNamed())))
            rows.append(toJson(version));
        const auto time = [](const QJsonValue &value) {
            return localTime(QDateTime::fromString(value.toString(), Qt::ISODateWithMs));
        };
        const auto state = [](const QJsonValue &isWhole) {
            return isWhole.toBool() ? QString() : QObject::tr("damaged");
        };
        return Report(QJsonValue(rows))
            .table({{QObject::tr("Version"), QStringLiteral("version")},
                    {QObject::tr("Saved at"), QStringLiteral("savedAt"), time},
                    {QObject::tr("Bytes"), QStringLiteral("bytes")},
                    {QObject::tr("Items"), QStringLiteral("items")},
                    {QObject::tr("Accounts"), QStringLiteral("accounts")},
                    {QObject::tr("Transactions"), QStringLiteral("transactions")},
                    {QString(), QStringLiteral("whole"), state}},
                   rows, {});
    }
};

struct Differences {
    VersionNumber from{1};
    VersionNumber to{0};

    void declare(Arguments &arguments)
    {
        arguments.optional("FROM", from, QObject::tr("Number of the older version (default: 1)"))
            .optional("TO", to,
                      QObject::tr("Number of the newer version (default: 0, the file itself)"))
            .file();
    }
    Report run(Call &call) const
    {
        const QString file = Document::withExtension(call.fileNamed());
        const workbench::Version before = workbench::versionOf(file, from.value);
        const workbench::Version after = workbench::versionOf(file, to.value);
        const Rows changes = rowsOf(workbench::changesBetween(before.data(), after.data()));
        Report report(changes);
        tabulate(report, changes, QObject::tr("Both versions are the same."));
        return report;
    }
};

} // namespace

void addVersionCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("undo", QObject::tr("Restore the version before the last change"), Change, Undo{});
    root.add("history", QObject::tr("List the kept versions of the budget"), Standalone, History{})
        .add("diff", QObject::tr("Show the changes between two versions"), Standalone,
             Differences{});
}

} // namespace kiv::app
