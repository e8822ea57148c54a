// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kiv::foundation {

/// A yes or no with a name of its own, so that a call reads as what it means:
/// `struct AllowSubAccountsTag {}; using AllowSubAccounts = StrongBool<AllowSubAccountsTag>`.
template <typename Tag>
class StrongBool {
public:
    constexpr StrongBool() noexcept = default;
    /// What `value` says.
    constexpr explicit StrongBool(bool value) noexcept : m_value(value) {}
    /// Whether it is a yes.
    [[nodiscard]] constexpr explicit operator bool() const noexcept { return m_value; }
    friend constexpr bool operator==(StrongBool, StrongBool) noexcept = default;

private:
    bool m_value = false;
};

} // namespace kiv::foundation
