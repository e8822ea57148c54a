// SPDX-License-Identifier: GPL-3.0-or-later
// Undo, redo and going to a step.
#include "workbench/document/document.h"

#include "workbench/internal/faults.h"
#include "workbench/internal/recalling_storage.h"
#include "workbench/versions/kept_versions.h"

#include "storage/storage_error.h"

#include <algorithm>

namespace kiv::workbench {

using storage::BudgetStorage;
using storage::KeptVersion;

bool Document::isLost() const
{
    return m_storage->openFile() != m_file;
}

bool Document::hasSteps() const
{
    return !m_history.isEmpty() && !isLost();
}

std::vector<Step> Document::steps() const
{
    std::vector<Step> steps;
    for (std::size_t place = 0; place < m_history.size(); ++place) {
        const History::Entry &entry = m_history.at(place);
        steps.push_back({entry.deed, entry.mark.savedAt, place == m_history.place()});
    }
    return steps;
}

std::optional<Deed> Document::undoable() const
{
    if (m_file.isEmpty())
        return std::nullopt;
    if (m_history.place() > 0)
        return m_history.present().leadingDeed();
    try {
        const KeptVersions versions(m_file, m_keys.get());
        const KeptVersion present =
            m_history.isEmpty() ? versions.present() : versions.known(m_history.present().kept());
        if (versions.before(present))
            return Deed{present.mark.change, {}, {}};
    } catch (const foundation::Error &) {
        // Undo itself tells why.
    }
    return std::nullopt;
}

std::optional<Deed> Document::redoable() const
{
    if (m_file.isEmpty())
        return std::nullopt;
    if (m_history.place() + 1 < m_history.size())
        return m_history.at(m_history.place() + 1).leadingDeed();
    try {
        const KeptVersions versions(m_file, m_keys.get());
        const KeptVersion *next =
            versions.after(m_history.isEmpty() ? versions.present() : m_history.present().kept());
        if (next)
            return Deed{next->mark.change, {}, {}};
    } catch (const foundation::Error &) {
        // Redo itself tells why.
    }
    return std::nullopt;
}

Document::Recalled Document::recall(KeptVersion version, BudgetStorage::Data data)
{
    const bool wasLost = isLost();
    Recalled recalled{Deed{version.mark.change, {}, {}}, version,
                      wasLost ? std::nullopt : m_storage->present(), data};
    m_storage->restore(std::move(version), std::move(data));
    if (wasLost)
        navigator().onConfirmedLoadBudgetFile(m_file, false);
    else
        navigator().onReloadBudgetFile();
    return recalled;
}

Document::Recalled Document::settled(Recalled recalled, Settle settle)
{
    if (settle == Settle::Now)
        save(recalled.deed);
    return recalled;
}

Document::Recalled Document::recallContent(const History::Entry &entry, const Deed &deed)
{
    BudgetStorage::Data data = entry.content.value().data();
    Recalled recalled{deed, entry.kept(), m_storage->present(), data};
    // Requests may have left something that cannot be loaded as it is.
    m_storage->recall(BudgetStorage::Data(storage::BudgetFile::mended(std::move(data))));
    navigator().onConfirmedLoadBudgetFile(m_file, true);
    m_isOther = true;
    return recalled;
}

Document::Recalled Document::recallStep(std::size_t place)
{
    const History::Entry &entry = m_history.at(place);
    if (!entry.content)
        m_history.setContent(place, versionOf(entry.kept(), m_keys.get()));
    const std::size_t last = place < m_history.place() ? place + 1 : place;
    Recalled recalled = recallContent(entry, m_history.at(last).leadingDeed());
    m_goesTo = place;
    m_goesOff.reset();
    return recalled;
}

void Document::stepsFromFile(bool isBefore, std::size_t missing, std::size_t possible)
{
    refuseUnsaved();
    listen();
    const KeptVersions versions(m_file, m_keys.get());
    std::vector<KeptVersion> found;
    KeptVersion last = versions.known(m_history.at(isBefore ? 0 : m_history.size() - 1).kept());
    while (found.size() < missing) {
        const KeptVersion *next = isBefore ? versions.before(last) : versions.after(last);
        if (!next) {
            const auto done = static_cast<qsizetype>(possible + found.size());
            throw isBefore ? internal::nothingToUndo(done) : internal::nothingToRedo(done);
        }
        last = *next;
        found.push_back(last);
    }
    if (isBefore)
        m_history.prepend(found);
    else
        m_history.append(found);
}

Document::Recalled Document::undo(qsizetype steps, Settle settle)
{
    refuseReadOnly();
    (void)navigator();
    if (hasSteps()) {
        const auto count = static_cast<std::size_t>(steps);
        if (count > m_history.place())
            stepsFromFile(true, count - m_history.place(), m_history.place());
        return settled(recallStep(m_history.place() - count), settle);
    }
    refuseUnsaved();
    const KeptVersions versions(m_file, m_keys.get());
    if (isLost()) {
        auto found = versions.newestWhole();
        if (!found)
            throw internal::nothingToUndo(0);
        return settled(recall(std::move(found->first), std::move(found->second)), settle);
    }
    const KeptVersion &version = versions.undone(steps);
    return settled(recall(version, dataOf(version, m_keys.get())), settle);
}

Document::Recalled Document::redo(qsizetype steps, Settle settle)
{
    refuseReadOnly();
    (void)navigator();
    if (hasSteps()) {
        const auto count = static_cast<std::size_t>(steps);
        const std::size_t possible = m_history.size() - 1 - m_history.place();
        if (count > possible)
            stepsFromFile(false, count - possible, possible);
        return settled(recallStep(m_history.place() + count), settle);
    }
    refuseUnsaved();
    const KeptVersions versions(m_file, m_keys.get());
    const KeptVersion &version = versions.redone(steps);
    return settled(recall(version, dataOf(version, m_keys.get())), settle);
}

Document::Recalled Document::goTo(qsizetype step, Settle settle)
{
    refuseReadOnly();
    return settled(recallStep(static_cast<std::size_t>(step)), settle);
}

std::optional<std::size_t> Document::stepOf(const KeptVersions &versions,
                                            const KeptVersion &version)
{
    for (std::size_t place = 0; place < m_history.size(); ++place) {
        if (m_history.at(place).mark.id == version.mark.id && !version.mark.id.isEmpty())
            return place;
    }
    // The chains of versions end: each comes from an older one, or was made by a newer.
    for (const bool isBefore : {true, false}) {
        std::vector<KeptVersion> found;
        KeptVersion last = versions.known(m_history.at(isBefore ? 0 : m_history.size() - 1).kept());
        while (const KeptVersion *next = isBefore ? versions.before(last) : versions.after(last)) {
            last = *next;
            found.push_back(last);
            if (last.name == version.name)
                break;
            if (found.size() > versions.all().size())
                break;
        }
        if (last.name != version.name)
            continue;
        if (isBefore)
            m_history.prepend(found);
        else
            m_history.append(found);
        return isBefore ? 0 : m_history.size() - 1;
    }
    return std::nullopt;
}

Document::Recalled Document::undoTo(const QString &name, Settle settle)
{
    refuseReadOnly();
    (void)navigator();
    refuseUnsaved();
    listen();
    if (hasSteps()) {
        for (std::size_t place = 0; place < m_history.size(); ++place) {
            if (!m_history.at(place).isCalled(name))
                continue;
            if (place == m_history.place())
                throw internal::alreadyPresent(name);
            return settled(recallStep(place), settle);
        }
    }
    const KeptVersions versions(m_file, m_keys.get());
    const KeptVersion &version = versions.named(name);
    if (version.isFile)
        throw internal::alreadyPresent(name);
    if (!hasSteps())
        return settled(recall(version, dataOf(version, m_keys.get())), settle);
    if (const std::optional<std::size_t> place = stepOf(versions, version))
        return settled(recallStep(*place), settle);
    History::Entry entry{Deed{version.mark.change, {}, {}}, version.mark, std::nullopt,
                         version.path};
    entry.content.emplace(versionOf(version, m_keys.get()));
    Recalled recalled = recallContent(entry, entry.deed);
    m_goesOff = std::move(entry);
    m_goesTo.reset();
    return settled(std::move(recalled), settle);
}

} // namespace kiv::workbench
