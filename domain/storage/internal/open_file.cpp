// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/open_file.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"
#include "storage/internal/opened_content.h"
#include "storage/internal/schema.h"
#include "storage/internal/seal.h"
#include "storage/internal/version_encryption.h"
#include "storage/internal/version_folder.h"
#include "storage/key_ring.h"

#include <QtCore/QObject>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace kiv::storage::internal {
namespace {

/// Tells that the former versions were not thinned, which is no reason not to save.
void thin(VersionFolder &folder, const Warn &warn)
{
    try {
        folder.thin(QDateTime::currentDateTimeUtc());
    } catch (const StorageError &error) {
        warn(QObject::tr("Old versions could not be removed: %1").arg(error.message()));
    }
}

/// Keeps the file's version in the folder of former ones.
class Keeper final : public VersionKeeper {
public:
    Keeper(VersionFolder &folder, VersionMark mark, QByteArrayView bytes, bool isPassing)
        : m_folder(folder), m_mark(std::move(mark)), m_bytes(bytes), m_isPassing(isPassing)
    {
    }
    void keep() override { m_folder.keep(m_mark, m_bytes, m_isPassing); }
    void putBack() noexcept override { (void)m_folder.putBack(); }

private:
    VersionFolder &m_folder;
    VersionMark m_mark;
    QByteArrayView m_bytes;
    bool m_isPassing;
};

/// The mark under which the present version is kept: with a time, and with a number
/// that no other version has.
VersionMark numbered(VersionMark present, const std::optional<FileContent> &content,
                     VersionFolder &folder)
{
    if (!content)
        return present;
    const auto isOther = [&present](const FormerVersion &former) {
        return former.mark.number == present.number && former.mark.id != present.id &&
               former.mark.savedAt != present.savedAt;
    };
    if (present.number == 0 || std::ranges::any_of(folder.versions(), isOther))
        present.number = folder.highest() + 1;
    if (!present.savedAt.isValid())
        present.savedAt = QDateTime::fromSecsSinceEpoch(content->stamp.seconds, Qt::UTC)
                              .addMSecs(content->stamp.nanoseconds / 1'000'000);
    return present;
}

} // namespace

OpenFile::OpenFile(FileTarget target, const KeyRing *keys)
    : m_target(std::move(target)), m_keys(keys)
{
}

bool OpenFile::holds(const QString &id) const
{
    if (id.isEmpty() || m_mark.id != id || !m_known)
        return false;
    const auto content = readFile(m_target, fileSizeMax);
    return content && Fingerprint(content->bytes) == *m_known;
}

bool OpenFile::exists() const
{
    return ::access(m_target.path().constData(), F_OK) == 0 || errno != ENOENT;
}

void OpenFile::lock(std::chrono::milliseconds patience)
{
    if (!m_lock)
        m_lock = std::make_unique<FileLock>(m_target, patience);
}

std::optional<StorageError> OpenFile::lockIfPossible(std::chrono::milliseconds patience)
{
    std::optional<StorageError> obstacle;
    try {
        lock(patience);
    } catch (const StorageError &error) {
        if (error.failure() != StorageFailure::CannotWrite)
            throw;
        obstacle = error;
    }
    for (const QByteArray &needed : {m_target.folder() + '/', m_target.path()}) {
        if (::faccessat(AT_FDCWD, needed.constData(), W_OK, AT_EACCESS) != 0)
            return cannotChange(m_target.shownPath(), errno);
    }
    return obstacle;
}

Version OpenFile::load(QStringList &mended)
{
    const std::optional<FileContent> content = readFile(m_target, fileSizeMax);
    if (!content)
        throw fileNotFound(m_target.shownPath());
    OpenedContent opened = internal::opened(content->bytes, m_keys, m_target.shownPath());
    const BudgetImage image(opened.bytes);
    Version version = withContent(
        [&] {
            image.checkSeal();
            return image.version(mended);
        },
        [this](const std::exception &cause) { return damaged(m_target.shownPath(), cause); });
    m_mark = version.mark;
    m_encryption = std::move(opened.encryption);
    m_known = Fingerprint(content->bytes);
    m_attempted.reset();
    return version;
}

QByteArray OpenFile::asWritten(const QByteArray &file,
                               const std::optional<Encryption> &encryption) const
{
    if (!encryption)
        return file;
    const auto cannotHoldIt = [this](const std::exception &cause) {
        return cannotHold(m_target.shownPath(), cause);
    };
    return withContent([&] { return encryptedSafely(file, *encryption); }, cannotHoldIt);
}

void OpenFile::store(const Draft &draft, const std::optional<Fingerprint> &known, bool isMerged,
                     const Warn &warn)
{
    const std::optional<FileContent> replaced = readFile(m_target, fileSizeMax);
    VersionMark present = m_mark;
    if (replaced) {
        const Fingerprint found(replaced->bytes);
        checkReplaceable(replaced->bytes, found, known);
        if (found != m_known)
            present = markOf(replaced->bytes);
        if (!known)
            adoptEncryption(replaced->bytes);
    }
    VersionFolder folder(m_target, m_keys);
    const VersionMark kept = numbered(present, replaced, folder);
    VersionMark mark = present.next();
    if (isMerged)
        mark.ancestors = present.ancestors;
    mark.number = std::max(kept.number, folder.highest()) + 1;
    auto [file, stored] = draft(std::move(mark), isMerged, folder);
    file = asWritten(file, m_encryption);
    m_attempted = Fingerprint(file);
    Keeper keeper(folder, kept, replaced ? replaced->bytes : QByteArray(), isMerged);
    AtomicFileWriter(m_target, replaced ? std::optional(replaced->stamp) : std::nullopt)
        .write(file, replaced && !replaced->bytes.isEmpty() ? &keeper : nullptr);
    m_known = std::exchange(m_attempted, std::nullopt);
    m_mark = std::move(stored);
    folder.settle();
    thin(folder, warn);
}

void OpenFile::rewrite(const std::optional<Encryption> &encryption)
{
    const std::optional<FileContent> present = readFile(m_target, fileSizeMax);
    if (!present)
        throw fileNotFound(m_target.shownPath());
    const Fingerprint found(present->bytes);
    if (found != m_known && found != m_attempted)
        throw changedOnDisk(m_target.shownPath());
    const QByteArray plain = opened(present->bytes, m_keys, m_target.shownPath()).bytes;
    const QByteArray file = asWritten(plain, encryption);
    m_attempted = Fingerprint(file);
    // Nobody keeps what is replaced: the same version in the clear would be left of it.
    try {
        AtomicFileWriter(m_target, present->stamp).write(file);
    } catch (const StorageError &) {
        // Where only its folder could not be synced, the file is in its place all the same.
        const std::optional<FileContent> now = readFile(m_target, fileSizeMax);
        if (!now || Fingerprint(now->bytes) != m_attempted)
            throw;
    }
    m_known = std::exchange(m_attempted, std::nullopt);
    m_encryption = encryption;
}

QStringList OpenFile::encryptVersions(const std::optional<Encryption> &encryption) const
{
    return encryptAlike(m_target, encryption, m_keys);
}

/// That of a file which was not loaded before; without an id when it is not whole.
VersionMark OpenFile::markOf(const QByteArray &bytes) const
{
    try {
        const QByteArray plain = opened(bytes, m_keys, m_target.shownPath()).bytes;
        const BudgetImage image(plain);
        if (image.hasByteSeal())
            image.checkSeal();
        return image.mark();
    } catch (const StorageError &) {
        return {};
    } catch (const ContentFault &) {
        return {};
    }
}

/// A file that is there stays encrypted as it is, if its key is known: its former versions
/// have the same one.
void OpenFile::adoptEncryption(const QByteArray &bytes)
{
    if (!m_keys || kindOf(bytes) != FileKind::Encrypted)
        return;
    try {
        if (const auto encryption = m_keys->encryptionOf(EncryptedFile(bytes)))
            m_encryption = encryption;
    } catch (const ContentFault &) {
        // It is damaged.
    }
}

void OpenFile::checkReplaceable(const QByteArray &bytes, const Fingerprint &found,
                                const std::optional<Fingerprint> &known) const
{
    // A save that failed at its very end may have left its own content.
    if (found == m_attempted)
        return;
    if (known) {
        if (found != *known)
            throw changedOnDisk(m_target.shownPath());
        return;
    }
    // The user chose an existing file. A budget, whole or not, is kept as a former
    // version; another file is not overwritten.
    const FileKind kind = kindOf(bytes);
    if (kind == FileKind::Foreign || kind == FileKind::Newer)
        requireBudget(kind, m_target.shownPath());
}

} // namespace kiv::storage::internal
