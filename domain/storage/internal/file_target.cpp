// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_target.h"

#include "storage/internal/faults.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>

#include <climits>
#include <cstdlib>
#include <memory>

#include <unistd.h>

namespace kiv::storage::internal {
namespace {

/// As many as Linux follows.
constexpr int linksMax = 40;
/// What all suffixes together may add to a name of 255 bytes, the longest that
/// file systems take.
constexpr qsizetype stemMax = 255 - 20;

struct Free {
    void operator()(char *text) const noexcept { std::free(text); }
};

QByteArray canonicalFolder(const QByteArray &folder, const QString &shownPath)
{
    const std::unique_ptr<char, Free> canonical(::realpath(folder.constData(), nullptr));
    if (canonical)
        return {canonical.get()};
    if (errno == ENOENT || errno == ENOTDIR)
        throw folderNotFound(shownPath);
    throw cannotRead(shownPath, errno);
}

} // namespace

FileTarget::FileTarget(const QString &filePathName) : m_shownPath(filePathName)
{
    // A lone surrogate would silently become a question mark.
    if (filePathName.isEmpty() || filePathName.contains(QChar(u'\0')) ||
        !filePathName.isValidUtf16())
        throw noFileName(filePathName);

    QByteArray path = QFile::encodeName(filePathName);
    for (int followed = 0; followed <= linksMax; ++followed) {
        const qsizetype slash = path.lastIndexOf('/');
        m_folder =
            canonicalFolder(slash < 0 ? QByteArrayLiteral(".") : path.left(slash + 1), m_shownPath);
        m_name = path.mid(slash + 1);
        if (m_name.isEmpty() || m_name == "." || m_name == "..")
            throw notAFile(m_shownPath);
        if (m_folder == "/")
            m_folder.clear();

        QByteArray linked(PATH_MAX, '\0');
        const ssize_t length =
            ::readlink(this->path().constData(), linked.data(), static_cast<size_t>(PATH_MAX));
        if (length < 0 && (errno == EINVAL || errno == ENOENT))
            return; // no link, or nothing yet
        if (length < 0)
            throw cannotRead(m_shownPath, errno);
        linked.truncate(length);
        path = linked.startsWith('/') ? linked : m_folder + '/' + linked;
    }
    throw cannotRead(m_shownPath, ELOOP);
}

QByteArray FileTarget::sibling(const QByteArray &suffix) const
{
    return stem() + suffix;
}

QByteArray FileTarget::hiddenSibling(const QByteArray &suffix) const
{
    return '.' + stem() + suffix;
}

QByteArray FileTarget::stem() const
{
    if (m_name.size() <= stemMax)
        return m_name;
    return "kiv-" + QCryptographicHash::hash(m_name, QCryptographicHash::Sha256).toHex().left(32);
}

QByteArray backupName(const FileTarget &target, unsigned number)
{
    return target.sibling(".backup-" + QByteArray::number(number));
}

} // namespace kiv::storage::internal
