// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "accounting/general_ledger.h"
#include "budgeting/budget.h"
#include "foundation/observer_ptr.h"
#include "foundation/type_index_map.h"

// BudgetLedgers is one class in several sources:
//   budget_ledgers.cpp      construction, look-ups, comparison and text form
//   budget_ledgers_items.h  what is the same for the five kinds of item
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
    /// What a budget item's own account is called after the item and a blank:
    /// "[Budget Item]".
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
    accounting::AccountCode add(T item, accounting::AccountNumberGenerator &generator);

    /// Replaces the item of the same source, and keeps its account in the
    /// item's new currency when that changed. Throws BudgetItemError when there
    /// is no such item.
    template <budgeting::BudgetItem T>
    void update(T item, accounting::AccountNumberGenerator &generator);

    /// Renames the item and recodes its account: named after the item, without a
    /// parent, under `number` if one is given.
    ///
    /// There is no undo: when the account cannot be recoded, the item is
    /// renamed already.
    template <budgeting::BudgetItem T>
    void rename(const budgeting::BudgetSource &from, const budgeting::BudgetSource &to,
                const std::optional<accounting::AccountNumber> &number);

    /// Removes the item and its account; an account with a history is closed
    /// instead. Throws BudgetItemError when there is no such item, and for a
    /// debt or goal whose account has a history and a balance.
    template <budgeting::BudgetItem T>
    void remove(const budgeting::BudgetSource &source);

    /// The code of the item's account. Throws foundation::Error when the map
    /// has no entry, AccountError when the ledger has no such account.
    template <budgeting::BudgetItem T>
    [[nodiscard]] accounting::AccountCode
    budgetAccountCode(const budgeting::BudgetSource &source) const
    {
        return m_ledgers->ledger(m_codes.value<T>(source)).code();
    }

    // ---- items by the name of their kind -----------------------------------

    using Source = budgeting::BudgetSource;
    using Number = std::optional<accounting::AccountNumber>;
    void renameBill(const Source &from, const Source &to, const Number &number);
    void renameDebt(const Source &from, const Source &to, const Number &number);
    void renameGoal(const Source &from, const Source &to, const Number &number);
    void renameNontrack(const Source &from, const Source &to, const Number &number);
    void renameWage(const Source &from, const Source &to, const Number &number);

    void removeBill(const Source &source);
    void removeDebt(const Source &source);
    void removeGoal(const Source &source);
    void removeNontrack(const Source &source);
    void removeWage(const Source &source);

    // ---- look-ups ----------------------------------------------------------

    /// The present code of the item's account; nothing for the type None, and
    /// with a warning in the log when the item has no account. Throws
    /// std::logic_error for a type above the known ones.
    [[nodiscard]] std::optional<accounting::AccountCode>
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
    accounting::TransactionNumber post(const accounting::AccountCode &first,
                                       const accounting::AccountCode &second,
                                       const numira::Money &amount, const QDate &date,
                                       const QString &description, budgeting::BudgetedMoney &item);

    /// Posts a due item between its account and the bank's: a wage into the
    /// bank, all others out of it. The amount is rounded half to even to its
    /// currency's minor unit first. Throws foundation::Error when the item has
    /// no account, std::out_of_range when there is no such item.
    template <budgeting::BudgetItem T>
    accounting::TransactionNumber process(const Source &source, const accounting::AccountCode &bank,
                                          const numira::Money &amount, const QDate &date);
    accounting::TransactionNumber processBill(const Source &source,
                                              const accounting::AccountCode &bank,
                                              const numira::Money &amount, const QDate &date);
    accounting::TransactionNumber processDebt(const Source &source,
                                              const accounting::AccountCode &bank,
                                              const numira::Money &amount, const QDate &date);
    accounting::TransactionNumber processGoal(const Source &source,
                                              const accounting::AccountCode &bank,
                                              const numira::Money &amount, const QDate &date);
    accounting::TransactionNumber processNontrack(const Source &source,
                                                  const accounting::AccountCode &bank,
                                                  const numira::Money &amount, const QDate &date);
    accounting::TransactionNumber processWage(const Source &source,
                                              const accounting::AccountCode &bank,
                                              const numira::Money &amount, const QDate &date);

    /// Posts an amount for an item as process does, but leaves its next date
    /// alone. Throws BudgetItemError for the type None and for an item without
    /// an account, std::logic_error for a type above the known ones.
    accounting::TransactionNumber processUnexpected(const budgeting::BudgetItemIdentifier &id,
                                                    const numira::Money &amount,
                                                    const accounting::AccountCode &bank,
                                                    const QDate &date);

    /// Moves the item on to its next date without posting. Throws
    /// std::out_of_range when there is no such item.
    template <budgeting::BudgetItem T>
    void skip(const Source &source);
    void skipBill(const Source &source);
    void skipDebt(const Source &source);
    void skipGoal(const Source &source);
    void skipNontrack(const Source &source);
    void skipWage(const Source &source);

private:
    friend class BudgetBankLedgers;

    /// The same without any check: for an owner that was copied or moved and
    /// ties what it has to its own budget and ledger again, valid or not.
    [[nodiscard]] static BudgetLedgers
    rebound(foundation::ObserverPtr<budgeting::Budget> budget,
            foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
            BudgetAccountCodes codes) noexcept;
    struct Unchecked {};
    BudgetLedgers(Unchecked, foundation::ObserverPtr<budgeting::Budget> budget,
                  foundation::ObserverPtr<accounting::GeneralLedger> ledgers,
                  BudgetAccountCodes codes) noexcept;

    accounting::TransactionNumber processDue(budgeting::BudgetItemTypes type,
                                             const accounting::AccountCode &itemCode,
                                             const accounting::AccountCode &bank,
                                             const numira::Money &amount, const QDate &date,
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

#include "navigation/internal/budget_ledgers_items.h"
