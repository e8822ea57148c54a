// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/report.h"

#include "storage/budget_inspection.h"

/// The versions of a budget file that are kept, and what changed between two.
namespace kiv::app {

/// One version of a budget file: number 0 is the file itself, 1 the version
/// before, and so on.
struct Version {
    unsigned number = 0;
    QString path;
    storage::BudgetInspection found;

    /// Its budget. Throws a Refusal when it is not whole.
    [[nodiscard]] const storage::BudgetStorage::Data &data() const;
};

/// That version. Throws a Refusal when it is not kept.
[[nodiscard]] Version versionOf(const QString &file, unsigned number);
/// All that are kept, the newest first.
[[nodiscard]] std::vector<Version> versionsOf(const QString &file);

/// What became of items, accounts, transactions, banks and surveys: one object
/// {what, name, change, before, after} for each that was added, removed or
/// changed, with the whole of it as JSON before and after (null where it was
/// not there).
[[nodiscard]] QJsonArray changesBetween(const storage::BudgetStorage::Data &before,
                                        const storage::BudgetStorage::Data &after);

/// Those changes as a table of at most that many rows, and how many are left.
void tabulate(Report &report, const QJsonArray &changes, const QString &whenNone,
              qsizetype rowsMax = std::numeric_limits<qsizetype>::max());

} // namespace kiv::app
