// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"
#include "storage/storage_error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <optional>

namespace kiv::test {

inline void overwrite(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The test cannot write its own file.");
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// A folder of the test's own that goes with it. It lies in memory where there is such a
/// place: a save then waits for no disk, so that a kill hits every step of it.
class ScratchFolder {
public:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const { overwrite(path(name), bytes); }
    [[nodiscard]] QByteArray read(const QString &name) const { return contentOf(path(name)); }
    /// All names in it, hidden ones too.
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    static QString place()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
               QStringLiteral("/kiv");
    }

    QTemporaryDir m_folder{place()};
};

/// The failure with which `call` ends, if it ends with one.
template <typename Call>
std::optional<storage::StorageFailure> failureOf(Call call)
{
    try {
        call();
    } catch (const storage::StorageError &error) {
        return error.failure();
    }
    return std::nullopt;
}

inline void store(const QString &path, const storage::BudgetStorage::Data &data)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    file.store(data);
}

inline storage::BudgetStorage::Data load(const QString &path)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    return file.load();
}

/// Saves as a careless program does: each rig must find out what that leaves.
inline bool saveCarelessly(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    bool isSaved = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    for (qsizetype done = 0; done < bytes.size(); done += 4096)
        isSaved = file.write(bytes.mid(done, 4096)) > 0 && isSaved;
    return isSaved;
}

} // namespace kiv::test
