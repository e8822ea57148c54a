// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/bank_account_code.h"
#include "navigation/budget_bank_account.h"
#include "navigation/internal/bank_ledgers.h"
#include "navigation/internal/budget_ledgers.h"

#include "budgeting/due.h"
#include "foundation/debug_stream.h"
#include "surveying/completed_surveys.h"
#include "surveying/indexed_increase_decreases.h"
#include "surveying/mapping_survey.h"

// BudgetBankLedgers is one class in several sources:
//   budget_bank_ledgers.cpp               construction, whole state, comparison, text form
//   budget_bank_ledgers_routing.cpp       what goes to one of its parts, and renaming
//   budget_bank_ledgers_associations.cpp  debts and goals at a bank
//   budget_bank_ledgers_accounts.cpp      recoding, bank accounts, surveys
namespace kiv::navigation::internal {

/// The whole accounting state of one budget file: ledger, budget, banks,
/// completed surveys, the generator of account numbers, and the two objects
/// that tie items and bank accounts to ledger accounts. Every change that
/// touches more than one of them goes through here.
///
/// It is a value: a copy is independent of its source, and its BudgetLedgers
/// and BankLedgers always observe its own members. Only parts that come from
/// outside are checked: a copy or a move never fails because an item or a bank
/// has lost its account.
///
/// No account has the name of a budget item. That is checked at construction,
/// when an item is added or renamed, and when an account is added or recoded;
/// not by setManaged.
///
/// Unless a member says otherwise, a refused change leaves everything as it
/// was. A member that names no refusals has those of the part that does the work.
class KIV_NAVIGATION_EXPORT BudgetBankLedgers {
public:
    using AccountNumber = accounting::AccountNumber;
    using AccountCode = accounting::AccountCode;
    using Transaction = accounting::Transaction;
    using TransactionNumber = accounting::TransactionNumber;
    using BankName = banking::BankName;
    using BankAccount = banking::BankAccount;
    using BankAccountTypes = banking::BankAccountTypes;
    using BudgetSource = budgeting::BudgetSource;
    using BudgetItemIdentifier = budgeting::BudgetItemIdentifier;
    using Money = numira::Money;

    // ---- the whole state ---------------------------------------------------

    /// Empty, with a generator that starts from the beginning.
    BudgetBankLedgers();
    /// Without surveys. Throws what BudgetLedgers and BankLedgers refuse, and
    /// AccountError when an account bears the name of a budget item.
    BudgetBankLedgers(accounting::GeneralLedger ledger, budgeting::Budget budget,
                      BudgetAccountCodes codes, banking::BankMap banks,
                      std::unique_ptr<accounting::AccountNumberGenerator> generator);
    BudgetBankLedgers(const BudgetBankLedgers &other);
    /// `other` can be assigned to and destroyed, nothing else.
    BudgetBankLedgers(BudgetBankLedgers &&other) noexcept;
    BudgetBankLedgers &operator=(const BudgetBankLedgers &) = delete;
    BudgetBankLedgers &operator=(BudgetBankLedgers &&other) noexcept;
    ~BudgetBankLedgers();

    /// Replaces everything, or nothing when BudgetLedgers or BankLedgers refuse
    /// the new parts. New numbers go on from the new ledger's accounts.
    void setManaged(accounting::GeneralLedger ledger, budgeting::Budget budget,
                    BudgetAccountCodes codes, banking::BankMap banks,
                    surveying::CompletedSurveys surveys);
    /// Empties everything; new numbers start from the beginning.
    void reset();
    /// `generator` must not be null.
    void setAccountNumberGenerator(std::unique_ptr<accounting::AccountNumberGenerator> generator);

    [[nodiscard]] const accounting::GeneralLedger &generalLedger() const noexcept
    {
        return m_generalLedger;
    }
    [[nodiscard]] const budgeting::Budget &budget() const noexcept { return m_budget; }
    [[nodiscard]] const banking::BankMap &banks() const noexcept { return m_banks; }
    [[nodiscard]] const BudgetLedgers &budgetLedgers() const noexcept { return m_budgetLedgers; }
    [[nodiscard]] const BankLedgers &bankLedgers() const noexcept { return m_bankLedgers; }
    [[nodiscard]] const surveying::CompletedSurveys &surveys() const noexcept { return m_surveys; }
    [[nodiscard]] const accounting::AccountNumberGenerator &
    accountCodeNumberGenerator() const noexcept
    {
        return *m_generator;
    }
    [[nodiscard]] std::set<BankName> bankNames() const;
    /// Whether there is no item, no account, no bank and no survey.
    [[nodiscard]] bool isEmpty() const noexcept;

    // ---- accounts and transactions -----------------------------------------

    void open(const AccountCode &code);
    void close(const AccountCode &code);
    /// Also refused: the name of a budget item.
    std::optional<TransactionNumber> add(const accounting::Account &account);
    /// Removes the item whose name is the code's, with its account, or else the
    /// account; then its association with the first bank that has it. The
    /// account that an item owns has another name than the item, so it goes
    /// alone, and the item stays without one.
    void remove(const AccountCode &code);
    /// Gives an account the number, name and parent of `to`. Its association
    /// with a bank and its survey follow. `from` must be the ledger's own code;
    /// that is not checked.
    ///
    /// Also refused, as a BankError with the bank that has the account: taking
    /// a bank account out from under its parent, moving it under an account
    /// that no bank has, moving it at all once it has a reconciled
    /// transaction. The name of a budget item is refused as an AccountError. If
    /// the bank cannot follow, the ledger stays recoded.
    void recode(const AccountCode &from, const AccountCode &to);
    /// Opens an account of the kind that fits a bank account, of no bank yet.
    AccountCode addAccount(const QString &name, const BankAccountTypes &types,
                           const Money &openingBalance);

    TransactionNumber post(const Transaction &transaction);
    void repost(const TransactionNumber &number, const Transaction &transaction);
    void remove(const TransactionNumber &number);
    void reconcile(const TransactionNumber &number);
    void unreconcile(const TransactionNumber &number);
    /// Both sides without an account.
    void clear(const TransactionNumber &number, const std::optional<AccountNumber> &account);
    TransactionNumber postRefund(const TransactionNumber &number, const Money &amount);

    // ---- banks -------------------------------------------------------------

    const banking::Bank &add(const banking::Bank &bank);
    void update(const banking::Bank &bank);
    BankAccount addAssociation(const BankName &bank, const AccountNumber &number,
                               const BankAccountTypes &types);
    /// See BankLedgers::open for what stays after a refusal.
    void open(const BankName &name);
    void close(const BankName &name);
    void remove(const BankName &name);
    /// The bank's completed surveys follow.
    void rename(const BankName &from, const BankName &to);

    /// At that bank.
    [[nodiscard]] std::optional<BankAccount> lookUpBankAccount(const BankName &bank,
                                                               const AccountNumber &number) const;
    /// At the first bank, in the order of names, that has the account.
    [[nodiscard]] std::optional<BankAccount> lookUpBankAccount(const AccountNumber &number) const;
    /// Whether any bank has the account.
    [[nodiscard]] bool isBankAccount(const AccountNumber &number) const;
    /// The accounts of all banks. Throws AccountError when the ledger lacks one.
    [[nodiscard]] std::set<BankAccountCode> bankAccounts() const;
    /// The items of one kind that are tied to a bank account; an item without an
    /// account is left out with a warning in the log. Empty for the type None;
    /// std::logic_error for a type above the known ones.
    [[nodiscard]] std::set<BudgetBankAccount>
    budgetBankAccounts(const budgeting::BudgetItemTypes &type) const;
    [[nodiscard]] std::optional<BudgetBankAccount>
    findBudgetBankAccount(const budgeting::BudgetItemTypes &type, const BudgetSource &source) const;

    // ---- budget items ------------------------------------------------------

    /// Adds a bill, a non-tracked item or a wage. Refused: a name that an
    /// account has, and one whose account would get the name of an item. What
    /// BudgetLedgers::add leaves behind when the ledger refuses stays here too.
    template <budgeting::BudgetItem T>
    requires(!budgeting::BankTiedItem<T>) AccountCode add(T item)
    {
        verifyNewItemName(item.source());
        return m_budgetLedgers.add(std::move(item), *m_generator);
    }
    template <budgeting::BudgetItem T>
    requires(!budgeting::BankTiedItem<T>) void update(T item)
    {
        m_budgetLedgers.update(std::move(item), *m_generator);
    }

    /// Adds a debt or a goal, and ties it to a bank account: a debt's own
    /// account becomes one of the bank (`bankAccount` names bank and kind), a
    /// goal's own account goes below `bankAccount`. Answers with the code of the
    /// item's account. When it cannot be tied, nothing is added, and a
    /// BudgetItemError holds the reason as its cause.
    template <budgeting::BankTiedItem T>
    AccountCode add(T item, const std::optional<BankAccount> &bankAccount);
    /// Updates a debt or a goal and ties it to the bank account requested, or to
    /// none. A debt that another bank has too stays there. When it cannot be
    /// tied, nothing is updated, and a BudgetItemError holds the reason as its
    /// cause.
    template <budgeting::BankTiedItem T>
    void update(T item, const std::optional<BankAccount> &requested);

    /// Renames the item and its account, and its distribution in the first
    /// completed survey that has one; later surveys keep the old name. Refused:
    /// as by add. See BudgetLedgers::rename for what stays after a failure.
    template <budgeting::BudgetItem T>
    void rename(const BudgetSource &from, const BudgetSource &to)
    {
        verifyNewItemName(to);
        // In a copy, since nothing after the item's renaming may fail.
        surveying::CompletedSurveys surveys(m_surveys);
        surveys.renamedItem({budgeting::ItemTraits<T>::type, from}, to);
        m_budgetLedgers.rename<T>(from, to, std::nullopt);
        m_surveys = std::move(surveys);
    }
    void renameBill(const BudgetSource &from, const BudgetSource &to)
    {
        rename<budgeting::Bill>(from, to);
    }
    void renameDebt(const BudgetSource &from, const BudgetSource &to)
    {
        rename<budgeting::Debt>(from, to);
    }
    void renameGoal(const BudgetSource &from, const BudgetSource &to)
    {
        rename<budgeting::Goal>(from, to);
    }
    void renameNontrack(const BudgetSource &from, const BudgetSource &to)
    {
        rename<budgeting::Nontrack>(from, to);
    }
    void renameWage(const BudgetSource &from, const BudgetSource &to)
    {
        rename<budgeting::Wage>(from, to);
    }

    /// See removeItem.
    void remove(const BudgetItemIdentifier &id);

    /// Posts an amount for an item that was not due.
    TransactionNumber process(const BudgetItemIdentifier &id, const Money &amount,
                              const AccountCode &bank, const QDate &date);
    /// Posts an item that is due and moves it on to its next date. The item is
    /// the first of that name among the kinds in their order. Throws
    /// BudgetItemError when there is none that has an account.
    TransactionNumber process(const budgeting::BudgetItemAmountDue &due, const AccountCode &bank,
                              const QDate &date);
    /// Moves an item on without posting. Finds it, and throws, as the one above.
    void skip(const BudgetItemIdentifier &id);

    [[nodiscard]] std::optional<AccountCode>
    lookUpAccountCode(const BudgetItemIdentifier &id) const;
    /// The transactions of the item's account that are not reconciled on its
    /// side.
    [[nodiscard]] std::set<Transaction>
    nonReconciledTransactions(const BudgetItemIdentifier &id) const;

    /// Throws BudgetItemError when an account has this name.
    void verifyBudgetSourceName(const BudgetSource &source) const;
    /// Throws AccountError when a budget item has the code's name.
    void verifyAccountCodeName(const AccountCode &code) const;

    // ---- surveys -----------------------------------------------------------

    /// The balance and day of the account's last survey; zero and no day when
    /// it was never surveyed. Throws BankError when no bank has the account.
    [[nodiscard]] banking::ReconciledBalance lastReconciliation(const AccountNumber &number) const;
    /// See generateMapSurvey. Throws BankError for an unknown bank, AccountError
    /// for an unknown account, std::out_of_range when the bank lacks it.
    [[nodiscard]] surveying::MappingSurvey
    createMapSurvey(const BankName &bank, const AccountNumber &number, const QDate &date) const;
    /// See finaliseSurvey.
    surveying::CompletedSurvey
    completedSurvey(const QDate &date, const BankAccount &account, const Money &balance,
                    const std::set<TransactionNumber> &reconciled,
                    const surveying::IndexedIncreaseDecreases<BudgetItemIdentifier> &budgetChanges,
                    const surveying::IndexedIncreaseDecreases<AccountNumber> &accountChanges,
                    const surveying::Distribution &distribution, const Money &nonDistributed,
                    const foundation::Percentage &window);

    friend KIV_NAVIGATION_EXPORT bool operator==(const BudgetBankLedgers &a,
                                                 const BudgetBankLedgers &b);

private:
    /// As verifyBudgetSourceName. Checks besides that the name of the item's own
    /// account is no item's.
    void verifyNewItemName(const BudgetSource &source) const;
    /// Whether the account has a transaction that is reconciled on its side.
    [[nodiscard]] bool hasReconciled(const AccountNumber &number) const;
    /// Refuses what recode refuses of a bank account's parent.
    void verifyParentOf(const AccountCode &from, const AccountCode &to) const;
    /// The accounts of the items of one kind; see budgetBankAccounts.
    [[nodiscard]] std::map<BudgetSource, AccountCode>
    itemAccounts(const budgeting::BudgetItemTypes &type) const;
    /// Ties a new item's account to the bank account: a debt's own becomes one
    /// of the bank, a goal's own is put below it, and `code` follows.
    BankAccount addBudgetBankAssociation(const budgeting::Debt &debt, const AccountCode &code,
                                         const BankAccount &bankAccount);
    BankAccount addBudgetBankAssociation(const budgeting::Goal &goal, AccountCode &code,
                                         const BankAccount &bankAccount);
    /// Ties the account of an item to the bank account requested, or to none.
    void updateBudgetBankAssociation(const budgeting::Debt &debt, const AccountCode &code,
                                     const std::optional<BankAccount> &requested,
                                     const std::optional<BankAccount> &current);
    void updateBudgetBankAssociation(const budgeting::Goal &goal, const AccountCode &code,
                                     const std::optional<BankAccount> &requested,
                                     const std::optional<BankAccount> &current);
    /// Calls the visitor for the first kind, in their order, of which an item of
    /// this name has an account; tells whether there was one.
    template <typename Visitor>
    bool visitOwner(const BudgetSource &source, Visitor &&visitor) const
    {
        return budgeting::anyItemClass([&]<typename T>(std::type_identity<T> kind) {
            const bool isOwner = m_budgetLedgers.budgetAccountCodes().has<T>(source);
            if (isOwner)
                visitor(kind);
            return isOwner;
        });
    }

    accounting::GeneralLedger m_generalLedger;
    budgeting::Budget m_budget;
    banking::BankMap m_banks;
    std::unique_ptr<accounting::AccountNumberGenerator> m_generator; ///< null only once moved from
    BudgetLedgers m_budgetLedgers;
    BankLedgers m_bankLedgers;
    surveying::CompletedSurveys m_surveys;
};

/// Equal banks, budgets, ledgers and maps; surveys and generators take no part.
[[nodiscard]] KIV_NAVIGATION_EXPORT bool operator==(const BudgetBankLedgers &a,
                                                    const BudgetBankLedgers &b);

/// "Banks (…), Budget (…), Ledgers (…), Budget Account Currency (…), Bank
/// Account Types (First => 1200=>checking, 1300=>savings, Second => …)", on one
/// line.
KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetBankLedgers &ledgers);
using foundation::operator<<;

} // namespace kiv::navigation::internal
