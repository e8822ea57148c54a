// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>

/// The days and amounts that a search names.
namespace kiv::workbench {

/// Days from a first to a last; a missing end is open.
struct DaySpan {
    /// The first day; none for any before.
    std::optional<QDate> first;
    /// The last day; none for any after.
    std::optional<QDate> last;

    /// Whether the day lies within.
    [[nodiscard]] bool holds(QDate day) const;
};

/// The days that the text names, see TransactionFilter; nothing if it names none. Throws an
/// EntryError if it looks like a date and is none, or ends before it begins.
[[nodiscard]] std::optional<DaySpan> daySpan(const QString &text, QDate today);
/// Whether days of two words begin with this one, as "last month" does.
[[nodiscard]] bool beginsDays(const QString &word);

/// Amounts from a lowest to a highest; a missing end is open.
struct AmountSpan {
    /// The lowest amount; none for any below.
    std::optional<numira::Decimal> lowest;
    /// The highest amount; none for any above.
    std::optional<numira::Decimal> highest;
    bool isStrict = false; ///< the ends themselves do not count
    /// The only currency; none for every one.
    std::optional<numira::Currency> currency;

    /// Whether the amount lies within.
    [[nodiscard]] bool holds(const numira::Money &amount) const;
};

/// The amounts that the text names; nothing if it names none. Throws an EntryError if it
/// looks like amounts and names none, or ends before it begins.
[[nodiscard]] std::optional<AmountSpan> amountSpan(const QString &text);

} // namespace kiv::workbench
