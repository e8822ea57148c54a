// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/number_handout.h"

namespace kiv::accounting {

NumberHandout::NumberHandout(AccountNumberGenerator &generator) : m_generator(generator) {}

// When this throws, the object stands already, and its destructor takes the steps back.
NumberHandout::NumberHandout(AccountNumberGenerator &generator, const GeneralLedger &ledger)
    : NumberHandout(generator)
{
    m_first = m_number = ++m_generator;
    m_steps = 1;
    for (; ledger.hasLedger(m_number); ++m_steps)
        m_number = ++m_generator;
}

NumberHandout::~NumberHandout()
{
    takeBack();
}

void NumberHandout::takeBack() noexcept
{
    if (m_steps == 0)
        return;
    try {
        for (; m_steps > 0; --m_steps)
            --m_generator;
        // While the change was tried, others may have taken numbers from the
        // same generator and kept them. They hold accounts now or went with
        // this change, so the next hand-out can begin where this one did.
        AccountNumber next = ++*m_generator.clone();
        while (next > m_first) {
            --m_generator;
            if (const AccountNumber lower = ++*m_generator.clone(); lower < next)
                next = lower;
            else
                break;
        }
    } catch (...) {
        // A number that is lost leaves a gap, on which nothing depends.
        m_steps = 0;
    }
}

} // namespace kiv::accounting
