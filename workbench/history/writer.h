// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/shared_version.h"

#include "storage/budget_file.h"

#include <QtCore/QStringList>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace kiv::workbench {

/// Writes versions of a budget file on a thread of its own, which begins with the first
/// one: the newest, soon after the first that is not written yet. No event loop is needed.
///
/// While isPending() the thread uses the file; otherwise the owner may.
class KIV_WORKBENCH_EXPORT Writer {
public:
    /// A version to write.
    struct Job {
        /// What is written.
        SharedVersion content;
        /// What it tells about itself; a number of 0 is replaced.
        storage::VersionMark mark;
    };
    /// What happened meanwhile.
    struct News {
        std::vector<storage::VersionMark> written; ///< with their numbers
        QStringList warnings;                      ///< in the user's language
    };

    /// So long a version waits for newer ones: with the time of writing less than a
    /// second.
    static constexpr std::chrono::milliseconds delay{500};

    /// `tell` is called on the thread after each attempt.
    Writer(storage::BudgetFile &file, std::function<void()> tell);
    /// Writes what is pending; nobody hears of a failure then.
    ~Writer();
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    /// Writes this version in place of one that is still waiting or failed.
    void submit(Job job);
    /// Forgets what could not be written: it is kept elsewhere, or given up.
    void forget();
    /// Takes back the version that is waiting, or that could not be written; nothing if
    /// the last one is written or being written.
    [[nodiscard]] std::optional<Job> withdraw();
    /// Submits again what could not be written.
    void retry();
    /// Writes at once what is waiting, and returns when that was tried. Any thread may
    /// call it.
    void finish();
    /// Whether a version is waiting or being written.
    [[nodiscard]] bool isPending() const;
    /// The error of the last attempt, if it failed.
    [[nodiscard]] std::exception_ptr failure() const;
    /// What is new since the last call.
    [[nodiscard]] News takeNews();

private:
    void run();
    void write(std::unique_lock<std::mutex> &lock);
    void end();

    storage::BudgetFile &m_file;
    std::function<void()> m_tell;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;    ///< of the thread
    std::condition_variable m_settled; ///< an attempt ended
    std::optional<Job> m_waiting;
    /// When the first unwritten version came.
    std::optional<std::chrono::steady_clock::time_point> m_since;
    std::optional<Job> m_failed;
    std::exception_ptr m_failure;
    bool m_isWriting = false;
    bool m_isHurried = false;
    bool m_isEnding = false;
    News m_news;
    std::thread m_thread;
};

} // namespace kiv::workbench
