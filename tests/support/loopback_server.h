// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/loopback_certificate.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QTcpSocket>

#include <functional>
#include <memory>

/// A server on the loopback address that answers every request as a test tells
/// it to, well or badly.
class LoopbackServer {
public:
    /// Gets the connection, whose request was read, and the requested path
    /// with its query.
    using Behaviour = std::function<void(QTcpSocket &, const QByteArray &path)>;

    enum class Protocol { Http, Https };

    explicit LoopbackServer(Behaviour behaviour, Protocol protocol = Protocol::Http)
        : m_behaviour(std::move(behaviour)),
          m_protocol(protocol),
          m_server(protocol == Protocol::Http ? std::make_unique<QTcpServer>() : encrypted())
    {
        QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                         [this] {
                             while (QTcpSocket *socket = m_server->nextPendingConnection())
                                 serve(*socket);
                         });
        m_server->listen(QHostAddress::LocalHost);
    }

    [[nodiscard]] QUrl url(const QString &pathAndQuery = QStringLiteral("/")) const
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2%3")
                        .arg(m_protocol == Protocol::Http ? QStringLiteral("http")
                                                          : QStringLiteral("https"),
                             QString::number(m_server->serverPort()), pathAndQuery));
    }
    [[nodiscard]] const QList<QByteArray> &requests() const { return m_requests; }
    /// What all connections together took of the answers.
    [[nodiscard]] qint64 bytesTaken() const { return m_bytesTaken; }
    [[nodiscard]] int openConnections() const { return m_openConnections; }

    [[nodiscard]] static Behaviour answer(const QByteArray &body,
                                          const QByteArray &type = "application/json",
                                          const QByteArray &status = "200 OK",
                                          const QByteArray &moreHeaders = {})
    {
        return raw("HTTP/1.1 " + status + "\r\nContent-Type: " + type + "\r\nContent-Length: " +
                   QByteArray::number(body.size()) + "\r\n" + moreHeaders + "\r\n" + body);
    }
    /// These bytes and the end of the connection.
    [[nodiscard]] static Behaviour raw(const QByteArray &bytes)
    {
        return [bytes](QTcpSocket &socket, const QByteArray &) {
            socket.write(bytes);
            socket.disconnectFromHost();
        };
    }
    /// The head, then the piece again and again for as long as it is taken.
    [[nodiscard]] static Behaviour endless(const QByteArray &head, const QByteArray &piece,
                                           int everyMs = 0)
    {
        return [=](QTcpSocket &socket, const QByteArray &) {
            socket.write(head);
            auto *timer = new QTimer(&socket);
            QObject::connect(timer, &QTimer::timeout, &socket, [&socket, piece] {
                if (socket.isOpen() && socket.bytesToWrite() == 0)
                    socket.write(piece);
            });
            timer->start(everyMs);
        };
    }
    [[nodiscard]] static Behaviour silence()
    {
        return [](QTcpSocket &, const QByteArray &) {};
    }
    [[nodiscard]] static Behaviour redirect(const QByteArray &target)
    {
        return answer({}, "text/plain", "302 Found", "Location: " + target + "\r\n");
    }

private:
    static std::unique_ptr<QTcpServer> encrypted()
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(loopbackCertificate());
        configuration.setPrivateKey(loopbackKey());
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(configuration);
        return server;
    }

    void serve(QTcpSocket &socket)
    {
        ++m_openConnections;
        QObject::connect(&socket, &QTcpSocket::disconnected, m_server.get(), [this, &socket] {
            --m_openConnections;
            socket.deleteLater();
        });
        QObject::connect(&socket, &QTcpSocket::bytesWritten, m_server.get(),
                         [this](qint64 bytes) { m_bytesTaken += bytes; });
        auto head = std::make_shared<QByteArray>();
        QObject::connect(&socket, &QTcpSocket::readyRead, m_server.get(), [this, &socket, head] {
            *head += socket.readAll();
            if (!head->endsWith("\r\n\r\n"))
                return;
            m_requests.append(*head);
            m_behaviour(socket, head->split(' ').value(1));
            head->clear();
        });
    }

    Behaviour m_behaviour;
    Protocol m_protocol;
    std::unique_ptr<QTcpServer> m_server;
    QList<QByteArray> m_requests;
    qint64 m_bytesTaken = 0;
    int m_openConnections = 0;
};
