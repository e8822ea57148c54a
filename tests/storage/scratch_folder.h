// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"
#include "storage/storage_error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <optional>

namespace kiv::test {

/// A folder of the test's own that goes with it.
class ScratchFolder {
public:
    ScratchFolder() = default;
    explicit ScratchFolder(const QString &parent) : m_folder(parent + QStringLiteral("/kiv")) {}
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test cannot write its own file.");
    }
    [[nodiscard]] QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    /// All names in it, hidden ones too.
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
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

} // namespace kiv::test
