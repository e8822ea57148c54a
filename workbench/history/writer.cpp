// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/history/writer.h"

#include <csignal>

namespace kiv::workbench {

using Clock = std::chrono::steady_clock;

Writer::Writer(storage::BudgetFile &file, std::function<void()> tell)
    : m_file(file), m_tell(std::move(tell))
{
}

Writer::~Writer()
{
    end();
}

void Writer::end()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void Writer::submit(Job job)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_thread.joinable()) {
            // Signals are for the thread that knows what to do about them.
            sigset_t all;
            sigset_t before;
            ::sigfillset(&all);
            ::pthread_sigmask(SIG_SETMASK, &all, &before);
            m_thread = std::thread([this] { run(); });
            ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        }
        if (!m_since)
            m_since = Clock::now();
        m_failed.reset();
        m_waiting = std::move(job);
    }
    m_wake.notify_all();
}

std::optional<Writer::Job> Writer::withdraw()
{
    const std::lock_guard lock(m_mutex);
    if (m_waiting)
        return std::exchange(m_waiting, std::nullopt);
    return std::exchange(m_failed, std::nullopt);
}

void Writer::forget()
{
    const std::lock_guard lock(m_mutex);
    m_waiting.reset();
    m_since.reset();
    m_failed.reset();
    m_failure = nullptr;
}

void Writer::retry()
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting || !m_failed)
            return;
        m_waiting = std::exchange(m_failed, std::nullopt);
        m_since = Clock::now();
    }
    m_wake.notify_all();
}

void Writer::finish()
{
    std::unique_lock lock(m_mutex);
    m_isHurried = true;
    m_wake.notify_all();
    m_settled.wait(lock, [this] { return !m_waiting && !m_isWriting; });
    m_isHurried = false;
}

bool Writer::isPending() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting || m_isWriting;
}

std::exception_ptr Writer::failure() const
{
    const std::lock_guard lock(m_mutex);
    return m_failure;
}

Writer::News Writer::takeNews()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_news, {});
}

void Writer::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        if (!m_waiting) {
            if (m_isEnding)
                return;
            m_wake.wait(lock);
        } else if (m_isHurried || m_isEnding || Clock::now() >= *m_since + delay) {
            write(lock);
        } else {
            m_wake.wait_until(lock, *m_since + delay);
        }
    }
}

void Writer::write(std::unique_lock<std::mutex> &lock)
{
    std::optional<Job> job = std::exchange(m_waiting, std::nullopt);
    m_since.reset();
    m_isWriting = true;
    lock.unlock();
    std::exception_ptr failure;
    storage::VersionMark written;
    QStringList warnings;
    try {
        m_file.setWarn([&warnings](const QString &sentence) { warnings += sentence; });
        written = m_file.storeVersion(job->content.version(job->mark));
    } catch (...) {
        failure = std::current_exception();
    }
    m_file.setWarn({});
    lock.lock();
    m_failure = failure;
    if (!failure)
        m_news.written.push_back(std::move(written));
    else if (!m_waiting)
        m_failed = std::move(job);
    m_news.warnings += warnings;
    m_isWriting = false;
    // Given up here and not by the owner, so that the content has ended when it hears.
    job.reset();
    lock.unlock();
    m_settled.notify_all();
    m_tell();
    lock.lock();
}

} // namespace kiv::workbench
