// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/errors.h"

namespace kiv::networking {

ReplyError::~ReplyError() = default;

namespace internal {

QString managerDestroyed()
{
    return QStringLiteral("The request manager was destroyed before the answer came.");
}

QString noSender()
{
    return QStringLiteral("There is nothing to send requests with.");
}

QString addressNotAllowed()
{
    return QStringLiteral("Only HTTPS is allowed, and plain HTTP to the loopback address.");
}

QString redirectNotAllowed()
{
    return QStringLiteral("The server redirected to another host or to a protocol that is not "
                          "allowed.");
}

QString tooManyRedirects(int redirectsMax)
{
    return QStringLiteral("The server redirected more than %1 times.").arg(redirectsMax);
}

QString timedOut(qint64 milliseconds)
{
    return QStringLiteral("The reply was not complete after %1 ms.").arg(milliseconds);
}

QString bodyTooLarge(qint64 bytesMax)
{
    return QStringLiteral("The reply is larger than %1 bytes.").arg(bytesMax);
}

QString statusNotOk(int status)
{
    return QStringLiteral("The server answered with the status %1.").arg(status);
}

QString contentEncoded()
{
    return QStringLiteral("The reply is compressed although that was not asked for.");
}

QString transferFailed(const QString &error)
{
    return QStringLiteral("The transfer failed (%1).").arg(error);
}

ReplyError requestFailed(const QString &reason)
{
    return ReplyError(reason);
}

ReplyError notJsonType(const QString &contentType)
{
    return ReplyError(QStringLiteral("The reply's type is '%1' and not JSON.").arg(contentType));
}

ReplyError notJson(const QString &reason, int offset)
{
    return ReplyError(QStringLiteral("The reply is not JSON: %1 at byte %2.")
                          .arg(reason, QString::number(offset)));
}

ReplyError duplicateMembers()
{
    return ReplyError(QStringLiteral("The reply names a member twice."));
}

} // namespace internal

} // namespace kiv::networking
