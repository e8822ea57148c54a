// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/http_request_sender.h"
#include "networking/response.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtCore/QUrl>

QT_BEGIN_NAMESPACE
class QNetworkAccessManager;
class QNetworkReply;
QT_END_NAMESPACE

namespace kiv::http::internal {

/// One request over HTTP with all its redirects, within the limits. Destroying
/// it gives the request up.
class HttpExchange final : public QObject {
    Q_OBJECT
public:
    HttpExchange(QNetworkAccessManager &network, const networking::HttpLimits &limits);
    ~HttpExchange() override;

    /// Begins; `finished` follows once, later.
    void start(const QUrl &url);

Q_SIGNALS:
    void finished(kiv::networking::Response response);

private:
    void request(const QUrl &url);
    void onMetaDataChanged();
    void onReadyRead();
    void onReplyFinished();
    void followRedirect();
    void finish(const networking::Response &response);
    void dropReply();

    QNetworkAccessManager &m_network;
    networking::HttpLimits m_limits;
    QNetworkReply *m_reply = nullptr;
    QTimer m_deadline;
    QByteArray m_body;
    int m_redirects = 0;
};

} // namespace kiv::http::internal
