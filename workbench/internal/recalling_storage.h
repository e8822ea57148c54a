// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"

#include <QtCore/QScopeGuard>

#include <optional>
#include <stdexcept>

namespace kiv::workbench {

/// A budget file of which another version can be recalled: the next load gives
/// that version in place of what the file holds. The file itself stays open,
/// locked and known meanwhile, so that saving puts the version in its place as
/// it would any other change, and the replaced one becomes a backup.
///
/// It also knows the present version, which was loaded last or is to be in the
/// open file, also when that could not be saved.
class RecallingStorage final : public storage::BudgetStorage {
public:
    /// `version` is what the next load gives.
    void recall(Data version) { m_recalled = std::move(version); }
    /// The file that was loaded or stored last; empty before.
    [[nodiscard]] const QString &openFile() const noexcept { return m_openFile; }
    /// Nothing before the first load or store.
    [[nodiscard]] const std::optional<Data> &present() const noexcept { return m_present; }
    /// Whether the present version could not be saved.
    [[nodiscard]] bool isUnsaved() const noexcept { return m_isUnsaved; }
    /// How often a budget was stored, in whichever file.
    [[nodiscard]] int timesStored() const noexcept { return m_timesStored; }

    /// The budget that `save` hands over, which calls a slot that stores it. Nothing
    /// is stored, and nothing changes for the Navigator either.
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
    /// Ends a save before it has touched anything: no exception of the domain, so
    /// that nobody on the way takes it for a failure.
    struct Caught {
        Data data;
    };

    /// `data` is now in the open file.
    void settle(const Data &data);

    storage::BudgetFile m_file;
    QString m_openFile;
    std::optional<Data> m_present;
    bool m_isUnsaved = false;
    int m_timesStored = 0;
    bool m_isCatching = false;
    std::optional<Data> m_recalled;
};

} // namespace kiv::workbench
