// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/faults.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::storage::internal {

ContentFault::ContentFault(const QString &what) : ContentFault(what.toStdString()) {}
ContentFault::ContentFault(const std::string &what) : std::runtime_error(what) {}
ContentFault::ContentFault(const ContentFault &) noexcept = default;
ContentFault::~ContentFault() = default;

StorageError noFileChosen()
{
    return {StorageFailure::NoName, {}, QObject::tr("No file was chosen.")};
}

StorageError noFileName(const QString &path)
{
    return {StorageFailure::NoName, path, QObject::tr("'%1' is not a valid file name.").arg(path)};
}

StorageError fileNotFound(const QString &path)
{
    return {StorageFailure::NotFound, path, QObject::tr("There is no file '%1'.").arg(path)};
}

StorageError folderNotFound(const QString &path)
{
    return {StorageFailure::NotFound, path,
            QObject::tr("The folder of the file '%1' does not exist.").arg(path)};
}

StorageError notAFile(const QString &path)
{
    return {StorageFailure::NotAFile, path, QObject::tr("'%1' is not a regular file.").arg(path)};
}

StorageError cannotRead(const QString &path, int error)
{
    return {StorageFailure::CannotRead, path,
            QObject::tr("The file '%1' could not be read: %2.").arg(path, qt_error_string(error))};
}

StorageError tooLarge(const QString &path)
{
    return {StorageFailure::TooLarge, path, QObject::tr("The file '%1' is too large.").arg(path)};
}

StorageError emptyFile(const QString &path)
{
    return {StorageFailure::NotOurs, path, QObject::tr("The file '%1' is empty.").arg(path)};
}

StorageError notOurs(const QString &path)
{
    return {StorageFailure::NotOurs, path,
            QObject::tr("The file '%1' was not written by this program.").arg(path)};
}

StorageError newerVersion(const QString &path)
{
    return {StorageFailure::Newer, path,
            QObject::tr("The file '%1' was written by a newer version of this program.").arg(path)};
}

StorageError damaged(const QString &path, const std::exception &cause)
{
    return {StorageFailure::Damaged, path,
            QObject::tr("The file '%1' is damaged and was not loaded.").arg(path), cause};
}

StorageError locked(const QString &path, const QString &holder)
{
    return {
        StorageFailure::Locked, path,
        holder.isEmpty()
            ? QObject::tr("The file '%1' is in use by another program.").arg(path)
            : QObject::tr("The file '%1' is in use by another program (%2).").arg(path, holder)};
}

StorageError notALock(const QString &path, const QString &lockPath)
{
    return {StorageFailure::NotOurs, lockPath,
            QObject::tr("The file '%1' cannot be locked: '%2' is not a lock file. Move it away or "
                        "rename it.")
                .arg(path, lockPath)};
}

StorageError changedOnDisk(const QString &path)
{
    return {StorageFailure::ChangedOnDisk, path,
            QObject::tr("The file '%1' was changed by another program and was not overwritten.")
                .arg(path)};
}

StorageError cannotWrite(const QString &path, int error)
{
    return {StorageFailure::CannotWrite, path,
            QObject::tr("The file '%1' could not be saved: %2.").arg(path, qt_error_string(error))};
}

StorageError cannotChange(const QString &path, int error)
{
    return {StorageFailure::CannotWrite, path,
            QObject::tr("The file '%1' cannot be changed: %2.").arg(path, qt_error_string(error))};
}

StorageError inTheWay(const QString &path, const QString &other)
{
    return {StorageFailure::CannotWrite, path,
            QObject::tr("The file '%1' could not be saved: '%2' is in the way.").arg(path, other)};
}

StorageError notAsWritten(const QString &path)
{
    return {
        StorageFailure::CannotWrite, path,
        QObject::tr("The file '%1' could not be saved: it cannot be read back as it was written.")
            .arg(path)};
}

StorageError cannotUseVersions(const QString &folder, int error)
{
    return {StorageFailure::CannotWrite, folder,
            QObject::tr("The folder '%1' for the former versions cannot be used: %2.")
                .arg(folder, qt_error_string(error))};
}

StorageError strangeVersions(const QString &folder)
{
    return {StorageFailure::CannotWrite, folder,
            QObject::tr("The folder '%1' for the former versions belongs to another user.")
                .arg(folder)};
}

StorageError cannotHold(const QString &path, const std::exception &cause)
{
    return {StorageFailure::CannotHold, path,
            QObject::tr("The file '%1' was not saved: it cannot hold this budget.").arg(path),
            cause};
}

StorageError passphraseNeeded(const QString &path)
{
    return {StorageFailure::PassphraseNeeded, path,
            QObject::tr("The file '%1' is encrypted: it needs its passphrase.").arg(path)};
}

StorageError passphraseWrong(const QString &path)
{
    return {StorageFailure::PassphraseWrong, path,
            QObject::tr("This is not the passphrase of the file '%1'.").arg(path)};
}

StorageError passphraseEmpty()
{
    return {StorageFailure::PassphraseRefused,
            {},
            QObject::tr("A passphrase has at least one character.")};
}

StorageError passphraseTooLong(qsizetype sizeMax)
{
    return {StorageFailure::PassphraseRefused,
            {},
            QObject::tr("A passphrase has at most %1 bytes.").arg(sizeMax)};
}

StorageError tooLittleMemory(const QString &path, std::uint64_t memory)
{
    return {StorageFailure::TooLittleMemory, path,
            QObject::tr("There is too little memory for the passphrase of the file '%1': %2 MiB "
                        "are needed.")
                .arg(path, QString::number(std::max<std::uint64_t>(1, memory >> 20)))};
}

ContentFault keyTooCostly(std::uint64_t mebibytes, std::uint32_t passes)
{
    return ContentFault(QObject::tr("Its passphrase would take %1 MiB of memory and %2 passes, "
                                    "more than any such file needs.")
                            .arg(QString::number(mebibytes), QString::number(passes)));
}

StorageError noteKeyRefused(const QString &key, qsizetype sizeMax)
{
    return {StorageFailure::CannotHold,
            {},
            QObject::tr("The key '%1' of a note must have 1 to %2 characters.")
                .arg(key, QString::number(sizeMax))};
}

StorageError noteTooLarge(const QString &key)
{
    return {StorageFailure::CannotHold, {}, QObject::tr("The note '%1' is too large.").arg(key)};
}

StorageError noteNotReadable(const QString &key, const std::exception &cause)
{
    return {StorageFailure::CannotHold,
            {},
            QObject::tr("The note '%1' cannot be stored.").arg(key),
            cause};
}

StorageError tooManyNotes(std::size_t countMax)
{
    return {StorageFailure::CannotHold,
            {},
            QObject::tr("There cannot be more than %1 notes.").arg(countMax)};
}

ContentFault noteMalformed()
{
    return ContentFault(QObject::tr("A note is malformed or nested too deep."));
}

ContentFault checksumWrong()
{
    return ContentFault(QObject::tr("The checksum is wrong."));
}

ContentFault labelMalformed()
{
    return ContentFault(QObject::tr("What it says about its version is damaged."));
}

ContentFault headerNotWhole()
{
    return ContentFault(QObject::tr("Its header is damaged."));
}

ContentFault moreThanAFileMayHold()
{
    return ContentFault(QObject::tr("The content is larger than a file may be."));
}

ContentFault tooManyRows()
{
    return ContentFault(QObject::tr("There are too many rows."));
}

ContentFault tooManyTexts()
{
    return ContentFault(std::string("There are more texts than the file has room for."));
}

ContentFault textTooLong()
{
    return ContentFault(QObject::tr("A text is too long."));
}

ContentFault surveysDoNotFit()
{
    return ContentFault(QObject::tr("The surveys contradict each other."));
}

ContentFault tableNotAsItShould(const std::string &table)
{
    return ContentFault("The table '" + table + "' is not as it should.");
}

ContentFault moreInSchema()
{
    return ContentFault(std::string("There is more in the schema than should be."));
}

ContentFault rowRefused(const std::string &table, std::int64_t key, const std::string &why)
{
    return ContentFault("The row " + std::to_string(key) + " of the table '" + table + "' " + why +
                        ".");
}

std::logic_error rowNotWrittenWhole()
{
    return std::logic_error("A row was not written whole.");
}

std::logic_error rowNotReadWhole()
{
    return std::logic_error("A row was not read whole.");
}

std::logic_error itemKindUnknown()
{
    return std::logic_error("An unknown kind of item was read.");
}

} // namespace kiv::storage::internal
