// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/versions/kept_versions.h"

#include "workbench/internal/faults.h"

#include "storage/budget_file.h"
#include "storage/storage_error.h"

#include <QtCore/QFileInfo>

namespace kiv::workbench {

using storage::BudgetStorage;
using storage::Verdict;

const BudgetStorage::Data &Version::data() const
{
    if (found.data)
        return *found.data;
    QString reason;
    for (const storage::Judgement &judgement : found.judgements) {
        if (judgement.verdict == Verdict::Broken)
            reason = judgement.reasons.join(u' ');
    }
    throw internal::versionDamaged(path, reason);
}

Version versionOf(const QString &file, unsigned number)
{
    const QString path = number == 0 ? file : storage::backupOf(file, number);
    try {
        return {number, path, storage::inspectBudget(path)};
    } catch (const storage::StorageError &error) {
        if (number == 0 || error.failure() != storage::StorageFailure::NotFound)
            throw;
        throw internal::noSuchVersion(QString::number(number),
                                      static_cast<qsizetype>(versionsOf(file).size()) - 1);
    }
}

std::vector<Version> versionsOf(const QString &file)
{
    std::vector<Version> versions{versionOf(file, 0)};
    for (unsigned number = 1; number <= storage::BudgetFile::backupsByDefault; ++number) {
        const QString path = storage::backupOf(file, number);
        if (QFileInfo::exists(path))
            versions.push_back({number, path, storage::inspectBudget(path)});
    }
    return versions;
}

} // namespace kiv::workbench
