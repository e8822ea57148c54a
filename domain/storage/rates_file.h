// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/exchange_rates_storage.h"

#include <QtCore/QString>

namespace kiv::storage {

/// Exchange rates in a small text file with a checksum.
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
};

} // namespace kiv::storage
