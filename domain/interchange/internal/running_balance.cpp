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
    Place place;
    numira::Money expected;
    numira::Money found;
};

/// Steps in one order of time.
struct Run {
    std::size_t before = 0;  ///< how many steps stand before the mismatch
    std::size_t fitting = 0; ///< how many balances follow from the one before
    std::optional<Mismatch> mismatch = std::nullopt; ///< the first
    StatementBalances balances = {};
};

Run runOf(std::ranges::input_range auto &&steps, bool isOwed)
{
    Run run;
    std::optional<numira::Money> expected;
    std::optional<numira::Money> unopened; ///< the amounts before the first balance
    bool isWhole = true;                   ///< whether all amounts up to it are known
    for (const BalanceStep &step : steps) {
        const auto amount = isOwed && step.amount ? std::optional(-*step.amount) : step.amount;
        try {
            expected = expected && amount ? std::optional(*expected + *amount) : std::nullopt;
            if (!run.balances.closing && amount)
                unopened = unopened ? *unopened + *amount : *amount;
            isWhole = isWhole && (run.balances.closing || amount);
            if (!run.balances.closing && step.balance && unopened && isWhole)
                run.balances.opening = *step.balance - *unopened;
        } catch (const numira::Error &cause) {
            throw faults::tooLarge(step.place, cause);
        }
        if (step.balance && expected) {
            if (*expected != *step.balance && !run.mismatch)
                run.mismatch = {step.place, *expected, *step.balance};
            run.fitting += *expected == *step.balance ? 1 : 0;
        }
        if (step.balance && amount)
            expected = step.balance;
        run.before += run.mismatch ? 0 : 1;
        if (expected) {
            run.balances.closing = expected;
            run.balances.closingOn = step.day;
        }
    }
    if (isOwed && run.balances.opening)
        run.balances.opening = -*run.balances.opening;
    if (isOwed && run.balances.closing)
        run.balances.closing = -*run.balances.closing;
    return run;
}

/// In the order of time that fits for longer; of two that fit, in the one that the days show.
Run bestRunOf(const std::vector<BalanceStep> &steps, bool isOwed)
{
    const bool isNewestFirst = !steps.empty() && steps.front().day > steps.back().day;
    Run down = runOf(steps, isOwed);
    if (!down.mismatch && !isNewestFirst)
        return down;
    Run up = runOf(steps | std::views::reverse, isOwed);
    const bool isUp = up.mismatch && down.mismatch   ? up.before > down.before
                      : up.mismatch || down.mismatch ? down.mismatch.has_value()
                                                     : isNewestFirst;
    return isUp ? up : down;
}

/// Whether all balances would follow, in the order of the days, if each amount had the other
/// sign.
bool wouldFitNegated(const std::vector<BalanceStep> &steps)
{
    const QDate first = steps.front().day;
    const QDate last = steps.back().day;
    return (first <= last && !runOf(steps, true).mismatch) ||
           (first >= last && !runOf(steps | std::views::reverse, true).mismatch);
}

} // namespace

StatementBalances balancesOf(const std::vector<BalanceStep> &steps, bool mayBeOwed)
{
    const Run run = bestRunOf(steps, false);
    if (!run.mismatch)
        return run.balances;
    if (mayBeOwed) {
        const Run owed = bestRunOf(steps, true);
        if (!owed.mismatch)
            return owed.balances;
    }
    if (run.fitting == 0 && (mayBeOwed || !wouldFitNegated(steps)))
        return {.fit = false};
    throw faults::balanceDiffers(run.mismatch->place, foundation::toQString(run.mismatch->expected),
                                 foundation::toQString(run.mismatch->found));
}

} // namespace kiv::interchange::internal
