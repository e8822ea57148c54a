// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/storage_error.h"

#include <cerrno>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace kiv::storage::internal {

/// What is wrong with the content of a file that is of the right kind; the
/// cause of the error that the user sees.
class ContentFault final : public std::runtime_error {
public:
    /// In the user's language.
    explicit ContentFault(const QString &what);
    /// Names of tables, numbers of rows and the database's own words, for those who
    /// look into the file.
    explicit ContentFault(const std::string &what);
    ContentFault(const ContentFault &) noexcept;
    ~ContentFault() override;
};

// Every sentence with which this library refuses something: one function each, which gives the
// exception to throw.

// ---- files -----------------------------------------------------------------------
// `path` is the one that the user gave, `error` the system's error number.

[[nodiscard]] StorageError noFileChosen();
[[nodiscard]] StorageError noFileName(const QString &path);
[[nodiscard]] StorageError fileNotFound(const QString &path);
[[nodiscard]] StorageError folderNotFound(const QString &path);
[[nodiscard]] StorageError notAFile(const QString &path);
[[nodiscard]] StorageError cannotRead(const QString &path, int error);
[[nodiscard]] StorageError tooLarge(const QString &path);
[[nodiscard]] StorageError emptyFile(const QString &path);
[[nodiscard]] StorageError notOurs(const QString &path);
[[nodiscard]] StorageError newerVersion(const QString &path);
[[nodiscard]] StorageError damaged(const QString &path, const std::exception &cause);
/// `holder` tells who uses the file, if that is known.
[[nodiscard]] StorageError locked(const QString &path, const QString &holder);
/// `lockPath` is where the lock file has to be.
[[nodiscard]] StorageError notALock(const QString &path, const QString &lockPath);
[[nodiscard]] StorageError changedOnDisk(const QString &path);
[[nodiscard]] StorageError cannotWrite(const QString &path, int error);
/// Before anything was to be saved.
[[nodiscard]] StorageError cannotChange(const QString &path, int error);
/// `other` has the name of a file that saving makes.
[[nodiscard]] StorageError inTheWay(const QString &path, const QString &other);
[[nodiscard]] StorageError notAsWritten(const QString &path);
/// `folder` is that of the former versions.
[[nodiscard]] StorageError cannotUseVersions(const QString &folder, int error);
[[nodiscard]] StorageError strangeVersions(const QString &folder);
[[nodiscard]] StorageError cannotHold(const QString &path, const std::exception &cause);

// ---- passphrases -----------------------------------------------------------------

[[nodiscard]] StorageError passphraseNeeded(const QString &path);
[[nodiscard]] StorageError passphraseWrong(const QString &path);
[[nodiscard]] StorageError passphraseEmpty();
[[nodiscard]] StorageError passphraseTooLong(qsizetype sizeMax);
/// `memory` is what is needed, in bytes.
[[nodiscard]] StorageError tooLittleMemory(const QString &path, std::uint64_t memory);
[[nodiscard]] ContentFault keyTooCostly(std::uint64_t mebibytes, std::uint32_t passes);

// ---- notes -----------------------------------------------------------------------

[[nodiscard]] StorageError noteKeyRefused(const QString &key, qsizetype sizeMax);
[[nodiscard]] StorageError noteTooLarge(const QString &key);
[[nodiscard]] StorageError noteNotReadable(const QString &key, const std::exception &cause);
[[nodiscard]] StorageError tooManyNotes(std::size_t countMax);
[[nodiscard]] ContentFault noteMalformed();

// ---- their content ---------------------------------------------------------------

[[nodiscard]] ContentFault checksumWrong();
[[nodiscard]] ContentFault labelMalformed();
[[nodiscard]] ContentFault headerNotWhole();
[[nodiscard]] ContentFault moreThanAFileMayHold();
[[nodiscard]] ContentFault tooManyRows();
[[nodiscard]] ContentFault tooManyTexts();
[[nodiscard]] ContentFault textTooLong();
[[nodiscard]] ContentFault surveysDoNotFit();
[[nodiscard]] ContentFault tableNotAsItShould(const std::string &table);
[[nodiscard]] ContentFault moreInSchema();
/// `why` is such as "has a malformed text".
[[nodiscard]] ContentFault rowRefused(const std::string &table, std::int64_t key,
                                      const std::string &why);

// ---- mistakes of the calling program ---------------------------------------------

[[nodiscard]] std::logic_error rowNotWrittenWhole();
[[nodiscard]] std::logic_error rowNotReadWhole();
[[nodiscard]] std::logic_error itemKindUnknown();

} // namespace kiv::storage::internal
