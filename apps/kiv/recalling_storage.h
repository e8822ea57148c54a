// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_file.h"

#include <optional>

namespace kiv::app {

/// A budget file of which a former version can be recalled: the next load gives
/// that version in place of what the file holds. The file itself stays open,
/// locked and known meanwhile, so that saving puts the version in its place as
/// it would any other change, and the replaced one becomes a backup.
class RecallingStorage final : public storage::BudgetStorage {
public:
    /// `version` is what the next load gives.
    void recall(Data version) { m_recalled = std::move(version); }

    void setFilePathName(const QString &filePathName) override;
    [[nodiscard]] Data load() override;
    void store(const Data &data) override;
    [[nodiscard]] QString filePathName() const override;

private:
    storage::BudgetFile m_file;
    std::optional<Data> m_recalled;
};

} // namespace kiv::app
