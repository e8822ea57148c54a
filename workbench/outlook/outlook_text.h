// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/outlook/looking_ahead.h"
#include "workbench/requests/requests.h"

#include "navigation/currency_display.h"

#include <QtCore/QStringList>

namespace kiv::workbench {

/// The name of a payment: its item, or else the accounts that it moves.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString nameOf(const outlook::Payment &payment,
                                                  const AccountIndex &index);

/// The lowest day of a curve, among the first `days` days if that is given: "Lowest on
/// 2026-03-03: $12.00, because of Rent."
[[nodiscard]] KIV_WORKBENCH_EXPORT QString lowestText(const LookingAhead &ahead,
                                                      const outlook::Curve &curve,
                                                      const AccountIndex &index,
                                                      navigation::CurrencyDisplayOptions displayAs,
                                                      std::optional<std::size_t> days = {});

/// The lowest day before the next wage, or of all days without a wage, and that wage.
struct LowestAhead {
    /// In words. Why not, if it cannot be told; empty if there is nothing to tell.
    QString text;
    /// Of all accounts together. Nothing if that is not told; the rest is empty then.
    std::optional<numira::Money> lowest = {};
    QDate lowestOn = {};  ///< the day
    QString because = {}; ///< the payment that makes it the lowest; empty without one
    QDate nextWage = {};  ///< the day; none without a wage
};
/// Looks ahead from a day on, for as many days as is usual.
[[nodiscard]] KIV_WORKBENCH_EXPORT LowestAhead lowestAhead(Requests &requests, QDate first);

/// The answers in words, the lowest day first: "Lowest on 2026-03-03: $12.00, because of
/// Rent.", the first day below `floor`, what is free until the next wage.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
sentencesOf(const LookingAhead &ahead, const std::optional<numira::Money> &floor,
            const AccountIndex &index, navigation::CurrencyDisplayOptions displayAs);

/// What is left out, and why, each a sentence.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList noticesOf(const LookingAhead &ahead);

} // namespace kiv::workbench
