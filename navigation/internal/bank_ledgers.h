// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/allow_sub_accounts.h"
#include "navigation/export.h"

#include "accounting/general_ledger.h"
#include "banking/bank_map.h"
#include "foundation/observer_ptr.h"

namespace kiv::navigation::internal {

/// Ties the banks to the general ledger: a bank account is always an account of
/// the ledger, of the kind that fits, and the bank only records which numbers
/// are its own and as what. Such a record is called an association.
///
/// It observes the banks and the ledger. Whole banks are checked against the
/// ledger: their accounts exist, are of the kind that fits the bank account's
/// kind, and keep that kind. A single association is only checked for existence.
///
/// Refusals are BankErrors with the bank's name. Unless a member says
/// otherwise, a refused change leaves banks, ledger and generator as they were.
/// What banks and ledger themselves refuse passes through.
class KIV_NAVIGATION_EXPORT BankLedgers {
public:
    /// Refused: a bank with an account that the ledger lacks.
    BankLedgers(foundation::ObserverPtr<banking::BankMap> banks,
                foundation::ObserverPtr<accounting::GeneralLedger> ledgers);

    [[nodiscard]] const banking::BankMap &banks() const noexcept { return *m_banks; }
    [[nodiscard]] const accounting::GeneralLedger &ledgers() const noexcept { return *m_ledgers; }
    /// Whether there is no bank.
    [[nodiscard]] bool isEmpty() const noexcept { return m_banks->isEmpty(); }

    /// Adds a bank with accounts that the ledger has already. Refused: an
    /// account that it lacks, an account of another kind.
    const banking::Bank &add(const banking::Bank &bank);
    /// Opens a ledger account of that name, under the generator's next free
    /// number, and makes it an account of the bank; answers with the number of
    /// its opening transaction, if one was posted. Refused: an unknown bank, the
    /// name of any account of the ledger.
    ///
    /// If the account cannot be recorded with the bank after it was opened, it
    /// stays in the ledger; its number is given back.
    std::optional<accounting::TransactionNumber>
    addAccount(const banking::BankName &bank, const QString &name,
               const banking::BankAccountTypes &types, const numira::Money &openingBalance,
               accounting::AccountNumberGenerator &generator);
    /// Makes an account of the ledger one of the bank's, or changes its kind
    /// there; whether the kind fits the ledger account is not checked. Refused:
    /// an unknown bank, an unknown account, the kind Unknown.
    banking::BankAccount addAssociation(const banking::BankName &bank,
                                        const accounting::AccountNumber &number,
                                        const banking::BankAccountTypes &types);
    /// Refused: an unknown bank, an account that no bank has, or not this one.
    void removeAssociation(const banking::BankName &bank, const accounting::AccountNumber &number);
    /// Replaces the accounts of the bank of that name. Refused: an unknown
    /// bank, one marked closed, an account that the ledger lacks or has as
    /// another kind, another kind for an account that the bank has already.
    void update(const banking::Bank &bank);
    void rename(const banking::BankName &from, const banking::BankName &to);

    /// Opens the bank, then its accounts in order. An account that cannot be
    /// opened (because it is open) ends this with its error; the bank and the
    /// accounts that were opened before stay open.
    void open(const banking::BankName &name);
    /// Closes the bank and all of its accounts, or nothing.
    void close(const banking::BankName &name);
    /// Removes the bank and all of its accounts. Refused: an unknown bank, a
    /// closed one, one with an account that cannot be removed.
    void remove(const banking::BankName &name);

    /// Moves an association to another ledger account, which may be one of the
    /// same bank. Refused: an account that no bank has (AccountError), a new
    /// one that another bank has. There is no undo: when the new account is
    /// not in the ledger, the old association is gone.
    banking::BankAccount recode(const accounting::AccountNumber &from,
                                const accounting::AccountNumber &to);

    /// The first bank, in the order of names, that has the account.
    [[nodiscard]] std::optional<banking::BankName>
    lookUpBankName(const accounting::AccountNumber &number) const;
    /// Whether that first bank is this one.
    [[nodiscard]] bool hasAssociation(const banking::BankName &bank,
                                      const accounting::AccountNumber &number) const;
    [[nodiscard]] bool hasBankAssociation(const accounting::AccountNumber &number) const;
    /// The bank's accounts; without sub-accounts only those that stand under no
    /// other account. Empty for an unknown bank. Throws AccountError when the
    /// ledger lacks one of them.
    [[nodiscard]] std::map<accounting::AccountNumber, banking::BankAccountTypes>
    bankAccountTypes(const banking::BankName &bank, const AllowSubAccounts &allow) const;
    /// The accounts of all banks.
    [[nodiscard]] std::map<banking::BankName,
                           std::map<accounting::AccountNumber, banking::BankAccountTypes>>
    bankAccountTypes() const;
    [[nodiscard]] std::optional<banking::BankAccount>
    lookUpBankAccount(const banking::BankName &bank, const accounting::AccountNumber &number) const;
    /// At the first bank that has it.
    [[nodiscard]] std::optional<banking::BankAccount>
    lookUpBankAccount(const accounting::AccountNumber &number) const;

private:
    friend class BudgetBankLedgers;

    /// Constructs without any check, for an owner that was copied or moved.
    struct Unchecked {};
    BankLedgers(Unchecked, foundation::ObserverPtr<banking::BankMap> banks,
                foundation::ObserverPtr<accounting::GeneralLedger> ledgers) noexcept;

    foundation::ObserverPtr<banking::BankMap> m_banks;
    foundation::ObserverPtr<accounting::GeneralLedger> m_ledgers;
};

/// Equal banks and general ledgers, by content.
[[nodiscard]] KIV_NAVIGATION_EXPORT bool operator==(const BankLedgers &a, const BankLedgers &b);

/// "Banks (…), General Ledger (…)".
KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const BankLedgers &ledgers);

} // namespace kiv::navigation::internal
