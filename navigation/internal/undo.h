// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/logging.h"

#include <type_traits>
#include <utility>

namespace kiv::navigation::internal {

/// Keeps a copy of a value and puts it back at the end of the scope, unless the
/// change that was begun is made good with dismiss(). Putting back cannot fail,
/// so the error that ended the change is never lost.
template <typename T>
class Restore {
public:
    static_assert(std::is_nothrow_move_assignable_v<T>);

    explicit Restore(T &value) : m_value(&value), m_before(value) {}
    ~Restore()
    {
        if (m_value != nullptr)
            *m_value = std::move(m_before);
    }
    Restore(const Restore &) = delete;
    Restore &operator=(const Restore &) = delete;

    void dismiss() noexcept { m_value = nullptr; }

private:
    T *m_value;
    T m_before;
};

/// Does what takes a change back, while the error that made it necessary is on
/// its way: what fails now is written to the log as a warning, and the first
/// error goes on.
template <typename Action>
void undo(const char *sentence, Action &&action) noexcept
{
    try {
        action();
    } catch (const std::exception &error) {
        logWarning(sentence, error);
    }
}

} // namespace kiv::navigation::internal
