// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scratch_folder.h"

#include "support/refusal.h"

#include <QtTest/QTest>

namespace kiv::test {

/// A budget with a bank of that name, by which it is known again.
inline storage::BudgetStorage::Data budget(const QString &bank)
{
    storage::BudgetStorage::Data data;
    data.banks.add(banking::Bank(banking::BankName(bank), {}, false));
    return data;
}

inline QString bankIn(const storage::BudgetStorage::Data &data)
{
    return data.banks.begin()->first.institution();
}

/// A budget with the bank "First", open in a folder of its own.
class OpenBudget : public QObject {
protected:
    void begin()
    {
        m_file.emplace(atLeisure());
        m_folder.emplace();
        m_path = m_folder->path(homeBudget);
        QCOMPARE(storing(m_path, QStringLiteral("First")), std::nullopt);
    }
    std::optional<storage::StorageFailure> loading(const QString &path)
    {
        return failureOf([&] {
            m_file->setFilePathName(path);
            (void)m_file->load();
        });
    }
    std::optional<storage::StorageFailure> storing(const QString &path, const QString &bank)
    {
        return failureOf([&] {
            m_file->setFilePathName(path);
            m_file->store(budget(bank));
        });
    }

    std::optional<ScratchFolder> m_folder;
    std::optional<storage::BudgetFile> m_file;
    QString m_path;
};

} // namespace kiv::test
