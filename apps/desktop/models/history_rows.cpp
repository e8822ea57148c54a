// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/history_rows.h"

#include "workbench/entry/user_locale.h"
#include "workbench/versions/change_text.h"

#include <QtCore/QObject>

#include <ranges>

namespace kiv::desktop {

using storage::KeptVersion;

namespace {

const QString stepKey = QStringLiteral("step ");
const QString versionKey = QStringLiteral("version ");

Row stepRow(const workbench::Step &step, qsizetype place)
{
    return {stepKey + QString::number(place),
            {{step.deed.line.isEmpty() ? QObject::tr("As it was opened") : step.deed.line},
             {workbench::momentText(step.at)},
             {step.isPresent ? QObject::tr("present") : QString()}}};
}

Row versionRow(const KeptVersion &version)
{
    Cell state{version.isFile ? QObject::tr("in the file now") : QString()};
    if (version.telling == KeptVersion::Telling::Nothing)
        state = {QObject::tr("damaged"), {}, false, Colour::Wrong};
    if (version.telling == KeptVersion::Telling::Locked)
        state = {QObject::tr("another passphrase")};
    const QString &change = version.mark.change;
    return {versionKey + version.name,
            {{change.isEmpty() ? QObject::tr("Version %1").arg(version.name) : change},
             {workbench::momentText(version.mark.savedAt)},
             state}};
}

} // namespace

QStringList historyColumns()
{
    return {QObject::tr("Step"), QObject::tr("Time"), QObject::tr("State")};
}

std::vector<Row> historyRows(const std::vector<workbench::Step> &steps,
                             const std::vector<KeptVersion> &versions)
{
    std::vector<Row> rows;
    rows.push_back({QStringLiteral("session"), {{QObject::tr("Since the file was opened")}}, true});
    for (std::size_t place = steps.size(); place > 0; --place)
        rows.push_back(stepRow(steps[place - 1], static_cast<qsizetype>(place) - 1));
    if (!versions.empty()) {
        rows.push_back({QStringLiteral("file"), {{QObject::tr("Versions of the file")}}, true});
        std::ranges::transform(versions, std::back_inserter(rows), versionRow);
    }
    return rows;
}

HistoryTarget historyTarget(const QString &key)
{
    if (key.startsWith(stepKey))
        return {key.sliced(stepKey.size()).toLongLong(), {}};
    return {std::nullopt, key.startsWith(versionKey) ? key.sliced(versionKey.size()) : QString()};
}

QStringList changeColumns()
{
    return {QObject::tr("What"), QObject::tr("Name"), QObject::tr("Change"), QObject::tr("Detail")};
}

std::vector<Row> changeRows(const std::vector<workbench::Change> &changes, std::size_t rowsMax)
{
    std::vector<Row> rows;
    for (const workbench::Change &change : changes | std::views::take(rowsMax)) {
        const workbench::ChangeText text = workbench::changeText(change);
        rows.push_back(
            {QString::number(rows.size()), {{text.what}, {text.name}, {text.how}, {text.detail}}});
    }
    return rows;
}

} // namespace kiv::desktop
