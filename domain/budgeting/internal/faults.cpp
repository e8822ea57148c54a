// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/internal/faults.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::budgeting::internal {

BudgetItemError itemWithoutDate(const BudgetSource &source)
{
    return {
        source,
        QObject::tr("The budget item '%1' needs a valid next date.").arg(presentationText(source))};
}

BudgetItemError itemWithNegativeAmount(const BudgetSource &source, const numira::Money &amount)
{
    return {source, QObject::tr("The amount of the budget item '%1' cannot be negative, but is %2.")
                        .arg(presentationText(source), foundation::presentationText(amount))};
}

BudgetItemError noDayOfMonth(const BudgetSource &source, int day)
{
    return {source, QObject::tr("The budget item '%1' cannot recur on day %2 of a month.")
                        .arg(presentationText(source), QString::number(day))};
}

BudgetItemError newSourceEmpty(const BudgetSource &source)
{
    return {source, QObject::tr("The new budgeted money item source cannot be empty.")};
}

BudgetItemError newSourceExists(const BudgetSource &source)
{
    return {source, QObject::tr("The new budgeted money item source already exists.")};
}

BudgetItemError cannotRemoveMissing(const BudgetSource &source)
{
    return {source, QObject::tr("Failed to remove the budgeted money item as it does not exist.")};
}

BudgetItemError cannotUpdateMissing(const BudgetSource &source)
{
    return {source, QObject::tr("Cannot update the budgeted money item as it does not exist.")};
}

BudgetItemError cannotRenameMissing(const BudgetSource &source)
{
    return {source,
            QObject::tr("Cannot rename the budgeted money item source as it does not exist.")};
}

BudgetItemError cannotRenameOnto(const BudgetSource &source, const BudgetSource &to)
{
    return {source, QObject::tr("Cannot rename the budgeted money item source, as the new source, "
                                "%1, already exists.")
                        .arg(to.name())};
}

foundation::Error neverRecurs()
{
    return foundation::Error(QObject::tr("A budget item without a frequency has no next date."));
}

foundation::Error noNextDate(const QString &frequency, QDate date)
{
    return foundation::Error(
        QObject::tr("A budget item with the frequency '%2' has no date after %1.")
            .arg(foundation::presentationText(date), frequency));
}

} // namespace kiv::budgeting::internal
