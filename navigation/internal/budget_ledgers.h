// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "accounting/general_ledger.h"
#include "budgeting/budget.h"
#include "foundation/observer_ptr.h"
#include "foundation/type_index_map.h"

// BudgetLedgers is one class in several sources:
//   budget_ledgers.cpp      construction, look-ups, comparison and text form
//   budget_ledgers_items.cpp  what is the same for the five kinds of item
//   budget_posting.cpp      posting for an item
namespace kiv::navigation::internal {

/// The numbers of the accounts that budget items own, by the item's class and
/// source.
using BudgetAccountCodes =
    foundation::TypeIndexMap<budgeting::BudgetSource, accounting::AccountNumber>;

/// Ties the budget to the general ledger: every budget item owns one account,
/// which is opened when the item is added, recoded when it is renamed, and
/// removed or closed when it goes.
///
/// It observes the budget and the ledger, and owns the map from item to account
/// number. Every entry of that map names an item that the budget has and an
/// account that the ledger has. The reverse (an item without an entry) is not
/// enforced.
///
/// Unless a member says otherwise, a refused change leaves budget, ledger, map
/// and generator as they were. Whatever budget and ledger themselves refuse
/// passes through.
class KIV_NAVIGATION_EXPORT BudgetLedgers {
public:
    using AccountCode = accounting::AccountCode;
    using AccountNumberGenerator = accounting::AccountNumberGenerator;
    using Money = numira::Money;
    using Number = std::optional<accounting::AccountNumber>;
    using Source = budgeting::BudgetSource;
    using TransactionNumber = accounting::TransactionNumber;

    /// The end of the name of a budget item's own account, behind the item and a
    /// blank: "[Budget Item]".
    static const QString budgetItemAccountSuffix_;

    /// Throws foundation::Error when an entry of `codes` names no kind of item,
    /// no item of the budget, or no account of the ledger.
    BudgetLedgers(foundation::ObserverPtr<budgeting::Budget> budget,
                  foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
                  BudgetAccountCodes codes);

    [[nodiscard]] const budgeting::Budget &budget() const noexcept { return *m_budget; }
    [[nodiscard]] const accounting::GeneralLedger &ledgers() const noexcept { return *m_ledgers; }
    [[nodiscard]] const BudgetAccountCodes &budgetAccountCodes() const noexcept { return m_codes; }
    /// Whether no item has an account.
    [[nodiscard]] bool isEmpty() const noexcept { return m_codes.isEmpty(); }
    /// Forgets which accounts the items own; budget and ledger stay.
    void clearCodes() noexcept { m_codes.clear(); }

    // ---- items, any kind ---------------------------------------------------

    /// Adds the item, opens its account under the generator's next free number
    /// (see ItemTraits for its kind and openingMoney for its opening balance),
    /// and answers with the account's code.
    ///
    /// An item that the budget took but whose account the ledger refused stays
    /// in the budget, on purpose; its number is given back.
    template <budgeting::BudgetItem T>
    AccountCode add(T item, AccountNumberGenerator &generator);

    /// Replaces the item of the same source, and keeps its account in the
    /// item's new currency when that changed. Throws BudgetItemError when there
    /// is no such item.
    template <budgeting::BudgetItem T>
    void update(T item, AccountNumberGenerator &generator);

    /// Renames the item and recodes its account: named after the item, without a
    /// parent, under `number` if one is given.
    ///
    /// There is no undo: when the account cannot be recoded, the item is
    /// renamed already.
    template <budgeting::BudgetItem T>
    void rename(const Source &from, const Source &to, const Number &number);

    /// Removes the item and its account; an account with a history is closed
    /// instead. Throws BudgetItemError when there is no such item, and for a
    /// debt or goal whose account has a history and a balance.
    template <budgeting::BudgetItem T>
    void remove(const Source &source);

    /// The code of the item's account. Throws foundation::Error when the map
    /// has no entry, AccountError when the ledger has no such account.
    template <budgeting::BudgetItem T>
    [[nodiscard]] AccountCode budgetAccountCode(const Source &source) const
    {
        return m_ledgers->ledger(m_codes.value<T>(source)).code();
    }

    // ---- items by the name of their kind -----------------------------------

    void renameBill(const Source &from, const Source &to, const Number &number)
    {
        rename<budgeting::Bill>(from, to, number);
    }
    void renameDebt(const Source &from, const Source &to, const Number &number)
    {
        rename<budgeting::Debt>(from, to, number);
    }
    void renameGoal(const Source &from, const Source &to, const Number &number)
    {
        rename<budgeting::Goal>(from, to, number);
    }
    void renameNontrack(const Source &from, const Source &to, const Number &number)
    {
        rename<budgeting::Nontrack>(from, to, number);
    }
    void renameWage(const Source &from, const Source &to, const Number &number)
    {
        rename<budgeting::Wage>(from, to, number);
    }

    void removeBill(const Source &source) { remove<budgeting::Bill>(source); }
    void removeDebt(const Source &source) { remove<budgeting::Debt>(source); }
    void removeGoal(const Source &source) { remove<budgeting::Goal>(source); }
    void removeNontrack(const Source &source) { remove<budgeting::Nontrack>(source); }
    void removeWage(const Source &source) { remove<budgeting::Wage>(source); }

    // ---- look-ups ----------------------------------------------------------

    /// The present code of the item's account; nothing for the type None, and
    /// with a warning in the log when the item has no account. Throws
    /// std::logic_error for a type above the known ones.
    [[nodiscard]] std::optional<AccountCode>
    lookUpAccountCode(const budgeting::BudgetItemIdentifier &id) const;
    /// The item that owns the account.
    [[nodiscard]] std::optional<budgeting::BudgetItemIdentifier>
    lookUpBudgetId(const accounting::AccountNumber &number) const;
    /// The item itself. Throws std::out_of_range when there is none, and
    /// foundation::Error when the identifier's type is not one of the five.
    [[nodiscard]] const budgeting::BudgetedMoney &
    budgetedMoney(const budgeting::BudgetItemIdentifier &id) const;
    /// The transactions of the item's account, seen from there; none when it
    /// has no account.
    [[nodiscard]] accounting::TransactionList
    transactions(const budgeting::BudgetItemIdentifier &id) const;

    // ---- posting -----------------------------------------------------------

    /// Posts from `second` to `first` (which is debited) and moves the item on
    /// to its next date; when that fails, the posting is taken back.
    TransactionNumber post(const AccountCode &first, const AccountCode &second, const Money &amount,
                           const QDate &date, const QString &description,
                           budgeting::BudgetedMoney &item);

    /// Posts a due item between its account and the bank's: a wage into the
    /// bank, all others out of it. The amount is rounded half to even to its
    /// currency's minor unit first. Throws foundation::Error when the item has
    /// no account, std::out_of_range when there is no such item.
    template <budgeting::BudgetItem T>
    TransactionNumber process(const Source &source, const AccountCode &bank, const Money &amount,
                              const QDate &date);
    TransactionNumber processBill(const Source &source, const AccountCode &bank,
                                  const Money &amount, const QDate &date)
    {
        return process<budgeting::Bill>(source, bank, amount, date);
    }
    TransactionNumber processDebt(const Source &source, const AccountCode &bank,
                                  const Money &amount, const QDate &date)
    {
        return process<budgeting::Debt>(source, bank, amount, date);
    }
    TransactionNumber processGoal(const Source &source, const AccountCode &bank,
                                  const Money &amount, const QDate &date)
    {
        return process<budgeting::Goal>(source, bank, amount, date);
    }
    TransactionNumber processNontrack(const Source &source, const AccountCode &bank,
                                      const Money &amount, const QDate &date)
    {
        return process<budgeting::Nontrack>(source, bank, amount, date);
    }
    TransactionNumber processWage(const Source &source, const AccountCode &bank,
                                  const Money &amount, const QDate &date)
    {
        return process<budgeting::Wage>(source, bank, amount, date);
    }

    /// Posts an amount for an item as process does, but leaves its next date
    /// alone. Throws BudgetItemError for the type None and for an item without
    /// an account, std::logic_error for a type above the known ones.
    TransactionNumber processUnexpected(const budgeting::BudgetItemIdentifier &id,
                                        const Money &amount, const AccountCode &bank,
                                        const QDate &date);

    /// Moves the item on to its next date without posting. Throws
    /// std::out_of_range when there is no such item.
    template <budgeting::BudgetItem T>
    void skip(const Source &source);
    void skipBill(const Source &source) { skip<budgeting::Bill>(source); }
    void skipDebt(const Source &source) { skip<budgeting::Debt>(source); }
    void skipGoal(const Source &source) { skip<budgeting::Goal>(source); }
    void skipNontrack(const Source &source) { skip<budgeting::Nontrack>(source); }
    void skipWage(const Source &source) { skip<budgeting::Wage>(source); }

private:
    friend class BudgetBankLedgers;

    /// Constructs without any check, for an owner that was copied or moved.
    struct Unchecked {};
    BudgetLedgers(Unchecked, foundation::ObserverPtr<budgeting::Budget> budget,
                  foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
                  BudgetAccountCodes codes) noexcept;

    TransactionNumber processDue(budgeting::BudgetItemTypes type, const AccountCode &itemCode,
                                 const AccountCode &bank, const Money &amount, const QDate &date,
                                 budgeting::BudgetedMoney &item);

    foundation::ObserverPtr<budgeting::Budget> m_budget;
    foundation::ObserverPtr<accounting::GeneralLedger> m_ledgers;
    BudgetAccountCodes m_codes;
};

/// Equal budgets, general ledgers and maps, by content.
[[nodiscard]] KIV_NAVIGATION_EXPORT bool operator==(const BudgetLedgers &a, const BudgetLedgers &b);

/// "Budget (…), General Ledger (…), Budget-Account ISO-4217 Codes (…)".
KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetLedgers &ledgers);

} // namespace kiv::navigation::internal
