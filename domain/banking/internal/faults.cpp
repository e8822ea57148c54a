// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::banking::internal {

BankError emptyBankName(const BankName &name)
{
    return {name, QObject::tr("The name of a bank cannot be empty.")};
}

BankError bankExists(const BankName &name)
{
    return {name, QObject::tr("The bank '%1' already exists.").arg(presentationText(name))};
}

BankError bankNotFound(const BankName &name)
{
    return {name, QObject::tr("The bank '%1' does not exist.").arg(presentationText(name))};
}

BankError bankAccountNotFound(const BankName &name, accounting::AccountNumber number)
{
    return {name, QObject::tr("The bank '%1' does not have the account '%2'.")
                      .arg(presentationText(name), presentationText(number))};
}

BankError bankAlreadyOpen(const BankName &name)
{
    return {name, QObject::tr("The bank '%1' is already open.").arg(presentationText(name))};
}

BankError bankAlreadyClosed(const BankName &name)
{
    return {name, QObject::tr("The bank '%1' is already closed.").arg(presentationText(name))};
}

} // namespace kiv::banking::internal
