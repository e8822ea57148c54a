// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/errors.h"

namespace kiv::banking {

BankError::BankError(BankName name, const QString &message, const std::exception &cause)
    : foundation::Error(message, cause), m_name(std::move(name))
{
}

BankError::BankError(const BankError &) noexcept = default;
BankError::~BankError() = default;

} // namespace kiv::banking
