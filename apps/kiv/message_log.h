// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kiv::app {

/// Takes over the program's log while it lives: warnings about the budget reach
/// the user once each, on standard error; progress only when it was asked for.
/// There is one at a time.
class MessageLog {
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    /// Everything is written, as it comes.
    void setVerbose(bool isVerbose) noexcept { m_isVerbose = isVerbose; }

    /// While it lives, warnings are kept instead of written, since the answer
    /// to the request says the same to the user.
    class Muted {
    public:
        explicit Muted(MessageLog &log);
        ~Muted();
        Muted(const Muted &) = delete;
        Muted &operator=(const Muted &) = delete;

    private:
        MessageLog &m_log;
    };

    /// The last warning that was kept.
    [[nodiscard]] const QString &lastKept() const noexcept { return m_lastKept; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void take(QtMsgType type, const QString &message);

    bool m_isVerbose = false;
    int m_muted = 0;
    QString m_lastKept;
    QStringList m_written;
    QtMessageHandler m_previous = nullptr;
};

/// What a warning of the log tells behind its sentence; nothing of one that
/// begins with another sentence.
[[nodiscard]] QString reasonIn(const QString &warning, const QString &sentence);

/// Writes "kiv: " and the text as one line to standard error, with nothing in it
/// that a terminal would obey.
void complain(const QString &text);

} // namespace kiv::app
