// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fault.h"

#include "storage/budget_storage.h"
#include "storage/exchange_rates_storage.h"
#include "storage/storage_error.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace kiv::test {

/// What the two storages below keep, and when they fail. A test holds it
/// together with them.
struct MemoryDisk {
    std::map<QString, storage::BudgetStorage::Data> files;
    std::optional<conversion::ConversionMap> rates;
    /// Called before each access with its name: "load budget", "store budget",
    /// "load rates", "store rates". It may throw.
    std::function<void(const QString &)> before = [](const QString &) {};
};

class MemoryBudgetStorage final : public storage::BudgetStorage {
public:
    explicit MemoryBudgetStorage(std::shared_ptr<MemoryDisk> disk) : m_disk(std::move(disk)) {}

    void setFilePathName(const QString &filePathName) override
    {
        fault.pass("choose file");
        m_chosen = filePathName;
    }
    [[nodiscard]] Data load() override
    {
        const QString path = std::exchange(m_chosen, m_open);
        fault.pass("load budget");
        const Unwatched aside;
        m_disk->before(QStringLiteral("load budget"));
        const auto found = m_disk->files.find(path);
        if (found == m_disk->files.end()) {
            throw storage::StorageError(storage::StorageFailure::NotFound, path,
                                        QStringLiteral("There is no such file."));
        }
        m_chosen = m_open = path;
        return found->second;
    }
    void store(const Data &data) override
    {
        const QString path = std::exchange(m_chosen, m_open);
        fault.pass("store budget");
        const Unwatched aside;
        m_disk->before(QStringLiteral("store budget"));
        m_disk->files.insert_or_assign(path, data);
        m_chosen = m_open = path;
    }
    [[nodiscard]] QString filePathName() const override { return m_chosen; }

private:
    std::shared_ptr<MemoryDisk> m_disk;
    QString m_chosen;
    QString m_open;
};

class MemoryRatesStorage final : public storage::ExchangeRatesStorage {
public:
    explicit MemoryRatesStorage(std::shared_ptr<MemoryDisk> disk) : m_disk(std::move(disk)) {}

    [[nodiscard]] bool exists() const override
    {
        fault.pass("look for rates");
        return m_disk->rates.has_value();
    }
    [[nodiscard]] conversion::ConversionMap load() const override
    {
        fault.pass("load rates");
        const Unwatched aside;
        m_disk->before(QStringLiteral("load rates"));
        return m_disk->rates.value();
    }
    void store(const conversion::ConversionMap &rates) override
    {
        fault.pass("store rates");
        const Unwatched aside;
        m_disk->before(QStringLiteral("store rates"));
        m_disk->rates = rates;
    }

private:
    std::shared_ptr<MemoryDisk> m_disk;
};

} // namespace kiv::test
