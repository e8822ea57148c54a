// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/faults_of_outlook.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::workbench::internal {

Refusal behindOutlook(QDate day, QDate last)
{
    return Refusal(QObject::tr("%1 is behind %2, the last day that is looked at.")
                       .arg(foundation::presentationText(day), foundation::presentationText(last)));
}

Refusal outlookTooLarge()
{
    return Refusal(QObject::tr("What is to come cannot be told: its amounts become too large."));
}

Refusal nothingAsked()
{
    return Refusal(QObject::tr("An amount of zero changes nothing that is to come."));
}

Refusal nobodyToPay()
{
    return Refusal(QObject::tr("No bank has an open account that could pay or get this amount."));
}

Refusal notPaidRegularly(const QString &item)
{
    return Refusal(
        QObject::tr(
            "'%1' has no schedule: it is not due regularly, or its amount is not above zero.")
            .arg(item));
}

Refusal moreNotPositive()
{
    return Refusal(QObject::tr("What is paid more a month must be above zero."));
}

} // namespace kiv::workbench::internal
