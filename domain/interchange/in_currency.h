// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "numira/money.h"

#include <functional>
#include <optional>
#include <vector>

namespace kiv::interchange {

/// A currency in which a report is wanted, and how amounts come into it.
struct InCurrency {
    /// Into which amounts are converted.
    numira::Currency currency;
    /// The amount in that currency; nothing without an exchange rate.
    std::function<std::optional<numira::Money>(const numira::Money &)> convert;

    /// The amounts in that currency, each rounded to the minor unit: a row's total is that of its
    /// spans, but sums of several rows are converted by themselves. If one of the amounts has no
    /// rate, all stay as they are.
    [[nodiscard]] std::vector<numira::Money> operator()(std::vector<numira::Money> amounts) const
    {
        std::vector<numira::Money> converted;
        for (const numira::Money &amount : amounts) {
            const auto other = amount.code() == currency ? amount : convert(amount);
            if (!other)
                return amounts;
            converted.push_back(other->rounded());
        }
        return converted;
    }
};

} // namespace kiv::interchange
