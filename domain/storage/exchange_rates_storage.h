// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include "conversion/conversion_map.h"

namespace kiv::storage {

/// A store of the last known exchange rates.
class KIV_STORAGE_EXPORT ExchangeRatesStorage {
public:
    virtual ~ExchangeRatesStorage();
    ExchangeRatesStorage(const ExchangeRatesStorage &) = delete;
    ExchangeRatesStorage &operator=(const ExchangeRatesStorage &) = delete;

    /// Whether rates were stored before.
    [[nodiscard]] virtual bool exists() const = 0;
    /// Throws StorageError when there are none or they cannot be read.
    [[nodiscard]] virtual conversion::ConversionMap load() const = 0;
    /// Throws StorageError when they cannot be stored; those stored before stay.
    virtual void store(const conversion::ConversionMap &rates) = 0;

protected:
    ExchangeRatesStorage() = default;
};

} // namespace kiv::storage
