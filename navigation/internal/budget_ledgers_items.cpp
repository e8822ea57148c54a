// SPDX-License-Identifier: GPL-3.0-or-later
// The members of BudgetLedgers that are the same for the five kinds of budget item.
#include "navigation/internal/budget_ledgers.h"
#include "navigation/internal/faults.h"
#include "navigation/internal/undo.h"

#include "accounting/number_handout.h"
#include "budgeting/item_account.h"

namespace kiv::navigation::internal {

template <budgeting::BudgetItem T>
accounting::AccountCode BudgetLedgers::add(T item, AccountNumberGenerator &generator)
{
    const Source source = item.source();
    accounting::NumberHandout number(generator, *m_ledgers);
    AccountCode code(number.number(), budgeting::itemAccountName(source), std::nullopt);
    const accounting::Account account(budgeting::ItemTraits<T>::accountType, code,
                                      budgeting::openingMoney(item), false);
    m_budget->items<T>().add(std::move(item));
    // From here on a failure leaves the item in the budget: the user still sees
    // it, and loading the file opens its account. A rename that failed half-way
    // may have left a tie under this name.
    const Number before = m_codes.has<T>(source) ? Number(m_codes.value<T>(source)) : std::nullopt;
    m_codes.insertOrAssign<T>(source, code.number());
    // Neither takes memory, so neither can fail. With a copy of all ties, each
    // item would cost more than the one before.
    Restore tieBefore(before, [&](Number &&tie) noexcept {
        if (tie)
            m_codes.insertOrAssign<T>(source, *tie);
        else
            m_codes.remove<T>(source);
    });
    m_ledgers->add(account, generator);
    tieBefore.dismiss();
    number.keep();
    return code;
}

template <budgeting::BudgetItem T>
void BudgetLedgers::update(T item, AccountNumberGenerator &generator)
{
    auto &items = m_budget->items<T>();
    const Source source = item.source();
    const auto stored = items.find(source);
    if (stored == items.end())
        throw faults::cannotUpdateMissing(budgeting::ItemTraits<T>::type, source);
    const numira::Currency currency = item.amount().code();
    const bool isCurrencyKept = stored->second.amount().code() == currency;
    // All items of the kind, since one without a name could not be added back.
    Restore itemsBefore(items);
    items.update(std::move(item));
    if (!isCurrencyKept)
        m_ledgers->convertTo(m_codes.value<T>(source), currency, generator);
    itemsBefore.dismiss();
}

template <budgeting::BudgetItem T>
void BudgetLedgers::rename(const Source &from, const Source &to, const Number &number)
{
    // `from` may be the item's own key, which is gone once it is renamed.
    const Source original = from;
    m_budget->items<T>().rename(original, to);
    const AccountCode oldCode = m_ledgers->ledger(m_codes.value<T>(original)).code();
    const AccountCode newCode(number.value_or(oldCode.number()), budgeting::itemAccountName(to),
                              std::nullopt);
    Restore codesBefore(m_codes);
    m_codes.remove<T>(original);
    m_codes.insertOrAssign<T>(to, newCode.number());
    m_ledgers->recode(oldCode, newCode);
    codesBefore.dismiss();
}

template <budgeting::BudgetItem T>
void BudgetLedgers::remove(const Source &source)
{
    // `source` may be the item's own key, which is removed first.
    const Source original = source;
    auto &items = m_budget->items<T>();
    if (!items.contains(original))
        throw faults::cannotRemoveMissing(budgeting::ItemTraits<T>::type, original);
    const AccountCode code(m_codes.value<T>(original), std::nullopt);
    const bool isRemovable = m_ledgers->canRemove(code);
    if constexpr (budgeting::BankTiedItem<T>) {
        if (!isRemovable && m_ledgers->ledger(code).balance() != 0)
            throw faults::cannotRemoveWithBalance(budgeting::ItemTraits<T>::type, original);
    }
    Restore itemsBefore(items);
    items.remove(original);
    if (isRemovable)
        m_ledgers->remove(code.number());
    else
        m_ledgers->close(code.number());
    m_codes.remove<T>(original);
    itemsBefore.dismiss();
}

template <budgeting::BudgetItem T>
accounting::TransactionNumber BudgetLedgers::process(const Source &source, const AccountCode &bank,
                                                     const Money &amount, const QDate &date)
{
    const AccountCode itemCode = budgetAccountCode<T>(source);
    return processDue(budgeting::ItemTraits<T>::type, itemCode, bank, amount, date,
                      m_budget->items<T>().at(source));
}

template <budgeting::BudgetItem T>
void BudgetLedgers::skip(const Source &source)
{
    m_budget->items<T>().at(source).updateNextOccurOn();
}

template BudgetLedgers::AccountCode BudgetLedgers::add(budgeting::Bill, AccountNumberGenerator &);
template BudgetLedgers::AccountCode BudgetLedgers::add(budgeting::Debt, AccountNumberGenerator &);
template BudgetLedgers::AccountCode BudgetLedgers::add(budgeting::Goal, AccountNumberGenerator &);
template BudgetLedgers::AccountCode BudgetLedgers::add(budgeting::Nontrack,
                                                       AccountNumberGenerator &);
template BudgetLedgers::AccountCode BudgetLedgers::add(budgeting::Wage, AccountNumberGenerator &);
template void BudgetLedgers::update(budgeting::Bill, AccountNumberGenerator &);
template void BudgetLedgers::update(budgeting::Debt, AccountNumberGenerator &);
template void BudgetLedgers::update(budgeting::Goal, AccountNumberGenerator &);
template void BudgetLedgers::update(budgeting::Nontrack, AccountNumberGenerator &);
template void BudgetLedgers::update(budgeting::Wage, AccountNumberGenerator &);
template void BudgetLedgers::rename<budgeting::Bill>(const Source &, const Source &,
                                                     const Number &);
template void BudgetLedgers::rename<budgeting::Debt>(const Source &, const Source &,
                                                     const Number &);
template void BudgetLedgers::rename<budgeting::Goal>(const Source &, const Source &,
                                                     const Number &);
template void BudgetLedgers::rename<budgeting::Nontrack>(const Source &, const Source &,
                                                         const Number &);
template void BudgetLedgers::rename<budgeting::Wage>(const Source &, const Source &,
                                                     const Number &);
template void BudgetLedgers::remove<budgeting::Bill>(const Source &);
template void BudgetLedgers::remove<budgeting::Debt>(const Source &);
template void BudgetLedgers::remove<budgeting::Goal>(const Source &);
template void BudgetLedgers::remove<budgeting::Nontrack>(const Source &);
template void BudgetLedgers::remove<budgeting::Wage>(const Source &);
template BudgetLedgers::TransactionNumber
BudgetLedgers::process<budgeting::Bill>(const Source &, const AccountCode &, const Money &,
                                        const QDate &);
template BudgetLedgers::TransactionNumber
BudgetLedgers::process<budgeting::Debt>(const Source &, const AccountCode &, const Money &,
                                        const QDate &);
template BudgetLedgers::TransactionNumber
BudgetLedgers::process<budgeting::Goal>(const Source &, const AccountCode &, const Money &,
                                        const QDate &);
template BudgetLedgers::TransactionNumber
BudgetLedgers::process<budgeting::Nontrack>(const Source &, const AccountCode &, const Money &,
                                            const QDate &);
template BudgetLedgers::TransactionNumber
BudgetLedgers::process<budgeting::Wage>(const Source &, const AccountCode &, const Money &,
                                        const QDate &);
template void BudgetLedgers::skip<budgeting::Bill>(const Source &);
template void BudgetLedgers::skip<budgeting::Debt>(const Source &);
template void BudgetLedgers::skip<budgeting::Goal>(const Source &);
template void BudgetLedgers::skip<budgeting::Nontrack>(const Source &);
template void BudgetLedgers::skip<budgeting::Wage>(const Source &);

} // namespace kiv::navigation::internal
