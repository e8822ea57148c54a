// SPDX-License-Identifier: GPL-3.0-or-later
#include "message_log.h"

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

MessageLog::Muted::Muted(MessageLog &log) : m_log(log)
{
    ++m_log.m_muted;
    m_log.m_lastKept.clear();
}

MessageLog::Muted::~Muted()
{
    --m_log.m_muted;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (current)
        current->take(type, message);
}

void MessageLog::take(QtMsgType type, const QString &message)
{
    const bool isWarning = type != QtDebugMsg && type != QtInfoMsg;
    if (isWarning && m_muted > 0)
        m_lastKept = message;
    const bool isNews = isWarning && m_muted == 0 && !m_written.contains(message);
    if (!m_isVerbose && !isNews)
        return;
    m_written += message;
    complain(isWarning ? QObject::tr("warning: %1").arg(message) : message);
}

QString reasonIn(const QString &warning, const QString &sentence)
{
    return warning.startsWith(sentence) ? warning.mid(sentence.size()).trimmed() : QString();
}

void complain(const QString &text)
{
    QString told = text;
    told.replace(QStringLiteral(" Caused by: "), QObject::tr(" Caused by: "));
    const std::string line = "kiv: " + foundation::escapedUtf8(told) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace kiv::app
