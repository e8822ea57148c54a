// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/undo.h"

#include "accounting/transaction.h"

namespace kiv::navigation::internal {
namespace {

using accounting::AccountCode;
using accounting::TransactionNumber;
using budgeting::BudgetItemTypes;

/// The two accounts of a posting: the one to debit, then the one to credit.
struct Sides {
    const AccountCode &first;
    const AccountCode &second;
};

/// A wage comes into the bank; everything else is paid from it.
Sides sidesOf(BudgetItemTypes type, const AccountCode &item, const AccountCode &bank)
{
    return type == BudgetItemTypes::Wage ? Sides{bank, item} : Sides{item, bank};
}

} // namespace

TransactionNumber BudgetLedgers::post(const AccountCode &first, const AccountCode &second,
                                      const numira::Money &amount, const QDate &date,
                                      const QString &description, budgeting::BudgetedMoney &item)
{
    Restore ledgersBefore(*m_ledgers);
    const TransactionNumber number =
        m_ledgers->post(accounting::Transaction(date, first, second, amount, description));
    item.updateNextOccurOn();
    ledgersBefore.dismiss();
    return number;
}

TransactionNumber BudgetLedgers::processDue(BudgetItemTypes type, const AccountCode &itemCode,
                                            const AccountCode &bank, const numira::Money &amount,
                                            const QDate &date, budgeting::BudgetedMoney &item)
{
    // The marker is %2 in every catalogue of translations, though it is the only one. The
    // day is written alike in every language.
    const QString description = QObject::tr("Processed the budget item due on %2.")
                                    .arg(item.nextOccurOn().toString(Qt::TextDate));
    const auto [first, second] = sidesOf(type, itemCode, bank);
    return post(first, second, amount.rounded(), date, description, item);
}

TransactionNumber BudgetLedgers::processUnexpected(const budgeting::BudgetItemIdentifier &id,
                                                   const numira::Money &amount,
                                                   const AccountCode &bank, const QDate &date)
{
    if (id.type == BudgetItemTypes::None)
        throw faults::unexpectedOfUnknownType(id.source);
    const AccountCode itemCode = budgeting::visitItemClass(
        id.type, faults::unexpectedOfInvalidType, [&]<typename T>(std::type_identity<T>) {
            if (!m_codes.has<T>(id.source))
                throw faults::unexpectedWithoutAccount(id.source);
            return budgetAccountCode<T>(id.source);
        });
    const auto [first, second] = sidesOf(id.type, itemCode, bank);
    return m_ledgers->post(accounting::Transaction(
        date, first, second, amount.rounded(),
        QObject::tr("Processed unexpected budget item '%1'.").arg(id.source.name())));
}

} // namespace kiv::navigation::internal
