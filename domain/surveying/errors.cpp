// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/errors.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::surveying {

SurveyError::SurveyError(banking::BankAccount account, const QString &message,
                         const std::exception &cause)
    : foundation::Error(message, cause), m_account(std::move(account))
{
}

SurveyError::SurveyError(const SurveyError &) noexcept = default;
SurveyError::~SurveyError() = default;

foundation::Error negativeChange(const numira::Money &amount)
{
    return foundation::Error(QObject::tr("An increase or a decrease cannot be negative, as %1 is.")
                                 .arg(foundation::presentationText(amount)));
}

SurveyError completedOnNoDay(const banking::BankAccount &account)
{
    return {account, QObject::tr("A survey cannot be completed without a valid date.")};
}

} // namespace kiv::surveying
