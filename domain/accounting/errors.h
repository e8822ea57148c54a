// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_code.h"
#include "accounting/transaction_number.h"

#include "foundation/error.h"

namespace kiv::accounting {

/// An error about an account.
class KIV_ACCOUNTING_EXPORT AccountError : public foundation::Error {
public:
    /// `message` is for the user; `cause` is the error behind it, if any.
    AccountError(AccountCode code, const QString &message,
                 const std::exception &cause = std::exception());
    AccountError(const AccountError &) noexcept;
    ~AccountError() override;
    /// The account that was refused.
    [[nodiscard]] const AccountCode &code() const noexcept { return m_code; }

private:
    AccountCode m_code;
};

/// An error about a transaction; the number is 0 for one that was not posted.
class KIV_ACCOUNTING_EXPORT TransactionError : public foundation::Error {
public:
    /// `message` is for the user; `cause` is the error behind it, if any.
    TransactionError(TransactionNumber number, const QString &message,
                     const std::exception &cause = std::exception());
    TransactionError(const TransactionError &) noexcept;
    ~TransactionError() override;
    /// The transaction that was refused; invalid when it had no number yet.
    [[nodiscard]] TransactionNumber number() const noexcept { return m_number; }

private:
    TransactionNumber m_number;
};

} // namespace kiv::accounting
