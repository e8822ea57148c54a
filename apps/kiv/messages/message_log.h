// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

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

    /// While `isBusy` says so, warnings are not written, since the answer to the
    /// request says the same to the user.
    void setMutedWhile(std::function<bool()> isBusy) { m_isBusy = std::move(isBusy); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void take(QtMsgType type, const QString &message);

    bool m_isVerbose = false;
    std::function<bool()> m_isBusy;
    QStringList m_written;
    QtMessageHandler m_previous = nullptr;
};

/// Writes "kiv: " and the text as one line to standard error, with nothing in it
/// that a terminal would obey.
void complain(const QString &text);

} // namespace kiv::app
