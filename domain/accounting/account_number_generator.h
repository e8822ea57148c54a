// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account.h"

#include "foundation/clonable.h"

#include <memory>
#include <set>

namespace kiv::accounting {

/// Hands out numbers for new accounts. It does not know which numbers a user
/// chose by hand; NumberHandout steps over those.
class KIV_ACCOUNTING_EXPORT AccountNumberGenerator {
public:
    virtual ~AccountNumberGenerator();

    /// Steps to the next number and gives it. Throws AccountError when there is
    /// none left; then it has not stepped.
    virtual const AccountNumber &operator++() = 0;
    /// Gives the last number back, so that the next step gives it again. At its
    /// beginning it stays.
    virtual const AccountNumber &operator--() = 0;
    /// A generator of the same dynamic type that goes on from the same number.
    [[nodiscard]] virtual std::unique_ptr<AccountNumberGenerator> clone() const = 0;
    /// The number from which a generator for a ledger with these accounts goes
    /// on.
    [[nodiscard]] virtual AccountNumber seedFrom(const std::set<Account> &accounts) const = 0;

protected:
    AccountNumberGenerator() = default;
    AccountNumberGenerator(const AccountNumberGenerator &) = default;
    AccountNumberGenerator &operator=(const AccountNumberGenerator &) = default;
};

static_assert(foundation::RequireClonable<AccountNumberGenerator>);

/// Counts upwards from its seed: the first number is the one after it. After
/// the highest number it goes on with 1, so that it never ends.
class KIV_ACCOUNTING_EXPORT SequentialAccountNumberGenerator final : public AccountNumberGenerator {
public:
    /// Hands out the numbers after `seed`.
    explicit SequentialAccountNumberGenerator(AccountNumber seed = {}) noexcept;
    ~SequentialAccountNumberGenerator() override;

    const AccountNumber &operator++() override;
    const AccountNumber &operator--() override;
    [[nodiscard]] std::unique_ptr<AccountNumberGenerator> clone() const override;
    /// The highest number in use.
    [[nodiscard]] AccountNumber seedFrom(const std::set<Account> &accounts) const override;

private:
    AccountNumber m_number;
};

} // namespace kiv::accounting
