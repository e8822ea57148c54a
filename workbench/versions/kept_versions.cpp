// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/versions/kept_versions.h"

#include "workbench/internal/faults.h"

#include "storage/budget_inspection.h"
#include "storage/storage_error.h"

#include <algorithm>
#include <ranges>

namespace kiv::workbench {

using storage::BudgetStorage;
using storage::KeptVersion;
using storage::Verdict;

KeptVersions::KeptVersions(const QString &file, const storage::KeyRing *keys)
    : m_file(file), m_keys(keys), m_found(storage::keptVersions(file, keys))
{
    for (const KeptVersion &found : m_found) {
        const auto isSame = [&found](const KeptVersion &other) {
            return !found.mark.id.isEmpty() && other.mark.id == found.mark.id;
        };
        if (std::ranges::none_of(m_all, isSame))
            m_all.push_back(found);
    }
    const auto number = [](const KeptVersion &version) { return version.mark.number; };
    std::ranges::stable_sort(m_all, std::ranges::greater(), number);
}

const KeptVersion &KeptVersions::present() const
{
    if (m_all.empty())
        throw internal::noSuchFile(m_file);
    const auto file = std::ranges::find_if(m_all, &KeptVersion::isFile);
    if (file == m_all.end())
        throw internal::fileGone(m_file);
    return *file;
}

const KeptVersion &KeptVersions::named(const QString &name) const
{
    const auto found = std::ranges::find(m_all, name, &KeptVersion::name);
    if (found == m_all.end())
        throw internal::noSuchVersion(name);
    return *found;
}

KeptVersion KeptVersions::known(const KeptVersion &version) const
{
    const auto isSame = [&version](const KeptVersion &other) {
        return !version.mark.id.isEmpty() && other.mark.id == version.mark.id;
    };
    const auto found = std::ranges::find_if(m_all, isSame);
    return found == m_all.end() ? version : *found;
}

const KeptVersion *KeptVersions::before(const KeptVersion &version) const
{
    for (const QString &id : version.mark.ancestors) {
        const auto found =
            std::ranges::find(m_all, id, [](const KeptVersion &other) { return other.mark.id; });
        if (found != m_all.end())
            return &*found;
    }
    // All its ancestors were thinned, or nobody knows them.
    const auto isOlder = [&version](const KeptVersion &other) {
        return other.mark.number < version.mark.number;
    };
    const auto older = std::ranges::find_if(m_all, isOlder);
    const bool isBackup = version.mark.number == 0 && !version.isFile;
    return older == m_all.end() || isBackup ? nullptr : &*older;
}

const KeptVersion *KeptVersions::after(const KeptVersion &version) const
{
    const KeptVersion *nearest = nullptr;
    qsizetype generations = storage::VersionMark::ancestorsMax;
    // The newest come first. Of those that were made from it, a direct one goes before
    // one whose parent was thinned.
    for (const KeptVersion &other : m_all) {
        const qsizetype generation = other.mark.ancestors.indexOf(version.mark.id);
        if (!version.mark.id.isEmpty() && generation >= 0 && generation < generations) {
            nearest = &other;
            generations = generation;
        }
    }
    return nearest;
}

const KeptVersion &KeptVersions::walked(Step step, qsizetype steps,
                                        Refusal (*ended)(qsizetype done)) const
{
    const KeptVersion *version = &present();
    for (qsizetype done = 0; done < steps; ++done) {
        version = (this->*step)(*version);
        if (!version)
            throw ended(done);
    }
    return *version;
}

const KeptVersion &KeptVersions::undone(qsizetype steps) const
{
    return walked(&KeptVersions::before, steps, &internal::nothingToUndo);
}

const KeptVersion &KeptVersions::redone(qsizetype steps) const
{
    return walked(&KeptVersions::after, steps, &internal::nothingToRedo);
}

std::optional<std::pair<KeptVersion, BudgetStorage::Data>> KeptVersions::newestWhole() const
{
    for (const KeptVersion &version : m_found) {
        if (version.isFile)
            continue;
        try {
            return std::pair(version, dataOf(version, m_keys));
        } catch (const Refusal &) {
            // An older one may be whole.
        }
    }
    return std::nullopt;
}

BudgetStorage::Data dataOf(const KeptVersion &version, const storage::KeyRing *keys)
{
    return versionOf(version, keys).data;
}

storage::Version versionOf(const KeptVersion &version, const storage::KeyRing *keys)
{
    storage::BudgetInspection found;
    try {
        found = storage::inspectBudget(version.path, keys);
    } catch (const storage::StorageError &error) {
        if (error.failure() == storage::StorageFailure::PassphraseNeeded)
            throw;
        throw internal::versionDamaged(version.path, error.message());
    }
    if (found.data)
        return {*std::move(found.data), std::move(found.reconciliations), std::move(found.notes),
                version.mark};
    QString reason;
    for (const storage::Judgement &judgement : found.judgements) {
        if (judgement.verdict == Verdict::Broken)
            reason = judgement.reasons.join(u' ');
    }
    throw internal::versionDamaged(version.path, reason);
}

bool hasFormerVersions(const QString &file)
{
    try {
        return std::ranges::any_of(storage::keptVersions(file), std::not_fn(&KeptVersion::isFile));
    } catch (const storage::StorageError &) {
        return false;
    }
}

} // namespace kiv::workbench
