// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/internal/release_list.h"

#include "updating/internal/faults.h"

#include "foundation/streams.h"
#include "networking/json_reply.h"

#include <QtCore/QDebug>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace kiv::updating::internal {

namespace {

using Releases = std::set<ReleaseInformation>;

QString readText(const QJsonObject &release, const QString &member)
{
    const QJsonValue value = release.value(member);
    if (!value.isString())
        throw releaseMemberMalformed(member);
    return value.toString();
}

ReleaseInformation readRelease(const QJsonObject &release)
{
    const auto dateMember = QStringLiteral("date");
    ReleaseInformation information{
        SemanticVersion::fromText(readText(release, QStringLiteral("version"))),
        QDate::fromString(readText(release, dateMember), Qt::ISODate),
        readText(release, QStringLiteral("notes"))};
    if (!information.releasedOn.isValid())
        throw releaseMemberMalformed(dateMember);
    return information;
}

void warn(const char *warning, const foundation::Error &reason)
{
    qWarning() << warning << foundation::escapedUtf8(reason.message()).c_str();
}

Releases readReleases(const networking::Response &response)
{
    const QJsonDocument list = networking::readJson(response);
    if (!list.isArray())
        throw notAListOfReleases();
    Releases releases;
    std::optional<UpdateError> refusal;
    for (const QJsonValue release : list.array()) {
        try {
            releases.insert(readRelease(release.toObject()));
        } catch (const UpdateError &error) {
            refusal = error;
        }
    }
    if (refusal)
        warn("The list of releases holds some that are left out.", *refusal);
    return releases;
}

FetchedReleases readReleasesOrWarn(const networking::Response &response)
{
    try {
        return {readReleases(response), std::nullopt};
    } catch (const foundation::Error &error) {
        warn("Failed to fetch the list of releases.", error);
        return {{}, error};
    }
}

} // namespace

void fetchReleases(networking::NotifyingSender &sender, const ReleaseFeed &feed, QObject &user,
                   std::function<void(const FetchedReleases &)> done)
{
    if (feed.address.isEmpty()) {
        QMetaObject::invokeMethod(
            &user, [done = std::move(done)] { done({}); }, Qt::QueuedConnection);
        return;
    }
    sender.get(feed.address, user, [done = std::move(done)](const networking::Response &response) {
        done(readReleasesOrWarn(response));
    });
}

} // namespace kiv::updating::internal
