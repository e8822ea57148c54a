// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/message_log.h"

#include "workbench/entry/account_index.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <cstdio>

namespace kiv::app {
namespace {
MessageLog *current = nullptr;
}

MessageLog::MessageLog()
{
    current = this;
    m_previous = qInstallMessageHandler(handle);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    current = nullptr;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (current)
        current->take(type, message);
}

void MessageLog::take(QtMsgType type, const QString &message)
{
    const std::lock_guard lock(m_mutex);
    const bool isWarning = type != QtDebugMsg && type != QtInfoMsg;
    const bool isMuted = m_isBusy && m_isBusy();
    const bool isNews = isWarning && !isMuted && !m_written.contains(message);
    if (!m_isVerbose && !isNews)
        return;
    m_written += message;
    isWarning ? warn(message) : complain(message);
}

void complain(const QString &text)
{
    const std::string line = "kiv: " + foundation::escapedUtf8(text) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void warn(const QString &text)
{
    complain(QObject::tr("warning: %1").arg(workbench::inPlainWords(text)));
}

} // namespace kiv::app
