// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/bank.h"

#include "foundation/debug_stream.h"

namespace kiv::banking {

/// The banks of a budget, in the order of their names. Every refusal is a
/// BankError with the bank's name and leaves the map unchanged.
///
/// One account number may stand in two banks: each bank answers for its own
/// accounts alone.
class KIV_BANKING_EXPORT BankMap {
public:
    /// Goes over pairs of name and bank in the order of names.
    using const_iterator = std::map<BankName, Bank>::const_iterator;

    /// Whether there is no bank.
    [[nodiscard]] bool isEmpty() const noexcept { return m_banks.empty(); }
    /// How many banks there are.
    [[nodiscard]] std::size_t size() const noexcept { return m_banks.size(); }
    /// The first bank.
    [[nodiscard]] const_iterator begin() const noexcept { return m_banks.begin(); }
    /// Behind the last bank.
    [[nodiscard]] const_iterator end() const noexcept { return m_banks.end(); }
    /// The names of all banks.
    [[nodiscard]] std::set<BankName> names() const;
    /// Whether there is a bank of this name.
    [[nodiscard]] bool hasBank(const BankName &name) const;
    /// Refused: unknown.
    [[nodiscard]] const Bank &bank(const BankName &name) const;
    /// The first bank, in the order of names, that keeps the account.
    [[nodiscard]] std::optional<BankName> find(accounting::AccountNumber number) const;

    /// Refused: an empty name, a name in use. Throws std::logic_error for an
    /// account of an unknown kind, as the next two do.
    void add(const Bank &bank);
    /// Adds the account to the bank, or replaces its kind there. Refused: an
    /// unknown bank.
    void add(const BankName &name, accounting::AccountNumber number, BankAccountTypes type);
    /// Refused: unknown.
    void remove(const BankName &name);
    /// Refused: an unknown bank, an account that it does not keep.
    void remove(const BankName &name, accounting::AccountNumber number);
    /// Replaces the accounts of the bank; the closed flag stays as it is stored.
    /// Refused: an unknown bank. Throws likewise.
    void update(const Bank &bank);
    /// Refused: unknown `from`, an empty `to`, `to` in use (its own name too).
    void rename(const BankName &from, const BankName &to);
    /// Refused: unknown, open already.
    void open(const BankName &name);
    /// Refused: unknown, closed already.
    void close(const BankName &name);

    friend bool operator==(const BankMap &, const BankMap &) = default;

private:
    /// The bank must be there.
    void replace(Bank bank);

    std::map<BankName, Bank> m_banks;
};

/// The banks' own forms between parentheses, ", " between them.
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, const BankMap &banks);
using foundation::operator<<;

} // namespace kiv::banking

Q_DECLARE_METATYPE(kiv::banking::BankMap)
