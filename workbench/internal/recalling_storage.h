// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/writer.h"

#include "storage/budget_file.h"

#include <QtCore/QScopeGuard>

#include <optional>
#include <stdexcept>

namespace kiv::workbench {

/// A budget file whose next load can return another version. The file stays open and
/// locked meanwhile. So a save writes that version like any other change, and the
/// replaced one is kept.
///
/// It also keeps the present version: the one loaded last, or the one to be saved to the
/// open file, even if saving failed.
///
/// Budgets for the open file can be handed to somebody else, who has them written later.
class RecallingStorage final : public storage::BudgetStorage {
public:
    /// With the keys of encrypted files.
    explicit RecallingStorage(std::shared_ptr<storage::KeyRing> keys);

    /// The next load returns `version`.
    void recall(Data version);
    /// The next load returns a former version. It is stored as that very version, unless
    /// it was changed since.
    void restore(storage::KeptVersion version, Data data);
    /// From now on, `keep` gets each budget for the open file, and has the writer write
    /// it. `tell` is called as Writer says.
    void keepLater(std::function<void(const Data &)> keep, std::function<void()> tell);
    /// The one that writes later; null before keepLater().
    [[nodiscard]] Writer *writer() const noexcept { return m_writer.get(); }
    /// See storage::BudgetFile.
    void setReading(bool isReading) noexcept { m_isReading = isReading; }
    void setChange(const QString &change) { m_change = change; }
    /// The notes with the next save that is not kept later; without them, those before.
    void setNotes(std::optional<storage::Notes> notes) { m_notes = std::move(notes); }
    /// The notes of the version that was loaded or stored last, unless they are kept later.
    [[nodiscard]] const storage::Notes &notes() const noexcept { return m_file.notes(); }
    [[nodiscard]] const std::optional<storage::StorageError> &obstacle() const noexcept
    {
        return m_obstacle;
    }
    /// The version that was loaded or stored last by this object itself.
    [[nodiscard]] storage::Version version() const
    {
        return {m_present.value(), m_file.reconciliations(), m_file.notes(), m_file.mark()};
    }
    /// The file, once nobody else uses it: for what is done to a file and not to a budget.
    [[nodiscard]] storage::BudgetFile &fileItself();
    [[nodiscard]] bool isEncrypted() const { return m_file.isEncrypted(); }
    /// The file that was loaded or stored last; empty before.
    [[nodiscard]] const QString &openFile() const noexcept { return m_openFile; }
    /// The present version; nothing before the first load or store.
    [[nodiscard]] const std::optional<Data> &present() const noexcept { return m_present; }
    /// The reconciliations of the version that was loaded or stored last, unless they are
    /// kept later.
    [[nodiscard]] const surveying::Reconciliations &reconciliations() const noexcept
    {
        return m_file.reconciliations();
    }
    /// A new budget is in memory, unless another one is loaded.
    void beginAnew() noexcept { m_isNew = true; }
    [[nodiscard]] bool isNew() const noexcept { return m_isNew; }
    /// Whether saving the present version failed.
    [[nodiscard]] bool isUnsaved() const noexcept { return m_isUnsaved; }
    /// How often a budget was stored, in any file.
    [[nodiscard]] int timesStored() const noexcept { return m_timesStored; }

    /// The budget that `save` would store; `save` calls a slot that stores it. Nothing
    /// is stored, and the Navigator is unchanged.
    template <typename Save>
    [[nodiscard]] Data caught(Save &&save)
    {
        m_isCatching = true;
        const auto end = qScopeGuard([this] { m_isCatching = false; });
        try {
            save();
        } catch (Caught &data) {
            return std::move(data.data);
        }
        throw std::logic_error("A save handed no budget over.");
    }

    void setFilePathName(const QString &filePathName) override;
    [[nodiscard]] Data load() override;
    void store(const Data &data) override;
    [[nodiscard]] QString filePathName() const override;

private:
    /// Ends a save before it writes. It is not an error of the domain, so nobody handles
    /// it as a failure.
    struct Caught {
        Data data;
    };

    /// Notes that the open file now holds `data`.
    void settle(const Data &data);

    /// Calls `work`, which loads or stores, on the chosen file, once nobody else uses the
    /// open one.
    template <typename Work>
    auto withFile(Work work);

    storage::BudgetFile m_file;
    std::function<void(const Data &)> m_keep;
    std::unique_ptr<Writer> m_writer; ///< uses the file
    QString m_chosenFile;
    QString m_openFile;
    QString m_change;
    std::optional<storage::Notes> m_notes;
    bool m_isReading = false;
    bool m_isNew = false;
    std::optional<storage::StorageError> m_obstacle;
    std::optional<Data> m_present;
    bool m_isUnsaved = false;
    int m_timesStored = 0;
    bool m_isCatching = false;
    std::optional<Data> m_recalled;
    std::optional<std::pair<storage::KeptVersion, Data>> m_restored;
};

} // namespace kiv::workbench
