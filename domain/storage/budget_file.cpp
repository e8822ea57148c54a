// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/budget_file.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_lock.h"
#include "storage/internal/mending.h"
#include "storage/internal/schema.h"

#include "foundation/streams.h"

#include <QtCore/QObject>
#include <QtCore/QScopeGuard>

#include <new>

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

void warnOf(const QStringList &mended)
{
    for (const QString &sentence : mended)
        qWarning().noquote() << foundation::escaped(
            QObject::tr("Repaired while loading: %1").arg(sentence));
}

/// The file's content, loaded once as a test: a saved file must be one that can
/// be opened.
QByteArray encodedSafely(const BudgetStorage::Data &data, const VersionMark &mark)
{
    QByteArray file = internal::encodeBudget(data, mark);
    const internal::BudgetImage image(file);
    image.checkSeal();
    (void)image.mark();
    QStringList mended;
    (void)image.data(mended);
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
    /// That of the version which was loaded or stored last.
    [[nodiscard]] const VersionMark &mark() const noexcept { return m_mark; }
    [[nodiscard]] const std::optional<Fingerprint> &known() const noexcept { return m_known; }

    [[nodiscard]] bool exists() const
    {
        return ::access(m_target.path().constData(), F_OK) == 0 || errno != ENOENT;
    }

    /// Takes the lock unless it is held already.
    void lock()
    {
        if (!m_lock)
            m_lock = std::make_unique<internal::FileLock>(m_target);
    }

    /// Where no lock can be made, nothing can be saved either, so no lock is
    /// needed. The next attempt to save says why.
    void lockIfPossible()
    {
        try {
            lock();
        } catch (const StorageError &error) {
            if (error.failure() != StorageFailure::CannotWrite)
                throw;
        }
    }

    Data load(QStringList &mended)
    {
        const std::optional<FileContent> content =
            internal::readFile(m_target, internal::fileSizeMax);
        if (!content)
            throw internal::fileNotFound(m_target.shownPath());
        internal::requireBudget(internal::kindOf(content->bytes), m_target.shownPath());
        const internal::BudgetImage image(content->bytes);
        Data data = withContent(
            [&] {
                image.checkSeal();
                m_mark = image.mark();
                return image.data(mended);
            },
            [this](const std::exception &cause) {
                return internal::damaged(m_target.shownPath(), cause);
            });
        m_known = Fingerprint(content->bytes);
        m_attempted.reset();
        return data;
    }

    /// `known` is what was seen last under this name, if anything was.
    void store(QByteArrayView image, const VersionMark &mark,
               const std::optional<Fingerprint> &known, unsigned backups)
    {
        const std::optional<FileContent> replaced =
            internal::readFile(m_target, internal::fileSizeMax);
        if (replaced)
            checkReplaceable(replaced->bytes, known);
        m_attempted = Fingerprint(image);
        internal::AtomicFileWriter(m_target,
                                   replaced ? std::optional(replaced->stamp) : std::nullopt)
            .write(image, backups);
        m_known = std::exchange(m_attempted, std::nullopt);
        m_mark = mark;
    }

private:
    void checkReplaceable(const QByteArray &bytes, const std::optional<Fingerprint> &known) const
    {
        // A save that failed at its very end may have left its own content.
        const Fingerprint found(bytes);
        if (found == m_attempted)
            return;
        if (known) {
            if (found != *known)
                throw internal::changedOnDisk(m_target.shownPath());
            return;
        }
        // The user chose an existing file. A budget, whole or not, stays as the
        // backup; another file is not overwritten.
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

BudgetFile::BudgetFile(unsigned backups) : m_backups(backups) {}
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
    chosen.file->lockIfPossible();
    QStringList mended;
    Data data = chosen.file->load(mended);
    warnOf(mended);
    if (chosen.other)
        m_open = std::move(chosen.other);
    backOnFailure.dismiss();
    return data;
}

void BudgetFile::store(const Data &data)
{
    auto backOnFailure = qScopeGuard([this] { goBack(); });
    Chosen chosen = choose();
    VersionMark mark = chosen.file->mark().next();
    mark.nameChange(std::exchange(m_change, {}));
    mark.savedAt = QDateTime::currentDateTimeUtc();
    mark.transactions = static_cast<qint64>(data.generalLedger.transactions().size());
    const QByteArray file = withContent(
        [&] { return encodedSafely(data, mark); },
        [this](const std::exception &cause) { return internal::cannotHold(m_chosenPath, cause); });
    chosen.file->lock();
    // The name may lead to another file than before, when it is a link.
    const bool isOpen = m_open && (!chosen.other || m_open->target().shownPath() == m_chosenPath);
    chosen.file->store(file, mark, isOpen ? m_open->known() : std::nullopt, m_backups);
    if (chosen.other)
        m_open = std::move(chosen.other);
    backOnFailure.dismiss();
}

} // namespace kiv::storage
