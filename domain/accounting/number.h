// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/debug_stream.h"

#include <QtCore/QString>

#include <compare>
#include <concepts>
#include <ostream>

namespace kiv::accounting {

/// What the numbers of accounts and of transactions have in common: an integer above 0; the
/// default one, 0, is the number of none. `Own` is the class of the number, so that numbers of
/// different kinds cannot be mixed up.
template <typename Own, std::unsigned_integral Integer>
class Number {
public:
    constexpr Number() noexcept = default;
    /// The number itself; 0 is none.
    constexpr explicit Number(Integer number) noexcept : m_number(number) {}

    /// The number as an integer; 0 is none.
    [[nodiscard]] constexpr Integer integer() const noexcept { return m_number; }
    /// Whether it is the number of anything.
    [[nodiscard]] constexpr bool isValid() const noexcept { return m_number != 0; }

    friend constexpr bool operator==(const Number &, const Number &) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(const Number &,
                                                      const Number &) noexcept = default;

    /// Writes the number in decimal.
    friend std::ostream &operator<<(std::ostream &out, Own number)
    {
        return out << number.integer();
    }

private:
    Integer m_number = 0;
};

/// The number in decimal, without grouping.
template <typename Own, std::unsigned_integral Integer>
[[nodiscard]] QString presentationText(const Number<Own, Integer> &number)
{
    return QString::number(number.integer());
}

using foundation::operator<<;

} // namespace kiv::accounting
