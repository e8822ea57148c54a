// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "networking/http_request_sender.h"
#include "networking/internal/url_rules.h"

#include "support/loopback_server.h"
#include "support/message_log.h"

using kiv::networking::HttpLimits;
using kiv::networking::HttpRequestSender;
using kiv::networking::RequestNumber;
using kiv::networking::Response;

Q_DECLARE_METATYPE(LoopbackServer::Behaviour)

namespace {

constexpr qint64 mebibyte = 1 << 20;
const QByteArray okHead = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n";

/// Follows "/3" to "/2" and so on, and answers "/0".
void countDown(QTcpSocket &socket, const QByteArray &path)
{
    const int left = path.mid(1).split('?').front().toInt();
    if (left == 0)
        LoopbackServer::answer("there")(socket, path);
    else
        LoopbackServer::redirect("/" + QByteArray::number(left - 1))(socket, path);
}

QByteArray compressed()
{
    return qCompress("{}").mid(4);
}

} // namespace

class tst_HttpRequestSender : public QObject {
    Q_OBJECT

private slots:
    void answersEveryServer_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        QTest::addColumn<QString>("path");
        QTest::addColumn<qint64>("bodySize");
        QTest::addColumn<QString>("failure");
        const qint64 none = -1;
        const auto row = [](const char *name, LoopbackServer::Behaviour behaviour, qint64 bodySize,
                            const QString &failure, const QString &path = QStringLiteral("/")) {
            QTest::newRow(name) << std::move(behaviour) << path << bodySize << failure;
        };
        const auto tooLarge = QStringLiteral("The reply is larger than 1048576 bytes.");
        const auto tooLate = QStringLiteral("The reply was not complete after 400 ms.");
        const auto failed = QStringLiteral("The transfer failed (%1).");
        const auto elsewhere = QStringLiteral(
            "The server redirected to another host or to a protocol that is not allowed.");
        const QByteArray full(mebibyte, ' ');

        row("complete", LoopbackServer::answer("{}"), 2, {});
        row("ends with the connection", LoopbackServer::raw(okHead + "\r\n{}"), 2, {});
        row("exactly the limit", LoopbackServer::answer(full), mebibyte, {});
        row("exactly the limit, no length", LoopbackServer::raw(okHead + "\r\n" + full), mebibyte,
            {});
        row("announces more",
            LoopbackServer::endless(okHead + "Content-Length: 1048577\r\n\r\n", {}), none,
            tooLarge);
        row("one byte more", LoopbackServer::raw(okHead + "\r\n " + full), none, tooLarge);
        row("endless", LoopbackServer::endless(okHead + "\r\n", QByteArray(100'000, ' ')), none,
            tooLarge);
        row("endless in chunks",
            LoopbackServer::endless(okHead + "Transfer-Encoding: chunked\r\n\r\n",
                                    "186a0\r\n" + QByteArray(100'000, ' ') + "\r\n"),
            none, tooLarge);
        row("endless head", LoopbackServer::endless("HTTP/1.1 200 OK\r\n", "A: b\r\n"), none,
            tooLate);
        row("trickles", LoopbackServer::endless(okHead + "\r\n", " ", 20), none, tooLate);
        row("silent", LoopbackServer::silence(), none, tooLate);
        row("truncated", LoopbackServer::raw(okHead + "Content-Length: 100\r\n\r\n{"), none,
            failed.arg(QStringLiteral("RemoteHostClosedError")));
        row("hangs up", LoopbackServer::raw({}), none,
            failed.arg(QStringLiteral("RemoteHostClosedError")));
        row("compressed",
            LoopbackServer::answer(compressed(), "application/json", "200 OK",
                                   "Content-Encoding: deflate\r\n"),
            none, QStringLiteral("The reply is compressed although that was not asked for."));
        row("no such document", LoopbackServer::answer("{}", "application/json", "404 Not Found"),
            none, QStringLiteral("The server answered with the status 404."));
        row("key refused", LoopbackServer::answer("{}", "application/json", "401 Unauthorized"),
            none, QStringLiteral("The server answered with the status 401."));
        row("part of the document",
            LoopbackServer::answer("{}", "application/json", "206 Partial Content"), none,
            QStringLiteral("The server answered with the status 206."));
        row("three redirects", countDown, 5, {}, QStringLiteral("/3"));
        row("four redirects", countDown, none,
            QStringLiteral("The server redirected more than 3 times."), QStringLiteral("/4"));
        row("to another name of the host", LoopbackServer::redirect("http://localhost/"), none,
            elsewhere);
        row("to another host", LoopbackServer::redirect("https://127.0.0.2/"), none, elsewhere);
        row("to a file", LoopbackServer::redirect("file:///etc/passwd"), none, elsewhere);
    }

    void answersEveryServer()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        QFETCH(const QString, path);
        QFETCH(const qint64, bodySize);
        QFETCH(const QString, failure);

        LoopbackServer server(behaviour);
        HttpLimits limits;
        const bool isSlow = failure.contains(QStringLiteral("400 ms"));
        limits.timeout = std::chrono::milliseconds(isSlow ? 400 : 30'000);
        HttpRequestSender sender(limits);
        QList<Response> responses;
        connect(&sender, &HttpRequestSender::answered, this,
                [&](RequestNumber, const Response &response) { responses.append(response); });
        {
            const MessageLog log;
            sender.send(1, server.url(path + QStringLiteral("?key=SECRET")));
            QVERIFY(responses.isEmpty());
            QTRY_COMPARE_WITH_TIMEOUT(responses.size(), 1, 30'000);
            QVERIFY(!log.text().contains(QStringLiteral("SECRET")));
        }
        const Response &response = responses.front();
        QCOMPARE(response.failure(), failure);
        QCOMPARE(response.isSuccess(), bodySize >= 0);
        QCOMPARE(response.body().size(), qMax(bodySize, qint64{0}));

        // Nothing goes on behind the answer, and what the server got rid of
        // beyond the limit is no more than the system's own buffers.
        QTRY_COMPARE(server.openConnections(), 0);
        QVERIFY2(server.bytesTaken() < 12 * mebibyte,
                 qPrintable(QString::number(server.bytesTaken())));
        QCOMPARE(responses.size(), 1);
    }

    void refusesAddressesWithoutASingleByte()
    {
        LoopbackServer server(LoopbackServer::answer("{}"));
        QUrl byName = server.url();
        byName.setHost(QStringLiteral("localhost"));
        HttpRequestSender sender;
        QList<Response> responses;
        connect(&sender, &HttpRequestSender::answered, this,
                [&](RequestNumber, const Response &response) { responses.append(response); });
        sender.send(1, byName);
        sender.send(2, QUrl());
        QTRY_COMPARE(responses.size(), 2);
        for (const Response &response : responses)
            QCOMPARE(response.failure(), QStringLiteral("Only HTTPS is allowed, and plain HTTP to "
                                                        "the loopback address."));
        QVERIFY(server.requests().isEmpty());
    }

    void requestsCarryNoCookies()
    {
        LoopbackServer server(LoopbackServer::answer("{}", "application/json", "200 OK",
                                                     "Set-Cookie: who=you; Path=/\r\n"));
        HttpRequestSender sender;
        QSignalSpy answered(&sender, &HttpRequestSender::answered);
        sender.send(1, server.url());
        QTRY_COMPARE(answered.size(), 1);
        sender.send(2, server.url());
        QTRY_COMPARE(answered.size(), 2);
        QCOMPARE(server.requests().size(), 2);
        QVERIFY(!server.requests().at(1).toLower().contains("cookie"));
    }

    void cancelledRequestsAreNotAnswered()
    {
        LoopbackServer server(LoopbackServer::silence());
        HttpLimits limits;
        limits.timeout = std::chrono::milliseconds(1'000);
        HttpRequestSender sender(limits);
        QSignalSpy answered(&sender, &HttpRequestSender::answered);
        sender.send(1, server.url());
        QTRY_COMPARE(server.requests().size(), 1);
        sender.cancel(1);
        sender.cancel(7);
        QTRY_COMPARE(server.openConnections(), 0);
        QTest::qWait(1'200);
        QCOMPARE(answered.size(), 0);
    }

    void knowsWhereItMayGo_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("isAllowed");
        QTest::newRow("same host") << "https://a.example/x"
                                   << "https://a.example/y" << true;
        QTest::newRow("case of the host") << "https://a.example/"
                                          << "https://A.EXAMPLE/" << true;
        QTest::newRow("other port") << "https://a.example/"
                                    << "https://a.example:8443/" << true;
        QTest::newRow("other host") << "https://a.example/"
                                    << "https://b.example/" << false;
        QTest::newRow("subdomain") << "https://a.example/"
                                   << "https://b.a.example/" << false;
        QTest::newRow("down to HTTP") << "https://a.example/"
                                      << "http://a.example/" << false;
        QTest::newRow("down to HTTP, loopback") << "https://127.0.0.1/"
                                                << "http://127.0.0.1/" << false;
        QTest::newRow("loopback") << "http://127.0.0.1:80/"
                                  << "http://127.0.0.1:81/" << true;
        QTest::newRow("loopback, 6") << "http://[::1]/"
                                     << "http://[::1]/x" << true;
        QTest::newRow("up to HTTPS") << "http://127.0.0.1/"
                                     << "https://127.0.0.1/" << true;
        QTest::newRow("HTTP to a name") << "http://localhost/"
                                        << "http://localhost/x" << false;
        QTest::newRow("FTP") << "https://a.example/"
                             << "ftp://a.example/" << false;
        QTest::newRow("no host") << "https:///x"
                                 << "https:///y" << false;
    }

    void knowsWhereItMayGo()
    {
        QFETCH(const QString, from);
        QFETCH(const QString, to);
        QFETCH(const bool, isAllowed);
        QCOMPARE(kiv::networking::internal::isRedirectAllowed(QUrl(from), QUrl(to)), isAllowed);
    }
};

QTEST_GUILESS_MAIN(tst_HttpRequestSender)
#include "tst_http_request_sender.moc"
