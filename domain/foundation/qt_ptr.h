// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace kiv::foundation {

namespace internal {
/// Calls `cleared` when `object` is destroyed, until the connection is
/// disconnected. An empty connection when there is no object.
[[nodiscard]] KIV_FOUNDATION_EXPORT QMetaObject::Connection
createDestroyableConnection(QObject *object, std::function<void()> cleared);
} // namespace internal

/// A guarded pointer to a QObject: it becomes null when that object is
/// destroyed. It does not own. Every copy guards on its own.
template <typename T>
class QtPtr {
public:
    QtPtr() noexcept = default;
    /// Guards nothing.
    QtPtr(std::nullptr_t) noexcept {}
    /// Guards `object`, which may be null.
    explicit QtPtr(T *object) { guard(object); }
    /// Guards the same object on its own.
    QtPtr(const QtPtr &other) { guard(other.get()); }
    /// Guards the same object as one of its base classes.
    template <typename U>
    requires(std::is_convertible_v<U *, T *> && !std::is_same_v<U, T>) QtPtr(const QtPtr<U> &other)
    {
        guard(other.get());
    }
    /// Lets go of its object and guards the other's on its own.
    QtPtr &operator=(const QtPtr &other)
    {
        if (this != &other) {
            release();
            guard(other.get());
        }
        return *this;
    }
    ~QtPtr() { release(); }

    /// The object; null when it is gone.
    [[nodiscard]] T *get() const noexcept { return m_alive ? m_object : nullptr; }
    /// The object, which must be there.
    [[nodiscard]] T &operator*() const noexcept { return *get(); }
    /// The object's members; it must be there.
    [[nodiscard]] T *operator->() const noexcept { return get(); }
    /// Whether the object is there.
    [[nodiscard]] explicit operator bool() const noexcept { return get() != nullptr; }
    /// Whether both guard the same object, or none.
    friend bool operator==(const QtPtr &a, const QtPtr &b) noexcept { return a.get() == b.get(); }

private:
    void guard(T *object)
    {
        m_object = object;
        m_alive = object;
        m_connection =
            internal::createDestroyableConnection(object, [this] { m_object = nullptr; });
    }
    void release() noexcept
    {
        QObject::disconnect(m_connection);
        m_object = nullptr;
    }

    T *m_object = nullptr;
    /// While an object announces its end, some pointers to it are not cleared
    /// yet, and a copy of one would connect too late to be. This is null before
    /// the first announcement.
    QPointer<QObject> m_alive;
    QMetaObject::Connection m_connection;
};

/// An owning pointer to a QObject without a parent.
template <typename T>
using UniqueQtPtr = std::unique_ptr<T>;

} // namespace kiv::foundation
