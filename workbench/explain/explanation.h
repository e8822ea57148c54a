// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/transaction_number.h"
#include "navigation/currency_display.h"
#include "numira/floating_point.h"
#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>
#include <variant>
#include <vector>

/// Why a figure is what it is.
namespace kiv::workbench {

/// How a line takes part in the figure.
enum class LineRole : std::uint8_t {
    Adds = 1, ///< its amount is added to those before
    Times,    ///< the sum is multiplied by its factor
    Over,     ///< the sum is divided by its factor
    Of,       ///< its amount is a part of the whole, of which the figure is a percentage
    Tells     ///< it is only told, such as the day of a rate
};

/// The word for programs: "adds", "times", "over", "of" or "tells".
[[nodiscard]] KIV_WORKBENCH_EXPORT const char *wordOf(LineRole role) noexcept;

/// A line of an explanation.
struct KIV_WORKBENCH_EXPORT ExplainedLine {
    LineRole role = LineRole::Adds;           ///< how it takes part in the figure
    QString text;                             ///< what it is, in the user's language
    std::optional<numira::Money> amount = {}; ///< of lines that add and of parts of the whole
    std::optional<numira::FloatingPoint> factor = {}; ///< of lines that multiply or divide
    QDate day = {}; ///< from which it comes; not valid without one
    std::optional<accounting::TransactionNumber> entry = {}; ///< from which it comes

    /// The amount, rounded to the minor unit, or the factor with its sign: "$50.00", "× 0.92",
    /// "÷ 12". Empty for what is only told.
    [[nodiscard]] QString valueText(navigation::CurrencyDisplayOptions displayAs) const;
};

/// Why a figure is what it is, line by line. An amount is what the lines come to, from the first
/// to the last, rounded as the figure is. A percentage is what they come to of the whole, with one
/// digit behind the point.
struct KIV_WORKBENCH_EXPORT Explanation {
    QString title;                                       ///< the figure in words
    std::variant<numira::Money, numira::Decimal> figure; ///< an amount, or a percentage
    std::vector<ExplainedLine> lines;                    ///< at least one

    /// "Balance of Checking: $50.00". The title of a percentage tells it already.
    [[nodiscard]] QString heading(navigation::CurrencyDisplayOptions displayAs) const;
};

} // namespace kiv::workbench
