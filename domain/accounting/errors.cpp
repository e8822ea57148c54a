// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/errors.h"

namespace kiv::accounting {

AccountError::AccountError(AccountCode code, const QString &message, const std::exception &cause)
    : foundation::Error(message, cause), m_code(std::move(code))
{
}

AccountError::AccountError(const AccountError &) noexcept = default;
AccountError::~AccountError() = default;

TransactionError::TransactionError(TransactionNumber number, const QString &message,
                                   const std::exception &cause)
    : foundation::Error(message, cause), m_number(number)
{
}

TransactionError::TransactionError(const TransactionError &) noexcept = default;
TransactionError::~TransactionError() = default;

} // namespace kiv::accounting
