// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/running_balance.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <ranges>

namespace kiv::interchange::internal {

namespace {

struct Mismatch {
    std::size_t after; ///< how many steps fitted before it
    Place place;
    numira::Money expected;
    numira::Money found;
};

std::optional<Mismatch> mismatchIn(std::ranges::input_range auto &&steps)
{
    std::optional<numira::Money> expected;
    std::size_t fitting = 0;
    for (const BalanceStep &step : steps) {
        try {
            expected =
                expected && step.amount ? std::optional(*expected + *step.amount) : std::nullopt;
        } catch (const numira::Error &cause) {
            throw faults::tooLarge(step.place, cause);
        }
        if (step.balance && expected && *expected != *step.balance)
            return Mismatch{fitting, step.place, *expected, *step.balance};
        if (step.balance && step.amount)
            expected = step.balance;
        ++fitting;
    }
    return std::nullopt;
}

/// The mismatch in the order that fits for longer.
std::optional<Mismatch> mismatchOf(const std::vector<BalanceStep> &steps)
{
    const auto down = mismatchIn(steps);
    const auto up = down ? mismatchIn(steps | std::views::reverse) : std::nullopt;
    return up && up->after <= down->after ? down : up;
}

} // namespace

void requireRunningBalance(std::vector<BalanceStep> steps, bool mayBeOwed)
{
    const auto mismatch = mismatchOf(steps);
    if (!mismatch)
        return;
    if (mayBeOwed) {
        for (BalanceStep &step : steps)
            step.amount = step.amount ? std::optional(-*step.amount) : std::nullopt;
        if (!mismatchOf(steps))
            return;
    }
    throw faults::balanceDiffers(mismatch->place, foundation::toQString(mismatch->expected),
                                 foundation::toQString(mismatch->found));
}

} // namespace kiv::interchange::internal
