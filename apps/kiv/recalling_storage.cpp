// SPDX-License-Identifier: GPL-3.0-or-later
#include "recalling_storage.h"

#include <utility>

namespace kiv::app {

void RecallingStorage::setFilePathName(const QString &filePathName)
{
    m_file.setFilePathName(filePathName);
}

storage::BudgetStorage::Data RecallingStorage::load()
{
    if (std::optional<Data> recalled = std::exchange(m_recalled, std::nullopt))
        return *std::move(recalled);
    return m_file.load();
}

void RecallingStorage::store(const Data &data)
{
    m_file.store(data);
}

QString RecallingStorage::filePathName() const
{
    return m_file.filePathName();
}

} // namespace kiv::app
