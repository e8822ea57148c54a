// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "banking/bank_account.h"

#include "foundation/error.h"

namespace kiv::surveying {

/// An error about the survey of a bank account.
class KIV_SURVEYING_EXPORT SurveyError : public foundation::Error {
public:
    /// `message` is for the user; `cause` is the error behind it, if any.
    SurveyError(banking::BankAccount account, const QString &message,
                const std::exception &cause = std::exception());
    SurveyError(const SurveyError &) noexcept;
    ~SurveyError() override;
    /// The bank account whose survey was refused.
    [[nodiscard]] const banking::BankAccount &account() const noexcept { return m_account; }

private:
    banking::BankAccount m_account;
};

} // namespace kiv::surveying
