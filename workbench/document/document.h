// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document_news.h"
#include "workbench/document/trouble.h"
#include "workbench/history/history.h"
#include "workbench/requests/requests.h"
#include "workbench/surveys/reconciliation_watch.h"

#include "foundation/qt_ptr.h"
#include "networking/request_sender.h"
#include "storage/budget_storage.h"
#include "storage/kept_versions.h"
#include "storage/key_ring.h"

#include <functional>
#include <memory>

namespace kiv::storage {
class BudgetFile;
}

namespace kiv::workbench {

class KeptVersions;
class RecallingStorage;
class Writer;

/// What a front end provides for its Navigator.
struct Surroundings {
    /// Creates the sender of network requests.
    std::function<foundation::UniqueQtPtr<networking::RequestSender>()> makeSender;
    /// The file with the exchange rates.
    QString ratesFile;
    /// The keys of encrypted budgets.
    std::shared_ptr<storage::KeyRing> keys = std::make_shared<storage::KeyRing>();
};

/// A Navigator with its budget file. It knows the open file and whether its changes are
/// saved.
///
/// document.cpp       the Navigator, opening and saving
/// document_keeping.cpp  deeds and how they are kept
/// document_undo.cpp  undo, redo and going to a step
/// document_encryption.cpp  encrypting its file
class KIV_WORKBENCH_EXPORT Document {
public:
    /// The Navigator of this document.
    using Navigator = navigation::Navigator;

    /// Opens no file, and creates no Navigator yet.
    explicit Document(Surroundings surroundings);
    ~Document();
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    /// The Navigator, created when first needed: a call that only prints help should not
    /// wait for it.
    [[nodiscard]] Navigator &navigator();
    /// The requests to the Navigator.
    [[nodiscard]] Requests &requests() noexcept { return m_requests; }
    /// The display of currencies; by code as long as there is no Navigator.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs();

    /// The path with the extension of budget files.
    [[nodiscard]] static QString withExtension(const QString &path);
    /// The open file; empty if there is none.
    [[nodiscard]] const QString &file() const noexcept { return m_file; }
    /// Another number for each budget that is opened, made or brought back, so that what was
    /// typed for the one before is not taken for it. One that is saved under another name, or
    /// opened again, keeps its own.
    [[nodiscard]] int opening() const noexcept { return m_opening; }
    /// For what a file is opened.
    enum class Access : std::uint8_t {
        Change,  ///< locked against others who change it
        Reading, ///< without a lock; no change of it is kept
        /// As Change; where that is not possible, for reading only: see whyReadOnly().
        ChangeIfPossible,
    };
    /// Opens a file. Throws what the storage throws, or a Refusal as refuseUnsaved()
    /// does; the open file then stays open.
    void open(const QString &file, Access access = Access::Change);
    /// As open(), but gives the changes up that could not be saved. If opening fails, they
    /// are as before.
    void openGivingUp(const QString &file, Access access);
    /// Opens the file again as it is on the disk now, and gives up the budget in memory.
    /// Throws what the storage throws, and changes nothing then.
    void reload();
    /// Chooses a file that is gone or damaged, which the next undo brings back; until then
    /// there is no budget.
    void openLost(const QString &file);
    /// Throws a Refusal if the file exists, or if it is gone while its former versions are
    /// kept.
    static void refuseExisting(const QString &file);
    /// Why the budget can be looked at only: it was opened so, another program has it, or
    /// it cannot be written. No deed is possible then. Nothing if it can be changed.
    [[nodiscard]] const std::optional<QString> &whyReadOnly() const noexcept
    {
        return m_whyReadOnly;
    }
    /// Whether whyReadOnly() says why.
    [[nodiscard]] bool isReadOnly() const noexcept { return m_whyReadOnly.has_value(); }
    /// Saves the budget in memory as a new file. Throws a Refusal as refuseExisting()
    /// does. `change` names the change, see save().
    void create(const QString &file, const QString &change);
    /// Makes an empty budget in a new file, which is then the open one. Throws as create()
    /// does; the open budget then stays.
    void createEmpty(const QString &file, const QString &change);
    /// Makes a new file whose budget `fill` makes in memory, as one step after an empty
    /// budget. Throws what `fill` throws, or as create(); the open budget then stays, and
    /// there is no file.
    void createFilled(const QString &file, const Deed &deed, const std::function<void()> &fill);
    /// Saves the budget to its file, and the exchange rates with it. If only the rates
    /// cannot be saved, that is a warning. `change` names in a line what was changed, such
    /// as "Paid Rent"; the list of versions shows it.
    void save(const QString &change) { save(Deed{change, {}, {}}); }
    /// The same, with what undo says and where it goes.
    void save(const Deed &deed);
    /// Saves the budget under another name, which is then the open file.
    void saveAs(const QString &file, const QString &change);
    /// Throws a Refusal if the last save of the open file failed: its changes are only
    /// in memory.
    void refuseUnsaved() const;
    /// Saves again if the last save failed.
    void saveUnsaved();
    /// Drops the changes since the last call of save(), even if that save failed.
    void revert();

    // ---- how it is kept --------------------------------------------------------

    /// How save() and all that keeps a change write the file.
    enum class Keeping : std::uint8_t {
        AtOnce,       ///< before they return; they throw what storing throws
        WithinASecond ///< within a second, while the program goes on; see kept()
    };
    /// Chooses it. What is pending under the former one is still written.
    void setKeeping(Keeping keeping);
    /// How it is kept now.
    [[nodiscard]] Keeping keeping() const noexcept { return m_keeping; }
    /// Whether the file holds the budget in memory.
    enum class Kept : std::uint8_t {
        Saved,
        Saving,  ///< it will within a second
        NotSaved ///< writing failed; the next change or writeNow() tries again
    };
    /// Saved while there is no file.
    [[nodiscard]] Kept kept() const;
    /// Why it is NotSaved, and what the user can choose.
    [[nodiscard]] std::optional<Trouble> whyNotSaved() const;
    /// Writes what is pending or could not be written, and waits for it. Throws what
    /// storing throws.
    void writeNow();
    /// Writes what is pending and waits for it; any thread may call it.
    void writePending() const noexcept;
    /// Takes in what happened while the file was written, and logs warnings. With an event
    /// loop, this comes by itself.
    void listen();
    /// Saves a copy of the budget as a new file; the open file stays open. Throws what
    /// storing throws, or a Refusal as refuseExisting() does.
    void saveCopy(const QString &file);

    // ---- encryption ------------------------------------------------------------

    /// The keys of encrypted budgets. Opening one whose key is not there throws StorageError
    /// PassphraseNeeded, with its path; so does what reads a former version under another
    /// passphrase. The front end unlocks that path and tries again.
    [[nodiscard]] storage::KeyRing &keys() const noexcept { return *m_keys; }
    /// Whether the open file is encrypted.
    [[nodiscard]] bool isEncrypted() const;
    /// The next new file is encrypted with this passphrase.
    void encryptNext(const storage::Passphrase &passphrase);
    /// Encrypts the open file and its former versions, or gives them another passphrase.
    /// Answers with the paths of the versions that stay as they are, since no key opens them.
    /// Throws a Refusal if the budget isReadOnly(), and as refuseUnsaved() does, and what
    /// storing throws.
    QStringList encrypt(const storage::Passphrase &passphrase);
    /// The reverse; throws the same, and a Refusal if the file is not encrypted.
    QStringList decrypt();

    /// Tells when the budget or its keeping changed.
    [[nodiscard]] DocumentNews &news() noexcept { return m_news; }

    // ---- deeds, undo and redo --------------------------------------------------

    /// Runs `work`, which makes requests, and keeps the budget then as one step; none if
    /// it is as before. If work throws, the budget is as before, and the exception passes
    /// on. Throws a Refusal without running it if the budget isReadOnly(), and with
    /// Keeping::AtOnce what storing throws.
    void perform(const Deed &deed, const std::function<void()> &work);
    /// The steps of this session, with Keeping::WithinASecond. The first is the state at
    /// opening, unless undo or redo went on to former versions of the file.
    [[nodiscard]] std::vector<Step> steps() const;
    /// What undo() would take back: a step of the session, or else the newest change in
    /// the file.
    [[nodiscard]] std::optional<Deed> undoable() const;
    /// What redo() would do again.
    [[nodiscard]] std::optional<Deed> redoable() const;

    /// When a step that is gone to is kept.
    enum class Settle : std::uint8_t {
        Now,  ///< at once
        Later ///< by the next call of save(); revert() takes it back instead
    };
    /// A former version that is the budget in memory now.
    struct Recalled {
        Deed deed;                    ///< what was taken back or done again
        storage::KeptVersion version; ///< where it was kept; without a path if in memory
        /// The budget until then; none if the file was gone or damaged.
        std::optional<storage::BudgetStorage::Data> before;
        storage::BudgetStorage::Data after; ///< the budget now
    };
    /// Goes back by so many changes, or to the newest whole version if the file is lost:
    /// first along the steps of the session, then along the former versions of the file.
    /// That version becomes the file again, and the present one is kept. Throws a Refusal
    /// if there are not so many, or if the version is damaged.
    Recalled undo(qsizetype steps = 1, Settle settle = Settle::Now);
    /// Goes to the version of this name, see storage::KeptVersion and History::Entry, as
    /// undo() does.
    Recalled undoTo(const QString &name, Settle settle = Settle::Now);
    /// Takes so many calls of undo() back, as undo() does. A change ends that.
    Recalled redo(qsizetype steps = 1, Settle settle = Settle::Now);
    /// Goes to the step with this place in steps(), as undo() does.
    Recalled goTo(qsizetype step, Settle settle = Settle::Now);
    /// The steps behind steps().
    [[nodiscard]] const History &history() const noexcept { return m_history; }
    /// The budget in memory, as save() would write it.
    [[nodiscard]] storage::BudgetStorage::Data present();
    /// Takes this budget in place of the one in memory, for what no request does, as a part of
    /// perform(). It is repaired as when it is opened. Throws what loading throws.
    void put(storage::BudgetStorage::Data data);
    /// Repairs the budget in memory now, as the next opening of its file would.
    void mend();

    /// What is remembered beside the budget: rules of imports, and the like.
    [[nodiscard]] storage::Notes notes() const;
    /// Remembers these instead, with the next save() or perform(); revert() forgets them. Undo
    /// takes them back as any change.
    void setNotes(storage::Notes notes);

    /// The reconciliations of the budget as it was opened or saved last.
    [[nodiscard]] std::vector<JudgedReconciliation> reconciliations() const;
    /// The same as they are kept beside the budget, with their transactions. There must be
    /// a budget.
    [[nodiscard]] const surveying::Reconciliations &keptReconciliations() const;
    /// For each account that was reconciled, whether all its reconciliations hold.
    [[nodiscard]] std::map<accounting::AccountNumber, bool> reconciledAccounts() const;
    /// A sentence about one of them.
    [[nodiscard]] QString sentence(const JudgedReconciliation &reconciliation);
    /// The reconciliations that broke since the last call: after opening a file all that
    /// do not hold, after saving those that the change broke. Of each account the first.
    [[nodiscard]] std::vector<JudgedReconciliation> takeBroken();

private:
    /// Calls a slot that stores the budget, and then the exchange rates.
    template <typename Slot, typename... Values>
    void store(Slot slot, const Values &...values);
    /// Begins the steps of a session with the budget in memory.
    void begin();
    /// Keeps the budget as a step, and has it written.
    void keep(const storage::BudgetStorage::Data &data);
    void keepLater();
    void load(const QString &path, Access access);
    void refuseReadOnly() const;
    [[nodiscard]] Writer *writer() const;
    /// The open file, with all changes in it. Throws as encrypt().
    [[nodiscard]] storage::BudgetFile &fileToRewrite();
    /// Notes what is broken in the version that is open now. One that was not made by a
    /// change of the one before is checked as a whole.
    void watch(bool isChange);

    [[nodiscard]] bool isLost() const;
    /// Whether undo and redo go along the steps.
    [[nodiscard]] bool hasSteps() const;
    [[nodiscard]] Recalled recall(storage::KeptVersion version, storage::BudgetStorage::Data data);
    Recalled settled(Recalled recalled, Settle settle);
    /// Recalls a step of the session, whose content is read if needed.
    [[nodiscard]] Recalled recallStep(std::size_t place);
    [[nodiscard]] Recalled recallContent(const History::Entry &entry, const Deed &deed);
    /// Adds so many former versions of the file before the first step, or behind the last.
    /// Throws a Refusal if there are not so many.
    void stepsFromFile(bool isBefore, std::size_t missing, std::size_t possible);
    /// Adds the former versions up to this one, and returns its place; nothing if it does
    /// not belong to the steps.
    [[nodiscard]] std::optional<std::size_t> stepOf(const KeptVersions &versions,
                                                    const storage::KeptVersion &version);

    Surroundings m_surroundings;
    std::shared_ptr<storage::KeyRing> m_keys;
    DocumentNews m_news; // outlives the thread that writes
    std::unique_ptr<Navigator> m_navigator;
    RecallingStorage *m_storage = nullptr; ///< the Navigator's
    QString m_file;
    int m_opening = 0;
    Requests m_requests;
    ReconciliationWatch m_watch;
    std::vector<JudgedReconciliation> m_broken;
    Access m_access = Access::Change;
    std::optional<QString> m_whyReadOnly;
    Keeping m_keeping = Keeping::AtOnce;
    History m_history;
    Deed m_deed;                             ///< that save() keeps
    std::optional<storage::Notes> m_notes;   ///< that it keeps, if they are others
    bool m_isKept = false;                   ///< whether it is a step
    std::optional<std::size_t> m_goesTo;     ///< the step that the next save() settles
    std::optional<History::Entry> m_goesOff; ///< the same, for one that is no step
    Kept m_toldKept = Kept::Saved;           ///< as the front end heard it last
    bool m_isOther = false; ///< whether a new or a former budget is to be saved next
};

} // namespace kiv::workbench
