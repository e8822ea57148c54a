// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/currency_source.h"

namespace kiv::conversion {

CurrencySource::CurrencySource(const foundation::QtPtr<QObject> &parent) : QObject(parent.get()) {}

CurrencySource::~CurrencySource() = default;

} // namespace kiv::conversion
