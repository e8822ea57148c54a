// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/kept_versions.h"

#include "storage/internal/budget_image.h"
#include "storage/internal/label_in_file.h"
#include "storage/internal/opened_content.h"
#include "storage/internal/schema.h"
#include "storage/internal/version_folder.h"

#include "storage/storage_error.h"

#include <QtCore/QFile>

#include <algorithm>
#include <iterator>
#include <ranges>

#include <fcntl.h>
#include <sys/stat.h>

namespace kiv::storage {
namespace {

using Telling = KeptVersion::Telling;

/// What a file that has no label tells: its id, when it is one of the first edition.
void readWithoutLabel(KeptVersion &version, const KeyRing *keys)
{
    try {
        const auto content =
            internal::readFile(internal::FileTarget(version.path), internal::fileSizeMax);
        if (!content)
            return;
        const QByteArray bytes = internal::opened(content->bytes, keys, version.path).bytes;
        const internal::BudgetImage image(bytes);
        if (image.hasByteSeal())
            return;
        version.mark.id = image.mark().id;
        version.telling = Telling::FirstEdition;
    } catch (const StorageError &) {
        // It cannot be read, so it tells nothing.
    }
}

/// A file outside the folder of versions; nothing when there is none.
std::optional<KeptVersion> fileAt(const QByteArray &path, const KeyRing *keys)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    KeptVersion version;
    version.path = QFile::decodeName(path);
    version.size = status.st_size;
    version.mark.savedAt = QDateTime::fromSecsSinceEpoch(status.st_mtim.tv_sec, Qt::UTC)
                               .addMSecs(status.st_mtim.tv_nsec / 1'000'000);
    const internal::FileDescriptor file(
        ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    const auto label = file ? internal::labelIn(file, keys) : internal::LabelInFile();
    if (label.mark) {
        version.mark = *label.mark;
        version.telling = Telling::Everything;
    } else if (label.isLocked) {
        version.telling = Telling::Locked;
    } else {
        readWithoutLabel(version, keys);
    }
    version.name = QString::number(version.mark.number);
    return version;
}

/// Adds the backups of the first edition, which come before what it wrote last.
void addBackups(std::vector<KeptVersion> &versions, std::vector<KeptVersion> backups)
{
    QStringList ids;
    for (KeptVersion &backup : std::views::reverse(backups)) {
        backup.mark.ancestors = ids;
        if (!backup.mark.id.isEmpty())
            ids.prepend(backup.mark.id);
    }
    for (KeptVersion &version : versions) {
        if (version.telling == Telling::FirstEdition)
            version.mark.ancestors = ids;
    }
    std::ranges::move(backups, std::back_inserter(versions));
}

} // namespace

std::vector<KeptVersion> keptVersions(const QString &filePathName, const KeyRing *keys)
{
    const internal::FileTarget target(filePathName);
    std::vector<KeptVersion> versions;
    if (std::optional<KeptVersion> file = fileAt(target.path(), keys)) {
        file->isFile = true;
        versions.push_back(*std::move(file));
    }
    internal::VersionFolder folder(target, keys);
    for (const internal::FormerVersion &former : std::views::reverse(folder.versions())) {
        KeptVersion version{QString::number(former.mark.number),
                            QFile::decodeName(folder.path() + '/' + former.name), former.mark,
                            former.hasLabel   ? Telling::Everything
                            : former.isLocked ? Telling::Locked
                                              : Telling::Nothing,
                            former.stamp.size};
        if (version.telling == Telling::Nothing)
            readWithoutLabel(version, keys);
        versions.push_back(std::move(version));
    }
    std::vector<KeptVersion> backups;
    for (unsigned number = 1; number <= internal::backupsMax; ++number) {
        const QByteArray name = internal::backupName(target, number);
        if (std::optional<KeptVersion> backup = fileAt(target.folder() + '/' + name, keys)) {
            backup->name = QStringLiteral("backup-%1").arg(number);
            backups.push_back(*std::move(backup));
        }
    }
    addBackups(versions, std::move(backups));
    return versions;
}

} // namespace kiv::storage
