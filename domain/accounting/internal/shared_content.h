// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QSharedDataPointer>

#include <atomic>

namespace kiv::accounting::internal {

/// A QSharedDataPointer whose copies may live in several threads. Qt finds out without
/// any order that it has the content alone; here the reads of the thread that gave its
/// copy up last come before the writes that follow.
template <typename Content>
class SharedContent : public QSharedDataPointer<Content> {
    using Base = QSharedDataPointer<Content>;

public:
    using Base::Base;
    using Base::operator=;

    void detach()
    {
        Base::detach();
        std::atomic_thread_fence(std::memory_order_acquire);
    }
    [[nodiscard]] Content *data()
    {
        detach();
        return const_cast<Content *>(Base::constData());
    }
    [[nodiscard]] Content *operator->() { return data(); }
    [[nodiscard]] Content &operator*() { return *data(); }
    [[nodiscard]] const Content *operator->() const noexcept { return Base::constData(); }
    [[nodiscard]] const Content &operator*() const noexcept { return *Base::constData(); }
};

} // namespace kiv::accounting::internal
