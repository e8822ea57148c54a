// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "http/internal/url_rules.h"
#include "networking/errors.h"
#include "networking/http_request_sender.h"
#include "networking/internal/http_transport.h"
#include "networking/json_reply.h"
#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/loopback_server.h"
#include "support/message_log.h"
#include "support/refusal.h"

using namespace kiv::networking;

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

/// What becomes of the request: the body, or the failure.
QString outcome(HttpRequestSender &sender, const QUrl &url)
{
    QSignalSpy answered(&sender, &HttpRequestSender::answered);
    sender.send(1, url);
    // Never at once.
    if (!answered.isEmpty() || !answered.wait(30'000))
        return u"no answer, or too early"_s;
    const auto response = answered.front().at(1).value<Response>();
    return response.isSuccess() ? QString::fromUtf8(response.body()) : response.failure();
}

/// Answers when it is told to, in any order.
class ManualSender final : public kiv::networking::RequestSender {
public:
    void send(RequestNumber request, const QUrl &) override { requests.append(request); }
    void cancel(RequestNumber request) override { cancelled.append(request); }
    void answer(qsizetype index, const QString &type)
    {
        emit answered(requests.at(index), Response::succeeded("{}", type));
    }

    QList<RequestNumber> requests;
    QList<RequestNumber> cancelled;
};

} // namespace

class tst_Networking : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_answers.clear();
        m_sender = new ManualSender;
        m_manager =
            std::make_unique<RequestManager>(std::unique_ptr<ManualSender>(m_sender), nullptr);
        m_first = std::make_unique<QObject>();
        m_second = std::make_unique<QObject>();
    }

    void answersEveryServer()
    {
        using Server = LoopbackServer;
        const auto tooLarge = u"The reply is larger than 1048576 bytes."_s;
        const auto tooLate = u"The reply was not complete after 400 ms."_s;
        const auto closed = u"The transfer failed (RemoteHostClosedError)."_s;
        const auto status = u"The server answered with the status %1."_s;
        const auto compressed = u"The reply is compressed, which was not requested."_s;
        const auto elsewhere = u"The server redirected to another host or to a protocol that is "
                               "not allowed."_s;
        const QByteArray full(mebibyte, ' ');
        const QByteArray piece(100'000, ' ');
        struct Row {
            Server::Behaviour behaviour;
            QString outcome; ///< the body or the failure
            QString path = u"/"_s;
        };
        for (const auto &[behaviour, expected, path] : std::initializer_list<Row>{
                 {Server::answer("{}"), u"{}"_s},
                 {Server::raw(okHead + "\r\n{}"), u"{}"_s}, // ends with the connection
                 {Server::answer(full), QString::fromLatin1(full)},
                 {Server::raw(okHead + "\r\n" + full), QString::fromLatin1(full)},
                 {Server::endless(okHead + "Content-Length: 1048577\r\n\r\n", {}), tooLarge},
                 {Server::raw(okHead + "\r\n " + full), tooLarge},
                 {Server::endless(okHead + "\r\n", piece), tooLarge},
                 {Server::endless(okHead + "Transfer-Encoding: chunked\r\n\r\n",
                                  "186a0\r\n" + piece + "\r\n"),
                  tooLarge},
                 {Server::endless("HTTP/1.1 200 OK\r\n", "A: b\r\n", 1), tooLate},
                 {Server::endless(okHead + "\r\n", " ", 20), tooLate},
                 {Server::silence(), tooLate},
                 {Server::raw(okHead + "Content-Length: 100\r\n\r\n{"), closed},
                 {Server::raw({}), closed},
                 {Server::answer("{}", "a/b", "200 OK", "Content-Encoding: deflate\r\n"),
                  compressed},
                 {Server::answer("{}", "a/b", "401 Unauthorized"), status.arg(401)},
                 {Server::answer("{}", "a/b", "206 Partial Content"), status.arg(206)},
                 {countDown, u"there"_s, u"/3"_s},
                 {countDown, u"The server redirected more than 3 times."_s, u"/4"_s},
                 {Server::redirect("http://localhost/"), elsewhere},
                 {Server::redirect("https://127.0.0.2/"), elsewhere},
                 {Server::redirect("file:///etc/passwd"), elsewhere}}) {
            Server server(behaviour);
            HttpLimits limits;
            limits.timeout = std::chrono::milliseconds(expected == tooLate ? 400 : 30'000);
            HttpRequestSender sender(limits);
            QSignalSpy answered(&sender, &HttpRequestSender::answered);
            const MessageLog log;
            const QString seen = outcome(sender, server.url(path + u"?key=SECRET"_s));
            QVERIFY2(seen == expected, qPrintable(seen.left(99) + u" for "_s + expected.left(99)));
            // Nothing goes on behind the answer, and what the server got rid of
            // beyond the limit is no more than the system's own buffers.
            QTRY_COMPARE_WITH_TIMEOUT(server.openConnections(), 0, 30'000);
            QVERIFY(server.bytesTaken() < 12 * mebibyte);
            QCOMPARE(answered.size(), 1);
            QVERIFY(!log.text().contains(u"SECRET"_s));
        }
    }

    void refusesAddressesWithoutASingleByte()
    {
        LoopbackServer server(LoopbackServer::answer("{}"));
        QUrl byName = server.url();
        byName.setHost(QStringLiteral("localhost"));
        HttpRequestSender sender;
        for (const QUrl &url : {byName, QUrl()}) {
            QCOMPARE(outcome(sender, url),
                     u"Only HTTPS is allowed, and plain HTTP to the loopback address."_s);
        }
        QVERIFY(server.requests().isEmpty());
    }

    void encryptedServersAreTrustedByTheirCertificateAndNotLeftForPlainHttp()
    {
        using Server = LoopbackServer;
        Server plain(Server::answer("{}"));
        Server good(Server::answer("{}"), Server::Protocol::Https);
        Server leading(Server::redirect(plain.url().toEncoded()), Server::Protocol::Https);
        HttpRequestSender doubting;
        QCOMPARE(outcome(doubting, good.url()),
                 u"The transfer failed (SslHandshakeFailedError)."_s);
        QVERIFY(good.requests().isEmpty());
        const LoopbackTrust trust;
        HttpRequestSender sender;
        QCOMPARE(outcome(sender, good.url()), u"{}"_s);
        QVERIFY(outcome(sender, leading.url()).startsWith(u"The server redirected to another"_s));
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
        QVERIFY2(failures.front().startsWith(u"Cannot load the HTTP library: libkiv-none.so.1: "_s),
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
        for (int time = 0; time < 2; ++time)
            QCOMPARE(outcome(sender, server.url()), u"{}"_s);
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
        for (const auto &[from, to, isAllowed] :
             {std::tuple("https://a.example/x", "https://A.EXAMPLE/y", true),
              {"https://a.example/", "https://a.example:443/", true},
              {"http://[::1]/", "https://[::1]/x", true},
              {"https://a.example/", "https://a.example:8443/", false},
              {"http://127.0.0.1:80/", "http://127.0.0.1:81/", false},
              {"https://a.example/", "https://b.a.example/", false},
              {"https://a.example/", "http://a.example/", false},
              {"https://127.0.0.1/", "http://127.0.0.1/", false},
              {"http://localhost/", "http://localhost/x", false},
              {"https://a.example/", "ftp://a.example/", false},
              {"https:///x", "https:///y", false}})
            QCOMPARE(
                isRedirectAllowed(QUrl(QString::fromLatin1(from)), QUrl(QString::fromLatin1(to))),
                isAllowed);
    }

    void everyUserGetsItsOwnAnswerOnceAndLater()
    {
        get(*m_first, u"first "_s);
        get(*m_second, u"second "_s);
        get(*m_first, u"third "_s);
        for (const auto &[index, type] : {std::pair(2, u"3"_s), {1, u"2"_s}, {1, u"again"_s}})
            m_sender->answer(index, type);
        emit m_sender->answered(4711, Response::succeeded("{}", u"unasked"_s));
        emit m_sender->answered(m_sender->requests.front(), Response::failed(u"bad"_s));
        QVERIFY(m_answers.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(m_answers, (QStringList{u"third 3"_s, u"second 2"_s, u"first bad"_s}));
    }

    void destroyedUsersAreForgottenAndTheirRequestsCancelled()
    {
        get(*m_first, u"first "_s);
        get(*m_second, u"second "_s);
        // One is answered, but destroyed before the answer is given.
        m_sender->answer(0, u"late"_s);
        m_first.reset();
        m_sender->answer(1, u"2"_s);
        QCoreApplication::processEvents();
        QCOMPARE(m_answers, QStringList{u"second 2"_s});
        QCOMPARE(m_sender->cancelled, QList{m_sender->requests.front()});
    }

    void aUserMayDestroyTheManagerWhichAnswersTheOthers()
    {
        m_manager->get(anywhere(), *m_first, [this](const Response &) { m_manager.reset(); });
        get(*m_second, u"second "_s);
        m_sender->answer(0, {});
        QCoreApplication::processEvents();
        QVERIFY(!m_manager);
        QCOMPARE(m_answers, QStringList{u"second "_s + gone()});
    }

    void whoeverIsAnsweredAtTheEndMayDestroyOthersAndAskAgain()
    {
        auto *manager = m_manager.get();
        manager->get(anywhere(), *m_first, [this, manager](const Response &response) {
            m_answers.append(response.failure());
            m_second.reset();
            manager->get(anywhere(), *m_first, keep(u"again: "_s));
        });
        get(*m_second, u"second "_s);
        m_manager.reset();
        QCOMPARE(m_answers, QStringList{gone()});
        QCoreApplication::processEvents();
        QCOMPARE(m_answers.mid(1), QStringList{u"again: Requests cannot be sent."_s});
        RequestManager idle(nullptr, nullptr);
        idle.get(anywhere(), *m_first, keep(u"none: "_s));
        QTRY_COMPARE(m_answers.back(), u"none: Requests cannot be sent."_s);
    }

    void onlyJsonWithoutRepetitionsIsRead()
    {
        const auto json = u"application/json"_s;
        const auto twice = u"The reply contains a member twice."_s;
        const auto broken = u"The reply is not JSON: "_s;
        const QByteArray deep = QByteArray(500'000, '[') + QByteArray(500'000, ']');
        for (const auto &[text, type, refusal] :
             {std::tuple(QByteArray("{'a': {'b': 1}, 'c': [{'b': 2}, {'b': 3}]}"), json, QString()),
              {"[{'a': 1}, {'a': 2}]", json, {}},
              {"{'a:\\':': ':\\\\', 'b': ':'}", json, {}},
              {"{}", u"Application/JSON; charset=utf-8"_s, {}},
              {"{}", u"application/problem+json"_s, {}},
              {"{'a': 1, 'a': 2}", json, twice},
              {"{'a': 1, 'a': 1}", json, twice},
              {"{'a': 1, '\\u0061': 2}", json, twice},
              {"[{'a': {'b': 1, 'c': 2, 'b': 3}}]", json, twice},
              {"{}", u"text/html"_s, u"The reply is not JSON; its type is 'text/html'."_s},
              {"{}", {}, u"The reply is not JSON; its type is ''."_s},
              {"<html/>", json, broken},
              {"{'a': 1", json, broken},
              {"", json, broken},
              {deep, json, broken}}) {
            const auto response = Response::succeeded(jsonText(text), type);
            const QString said = refusalOf([&] { (void)readJson(response); });
            QVERIFY2(said.startsWith(refusal) && said.isEmpty() == refusal.isEmpty(),
                     qPrintable(said));
        }
        QCOMPARE(refusalOf([] { (void)readJson(Response::failed(u"no network"_s)); }),
                 u"no network"_s);
    }

private:
    static QUrl anywhere() { return QUrl(u"https://a.example/"_s); }
    static QString gone() { return u"The connection was closed before the answer came."_s; }
    kiv::networking::NotifyingSender::Answer keep(const QString &who)
    {
        return [this, who](const Response &response) {
            m_answers.append(who +
                             (response.isSuccess() ? response.contentType() : response.failure()));
        };
    }
    void get(QObject &user, const QString &who) { m_manager->get(anywhere(), user, keep(who)); }

    QStringList m_answers;
    ManualSender *m_sender = nullptr;
    std::unique_ptr<RequestManager> m_manager;
    std::unique_ptr<QObject> m_first;
    std::unique_ptr<QObject> m_second;
};

static const kiv::test::Suite<tst_Networking> networkingSuite;
#include "tst_networking.moc"
