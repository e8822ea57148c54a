// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <type_traits>
#include <utility>

namespace kiv::navigation::internal {

/// Puts a value back at the end of the scope, unless the change that was begun is made good with
/// dismiss(). Putting back cannot fail, so the error that ended the change is never lost.
///
/// `Restore before(value);` keeps a copy of the value. Where a copy of the whole would cost too
/// much, `Restore before(part, putBack);` keeps a part, with what puts it back.
template <typename Value, typename PutBack>
class Restore {
public:
    static_assert(std::is_nothrow_invocable_v<PutBack, Value &&>);

    Restore(Value before, PutBack putBack)
        : m_before(std::move(before)), m_putBack(std::move(putBack))
    {
    }
    explicit Restore(Value &value) : m_before(value), m_putBack(value) {}
    ~Restore()
    {
        if (m_isPending)
            m_putBack(std::move(m_before));
    }
    Restore(const Restore &) = delete;
    Restore &operator=(const Restore &) = delete;

    void dismiss() noexcept { m_isPending = false; }

private:
    Value m_before;
    PutBack m_putBack;
    bool m_isPending = true;
};

/// Puts a copy of a value back.
template <typename Value>
class Assign {
public:
    static_assert(std::is_nothrow_move_assignable_v<Value>);

    explicit Assign(Value &value) noexcept : m_value(&value) {}
    void operator()(Value &&before) noexcept { *m_value = std::move(before); }

private:
    Value *m_value;
};

template <typename Value>
Restore(Value &) -> Restore<Value, Assign<Value>>;

} // namespace kiv::navigation::internal
