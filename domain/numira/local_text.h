// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/locale.h"
#include "numira/money.h"

#include <optional>
#include <string>
#include <string_view>

/// Numbers as the library's locale writes them, besides toLocalText of an amount.
namespace numira {

/// The amount with its currency's code where the locale puts it:
/// "1.234,50 EUR" in German, "EUR 1,234.50" in English (with a no-break space).
[[nodiscard]] NUMIRA_EXPORT std::string toLocalTextWithCode(const Money &money);

/// The number with all its digits and without grouping: "33,3" in German.
[[nodiscard]] NUMIRA_EXPORT std::string toLocalText(const Decimal &number);

/// The plain decimal text ("-1234.50") of a number that is written as in the
/// library's locale: groups of digits or none, the locale's decimal mark and
/// digits behind it ("-1.234,50", "-1234,50" in German). Nothing for any other
/// text, and nothing without a decimal mark: groups alone ("1.234") read as
/// digits behind the point elsewhere.
[[nodiscard]] NUMIRA_EXPORT std::optional<std::string> fromLocalText(std::string_view text);

} // namespace numira
