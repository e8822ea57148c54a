// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/report.h"

#include "workbench/surveys/set_aside.h"

namespace kiv::app {

/// {kind, name}
[[nodiscard]] QJsonObject itemJson(const budgeting::BudgetItemIdentifier &id);
/// Null without an amount.
[[nodiscard]] QJsonValue moneyJson(const std::optional<numira::Money> &money);

/// {kind, name, parts: [{part, amount, text}], now, counted, handedOver, next, expected,
/// transactions}; each part with its reason.
[[nodiscard]] QJsonObject lineJson(const workbench::SetAsideLine &line,
                                   const workbench::SetAside &account,
                                   navigation::CurrencyDisplayOptions displayAs);

/// Adds the table of such lines with these columns at its end, and below it why each line is
/// as it is.
void addSetAside(Report &report, const QJsonArray &lines, const std::vector<Column> &more);

} // namespace kiv::app
