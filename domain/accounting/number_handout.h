// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/general_ledger.h"

namespace kiv::accounting {

/// Takes the next number that no account of the ledger has from a generator.
///
/// Unless keep() is called, every step made since is taken back, also those of
/// hand-outs within it that were kept. The next hand-out then gives the same
/// number again, if no account has it by then.
class KIV_ACCOUNTING_EXPORT NumberHandout {
public:
    /// Throws what the generator throws when it has no number left.
    NumberHandout(AccountNumberGenerator &generator, const GeneralLedger &ledger);
    ~NumberHandout();
    NumberHandout(const NumberHandout &) = delete;
    NumberHandout &operator=(const NumberHandout &) = delete;

    /// The number that was handed out.
    [[nodiscard]] AccountNumber number() const noexcept { return m_number; }
    /// The number was used: it will not be given back.
    void keep() noexcept { m_steps = 0; }

private:
    explicit NumberHandout(AccountNumberGenerator &generator);
    void takeBack() noexcept;

    AccountNumberGenerator &m_generator;
    AccountNumber m_first; ///< what the first step gave
    AccountNumber m_number;
    unsigned m_steps = 0; ///< to be taken back
};

} // namespace kiv::accounting
