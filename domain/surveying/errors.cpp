// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/errors.h"

namespace kiv::surveying {

SurveyError::SurveyError(banking::BankAccount account, const QString &message,
                         const std::exception &cause)
    : foundation::Error(message, cause), m_account(std::move(account))
{
}

SurveyError::SurveyError(const SurveyError &) noexcept = default;
SurveyError::~SurveyError() = default;

} // namespace kiv::surveying
