// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/// Keeps what is logged while it lives, instead of printing it.
class MessageLog {
public:
    MessageLog() : m_outer(current()), m_handler(qInstallMessageHandler(&MessageLog::keep))
    {
        current() = this;
    }
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;
    ~MessageLog()
    {
        qInstallMessageHandler(m_handler);
        current() = m_outer;
    }

    [[nodiscard]] const QStringList &warnings() const { return m_warnings; }
    [[nodiscard]] const QStringList &debugs() const { return m_debugs; }
    /// Everything, of every level.
    [[nodiscard]] QString text() const { return m_all.join(u'\n'); }

private:
    static MessageLog *&current()
    {
        static MessageLog *log = nullptr;
        return log;
    }
    static void keep(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        MessageLog &log = *current();
        log.m_all.append(message);
        if (type == QtWarningMsg)
            log.m_warnings.append(message);
        else if (type == QtDebugMsg)
            log.m_debugs.append(message);
    }

    MessageLog *m_outer;
    QtMessageHandler m_handler;
    QStringList m_all;
    QStringList m_warnings;
    QStringList m_debugs;
};
