// SPDX-License-Identifier: GPL-3.0-or-later
#include "http/internal/http_exchange.h"

#include "http/internal/faults.h"
#include "http/internal/url_rules.h"

#include <QtCore/QMetaEnum>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

namespace kiv::http::internal {

using networking::HttpLimits;
using networking::Response;

namespace {

/// What Qt may hold of a body before we take it.
constexpr qint64 readBufferSize = qint64{64} * 1024;
constexpr int statusOk = 200;

QNetworkRequest makeRequest(const QUrl &url)
{
    QNetworkRequest request(url);
    // Redirects are followed here, where their number and targets are checked.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("kiv/" KIV_VERSION));
    request.setRawHeader("Accept", "application/json");
    // Otherwise Qt asks for compression and unpacks it before the limit counts.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isRedirect(int status)
{
    return QList{301, 302, 303, 307, 308}.contains(status);
}

/// The error's name; Qt's own sentence would hold the whole address.
QString nameOf(QNetworkReply::NetworkError error)
{
    return QString::fromLatin1(
        QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(error));
}

} // namespace

HttpExchange::HttpExchange(QNetworkAccessManager &network, const HttpLimits &limits)
    : m_network(network), m_limits(limits)
{
    // Qt's own time-out starts anew with every byte, so that a server which
    // trickles could keep us for ever.
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(m_limits.timeout);
    m_deadline.callOnTimeout(
        this, [this] { finish(Response::failed(timedOut(m_limits.timeout.count()))); });
}

HttpExchange::~HttpExchange()
{
    dropReply();
}

void HttpExchange::start(const QUrl &url)
{
    if (!isAllowed(url)) {
        QMetaObject::invokeMethod(
            this, [this] { finish(Response::failed(addressNotAllowed())); }, Qt::QueuedConnection);
        return;
    }
    m_deadline.start();
    request(url);
}

void HttpExchange::request(const QUrl &url)
{
    dropReply();
    m_body.clear();
    m_reply = m_network.get(makeRequest(url));
    m_reply->setReadBufferSize(readBufferSize);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpExchange::onMetaDataChanged);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::onReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::onReplyFinished);
}

void HttpExchange::onMetaDataChanged()
{
    if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.bodyMax)
        finish(Response::failed(bodyTooLarge(m_limits.bodyMax)));
}

void HttpExchange::onReadyRead()
{
    m_body += m_reply->read(m_limits.bodyMax - m_body.size());
    if (m_reply->bytesAvailable() > 0)
        finish(Response::failed(bodyTooLarge(m_limits.bodyMax)));
}

void HttpExchange::onReplyFinished()
{
    if (m_reply->bytesAvailable() > 0)
        onReadyRead();
    if (!m_reply)
        return;
    const int status = statusOf(*m_reply);
    if (isRedirect(status))
        followRedirect();
    else if (status != 0 && status != statusOk)
        finish(Response::failed(statusNotOk(status)));
    else if (m_reply->error() != QNetworkReply::NoError)
        finish(Response::failed(transferFailed(nameOf(m_reply->error()))));
    else if (m_reply->hasRawHeader("Content-Encoding"))
        finish(Response::failed(contentEncoded()));
    else
        finish(Response::succeeded(m_body,
                                   m_reply->header(QNetworkRequest::ContentTypeHeader).toString()));
}

void HttpExchange::followRedirect()
{
    const QUrl from = m_reply->url();
    const QUrl to =
        from.resolved(m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl());
    if (m_redirects == m_limits.redirectsMax)
        finish(Response::failed(tooManyRedirects(m_limits.redirectsMax)));
    else if (!isRedirectAllowed(from, to))
        finish(Response::failed(redirectNotAllowed()));
    else {
        ++m_redirects;
        request(to);
    }
}

void HttpExchange::finish(const Response &response)
{
    m_deadline.stop();
    dropReply();
    emit finished(response);
}

void HttpExchange::dropReply()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}

} // namespace kiv::http::internal
