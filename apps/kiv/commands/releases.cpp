// SPDX-License-Identifier: GPL-3.0-or-later
// updates check, release-notes
#include "commands/commands.h"

#include "output/json.h"

#include "workbench/requests/releases.h"

#include "foundation/presentation.h"
#include "updating/release_information.h"

#include <QtCore/QCoreApplication>

namespace kiv::app {

using updating::ReleaseInformation;

namespace {

QJsonObject releaseJson(const ReleaseInformation &release)
{
    return {{QStringLiteral("version"), updating::toQString(release.version)},
            {QStringLiteral("date"), app::toJson(release.releasedOn)},
            {QStringLiteral("notes"), release.notes}};
}

struct CheckUpdates {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const auto own =
            updating::SemanticVersion::fromText(QCoreApplication::applicationVersion());
        const std::vector<ReleaseInformation> releases = workbench::fetchedReleases(call.requests);
        const bool isNews = !releases.empty() && releases.front().version.isNewerThan(own);
        QJsonObject json{{QStringLiteral("version"), updating::toQString(own)},
                         {QStringLiteral("latest"), QJsonValue()}};
        if (!isNews)
            return Report(json).line(QObject::tr("There is no newer release."));
        json.insert(QStringLiteral("latest"), releaseJson(releases.front()));
        return Report(json).line(QObject::tr("There is a newer release: %1.")
                                     .arg(updating::presentationText(releases.front().version)));
    }
};

struct ReleaseNotes {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        QJsonArray rows;
        Report report;
        for (const ReleaseInformation &release : workbench::fetchedReleases(call.requests)) {
            rows.append(releaseJson(release));
            report.heading(updating::presentationText(release.version) + u' ' +
                           foundation::presentationText(release.releasedOn));
            for (const QString &line : release.notes.split(u'\n'))
                report.line(line);
        }
        if (rows.isEmpty())
            report.line(QObject::tr("There are no releases."));
        report.setData(rows);
        return report;
    }
};

} // namespace

void addReleaseCommands(CommandGroup &root)
{
    CommandGroup updates = root.group("updates", QObject::tr("Check for a newer release"));
    updates.add("check", QObject::tr("Check for a newer release"), CommandKind::Standalone,
                CheckUpdates{});
    root.add("release-notes", QObject::tr("Show the release notes"), CommandKind::Standalone,
             ReleaseNotes{});
}

} // namespace kiv::app
