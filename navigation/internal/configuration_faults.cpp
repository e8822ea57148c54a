// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/configuration_faults.h"

#include <QtCore/QObject>

namespace kiv::navigation::internal::faults {

using foundation::Error;

namespace {

QString number(int value)
{
    return QString::number(value);
}

} // namespace

Error workHoursOutOfRange()
{
    // A week has 168 hours; that all of them are refused is known, and so is
    // the number in the message.
    return Error(QObject::tr("The number of work hours in a week must be between %1 and %2.")
                     .arg(number(1), number(168)));
}

Error workDaysOutOfRange()
{
    return Error(QObject::tr("The number of work days in a week must be between %1 and %2.")
                     .arg(number(1), number(7)));
}

Error currenciesInUse(const QString &codes)
{
    return Error(QObject::tr("The data.usable_ currencies must contain '%1', as they are "
                             "currently in use in the application.")
                     .arg(codes));
}

Error notifyDueWithinOutOfRange()
{
    return Error(QObject::tr("The number of days to notify within must be between %1 and %2.")
                     .arg(number(0), number(60)));
}

Error surveyWindowOutOfRange()
{
    return Error(QObject::tr("The survey balance window must be between %1 and %2 percent.")
                     .arg(QString::number(0.0, 'g'), QString::number(100.0, 'g')));
}

std::logic_error unknownStrongValue(const QString &value, const QString &target)
{
    return std::logic_error(QStringLiteral("Failed to convert from the strong value '%1' to the "
                                           "another type for '%2'.")
                                .arg(value, target)
                                .toStdString());
}

std::logic_error unknownWeakValue(const QString &value, const QString &target)
{
    return std::logic_error(
        QStringLiteral("Failed to convert from the weak value '%1' to another type for '%2'.")
            .arg(value, target)
            .toStdString());
}

std::logic_error unknownWayToDisplayCurrency()
{
    return std::logic_error("Failed to determine the way to display currency.");
}

std::logic_error unknownWayCurrencyWasDisplayed()
{
    return std::logic_error("Failed to determine the way the currency was displayed.");
}

std::logic_error unknownCurrencySymbol()
{
    return std::logic_error("Failed to determine the currency from its symbol.");
}

std::logic_error noStarterBudget()
{
    return std::logic_error("Budget item generator template type not implemented.");
}

std::logic_error unknownStarterItem()
{
    return std::logic_error("A starter budget holds an item of an unknown type.");
}

} // namespace kiv::navigation::internal::faults
