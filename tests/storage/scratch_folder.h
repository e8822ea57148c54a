// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"
#include "storage/budget_inspection.h"
#include "storage/key_ring.h"
#include "storage/storage_error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <optional>
#include <ranges>

namespace kiv::test {

/// The budget file that is saved, damaged and killed.
inline const QString homeBudget = QStringLiteral("home.budget");

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

/// A pace at which each store makes a version, and nobody waits for a lock.
inline storage::BudgetFile::Pace atLeisure()
{
    using namespace std::chrono_literals;
    return {0ms, [time = std::chrono::steady_clock::time_point()]() mutable { return time += 2s; }};
}

/// Whether new budget files of the tests are encrypted.
inline bool isEncrypting = false;

inline const storage::Passphrase &passphrase()
{
    static const storage::Passphrase words(QStringLiteral("four words of my own"));
    return words;
}

inline const std::shared_ptr<storage::KeyRing> &keys()
{
    static const auto ring = std::make_shared<storage::KeyRing>(storage::KeyRing::Cost::Small);
    return ring;
}

/// A file with the passphrase: to make its key takes a while.
inline const storage::BudgetFile &encryptedFile()
{
    static const ScratchFolder folder;
    static storage::BudgetFile file(atLeisure());
    if (file.filePathName().isEmpty()) {
        file.setKeys(keys());
        file.encryptNext(passphrase());
        file.setFilePathName(folder.path(QStringLiteral("pattern")));
        file.store({});
    }
    return file;
}

/// A budget file that finds the keys above, and encrypts new files if the tests do.
class TestFile : public storage::BudgetFile {
public:
    explicit TestFile(Pace pace = atLeisure()) : BudgetFile(std::move(pace))
    {
        setKeys(keys());
        if (isEncrypting)
            encryptNextAs(encryptedFile());
    }
    /// The file of that path, open.
    explicit TestFile(const QString &path) : TestFile()
    {
        setFilePathName(path);
        (void)load();
    }
};

/// The ids of the version in the file and of the former ones, each once.
inline QStringList versionsOf(const QString &path)
{
    QStringList ids;
    for (const storage::KeptVersion &version : storage::keptVersions(path, keys().get()))
        ids.append(version.mark.id);
    ids.removeDuplicates();
    return ids;
}

/// What is wrong with the list of versions, or nothing: each is there once and whole, and
/// the one before the file's is kept.
inline QString wrongInVersions(const QString &path)
{
    const auto versions = storage::keptVersions(path, keys().get());
    const storage::VersionMark &mark = versions.front().mark;
    qint64 number = mark.number;
    for (const storage::KeptVersion &version : versions | std::views::drop(1)) {
        const bool isFiles = version.mark.id == mark.id && version.mark.number == mark.number;
        if (!isFiles && version.mark.number >= std::exchange(number, version.mark.number))
            return QStringLiteral("version %1 is there twice").arg(version.name);
        if (!storage::inspectBudget(version.path, keys().get()).data)
            return QStringLiteral("version %1 is damaged").arg(version.name);
    }
    return mark.ancestors.isEmpty() || versionsOf(path).contains(mark.ancestors.first())
               ? QString()
               : QStringLiteral("the version before is not kept");
}

inline void store(const QString &path, const storage::BudgetStorage::Data &data)
{
    TestFile file;
    file.setFilePathName(path);
    file.store(data);
}

inline storage::BudgetStorage::Data load(const QString &path)
{
    TestFile file;
    file.setFilePathName(path);
    return file.load();
}

/// The names of the files beside a budget and among its versions in which anybody can read
/// of a budget.
inline QString inTheClear(const QString &budget)
{
    QStringList found;
    for (const QString &folder : {QFileInfo(budget).path(), budget + u".versions"_qs}) {
        for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
            const QByteArray bytes = contentOf(folder + u'/' + name);
            if (bytes.contains("SQLite") || bytes.contains("transactions"))
                found.append(name);
        }
    }
    return found.join(u' ');
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
