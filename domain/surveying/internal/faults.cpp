// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/internal/faults.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::surveying::internal {

foundation::Error negativeChange(const numira::Money &amount)
{
    return foundation::Error(QObject::tr("An increase or a decrease cannot be negative, but is %1.")
                                 .arg(foundation::presentationText(amount)));
}

SurveyError completedOnNoDay(const banking::BankAccount &account)
{
    return {account, QObject::tr("A survey cannot be completed without a valid date.")};
}

std::logic_error itemTypeUnknown()
{
    return std::logic_error("An unknown budget item type cannot be told to be distributable.");
}

} // namespace kiv::surveying::internal
