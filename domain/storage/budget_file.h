// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/kept_versions.h"
#include "storage/storage_error.h"
#include "storage/version.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace kiv::storage {

class KeyRing;
class Passphrase;

namespace internal {
class OpenFile;
class VersionFolder;
struct Encryption;
} // namespace internal

/// A budget in a file. docs/file-format.md describes the file, how it is
/// saved, and what is mended when it is loaded.
///
/// A file that was loaded or stored stays locked against every other
/// BudgetFile, here or in another process, until another file is loaded or
/// stored or this object ends.
///
/// Each store keeps the version until then as a former one, see keptVersions(). What one
/// BudgetFile stores within a second makes one version.
class KIV_STORAGE_EXPORT BudgetFile : public BudgetStorage {
public:
    /// How a BudgetFile tells and spends time.
    struct Pace {
        /// So long load and store wait for another who has the lock.
        std::chrono::milliseconds patience{2000};
        /// When it is, for what is stored within a second.
        std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;
    };

    BudgetFile();
    /// With another clock, or less patience.
    explicit BudgetFile(Pace pace);
    ~BudgetFile() override;

    void setFilePathName(const QString &filePathName) override;
    /// The data as load() gives it: what does not fit together but could be made so
    /// by allowed requests is mended, with a warning in the log for each mended thing.
    [[nodiscard]] static Data mended(Data data);

    /// Whether the next load is for reading only, and so takes no lock. The first store
    /// takes it.
    void setReading(bool isReading) noexcept { m_isReading = isReading; }
    /// Mended where it needs it.
    [[nodiscard]] Data load() override;
    /// Stores the notes too, and the reconciliations that follow from those of the
    /// version which was loaded or stored last.
    void store(const Data &data) override;
    /// Of the version which was loaded or stored last; see surveying::reconciliationsAfter.
    [[nodiscard]] const surveying::Reconciliations &reconciliations() const noexcept
    {
        return m_present.reconciliations;
    }
    /// Of the version which was loaded or stored last.
    [[nodiscard]] const Notes &notes() const noexcept { return m_present.notes; }
    /// Replaces the notes with the next store.
    void setNotes(Notes notes) { m_notes = std::move(notes); }
    /// Whether the budget that is stored next is a new one, to which no reconciliations and
    /// notes of the version before belong.
    void setNew(bool isNew) noexcept { m_isNew = isNew; }
    /// Makes a former version the file again, with its own mark, and keeps the one until
    /// now. Throws StorageError as store() does, NotFound when the version is gone, and
    /// Damaged when it is not whole.
    void restore(const KeptVersion &version);
    /// Stores a whole version, which never makes one with the version before, and answers
    /// its mark. The caller gives the mark, with an id and ancestors, and each id to one
    /// version only. Without a number it gets the next one, unless it was stored before:
    /// then it has the number from then. A version that the file holds already is not
    /// stored again. Throws StorageError as store() does.
    VersionMark storeVersion(const Version &version);
    /// Of the version which was loaded or stored last; without an id before.
    [[nodiscard]] VersionMark mark() const;
    /// Why the file that was loaded cannot be stored again, when that is known: it or its
    /// folder must not be written.
    [[nodiscard]] const std::optional<StorageError> &obstacle() const noexcept
    {
        return m_obstacle;
    }
    /// Where warnings go; the log otherwise.
    void setWarn(std::function<void(const QString &sentence)> warn) { m_warn = std::move(warn); }
    /// Names the change that the next successful store saves, in a line such as "Paid
    /// Rent".
    void setChange(const QString &change) { m_change = change; }

    // ---- encryption ------------------------------------------------------------

    /// The keys with which encrypted files are opened, in place of an empty ring; where one is
    /// missing, load() and the others throw PassphraseNeeded. Chosen before the first file.
    ///
    /// A file stays as it is, encrypted or not, and so do its former versions: what an
    /// encrypted one keeps in the clear, or under its passphrase from before, because a
    /// program ended meanwhile, is encrypted when it is loaded. Under another name a budget
    /// is encrypted as it was, but not a new one.
    void setKeys(std::shared_ptr<KeyRing> keys) { m_keys = std::move(keys); }
    /// Whether the file that was loaded or stored last is encrypted.
    [[nodiscard]] bool isEncrypted() const;
    /// Encrypts the file that was loaded or stored last and its former versions, or gives
    /// them another passphrase. The version stays the same. Answers with the paths of
    /// those versions that stay as they are: no key opens them, or they cannot be written.
    /// Throws StorageError as store() does, and changes nothing then. What is broken off is made
    /// up for when the file is loaded again.
    QStringList encrypt(const Passphrase &passphrase);
    /// The reverse, the versions first: what is broken off leaves the file encrypted.
    QStringList decrypt();
    /// The next file that is stored under another name is encrypted with this passphrase, or
    /// as the open file of `other` is.
    void encryptNext(const Passphrase &passphrase);
    void encryptNextAs(const BudgetFile &other); ///< the same, with its keys; before the first file

    /// The file that was chosen; empty before. A load or store that fails chooses the
    /// one that was loaded or saved last again, if there is one.
    [[nodiscard]] QString filePathName() const override;

private:
    using OpenFile = internal::OpenFile;
    /// The file that was chosen: the open one, or another one.
    struct Chosen {
        std::unique_ptr<OpenFile> other;
        OpenFile *file;
    };

    /// What was stored last, when more may become one version with it.
    struct Burst {
        std::chrono::steady_clock::time_point first; ///< when the first one was stored
        QString change;                              ///< the first one that was named
        int stores = 0;
    };
    /// What of the present version the next one depends on.
    struct Present {
        surveying::CompletedSurveys surveys;
        accounting::GeneralLedger ledger;
        surveying::Reconciliations reconciliations;
        Notes notes;
    };

    [[nodiscard]] Chosen choose();
    /// Whether the chosen file is open.
    [[nodiscard]] bool isOpen(const Chosen &chosen) const;
    /// The version that follows from the present one.
    [[nodiscard]] Version following(const Data &data, VersionMark mark) const;
    /// This version was loaded or stored.
    void settle(Version version);
    void goBack() noexcept;
    /// A file that was not open gets this encryption, unless another one was chosen for it.
    template <typename Draft>
    void storeDraft(const Draft &draft, bool mayMerge,
                    const std::optional<internal::Encryption> &encryption);
    [[nodiscard]] std::optional<internal::Encryption> presentEncryption() const;
    /// The open file, locked. Throws NoName without one.
    [[nodiscard]] OpenFile &openToRewrite();

    Pace m_pace;
    std::shared_ptr<KeyRing> m_keys; // outlives the open file
    std::unique_ptr<internal::Encryption> m_nextEncryption;
    QString m_chosenPath;
    QString m_change;
    bool m_isReading = false;
    std::optional<StorageError> m_obstacle;
    std::function<void(const QString &)> m_warn;
    std::optional<Burst> m_burst;
    Present m_present;
    std::optional<Notes> m_notes; ///< for the next store
    bool m_isNew = false;
    std::unique_ptr<OpenFile> m_open;
};

} // namespace kiv::storage
