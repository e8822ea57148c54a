// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::navigation::internal::faults {

namespace {

QString number(int value)
{
    return QString::number(value);
}

} // namespace

// ---- slots -----------------------------------------------------------------------

Error converterGone()
{
    return Error(QObject::tr(
        "Cannot convert between currencies: the source of the exchange rates is closed."));
}

Error tagsOfOtherType()
{
    return Error(QObject::tr("The provided item type does not match the item's type."));
}

Error tagsOfOtherSource()
{
    return Error(QObject::tr("The provided item source does not match the item's source."));
}

std::logic_error takesNoBankAccount(const char *word, const char *verb)
{
    QString kind = QString::fromLatin1(word);
    kind[0] = kind[0].toUpper();
    return std::logic_error(
        QStringLiteral("An item of type '%1' cannot %2 a bank account association.")
            .arg(kind, QString::fromLatin1(verb))
            .toStdString());
}

std::logic_error unknownTypeToAdd()
{
    return std::logic_error("An unknown budget item type was supplied when adding a new entry.");
}

std::logic_error unknownTypeToUpdate()
{
    return std::logic_error("An unknown budget item type was supplied when updating an entry.");
}

std::logic_error unknownTypeToRename()
{
    return std::logic_error("An unknown budget item type was supplied when renaming an entry.");
}

std::logic_error unknownTypeToLookUp()
{
    return std::logic_error("An unknown budget item type was supplied when looking up all the "
                            "budget item sources.");
}

Error wizardBankAccountNotAdded(const QString &account)
{
    return Error(
        QObject::tr("Failed to add the bank account '%1' for the first time wizard.").arg(account));
}

Error wizardBankNotAdded(const BankName &bank)
{
    return Error(QObject::tr("Failed to add the bank '%1' for the first time wizard.")
                     .arg(bank.institution()));
}

Error wizardItemNotAdded(BudgetItemTypes type, const BudgetSource &source)
{
    return Error(QObject::tr("Failed to add the generate the %1 budget item '%2' for the first "
                             "time wizard.")
                     .arg(presentationText(type), source.name()));
}

// ---- settings --------------------------------------------------------------------

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

std::runtime_error notAListOfTexts()
{
    return std::runtime_error("The value is not a list of texts.");
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

// ---- starter budgets -------------------------------------------------------------

std::logic_error noStarterBudget()
{
    return std::logic_error("Budget item generator template type not implemented.");
}

std::logic_error unknownStarterItem()
{
    return std::logic_error("A starter budget holds an item of an unknown type.");
}

} // namespace kiv::navigation::internal::faults
