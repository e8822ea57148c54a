// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/storage_error.h"

#include "foundation/enum_table.h"

#include <array>
#include <ostream>

namespace kiv::storage {
namespace {

/// By the values of StorageFailure, which begin with 1.
constexpr std::array<const char *, 17> words{"unknown failure",
                                             "no name",
                                             "not found",
                                             "not a file",
                                             "cannot read",
                                             "too large",
                                             "another kind of file",
                                             "newer version",
                                             "damaged",
                                             "locked",
                                             "changed on disk",
                                             "cannot write",
                                             "cannot hold",
                                             "passphrase needed",
                                             "wrong passphrase",
                                             "passphrase refused",
                                             "too little memory"};

} // namespace

std::ostream &operator<<(std::ostream &out, StorageFailure failure)
{
    const auto *word = foundation::entryOf(words, failure);
    return out << (word ? *word : words.front());
}

StorageError::StorageError(StorageFailure failure, QString filePathName, const QString &message,
                           const std::exception &cause)
    : Error(message, cause), m_failure(failure), m_filePathName(std::move(filePathName))
{
}

StorageError::StorageError(const StorageError &) noexcept = default;
StorageError::~StorageError() = default;

} // namespace kiv::storage
