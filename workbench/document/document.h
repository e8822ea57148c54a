// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"
#include "workbench/surveys/reconciliation_watch.h"

#include "foundation/qt_ptr.h"
#include "networking/request_sender.h"
#include "storage/budget_storage.h"
#include "storage/kept_versions.h"

#include <functional>
#include <memory>

namespace kiv::workbench {

class RecallingStorage;

/// What a front end provides for its Navigator.
struct Surroundings {
    /// Creates the sender of network requests.
    std::function<foundation::UniqueQtPtr<networking::RequestSender>()> makeSender;
    /// The file with the exchange rates.
    QString ratesFile;
};

/// A Navigator with its budget file. It knows the open file and whether its changes are
/// saved.
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
    /// For what a file is opened.
    enum class Access : std::uint8_t {
        Change, ///< locked against others who change it
        Reading ///< without a lock, until it is saved
    };
    /// Opens a file. Throws what the storage throws, or a Refusal as refuseUnsaved()
    /// does; the open file then stays open.
    void open(const QString &file, Access access = Access::Change);
    /// Chooses a file that is gone or damaged, which the next undo brings back; until then
    /// there is no budget.
    void openLost(const QString &file);
    /// Throws a Refusal if the file exists, or if it is gone while its former versions are
    /// kept.
    static void refuseExisting(const QString &file);
    /// Saves the budget in memory as a new file. Throws a Refusal as refuseExisting()
    /// does. `change` names the change, see save().
    void create(const QString &file, const QString &change);
    /// Saves the budget to its file, and the exchange rates with it. If only the rates
    /// cannot be saved, that is a warning. `change` names in a line what was changed, such
    /// as "Paid Rent"; the list of versions shows it.
    void save(const QString &change);
    /// Saves the budget under another name, which is then the open file.
    void saveAs(const QString &file, const QString &change);
    /// Throws a Refusal if the last save of the open file failed: its changes are only
    /// in memory.
    void refuseUnsaved() const;
    /// Saves again if the last save failed.
    void saveUnsaved();
    /// Drops the changes since the last call of save(), even if that save failed.
    void revert();
    /// A former version that is the budget in memory now.
    struct Recalled {
        storage::KeptVersion version; ///< where it was kept
        /// The budget until then; none if the file was gone or damaged.
        std::optional<storage::BudgetStorage::Data> before;
        storage::BudgetStorage::Data after; ///< the budget now
    };
    /// Goes back by so many changes, or to the newest whole version if the file is lost.
    /// The next save makes that version the file again, and keeps the present one. Throws
    /// a Refusal if there are not so many, or if the version is damaged.
    [[nodiscard]] Recalled undo(qsizetype steps);
    /// Goes to the version of this name, see storage::KeptVersion, as undo() does.
    [[nodiscard]] Recalled undoTo(const QString &name);
    /// Takes so many calls of undo() back, as undo() does. A change ends that.
    [[nodiscard]] Recalled redo(qsizetype steps);
    /// The budget in memory, as save() would write it.
    [[nodiscard]] storage::BudgetStorage::Data present();
    /// Repairs the budget in memory now, as the next opening of its file would.
    void mend();

    /// The reconciliations of the budget as it was opened or saved last.
    [[nodiscard]] std::vector<JudgedReconciliation> reconciliations() const;
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
    /// Notes what is broken in the version that is open now. One that was not made by a
    /// change of the one before is checked as a whole.
    void watch(bool isChange);

    [[nodiscard]] bool isLost() const;
    [[nodiscard]] Recalled recall(storage::KeptVersion version, storage::BudgetStorage::Data data);

    Surroundings m_surroundings;
    std::unique_ptr<Navigator> m_navigator;
    RecallingStorage *m_storage = nullptr; ///< the Navigator's
    QString m_file;
    Requests m_requests;
    ReconciliationWatch m_watch;
    std::vector<JudgedReconciliation> m_broken;
    bool m_isOther = false; ///< whether a new or a former budget is to be saved next
};

} // namespace kiv::workbench
