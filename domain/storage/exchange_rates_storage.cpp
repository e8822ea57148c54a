// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/exchange_rates_storage.h"

namespace kiv::storage {

ExchangeRatesStorage::~ExchangeRatesStorage() = default;

} // namespace kiv::storage
