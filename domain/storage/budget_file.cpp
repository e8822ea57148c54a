// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/budget_file.h"

#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"
#include "storage/internal/mending.h"
#include "storage/internal/open_file.h"
#include "storage/internal/opened_content.h"
#include "storage/internal/schema.h"
#include "storage/internal/version_encryption.h"
#include "storage/internal/version_folder.h"
#include "storage/key_ring.h"

#include "foundation/streams.h"
#include "surveying/reconciliation_derivation.h"

#include <QtCore/QObject>
#include <QtCore/QScopeGuard>

namespace kiv::storage {
namespace {

using internal::Encryption;
using internal::FileContent;
using internal::FileTarget;
using internal::withContent;

/// So long what is stored makes one version.
constexpr std::chrono::seconds burstLength(1);

void warnInLog(const QString &sentence)
{
    qWarning().noquote() << foundation::escaped(sentence);
}

void warnOf(const QStringList &mended)
{
    for (const QString &sentence : mended)
        warnInLog(QObject::tr("Repaired while loading: %1").arg(sentence));
}

/// Encrypts what a program that ended meanwhile left in the clear, or under the passphrase
/// from before. The budget can be used all the same.
void finishEncryption(const internal::OpenFile &file, const internal::Warn &warn)
{
    if (!file.encryption())
        return;
    for (const QString &path : file.encryptVersions(file.encryption())) {
        if (!internal::isEncrypted(path))
            warn(QObject::tr("The former version '%1' could not be encrypted.").arg(path));
    }
}

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

BudgetFile::BudgetFile() : BudgetFile(Pace()) {}
BudgetFile::BudgetFile(Pace pace) : m_pace(std::move(pace)), m_keys(std::make_shared<KeyRing>()) {}
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
    auto other = std::make_unique<OpenFile>(std::move(target), m_keys.get());
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
    if (!m_isReading && !obstacle)
        finishEncryption(*chosen.file, m_warn ? m_warn : warnInLog);
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
    storeDraft(draft, m_burst && m_pace.now() - m_burst->first < burstLength,
               m_isNew ? std::nullopt : presentEncryption());
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
    const internal::OpenedContent opened =
        internal::opened(content->bytes, m_keys.get(), version.path);
    const internal::BudgetImage image(opened.bytes);
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
            return std::pair(opened.bytes, restored.mark);
        // What the first edition wrote becomes a file of the present one.
        restored.mark = version.mark;
        restored.mark.transactions =
            static_cast<qint64>(restored.data.generalLedger.transactionCount());
        if (restored.mark.number == 0)
            restored.mark.number = next.number;
        QByteArray file = withContent([&] { return encodedSafely(restored); }, isDamaged);
        return std::pair(std::move(file), restored.mark);
    };
    storeDraft(draft, false, opened.encryption);
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
    storeDraft(draft, false, presentEncryption());
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

template <typename Draft>
void BudgetFile::storeDraft(const Draft &draft, bool mayMerge,
                            const std::optional<Encryption> &encryption)
{
    auto backOnFailure = qScopeGuard([this] { goBack(); });
    Chosen chosen = choose();
    chosen.file->lock(m_pace.patience);
    const auto next = std::exchange(m_nextEncryption, nullptr);
    if (chosen.other)
        chosen.other->setEncryption(next ? *next : encryption);
    chosen.file->store(draft, isOpen(chosen) ? m_open->known() : std::nullopt,
                       mayMerge && !chosen.other, m_warn ? m_warn : warnInLog);
    if (chosen.other)
        m_open = std::move(chosen.other);
    m_burst.reset();
    m_change.clear();
    backOnFailure.dismiss();
}

// ---- encryption ----------------------------------------------------------------------

std::optional<Encryption> BudgetFile::presentEncryption() const
{
    return m_open ? m_open->encryption() : std::nullopt;
}

bool BudgetFile::isEncrypted() const
{
    return m_open && m_open->encryption();
}

internal::OpenFile &BudgetFile::openToRewrite()
{
    if (!m_open)
        throw internal::noFileChosen();
    m_chosenPath = m_open->target().shownPath();
    m_open->lock(m_pace.patience);
    m_burst.reset(); // it would be stored in the place of a version that is encrypted otherwise
    return *m_open;
}

QStringList BudgetFile::encrypt(const Passphrase &passphrase)
{
    OpenFile &file = openToRewrite();
    // What cannot be listed cannot be encrypted either; better before anything is changed.
    (void)keptVersions(m_chosenPath, m_keys.get());
    const Encryption encryption = m_keys->encryptionWith(
        passphrase, file.encryption() ? &*file.encryption() : nullptr, m_chosenPath);
    file.rewrite(encryption);
    return file.encryptVersions(encryption);
}

QStringList BudgetFile::decrypt()
{
    OpenFile &file = openToRewrite();
    QStringList left = file.encryptVersions(std::nullopt);
    file.rewrite(std::nullopt);
    return left;
}

void BudgetFile::encryptNext(const Passphrase &passphrase)
{
    m_nextEncryption =
        std::make_unique<Encryption>(m_keys->encryptionWith(passphrase, nullptr, m_chosenPath));
}

void BudgetFile::encryptNextAs(const BudgetFile &other)
{
    if (m_open)
        throw std::logic_error("The keys of an open file are used.");
    const std::optional<Encryption> encryption = other.presentEncryption();
    m_nextEncryption = encryption ? std::make_unique<Encryption>(*encryption) : nullptr;
    m_keys = other.m_keys;
}

} // namespace kiv::storage
