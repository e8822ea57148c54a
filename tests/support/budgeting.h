// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budget_items.h"

#include "support/accounting.h"

namespace kiv::test {

inline budgeting::BudgetSource source(const char *name)
{
    return budgeting::BudgetSource(QString::fromUtf8(name));
}

/// A valid item of the kind. What was borrowed for a debt and the target of a
/// goal are `extra`.
template <typename Item>
Item item(const char *name, const numira::Money &amount = usd("10"),
          budgeting::EventFrequency period = budgeting::EventFrequency::Monthly,
          QDate nextOccurOn = day("2026-01-31"), const numira::Money &extra = usd("100"))
{
    if constexpr (requires { Item(source(name), amount, period, nextOccurOn, extra); })
        return Item(source(name), amount, period, nextOccurOn, extra);
    else
        return Item(source(name), amount, period, nextOccurOn);
}

} // namespace kiv::test
