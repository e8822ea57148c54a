// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/export.h"
#include "accounting/number.h"

#include <QtCore/QMetaType>

#include <cstdint>

namespace kiv::accounting {

/// The number by which the ledger knows an account: 1 to 4,294,967,295. The default one, 0, is
/// the invalid number, which no account has.
class AccountNumber final : public Number<AccountNumber, std::uint32_t> {
public:
    using Number::Number;
    /// The number that no account has.
    [[nodiscard]] static constexpr AccountNumber invalid() noexcept { return {}; }
};

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::AccountNumber)
