// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/export.h"
#include "accounting/number.h"

#include <QtCore/QMetaType>

#include <cstdint>
#include <optional>
#include <set>

namespace kiv::accounting {

/// The number by which the ledger knows a transaction: 1 to 65,535. The default one, 0, is the
/// number of none.
class TransactionNumber final : public Number<TransactionNumber, std::uint16_t> {
public:
    using Number::Number;
};

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::TransactionNumber)
Q_DECLARE_METATYPE(std::set<kiv::accounting::TransactionNumber>)
Q_DECLARE_METATYPE(std::optional<kiv::accounting::TransactionNumber>)
