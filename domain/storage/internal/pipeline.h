// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace kiv::storage::internal {

/// Processes parts in the order in which they are added, while the next ones are
/// made. finish() processes a single part itself; more are processed by a thread,
/// which has ended when finish() or the destructor returns.
template <typename Part>
class Pipeline {
public:
    using Work = std::function<void(Part &)>;

    explicit Pipeline(Work work) : m_work(std::move(work)) {}
    /// Drops the parts that were not begun.
    ~Pipeline()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_waiting.clear();
        }
        end();
    }
    Pipeline(const Pipeline &) = delete;
    Pipeline &operator=(const Pipeline &) = delete;

    /// A part that was processed, or a new one. Parts are used again, because memory
    /// that one thread takes and another frees makes both wait.
    [[nodiscard]] Part spare()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_spare.empty())
            return {};
        Part part = std::move(m_spare.back());
        m_spare.pop_back();
        return part;
    }

    /// Once the work has thrown, no more parts are processed.
    void add(Part &&part)
    {
        if (!m_thread.joinable())
            start();
        give(std::move(part));
    }

    /// Adds the last part, and returns when all are processed. Throws what the
    /// work threw.
    void finish(Part &&last)
    {
        give(std::move(last));
        end();
        if (m_failure)
            std::rethrow_exception(std::exchange(m_failure, nullptr));
    }

private:
    /// Waking the thread for each part would take longer than the work itself.
    static constexpr std::size_t waitingMin = 4;
    static constexpr std::size_t waitingMax = 8;

    void start()
    {
        // Taken here, where want of memory can be reported; the worker could not.
        m_spare.reserve(waitingMax);
        try {
            m_thread = std::thread([this] { run(); });
        } catch (const std::system_error &) {
            // There are too many threads, so finish() does the work.
        }
    }

    void give(Part &&part)
    {
        if (!m_thread.joinable()) {
            workOn(part);
            return;
        }
        {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [&] { return m_waiting.size() < waitingMax; });
            m_waiting.push_back(std::move(part));
        }
        m_changed.notify_all();
    }

    void end()
    {
        if (!m_thread.joinable())
            return;
        {
            const std::scoped_lock lock(m_mutex);
            m_isEnded = true;
        }
        m_changed.notify_all();
        m_thread.join();
    }

    void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [&] { return m_isEnded || m_waiting.size() >= waitingMin; });
            if (m_waiting.empty())
                return;
            while (!m_waiting.empty()) {
                Part part = std::move(m_waiting.front());
                m_waiting.pop_front();
                lock.unlock();
                m_changed.notify_all();
                workOn(part);
                lock.lock();
                if (m_spare.size() < m_spare.capacity())
                    m_spare.push_back(std::move(part));
            }
        }
    }

    void workOn(Part &part) noexcept
    {
        if (m_failure)
            return;
        try {
            m_work(part);
        } catch (...) {
            m_failure = std::current_exception();
        }
    }

    Work m_work;
    std::exception_ptr m_failure; ///< the worker's, until it has ended
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Part> m_waiting;
    std::vector<Part> m_spare;
    bool m_isEnded = false;
    std::thread m_thread;
};

} // namespace kiv::storage::internal
