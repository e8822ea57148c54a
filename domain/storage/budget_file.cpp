// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/budget_file.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_lock.h"
#include "storage/internal/mending.h"
#include "storage/internal/schema.h"
#include "storage/internal/version_folder.h"

#include "foundation/streams.h"
#include "surveying/reconciliation_derivation.h"

#include <QtCore/QObject>
#include <QtCore/QScopeGuard>

#include <new>

#include <fcntl.h>
#include <unistd.h>

namespace kiv::storage {
namespace {

using internal::FileContent;
using internal::FileKind;
using internal::FileTarget;
using internal::Fingerprint;

/// Calls `work` and gives its result. An error becomes the cause of the one that
/// `toError` makes.
template <typename Work, typename ToError>
auto withContent(Work work, ToError toError)
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &cause) {
        throw toError(cause);
    }
}

/// So long what is stored makes one version.
constexpr std::chrono::seconds burstLength(1);

using Warn = std::function<void(const QString &)>;

void warnInLog(const QString &sentence)
{
    qWarning().noquote() << foundation::escaped(sentence);
}

/// Tells that the former versions were not thinned, which is no reason not to save.
void thin(internal::VersionFolder &folder, const Warn &warn)
{
    try {
        folder.thin(QDateTime::currentDateTimeUtc());
    } catch (const StorageError &error) {
        warn(QObject::tr("Old versions could not be removed: %1").arg(error.message()));
    }
}

void warnOf(const QStringList &mended)
{
    for (const QString &sentence : mended)
        warnInLog(QObject::tr("Repaired while loading: %1").arg(sentence));
}

/// Keeps the file's version in the folder of former ones.
class Keeper final : public internal::VersionKeeper {
public:
    Keeper(internal::VersionFolder &folder, VersionMark mark, QByteArrayView bytes, bool isPassing)
        : m_folder(folder), m_mark(std::move(mark)), m_bytes(bytes), m_isPassing(isPassing)
    {
    }
    void keep() override { m_folder.keep(m_mark, m_bytes, m_isPassing); }
    void putBack() noexcept override { (void)m_folder.putBack(); }

private:
    internal::VersionFolder &m_folder;
    VersionMark m_mark;
    QByteArrayView m_bytes;
    bool m_isPassing;
};

/// The file's content, loaded once as a test: a saved file must be one that can
/// be opened.
QByteArray encodedSafely(const Version &version)
{
    QByteArray file = internal::encodeBudget(version);
    const internal::BudgetImage image(file);
    image.checkSeal();
    QStringList mended;
    (void)image.version(mended);
    return file;
}

} // namespace

/// A file in use: locked, with the fingerprint of its last content.
class BudgetFile::OpenFile {
public:
    explicit OpenFile(FileTarget target) : m_target(std::move(target)) {}

    [[nodiscard]] const FileTarget &target() const noexcept { return m_target; }
    /// `target` is the same file under another name.
    void showAs(FileTarget target) { m_target = std::move(target); }
    [[nodiscard]] const std::optional<Fingerprint> &known() const noexcept { return m_known; }
    [[nodiscard]] const VersionMark &mark() const noexcept { return m_mark; }

    /// Whether the file is the version of that id, as it was loaded or stored here.
    [[nodiscard]] bool holds(const QString &id) const
    {
        if (id.isEmpty() || m_mark.id != id || !m_known)
            return false;
        const auto content = internal::readFile(m_target, internal::fileSizeMax);
        return content && Fingerprint(content->bytes) == *m_known;
    }

    [[nodiscard]] bool exists() const
    {
        return ::access(m_target.path().constData(), F_OK) == 0 || errno != ENOENT;
    }

    /// Takes the lock unless it is held already.
    void lock(std::chrono::milliseconds patience)
    {
        if (!m_lock)
            m_lock = std::make_unique<internal::FileLock>(m_target, patience);
    }

    /// Where no lock can be made, nothing can be saved either, so no lock is
    /// needed. The next attempt to save says why; so does the answer here.
    std::optional<StorageError> lockIfPossible(std::chrono::milliseconds patience)
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
                return internal::cannotChange(m_target.shownPath(), errno);
        }
        return obstacle;
    }

    Version load(QStringList &mended)
    {
        const std::optional<FileContent> content =
            internal::readFile(m_target, internal::fileSizeMax);
        if (!content)
            throw internal::fileNotFound(m_target.shownPath());
        internal::requireBudget(internal::kindOf(content->bytes), m_target.shownPath());
        const internal::BudgetImage image(content->bytes);
        Version version = withContent(
            [&] {
                image.checkSeal();
                return image.version(mended);
            },
            [this](const std::exception &cause) {
                return internal::damaged(m_target.shownPath(), cause);
            });
        m_mark = version.mark;
        m_known = Fingerprint(content->bytes);
        m_attempted.reset();
        return version;
    }

    /// `known` is what was seen last under this name, if anything was. A merged version
    /// takes the place of the one until now, which is not kept.
    void store(const Draft &draft, const std::optional<Fingerprint> &known, bool isMerged,
               const Warn &warn)
    {
        const std::optional<FileContent> replaced =
            internal::readFile(m_target, internal::fileSizeMax);
        VersionMark present = m_mark;
        if (replaced) {
            const Fingerprint found(replaced->bytes);
            checkReplaceable(replaced->bytes, found, known);
            if (found != m_known)
                present = markOf(replaced->bytes);
        }
        internal::VersionFolder folder(m_target);
        const VersionMark kept = numbered(present, replaced, folder);
        VersionMark mark = present.next();
        if (isMerged)
            mark.ancestors = present.ancestors;
        mark.number = std::max(kept.number, folder.highest()) + 1;
        auto [file, stored] = draft(std::move(mark), isMerged, folder);
        m_attempted = Fingerprint(file);
        Keeper keeper(folder, kept, replaced ? replaced->bytes : QByteArray(), isMerged);
        internal::AtomicFileWriter(m_target,
                                   replaced ? std::optional(replaced->stamp) : std::nullopt)
            .write(file, replaced && !replaced->bytes.isEmpty() ? &keeper : nullptr);
        m_known = std::exchange(m_attempted, std::nullopt);
        m_mark = std::move(stored);
        folder.settle();
        thin(folder, warn);
    }

private:
    /// That of a file which was not loaded before; without an id when it is not whole.
    static VersionMark markOf(QByteArrayView bytes)
    {
        if (internal::kindOf(bytes) != FileKind::Budget)
            return {};
        try {
            const internal::BudgetImage image(bytes);
            if (image.hasByteSeal())
                image.checkSeal();
            return image.mark();
        } catch (const internal::ContentFault &) {
            return {};
        }
    }

    /// The mark under which the present version is kept: with a time, and with a number
    /// that no other version has.
    static VersionMark numbered(VersionMark present, const std::optional<FileContent> &content,
                                internal::VersionFolder &folder)
    {
        if (!content)
            return present;
        const auto isOther = [&present](const internal::FormerVersion &former) {
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

    void checkReplaceable(const QByteArray &bytes, const Fingerprint &found,
                          const std::optional<Fingerprint> &known) const
    {
        // A save that failed at its very end may have left its own content.
        if (found == m_attempted)
            return;
        if (known) {
            if (found != *known)
                throw internal::changedOnDisk(m_target.shownPath());
            return;
        }
        // The user chose an existing file. A budget, whole or not, is kept as a former
        // version; another file is not overwritten.
        const FileKind kind = internal::kindOf(bytes);
        if (kind == FileKind::Foreign || kind == FileKind::Newer)
            internal::requireBudget(kind, m_target.shownPath());
    }

    FileTarget m_target;
    std::unique_ptr<internal::FileLock> m_lock;
    VersionMark m_mark;
    std::optional<Fingerprint> m_known;
    std::optional<Fingerprint> m_attempted;
};

BudgetFile::BudgetFile() : BudgetFile(Pace()) {}
BudgetFile::BudgetFile(Pace pace) : m_pace(std::move(pace)) {}
BudgetFile::~BudgetFile() = default;

void BudgetFile::setFilePathName(const QString &filePathName)
{
    m_chosenPath = filePathName;
}

QString BudgetFile::filePathName() const
{
    return m_chosenPath;
}

BudgetFile::Chosen BudgetFile::choose()
{
    if (m_chosenPath.isEmpty())
        throw internal::noFileChosen();
    FileTarget target(m_chosenPath);
    if (m_open && m_open->target().isSameFile(target)) {
        m_open->showAs(std::move(target));
        return {nullptr, m_open.get()};
    }
    auto other = std::make_unique<OpenFile>(std::move(target));
    OpenFile *const file = other.get();
    return {std::move(other), file};
}

void BudgetFile::goBack() noexcept
{
    if (m_open)
        m_chosenPath = m_open->target().shownPath();
}

BudgetStorage::Data BudgetFile::mended(Data data)
{
    QStringList mended;
    internal::mend(data, mended);
    warnOf(mended);
    return data;
}

BudgetStorage::Data BudgetFile::load()
{
    auto backOnFailure = qScopeGuard([this] { goBack(); });
    Chosen chosen = choose();
    if (!chosen.file->exists())
        throw internal::fileNotFound(m_chosenPath);
    std::optional<StorageError> obstacle;
    if (!m_isReading)
        obstacle = chosen.file->lockIfPossible(m_pace.patience);
    QStringList mended;
    Version version = chosen.file->load(mended);
    warnOf(mended);
    m_burst.reset();
    if (chosen.other)
        m_open = std::move(chosen.other);
    m_obstacle = std::move(obstacle);
    backOnFailure.dismiss();
    Data data = version.data;
    settle(std::move(version));
    return data;
}

void BudgetFile::settle(Version version)
{
    m_present = {std::move(version.data.surveys), std::move(version.data.generalLedger),
                 std::move(version.reconciliations), std::move(version.notes)};
    m_notes.reset();
    m_isNew = false;
}

Version BudgetFile::following(const Data &data, VersionMark mark) const
{
    static const Present nothing;
    const Present &before = m_isNew ? nothing : m_present;
    return {data,
            surveying::reconciliationsAfter(before.reconciliations, {before.surveys, before.ledger},
                                            {data.surveys, data.generalLedger}),
            m_notes.value_or(before.notes), std::move(mark)};
}

void BudgetFile::store(const Data &data)
{
    Burst burst;
    Version version;
    const auto draft = [&](VersionMark mark, bool isMerged, internal::VersionFolder &) {
        if (isMerged)
            burst = *m_burst;
        if (burst.change.isEmpty())
            burst.change = m_change;
        mark.nameChanges(burst.change, burst.stores++);
        mark.savedAt = QDateTime::currentDateTimeUtc();
        mark.transactions = static_cast<qint64>(data.generalLedger.transactionCount());
        version = following(data, std::move(mark));
        QByteArray file = withContent([&] { return encodedSafely(version); },
                                      [this](const std::exception &cause) {
                                          return internal::cannotHold(m_chosenPath, cause);
                                      });
        return std::pair(std::move(file), version.mark);
    };
    store(draft, m_burst && m_pace.now() - m_burst->first < burstLength);
    // From the first one: a long run of changes would make a single version otherwise.
    if (burst.stores == 1)
        burst.first = m_pace.now();
    m_burst = std::move(burst);
    settle(std::move(version));
}

void BudgetFile::restore(const KeptVersion &version)
{
    auto backOnFailure = qScopeGuard([this] { goBack(); });
    const std::optional<FileContent> content =
        internal::readFile(FileTarget(version.path), internal::fileSizeMax);
    if (!content)
        throw internal::fileNotFound(version.path);
    internal::requireBudget(internal::kindOf(content->bytes), version.path);
    const internal::BudgetImage image(content->bytes);
    const auto isDamaged = [&](const std::exception &cause) {
        return internal::damaged(version.path, cause);
    };
    QStringList mended;
    Version restored = withContent(
        [&] {
            image.checkSeal();
            return image.version(mended);
        },
        isDamaged);
    const auto draft = [&](const VersionMark &next, bool, internal::VersionFolder &) {
        if (image.hasByteSeal())
            return std::pair(content->bytes, restored.mark);
        // What the first edition wrote becomes a file of the present one.
        restored.mark = version.mark;
        restored.mark.transactions =
            static_cast<qint64>(restored.data.generalLedger.transactionCount());
        if (restored.mark.number == 0)
            restored.mark.number = next.number;
        QByteArray file = withContent([&] { return encodedSafely(restored); }, isDamaged);
        return std::pair(std::move(file), restored.mark);
    };
    store(draft, false);
    settle(std::move(restored));
    backOnFailure.dismiss();
}

VersionMark BudgetFile::storeVersion(const Version &version)
{
    {
        auto backOnFailure = qScopeGuard([this] { goBack(); });
        const Chosen chosen = choose();
        if (isOpen(chosen) && m_open->holds(version.mark.id))
            return m_open->mark();
        backOnFailure.dismiss();
    }
    Version stored = version;
    const auto draft = [&](const VersionMark &next, bool, internal::VersionFolder &folder) {
        if (stored.mark.number == 0) {
            const auto isSame = [&](const internal::FormerVersion &former) {
                return former.hasLabel && former.mark.id == stored.mark.id;
            };
            const auto known = std::ranges::find_if(folder.versions(), isSame);
            stored.mark.number =
                known == folder.versions().end() ? next.number : known->mark.number;
        }
        QByteArray file = withContent([&] { return encodedSafely(stored); },
                                      [this](const std::exception &cause) {
                                          return internal::cannotHold(m_chosenPath, cause);
                                      });
        return std::pair(std::move(file), stored.mark);
    };
    store(draft, false);
    VersionMark mark = stored.mark;
    settle(std::move(stored));
    return mark;
}

VersionMark BudgetFile::mark() const
{
    return m_open ? m_open->mark() : VersionMark();
}

bool BudgetFile::isOpen(const Chosen &chosen) const
{
    // The name may lead to another file than before, when it is a link.
    return m_open && (!chosen.other || m_open->target().shownPath() == m_chosenPath);
}

void BudgetFile::store(const Draft &draft, bool mayMerge)
{
    auto backOnFailure = qScopeGuard([this] { goBack(); });
    Chosen chosen = choose();
    chosen.file->lock(m_pace.patience);
    chosen.file->store(draft, isOpen(chosen) ? m_open->known() : std::nullopt,
                       mayMerge && !chosen.other, m_warn ? m_warn : warnInLog);
    if (chosen.other)
        m_open = std::move(chosen.other);
    m_burst.reset();
    m_change.clear();
    backOnFailure.dismiss();
}

} // namespace kiv::storage
