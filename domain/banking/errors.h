// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/bank_account.h"

#include "foundation/error.h"

namespace kiv::banking {

/// An error about a bank.
class KIV_BANKING_EXPORT BankError : public foundation::Error {
public:
    /// `message` is for the user; `cause` is the error behind it, if any.
    BankError(BankName name, const QString &message,
              const std::exception &cause = std::exception());
    BankError(const BankError &) noexcept;
    ~BankError() override;
    /// The bank that was refused.
    [[nodiscard]] const BankName &name() const noexcept { return m_name; }

private:
    BankName m_name;
};

} // namespace kiv::banking
