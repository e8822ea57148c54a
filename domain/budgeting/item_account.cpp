// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/item_account.h"

namespace kiv::budgeting {

const QString &itemAccountSuffix()
{
    static const QString suffix = QStringLiteral("[Budget Item]");
    return suffix;
}

QString itemAccountName(const BudgetSource &source)
{
    return source.name() + u' ' + itemAccountSuffix();
}

numira::Money openingMoney(const BudgetedMoney &item)
{
    const auto *debt = dynamic_cast<const Debt *>(&item);
    return debt ? debt->borrowed() : numira::Money(item.amount().code());
}

} // namespace kiv::budgeting
