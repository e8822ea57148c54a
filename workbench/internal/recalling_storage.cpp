// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/recalling_storage.h"

#include <utility>

namespace kiv::workbench {

void RecallingStorage::setFilePathName(const QString &filePathName)
{
    m_file.setFilePathName(filePathName);
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

storage::BudgetStorage::Data RecallingStorage::load()
{
    if (std::optional<Data> recalled = std::exchange(m_recalled, std::nullopt)) {
        m_file.setNew(false);
        return *std::move(recalled);
    }
    Data loaded = m_file.load();
    settle(loaded);
    return loaded;
}

void RecallingStorage::store(const Data &data)
{
    if (m_isCatching)
        throw Caught{data};
    // If saving another file fails, the open one is unchanged.
    if (m_file.filePathName() == m_openFile) {
        m_present = data;
        m_isUnsaved = true;
    }
    if (m_restored && m_restored->second == data)
        m_file.restore(m_restored->first);
    else
        m_file.store(data);
    ++m_timesStored;
    settle(data);
}

void RecallingStorage::settle(const Data &data)
{
    m_openFile = m_file.filePathName();
    m_present = data;
    m_isUnsaved = false;
    m_restored.reset();
}

QString RecallingStorage::filePathName() const
{
    return m_file.filePathName();
}

} // namespace kiv::workbench
