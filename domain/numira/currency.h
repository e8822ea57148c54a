// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/export.h"

#include <compare>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace numira {

/// A currency of ISO 4217, such as USD (840). A default-constructed one is the
/// standard's "no currency", XXX (999).
///
/// Known are the currencies that are in use and ISO 4217's codes for funds,
/// precious metals and tests, as the installed ICU lists them. Currencies are
/// ordered by their numeric code.
class NUMIRA_EXPORT Currency {
public:
    constexpr Currency() noexcept = default;
    /// Throws UnknownCurrency when no known currency has this numeric code.
    explicit Currency(std::uint16_t numericCode);

    /// The numeric code: 840 for USD.
    [[nodiscard]] constexpr std::uint16_t numericCode() const noexcept { return m_numericCode; }
    /// The alphabetic code: three upper-case letters.
    [[nodiscard]] std::string_view code() const noexcept { return {m_code, 3}; }

    /// Whether the numeric codes are equal.
    friend bool operator==(const Currency &a, const Currency &b) noexcept
    {
        return a.m_numericCode == b.m_numericCode;
    }
    /// By numeric code.
    friend std::strong_ordering operator<=>(const Currency &a, const Currency &b) noexcept
    {
        return a.m_numericCode <=> b.m_numericCode;
    }

private:
    std::uint16_t m_numericCode = 999;
    char m_code[4] = "XXX";
};

/// The currency with this alphabetic code, such as "USD". Throws
/// UnknownCurrency for anything but the exact three upper-case letters of a
/// known currency, or "XXX".
[[nodiscard]] NUMIRA_EXPORT Currency toCurrency(const std::string &code);

/// The alphabetic code.
[[nodiscard]] NUMIRA_EXPORT std::string toStdString(const Currency &currency);

/// The symbol by which people of the library's locale know the currency, such
/// as "$" or "€" (the one that is not taken for another currency's: "CA$" in
/// the United States); nothing when they use the code itself.
[[nodiscard]] NUMIRA_EXPORT std::optional<std::string> currencySymbol(const Currency &currency);

/// The currency's name in English, such as "US Dollar".
[[nodiscard]] NUMIRA_EXPORT std::string currencyName(const Currency &currency);

/// How many digits of the minor unit ISO 4217 gives the currency: 2 for USD,
/// 0 for JPY, 3 for KWD. 0 where the standard says "not applicable".
[[nodiscard]] NUMIRA_EXPORT unsigned minorUnitDigits(const Currency &currency);

/// Every currency in which people are paid today: the active ones of ISO 4217
/// without funds codes, precious metals, test codes and "no currency".
[[nodiscard]] NUMIRA_EXPORT const std::set<Currency> &activeCurrencies();

NUMIRA_EXPORT std::ostream &operator<<(std::ostream &out, const Currency &currency);

} // namespace numira
