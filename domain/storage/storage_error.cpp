// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/storage_error.h"

#include "foundation/streams.h"

#include <ostream>

namespace kiv::storage {
namespace {

const char *word(StorageFailure failure) noexcept
{
    switch (failure) {
    case StorageFailure::NoName:
        return "no name";
    case StorageFailure::NotFound:
        return "not found";
    case StorageFailure::NotAFile:
        return "not a file";
    case StorageFailure::CannotRead:
        return "cannot read";
    case StorageFailure::TooLarge:
        return "too large";
    case StorageFailure::NotOurs:
        return "another kind of file";
    case StorageFailure::Newer:
        return "newer version";
    case StorageFailure::Damaged:
        return "damaged";
    case StorageFailure::Locked:
        return "locked";
    case StorageFailure::ChangedOnDisk:
        return "changed on disk";
    case StorageFailure::CannotWrite:
        return "cannot write";
    case StorageFailure::CannotHold:
        return "cannot hold";
    }
    return "unknown failure";
}

} // namespace

std::ostream &operator<<(std::ostream &out, StorageFailure failure)
{
    return out << word(failure);
}

QDebug operator<<(QDebug debug, StorageFailure failure)
{
    return foundation::streamed(debug, failure);
}

StorageError::StorageError(StorageFailure failure, QString filePathName, const QString &message,
                           const std::exception &cause)
    : Error(message, cause), m_failure(failure), m_filePathName(std::move(filePathName))
{
}

StorageError::StorageError(const StorageError &) noexcept = default;
StorageError::~StorageError() = default;

} // namespace kiv::storage
