// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/exchange_rates_storage.h"

#include <QtCore/QString>

#include <memory>

namespace kiv::storage {

/// Exchange rates in a small text file with a checksum.
///
/// A file that cannot be read is never overwritten: when rates are stored, it is
/// set aside under a name of its own ("rates.unreadable"), and a warning tells of
/// that. An empty table does not take the place of one that is not: storing it
/// does nothing then. Rates that are as they were loaded or stored last are not stored
/// again as long as the file is as it was then.
class KIV_STORAGE_EXPORT RatesFile final : public ExchangeRatesStorage {
public:
    /// The file need not exist; its folder is made when rates are first stored.
    explicit RatesFile(QString filePathName);
    ~RatesFile() override;

    [[nodiscard]] bool exists() const override;
    [[nodiscard]] conversion::ConversionMap load() const override;
    void store(const conversion::ConversionMap &rates) override;

private:
    QString m_filePathName;
    struct Known;
    mutable std::unique_ptr<Known> m_known; ///< as loaded or stored last
};

} // namespace kiv::storage
