// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/logging.h"

#include "budgeting/item_account.h"

namespace kiv::navigation::internal {
namespace {

using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;

void checkCode(const budgeting::Budget &budget, const accounting::GeneralLedger &ledgers,
               std::type_index type, const budgeting::BudgetSource &source,
               accounting::AccountNumber number)
{
    const bool isKnown = budgeting::anyItemClass([&]<typename T>(std::type_identity<T>) {
        if (type != typeid(T))
            return false;
        if (!budget.items<T>().contains(source))
            throw faults::codeWithoutItem(budgeting::ItemTraits<T>::type, source);
        return true;
    });
    if (!isKnown)
        throw faults::codeOfUnknownType();
    if (!ledgers.hasLedger(number))
        throw faults::codeWithoutAccount(number);
}

} // namespace

const QString BudgetLedgers::budgetItemAccountSuffix_ = budgeting::itemAccountSuffix();

BudgetLedgers::BudgetLedgers(foundation::ObserverPtr<budgeting::Budget> budget,
                             foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
                             BudgetAccountCodes codes)
    : BudgetLedgers(Unchecked{}, budget, ledgers, std::move(codes))
{
    for (const auto &[type, numbers] : m_codes.maps()) {
        for (const auto &[source, number] : numbers)
            checkCode(*m_budget, *m_ledgers, type, source, number);
    }
}

BudgetLedgers::BudgetLedgers(Unchecked, foundation::ObserverPtr<budgeting::Budget> budget,
                             foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
                             BudgetAccountCodes codes) noexcept
    : m_budget(budget), m_ledgers(ledgers), m_codes(std::move(codes))
{
}

// ---- look-ups ------------------------------------------------------------------

std::optional<accounting::AccountCode>
BudgetLedgers::lookUpAccountCode(const BudgetItemIdentifier &id) const
{
    if (id.type == BudgetItemTypes::None)
        return std::nullopt;
    try {
        return budgeting::visitItemClass(
            id.type, [&] { return faults::itemTypeIsUnknown(id.type); },
            [&]<typename T>(std::type_identity<T>) { return budgetAccountCode<T>(id.source); });
    } catch (const foundation::Error &error) {
        qWarning() << logText(error).c_str();
        return std::nullopt;
    }
}

std::optional<BudgetItemIdentifier>
BudgetLedgers::lookUpBudgetId(const accounting::AccountNumber &number) const
{
    for (const auto &[type, numbers] : m_codes.maps()) {
        for (const auto &[source, own] : numbers) {
            if (own == number)
                return BudgetItemIdentifier{budgeting::toBudgetItemTypes(type), source};
        }
    }
    return std::nullopt;
}

const budgeting::BudgetedMoney &BudgetLedgers::budgetedMoney(const BudgetItemIdentifier &id) const
{
    const budgeting::BudgetedMoney *found = nullptr;
    budgeting::anyItemClass([&]<typename T>(std::type_identity<T>) {
        if (id.type == budgeting::ItemTraits<T>::type)
            found = &m_budget->items<T>().at(id.source);
        return found != nullptr;
    });
    if (found == nullptr)
        throw faults::notBudgetedMoney(id);
    return *found;
}

accounting::TransactionList BudgetLedgers::transactions(const BudgetItemIdentifier &id) const
{
    const std::optional<accounting::AccountCode> code = lookUpAccountCode(id);
    if (!code)
        return {};
    return m_ledgers->ledger(*code).transactions();
}

// ---- comparison and text form --------------------------------------------------

bool operator==(const BudgetLedgers &a, const BudgetLedgers &b)
{
    return a.budget() == b.budget() && a.ledgers() == b.ledgers() &&
           a.budgetAccountCodes() == b.budgetAccountCodes();
}

std::ostream &operator<<(std::ostream &out, const BudgetLedgers &ledgers)
{
    return out << "Budget (" << ledgers.budget() << "), General Ledger (" << ledgers.ledgers()
               << "), Budget-Account ISO-4217 Codes (" << ledgers.budgetAccountCodes() << ')';
}

} // namespace kiv::navigation::internal
