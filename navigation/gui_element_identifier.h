// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>

#include <compare>
#include <cstdint>
#include <iosfwd>

namespace kiv::navigation {

/// Which element of a view made a request. The view chooses the number, and
/// the answer carries it back; nothing else is read into it.
class GuiElementIdentifier {
public:
    constexpr GuiElementIdentifier() noexcept = default;
    /// The number that the view chose.
    constexpr explicit GuiElementIdentifier(std::uint64_t number) noexcept : m_number(number) {}

    /// The number that the view chose.
    [[nodiscard]] constexpr std::uint64_t integer() const noexcept { return m_number; }

    friend constexpr bool operator==(GuiElementIdentifier, GuiElementIdentifier) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(GuiElementIdentifier,
                                                      GuiElementIdentifier) noexcept = default;

private:
    std::uint64_t m_number = 0;
};

KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, GuiElementIdentifier id);
using foundation::operator<<;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::GuiElementIdentifier)
