// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <memory>

namespace kiv::foundation {

/// A polymorphic value that can copy itself with its dynamic type.
template <typename T>
concept RequireClonable = requires(const T &value)
{
    {
        value.clone()
        } -> std::convertible_to<std::unique_ptr<T>>;
};

} // namespace kiv::foundation
