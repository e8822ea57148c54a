// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"

#include <optional>

namespace kiv::app {

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

    void setFilePathName(const QString &filePathName) override;
    [[nodiscard]] Data load() override;
    void store(const Data &data) override;
    [[nodiscard]] QString filePathName() const override;

private:
    /// `data` is now in the open file.
    void settle(const Data &data);

    storage::BudgetFile m_file;
    QString m_openFile;
    std::optional<Data> m_present;
    bool m_isUnsaved = false;
    int m_timesStored = 0;
    std::optional<Data> m_recalled;
};

} // namespace kiv::app
