// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/trouble.h"

#include "workbench/requests/requests.h"
#include "workbench/versions/kept_versions.h"

#include "storage/storage_error.h"

namespace kiv::workbench {
namespace {

std::vector<Remedy> remedyOf(const std::exception &error)
{
    const auto *refusal = dynamic_cast<const Refusal *>(&error);
    return refusal && refusal->remedy() != Remedy::None ? std::vector{refusal->remedy()}
                                                        : std::vector<Remedy>();
}

} // namespace

Trouble troubleOfOpening(const QString &file, const std::exception &error)
{
    using enum storage::StorageFailure;
    const auto *stored = dynamic_cast<const storage::StorageError *>(&error);
    if (!stored)
        return {userText(error), remedyOf(error)};
    std::vector<Remedy> choices;
    switch (stored->failure()) {
    case Locked:
        choices = {Remedy::OpenForReading, Remedy::TryAgain};
        break;
    case NotFound:
    case Damaged:
        break;
    case CannotRead:
        choices = {Remedy::TryAgain};
        break;
    default:
        return {userText(error), {}};
    }
    if (stored->failure() != Locked && hasFormerVersions(file)) {
        choices.insert(choices.begin(), Remedy::LookAtVersions);
        if (stored->failure() != CannotRead)
            choices.insert(choices.begin(), Remedy::BringBack);
    }
    return {userText(error), std::move(choices)};
}

Trouble troubleOfSaving(const std::exception &error)
{
    using enum storage::StorageFailure;
    const auto *stored = dynamic_cast<const storage::StorageError *>(&error);
    if (!stored)
        return {userText(error), remedyOf(error)};
    switch (stored->failure()) {
    case ChangedOnDisk:
        return {userText(error), {Remedy::SaveElsewhere, Remedy::Reload}};
    case CannotHold:
        return {userText(error), {}};
    default:
        return {userText(error), {Remedy::TryAgain, Remedy::SaveElsewhere}};
    }
}

} // namespace kiv::workbench
