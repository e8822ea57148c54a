// SPDX-License-Identifier: GPL-3.0-or-later
#include "http/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::http::internal {

QString addressNotAllowed()
{
    return QObject::tr("Only HTTPS is allowed, and plain HTTP to the loopback address.");
}

QString redirectNotAllowed()
{
    return QObject::tr("The server redirected to another host or to a protocol that is not "
                       "allowed.");
}

QString tooManyRedirects(int redirectsMax)
{
    return QObject::tr("The server redirected more than %1 times.").arg(redirectsMax);
}

QString timedOut(qint64 milliseconds)
{
    return QObject::tr("The reply was not complete after %1 ms.").arg(milliseconds);
}

QString bodyTooLarge(qint64 bytesMax)
{
    return QObject::tr("The reply is larger than %1 bytes.").arg(bytesMax);
}

QString statusNotOk(int status)
{
    return QObject::tr("The server answered with the status %1.").arg(status);
}

QString contentEncoded()
{
    return QObject::tr("The reply is compressed, which was not requested.");
}

QString transferFailed(const QString &error)
{
    return QObject::tr("The transfer failed (%1).").arg(error);
}

} // namespace kiv::http::internal
