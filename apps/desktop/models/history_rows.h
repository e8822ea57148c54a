// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/history/deed.h"
#include "workbench/versions/changes.h"

#include "storage/kept_versions.h"

namespace kiv::desktop {

/// The columns of the page of the history, and its rows: the steps of the session, the newest
/// first, and under them the former versions of the file.
[[nodiscard]] QStringList historyColumns();
[[nodiscard]] std::vector<Row> historyRows(const std::vector<workbench::Step> &steps,
                                           const std::vector<storage::KeptVersion> &versions);

/// Where a row of the history leads.
struct HistoryTarget {
    std::optional<qsizetype> step; ///< of the session
    QString version;               ///< of the file, by its name
};
[[nodiscard]] HistoryTarget historyTarget(const QString &key);

/// The columns of changes, and their rows, at most `rowsMax`.
[[nodiscard]] QStringList changeColumns();
[[nodiscard]] std::vector<Row> changeRows(const std::vector<workbench::Change> &changes,
                                          std::size_t rowsMax);

} // namespace kiv::desktop
