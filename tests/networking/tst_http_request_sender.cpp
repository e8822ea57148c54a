// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "http/internal/url_rules.h"
#include "networking/http_request_sender.h"
#include "networking/internal/http_transport.h"

#include "support/loopback_server.h"
#include "support/message_log.h"

using kiv::networking::HttpLimits;
using kiv::networking::HttpRequestSender;
using kiv::networking::RequestNumber;
using kiv::networking::Response;
using namespace Qt::StringLiterals;

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

} // namespace

class tst_HttpRequestSender : public QObject {
    Q_OBJECT

private slots:
    void answersEveryServer_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("outcome"); // the body's size or the failure
        const auto row = [](const char *name, LoopbackServer::Behaviour behaviour,
                            const QString &outcome, const QString &path = u"/"_s) {
            QTest::newRow(name) << std::move(behaviour) << path << outcome;
        };
        using Server = LoopbackServer;
        const auto tooLarge = u"The reply is larger than 1048576 bytes."_s;
        const auto tooLate = u"The reply was not complete after 400 ms."_s;
        const auto closed = u"The transfer failed (RemoteHostClosedError)."_s;
        const auto status = u"The server answered with the status %1."_s;
        const auto elsewhere = u"The server redirected to another host or to a protocol that is "
                               "not allowed."_s;
        const QByteArray full(mebibyte, ' ');
        const QByteArray piece(100'000, ' ');

        row("complete", Server::answer("{}"), u"2"_s);
        row("ends with the connection", Server::raw(okHead + "\r\n{}"), u"2"_s);
        row("exactly the limit", Server::answer(full), u"1048576"_s);
        row("exactly the limit, no length", Server::raw(okHead + "\r\n" + full), u"1048576"_s);
        row("announces more", Server::endless(okHead + "Content-Length: 1048577\r\n\r\n", {}),
            tooLarge);
        row("one byte more", Server::raw(okHead + "\r\n " + full), tooLarge);
        row("endless", Server::endless(okHead + "\r\n", piece), tooLarge);
        row("endless in chunks",
            Server::endless(okHead + "Transfer-Encoding: chunked\r\n\r\n",
                            "186a0\r\n" + piece + "\r\n"),
            tooLarge);
        row("endless head", Server::endless("HTTP/1.1 200 OK\r\n", "A: b\r\n", 1), tooLate);
        row("trickles", Server::endless(okHead + "\r\n", " ", 20), tooLate);
        row("silent", Server::silence(), tooLate);
        row("truncated", Server::raw(okHead + "Content-Length: 100\r\n\r\n{"), closed);
        row("hangs up", Server::raw({}), closed);
        row("compressed", Server::answer("{}", "a/b", "200 OK", "Content-Encoding: deflate\r\n"),
            u"The reply is compressed although that was not asked for."_s);
        row("refuses the key", Server::answer("{}", "a/b", "401 Unauthorized"), status.arg(401));
        row("part", Server::answer("{}", "a/b", "206 Partial Content"), status.arg(206));
        row("three redirects", countDown, u"5"_s, u"/3"_s);
        row("four", countDown, u"The server redirected more than 3 times."_s, u"/4"_s);
        row("to another name of the host", Server::redirect("http://localhost/"), elsewhere);
        row("to another host", Server::redirect("https://127.0.0.2/"), elsewhere);
        row("to a file", Server::redirect("file:///etc/passwd"), elsewhere);
    }

    void answersEveryServer()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        QFETCH(const QString, path);
        QFETCH(const QString, outcome);

        LoopbackServer server(behaviour);
        HttpLimits limits;
        limits.timeout = std::chrono::milliseconds(outcome.contains(u"400 ms"_s) ? 400 : 30'000);
        HttpRequestSender sender(limits);
        QList<Response> responses;
        connect(&sender, &HttpRequestSender::answered, this,
                [&](RequestNumber, const Response &response) { responses.append(response); });
        const MessageLog log;
        sender.send(1, server.url(path + u"?key=SECRET"_s));
        QVERIFY(responses.isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(responses.size(), 1, 30'000);
        const Response &response = responses.front();
        QCOMPARE(response.isSuccess() ? QString::number(response.body().size())
                                      : response.failure(),
                 outcome);
        // Nothing goes on behind the answer, and what the server got rid of
        // beyond the limit is no more than the system's own buffers.
        QTRY_COMPARE_WITH_TIMEOUT(server.openConnections(), 0, 30'000);
        QVERIFY(server.bytesTaken() < 12 * mebibyte);
        QCOMPARE(responses.size(), 1);
        QVERIFY(!log.text().contains(u"SECRET"_s));
    }

    void refusesAddressesWithoutASingleByte()
    {
        LoopbackServer server(LoopbackServer::answer("{}"));
        QUrl byName = server.url();
        byName.setHost(QStringLiteral("localhost"));
        HttpRequestSender sender;
        QSignalSpy answered(&sender, &HttpRequestSender::answered);
        sender.send(1, byName);
        sender.send(2, QUrl());
        QTRY_COMPARE(answered.size(), 2);
        for (const auto &arguments : answered) {
            QCOMPARE(arguments.at(1).value<Response>().failure(),
                     u"Only HTTPS is allowed, and plain HTTP to the loopback address."_s);
        }
        QVERIFY(server.requests().isEmpty());
    }

    void encryptedServersAreTrustedByTheirCertificateAndNotLeftForPlainHttp()
    {
        using Server = LoopbackServer;
        LoopbackServer plain(Server::answer("{}"));
        LoopbackServer good(Server::answer("{}"), Server::Protocol::Https);
        LoopbackServer leading(Server::redirect(plain.url().toEncoded()), Server::Protocol::Https);
        const auto outcome = [](const QUrl &url) {
            HttpRequestSender sender;
            QSignalSpy answered(&sender, &HttpRequestSender::answered);
            sender.send(1, url);
            if (answered.isEmpty() && !answered.wait(30'000))
                return u"no answer"_s;
            const auto response = answered.front().at(1).value<Response>();
            return response.isSuccess() ? QString::fromUtf8(response.body()) : response.failure();
        };
        QCOMPARE(outcome(good.url()), u"The transfer failed (SslHandshakeFailedError)."_s);
        QVERIFY(good.requests().isEmpty());
        const LoopbackTrust trust;
        QCOMPARE(outcome(good.url()), u"{}"_s);
        QCOMPARE(outcome(leading.url()), u"The server redirected to another host or to a protocol "
                                         "that is not allowed."_s);
        QVERIFY(leading.requests().size() == 1 && plain.requests().isEmpty());
    }

    void requestsFailWhenWhatSpeaksHttpIsMissing()
    {
        const auto transport = kiv::networking::internal::loadHttpTransport({}, "libkiv-none.so.1");
        QStringList failures;
        const auto note = [&](const Response &response) { failures << response.failure(); };
        transport->start(1, QUrl(), note);
        transport->start(2, QUrl(), note);
        transport->cancel(1);
        QVERIFY(failures.isEmpty());
        QTRY_COMPARE(failures.size(), 1);
        QVERIFY2(failures.front().startsWith(u"Nothing can be fetched: libkiv-none.so.1: "_s),
                 qPrintable(failures.front()));
        // One that is there and cannot be loaded says what is wrong with it.
        const auto broken = kiv::networking::internal::loadHttpTransport({}, "../CMakeCache.txt");
        broken->start(3, QUrl(), note);
        QTRY_COMPARE(failures.size(), 2);
        QVERIFY2(failures.back().contains(u"invalid ELF header"_s), qPrintable(failures.back()));
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
        QVERIFY(server.requests().at(1).contains("User-Agent: kiv/" KIV_VERSION "\r"));
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
        QTRY_COMPARE_WITH_TIMEOUT(server.openConnections(), 0, 30'000);
        QTest::qWait(1'200);
        QCOMPARE(answered.size(), 0);
    }

    void knowsWhereItMayGo()
    {
        using kiv::http::internal::isRedirectAllowed;
        const auto may = [](const char *from, const char *to) {
            return isRedirectAllowed(QUrl(QString::fromLatin1(from)),
                                     QUrl(QString::fromLatin1(to)));
        };
        QVERIFY(may("https://a.example/x", "https://A.EXAMPLE/y"));
        QVERIFY(may("https://a.example/", "https://a.example:443/"));
        QVERIFY(may("http://[::1]/", "https://[::1]/x"));
        QVERIFY(!may("https://a.example/", "https://a.example:8443/"));
        QVERIFY(!may("http://127.0.0.1:80/", "http://127.0.0.1:81/"));
        QVERIFY(!may("https://a.example/", "https://b.a.example/"));
        QVERIFY(!may("https://a.example/", "http://a.example/"));
        QVERIFY(!may("https://127.0.0.1/", "http://127.0.0.1/"));
        QVERIFY(!may("http://localhost/", "http://localhost/x"));
        QVERIFY(!may("https://a.example/", "ftp://a.example/"));
        QVERIFY(!may("https:///x", "https:///y"));
    }
};

static const kiv::test::Suite<tst_HttpRequestSender> suite;
#include "tst_http_request_sender.moc"
