// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstddef>

namespace kiv::foundation {

/// A pointer that does not own its object. The object must outlive it.
template <typename T>
class ObserverPtr {
public:
    constexpr ObserverPtr() noexcept = default;
    /// Observes nothing.
    constexpr ObserverPtr(std::nullptr_t) noexcept {}
    /// Observes `object`, which may be null.
    constexpr explicit ObserverPtr(T *object) noexcept : m_object(object) {}
    /// Observes the same object as one of its base classes.
    template <typename U>
    requires std::convertible_to<U *, T *>
    constexpr ObserverPtr(ObserverPtr<U> other) noexcept : m_object(other.get()) {}

    /// The object, or null.
    [[nodiscard]] constexpr T *get() const noexcept { return m_object; }
    /// The object, which must be there.
    [[nodiscard]] constexpr T &operator*() const noexcept { return *m_object; }
    /// The object's members; it must be there.
    [[nodiscard]] constexpr T *operator->() const noexcept { return m_object; }
    /// Whether there is an object.
    [[nodiscard]] constexpr explicit operator bool() const noexcept { return m_object != nullptr; }

    friend bool operator==(ObserverPtr, ObserverPtr) noexcept = default;

private:
    T *m_object = nullptr;
};

/// Observes `object`.
template <typename T>
[[nodiscard]] constexpr ObserverPtr<T> observe(T &object) noexcept
{
    return ObserverPtr<T>(&object);
}

} // namespace kiv::foundation
