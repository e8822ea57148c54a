// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/recalling_storage.h"

#include "workbench/notes/account_notes.h"

#include <utility>

namespace kiv::workbench {

RecallingStorage::RecallingStorage(std::shared_ptr<storage::KeyRing> keys)
{
    m_file.setKeys(std::move(keys));
}

storage::BudgetFile &RecallingStorage::fileItself()
{
    if (m_writer)
        m_writer->finish();
    return m_file;
}

void RecallingStorage::keepLater(std::function<void(const Data &)> keep, std::function<void()> tell)
{
    m_keep = std::move(keep);
    m_writer = std::make_unique<Writer>(m_file, std::move(tell));
}

void RecallingStorage::setFilePathName(const QString &filePathName)
{
    m_chosenFile = filePathName;
}

void RecallingStorage::recall(Data version)
{
    m_recalled = std::move(version);
    m_restored.reset();
}

void RecallingStorage::restore(storage::KeptVersion version, Data data)
{
    m_recalled = data;
    m_restored.emplace(std::move(version), std::move(data));
}

template <typename Work>
auto RecallingStorage::withFile(Work work)
{
    if (m_writer)
        m_writer->finish();
    m_file.setFilePathName(m_chosenFile);
    m_file.setReading(m_isReading);
    m_file.setNew(m_isNew);
    m_file.setChange(m_change);
    // The file that is open then, also after a failure.
    const auto follow = qScopeGuard([this] { m_chosenFile = m_file.filePathName(); });
    return work();
}

storage::BudgetStorage::Data RecallingStorage::load()
{
    if (std::optional<Data> recalled = std::exchange(m_recalled, std::nullopt)) {
        m_isNew = false;
        return *std::move(recalled);
    }
    Data loaded = withFile([this] { return m_file.load(); });
    m_obstacle = m_file.obstacle();
    settle(loaded);
    return loaded;
}

void RecallingStorage::store(const Data &data)
{
    if (m_isCatching)
        throw Caught{data};
    // If saving another file fails, the open one is unchanged.
    const bool isOpen = m_chosenFile == m_openFile;
    if (isOpen && m_keep) {
        m_keep(data);
        m_present = data;
        m_isNew = false;
        ++m_timesStored;
        return;
    }
    const auto before = isOpen ? std::exchange(m_present, data) : m_present;
    m_isUnsaved = m_isUnsaved || isOpen;
    withFile([&] {
        if (m_restored && m_restored->second == data) {
            m_file.restore(m_restored->first);
            return;
        }
        if (before && !m_isNew)
            m_file.setNotes(notesAfter(m_notes.value_or(m_file.notes()), before->generalLedger,
                                       data.generalLedger));
        else if (m_notes)
            m_file.setNotes(*m_notes);
        m_file.store(data);
    });
    if (m_writer)
        m_writer->forget(); // it is in the new file
    ++m_timesStored;
    settle(data);
}

void RecallingStorage::settle(const Data &data)
{
    m_openFile = m_file.filePathName();
    m_present = data;
    m_isUnsaved = false;
    m_isNew = false;
    m_change.clear();
    m_notes.reset();
    m_restored.reset();
}

QString RecallingStorage::filePathName() const
{
    return m_chosenFile;
}

} // namespace kiv::workbench
