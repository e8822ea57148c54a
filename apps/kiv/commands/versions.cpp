// SPDX-License-Identifier: GPL-3.0-or-later
// undo, redo, history [diff]
#include "commands/commands.h"

#include "output/change_table.h"

#include "workbench/entry/user_locale.h"
#include "workbench/versions/kept_versions.h"

namespace kiv::app {

using storage::KeptVersion;

namespace {

/// So many changes.
struct Steps {
    qsizetype value = 1;
};

void readValue(const QString &text, Steps &steps)
{
    constexpr int stepsMax = 1000;
    bool isNumber = false;
    steps.value = text.toUInt(&isNumber);
    if (!isNumber || steps.value < 1 || steps.value > stepsMax)
        throw workbench::notANumber(text, 1, stepsMax);
}

constexpr const char *valueWord(const Steps *)
{
    return "NUMBER";
}

QString localTime(const QDateTime &time)
{
    // Versions can be of the same minute.
    return workbench::momentText(time) + time.toLocalTime().toString(QStringLiteral(":ss"));
}

bool isTelling(const KeptVersion &version)
{
    return version.telling == KeptVersion::Telling::Everything;
}

QJsonObject versionJson(const KeptVersion &version)
{
    const bool isNumbered = version.mark.number > 0;
    return {
        {QStringLiteral("version"), version.name},
        {QStringLiteral("number"), isNumbered ? QJsonValue(version.mark.number) : QJsonValue()},
        {QStringLiteral("present"), version.isFile},
        {QStringLiteral("savedAt"), version.mark.savedAt.toString(Qt::ISODateWithMs)},
        {QStringLiteral("change"),
         isTelling(version) ? QJsonValue(version.mark.change) : QJsonValue()},
        {QStringLiteral("transactions"),
         isTelling(version) ? QJsonValue(version.mark.transactions) : QJsonValue()},
        {QStringLiteral("bytes"), version.path.isEmpty() ? QJsonValue() : QJsonValue(version.size)},
        {QStringLiteral("file"), version.path.isEmpty() ? QJsonValue() : QJsonValue(version.path)},
        {QStringLiteral("otherPassphrase"), version.telling == KeptVersion::Telling::Locked},
        {QStringLiteral("readable"), version.telling != KeptVersion::Telling::Nothing}};
}

SharedChanges changesBetween(const storage::BudgetStorage::Data &before,
                             const storage::BudgetStorage::Data &after)
{
    return std::make_shared<const std::vector<workbench::Change>>(
        workbench::changesBetween(before, after));
}

/// The report on a version that was gone back or forth to.
Report restored(const Document::Recalled &recalled)
{
    // Fits on a screen: an undone import may have posted thousands.
    constexpr qsizetype shownMax = 20;
    const SharedChanges changes = recalled.before
                                      ? changesBetween(*recalled.before, recalled.after)
                                      : std::make_shared<const std::vector<workbench::Change>>();
    Report report(QJsonObject{{QStringLiteral("restored"), versionJson(recalled.version)}},
                  QStringLiteral("changes"), rowsOf(changes));
    const QString sentence = recalled.version.path.isEmpty()
                                 ? QObject::tr("Restored the state of %1.")
                                 : QObject::tr("Restored the version saved at %1.");
    report.line(sentence.arg(localTime(recalled.version.mark.savedAt)));
    if (recalled.before)
        tabulate(report, changes, QObject::tr("Both versions are the same."), shownMax);
    return report;
}

struct Undo {
    std::optional<Steps> steps;
    std::optional<QString> to;

    void declare(Arguments &arguments)
    {
        arguments.optional("--steps", steps, QObject::tr("How many changes (default: 1)"))
            .optional("--to", to, QObject::tr("Name of the version, see kiv history"))
            .exclusive("--steps", "--to");
    }
    Report run(Call &call) const
    {
        using enum Document::Settle; // the program saves, unless it is a dry run
        return restored(to ? call.document.undoTo(*to, Later)
                           : call.document.undo(steps.value_or(Steps()).value, Later));
    }
};

struct Redo {
    Steps steps;

    void declare(Arguments &arguments)
    {
        arguments.optional("--steps", steps, QObject::tr("How many changes (default: 1)"));
    }
    Report run(Call &call) const
    {
        return restored(call.document.redo(steps.value, Document::Settle::Later));
    }
};

/// The versions of the file, and before them the steps of a session with it, the newest
/// first.
std::vector<KeptVersion> stepsAndVersions(const Document &document,
                                          const workbench::KeptVersions &versions)
{
    const workbench::History &history = document.history();
    std::vector<KeptVersion> all;
    for (std::size_t place = history.size(); place-- > 0;) {
        all.push_back(versions.known(history.at(place).kept()));
        all.back().isFile = place == history.place();
    }
    const auto isStep = [steps = all](const KeptVersion &version) {
        return std::ranges::any_of(steps, [&version](const KeptVersion &step) {
            return !version.mark.id.isEmpty() && step.mark.id == version.mark.id;
        });
    };
    std::ranges::copy_if(versions.all(), std::back_inserter(all), std::not_fn(isStep));
    return all;
}

/// The versions of the file. Throws StorageError PassphraseNeeded where it, or without a whole
/// file the newest of them, is encrypted and its key is missing: their changes have names.
workbench::KeptVersions versionsOf(Call &call, const QString &file)
{
    const storage::KeyRing &keys = call.document.keys();
    keys.require(file);
    workbench::KeptVersions versions(file, &keys);
    const auto isWholeFile = [](const KeptVersion &version) {
        return version.isFile && version.telling != KeptVersion::Telling::Nothing;
    };
    const auto &all = versions.all();
    const auto former = std::ranges::find_if(all, std::not_fn(&KeptVersion::isFile));
    if (std::ranges::none_of(all, isWholeFile) && former != all.end())
        keys.require(former->path);
    return versions;
}

// history and history diff open no document, so they also work with damaged files.
struct History {
    void declare(Arguments &arguments) { arguments.file(); }
    Report run(Call &call) const
    {
        const QString file = Document::withExtension(call.fileNamed());
        const workbench::KeptVersions versions = versionsOf(call, file);
        if (versions.all().empty())
            (void)versions.present(); // which tells that there is none
        const std::vector<KeptVersion> all = file == call.document.file()
                                                 ? stepsAndVersions(call.document, versions)
                                                 : versions.all();
        QJsonArray rows;
        for (const KeptVersion &version : all)
            rows.append(versionJson(version));
        const auto time = [](const QJsonValue &value) {
            return localTime(QDateTime::fromString(value.toString(), Qt::ISODateWithMs));
        };
        const auto state = [](const QJsonValue &isReadable) {
            return isReadable.toBool() ? QString() : QObject::tr("damaged");
        };
        const auto mark = [](const QJsonValue &isPresent) {
            return isPresent.toBool() ? QObject::tr("present") : QString();
        };
        const auto lock = [](const QJsonValue &isLocked) {
            return isLocked.toBool() ? QObject::tr("another passphrase") : QString();
        };
        Report report{QJsonValue(rows)};
        report.table({{QObject::tr("Version"), QStringLiteral("version")},
                      {QString(), QStringLiteral("present"), mark},
                      {QObject::tr("Saved at"), QStringLiteral("savedAt"), time},
                      {QObject::tr("Transactions"), QStringLiteral("transactions")},
                      {QObject::tr("Change"), QStringLiteral("change")},
                      {QString(), QStringLiteral("readable"), state},
                      {QString(), QStringLiteral("otherPassphrase"), lock}},
                     rows, {});
        if (std::ranges::none_of(versions.all(), &KeptVersion::isFile))
            report.line(withFormerVersions(QObject::tr("The file '%1' is gone.").arg(file)));
        return report;
    }
};

struct Differences {
    std::optional<QString> from;
    std::optional<QString> to;

    void declare(Arguments &arguments)
    {
        arguments
            .optional(
                "FROM", from,
                QObject::tr("Name of the older version (default: the one that kiv undo goes to)"))
            .optional("TO", to, QObject::tr("Name of the newer version (default: the file itself)"))
            .file();
    }
    Report run(Call &call) const
    {
        const workbench::KeptVersions versions =
            versionsOf(call, Document::withExtension(call.fileNamed()));
        const KeptVersion &before = from ? versions.named(*from) : versions.undone(1);
        const KeptVersion &after = to ? versions.named(*to) : versions.present();
        const SharedChanges changes =
            changesBetween(workbench::dataOf(before, &call.document.keys()),
                           workbench::dataOf(after, &call.document.keys()));
        Report report(rowsOf(changes));
        tabulate(report, changes, QObject::tr("Both versions are the same."));
        return report;
    }
};

} // namespace

void addVersionCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("undo", QObject::tr("Take back the last change"), Restore, Undo{});
    root.add("redo", QObject::tr("Take back the last undo"), Change, Redo{});
    root.add("history", QObject::tr("List the kept versions of the budget"), Standalone, History{})
        .add("diff", QObject::tr("Show the changes between two versions"), Standalone,
             Differences{});
}

} // namespace kiv::app
