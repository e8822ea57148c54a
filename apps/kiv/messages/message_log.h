// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <mutex>

namespace kiv::app {

/// Writes the log messages of Qt to standard error: each warning once, other messages
/// only if verbose. Any thread may log. There is at most one object of this class.
class MessageLog {
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    /// Writes all messages.
    void setVerbose(bool isVerbose) noexcept { m_isVerbose = isVerbose; }

    /// Warnings are muted while `isBusy` returns true: the answer to the request reports
    /// the same.
    void setMutedWhile(std::function<bool()> isBusy) { m_isBusy = std::move(isBusy); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void take(QtMsgType type, const QString &message);

    std::mutex m_mutex;
    bool m_isVerbose = false;
    std::function<bool()> m_isBusy;
    QStringList m_written;
    QtMessageHandler m_previous = nullptr;
};

/// Writes "kiv: " and the text as one line to standard error, with control characters
/// escaped.
void complain(const QString &text);
/// The same for a warning, with the names of items in place of those of their accounts.
void warn(const QString &text);

} // namespace kiv::app
