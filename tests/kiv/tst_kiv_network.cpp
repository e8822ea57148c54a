// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "household.h"

#include "support/json_text.h"
#include "support/loopback_server.h"

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray rates = jsonText(
    "{'timestamp': 1772366400, 'base': 'USD', 'rates': {'EUR': 0.92, 'JPY': 150, 'USD': 1}}");

QByteArray release(const QByteArray &version)
{
    return jsonText("{'version': '" + version +
                    "', 'date': '2026-03-01', 'notes': 'Faster.\\nSafer.'}");
}

} // namespace

/// What the command asks of the network, with a server of the test's own for
/// the rates service and the list of releases.
class TestKivNetwork : public QObject {
    Q_OBJECT

private slots:
    void ratesAreFetchedAndKept()
    {
        LoopbackServer server(LoopbackServer::answer(rates));
        Household home = homeAt(server);
        const Ended ended = home.run("rates fetch EUR JPY --verbose");
        QVERIFY2(ended.status == 0, ended.err.constData());
        QVERIFY2(ended.out.contains("0.92") && ended.out.contains("150"), ended.out.constData());
        const QByteArray request = server.requests().value(0);
        const QByteArray key = request.split('=').value(1).split('&').value(0);
        QVERIFY2(request.startsWith("GET /latest.json?app_id=") && key.size() == 32, request);
        QVERIFY2(request.contains("symbols=JPY,EUR "), request);
        QVERIFY2(!(ended.out + ended.err).contains(key), ended.err.constData());

        // Once more, though there is nothing newer.
        QCOMPARE(home.run("rates fetch EUR JPY").out, ended.out);

        const QJsonObject kept = home.json("rates show").object();
        QCOMPARE(kept["base"_L1].toString(), u"USD"_s);
        QCOMPARE(kept["fetchedAt"_L1].toString(), u"2026-03-01T12:00:00Z"_s);
        QCOMPARE(kept["rates"_L1].toArray().size(), 3);
        // They convert from now on.
        QVERIFY(home.runAll({"configure set --preferred USD --usable USD --usable EUR", "new",
                             "wage add Job 92.00_EUR", "rates set USD EUR=0.92"}));
        QCOMPARE(home.json("dashboard")["totals"_L1]["wages"_L1]["amount"_L1].toString(),
                 u"100.00"_s);
        QVERIFY(home.run("rates fetch").out.contains("0.92"));
        const Ended lacking = home.run("rates fetch GBP JPY CHF");
        QVERIFY2(lacking.err.endsWith("for: CHF, GBP\n"), lacking.err.constData());
        // The end of the input does not end the last line's waiting.
        const Ended watched = home.run("watch", "rates fetch EUR JPY");
        QVERIFY2(watched.status == 0 && watched.out.contains("JPY 150"), watched.err.constData());
    }

    void badServersLeaveTheRates_data()
    {
        addBadServers(rates);
        const auto row = [](const char *name, const char *good, const char *bad) {
            QTest::newRow(name) << LoopbackServer::answer(QByteArray(rates).replace(good, bad));
        };
        row("negative", "0.92", "-1");
        row("zero", "0.92", "0");
        row("beyond all measure", "150", "1e300");
        row("named twice", "JPY", "EUR");
        row("unknown code", "JPY", "ABQ");
        row("none of the wanted", "EUR", "GBP");
    }
    void badServersLeaveTheRates()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        const Household home = homeAt(server);
        QVERIFY(home.runAll({"rates set USD EUR=0.5"}));
        const QByteArray before = home.bytes(home.path("data/kiv/kiv/rates"));
        QVERIFY(before.contains("EUR 0.5"));
        const Ended ended = home.run("rates fetch EUR");
        QVERIFY2(isRefusal(ended, "kiv rates set. The "), ended.err.constData());
        QCOMPARE(home.bytes(home.path("data/kiv/kiv/rates")), before);
        QVERIFY(!server.requests().isEmpty());
    }

    void newerReleasesAreTold()
    {
        LoopbackServer server(LoopbackServer::answer(
            '[' + release("1.0.0") + ',' + release("255.1.0") + ',' + release("999.0.0") + ']'));
        const Household home = homeAt(server);
        QCOMPARE(home.run("updates check").out, "There is a newer release: 255.1.0.\n");
        const Ended notes = home.run("release-notes");
        QCOMPARE(notes.out,
                 "255.1.0 2026-03-01\nFaster.\nSafer.\n1.0.0 2026-03-01\nFaster.\nSafer.\n");
        QCOMPARE(home.json("release-notes").array().size(), 2);
        LoopbackServer none(LoopbackServer::answer("[]"));
        QCOMPARE(homeAt(none).run("release-notes").out, "There are no releases.\n");
    }

    void whatIsNotNewerIsNoNews_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("none") << QByteArray("[]");
        QTest::newRow("an older release") << '[' + release("0.9.9") + ']';
        QTest::newRow("an absurd version") << '[' + release("999.0.0") + ']';
    }
    void whatIsNotNewerIsNoNews()
    {
        QFETCH(const QByteArray, list);
        // Slow enough for the program to try to refresh its rates meanwhile,
        // which fails and must not be taken for a failure of the list.
        LoopbackServer server([list](QTcpSocket &socket, const QByteArray &path) {
            if (path.startsWith("/latest"))
                return LoopbackServer::answer({}, "text/plain", "404 Not Found")(socket, path);
            QTimer::singleShot(400, &socket, [&socket, path, list] {
                LoopbackServer::answer(list)(socket, path);
            });
        });
        const Household home = homeAt(server);
        const Ended ended = home.run("updates check");
        QVERIFY2(ended.status == 0, ended.err.constData());
        QCOMPARE(ended.out, "There is no newer release.\n");
        QCOMPARE(server.requests().size(), 2);
    }

    void badServersTellNoRelease_data() { addBadServers('[' + release("255.0.0") + ']'); }
    void badServersTellNoRelease()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        const Household home = homeAt(server);
        for (const char *line : {"updates check", "release-notes"}) {
            const Ended ended = home.run(line);
            QVERIFY2(isRefusal(ended, "The releases could not be fetched; try again later. "),
                     ended.err.constData());
        }
    }

    void withoutANetworkOneSentenceSaysSo()
    {
        Household home;
        // Nothing listens there.
        home.setVariable("KIV_RATES_SERVICE", u"https://127.0.0.1:9/"_s);
        home.setVariable("KIV_RELEASE_FEED", u"https://127.0.0.1:9/"_s);
        for (const char *line : {"rates fetch EUR", "updates check", "release-notes"}) {
            const Ended ended = home.run(line);
            QVERIFY2(isRefusal(ended, "ConnectionRefusedError"), ended.err.constData());
        }
        // Plain HTTP goes nowhere but to this computer.
        home.setVariable("KIV_RELEASE_FEED", u"http://releases.example/"_s);
        QVERIFY(isRefusal(home.run("updates check"), "Only HTTPS is allowed"));
        QVERIFY(home.runAll({"new", "bank add First", "dashboard"}));
    }

private:
    static Household homeAt(const LoopbackServer &server)
    {
        Household home;
        home.setVariable("KIV_RATES_SERVICE", server.url().toString());
        home.setVariable("KIV_RELEASE_FEED", server.url(u"/releases.json"_s).toString());
        return home;
    }
    /// Those that answer at once: the program waits half a minute for slow ones.
    static void addBadServers(const QByteArray &good)
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        for (const auto &[name, behaviour] : LoopbackServer::badServers(good)) {
            if (QByteArrayView(name) != "slow")
                QTest::newRow(name) << behaviour;
        }
    }
    static bool isRefusal(const Ended &ended, const char *sentence)
    {
        return ended.status == 1 && ended.out.isEmpty() && ended.err.startsWith("kiv: ") &&
               ended.err.contains(sentence) && ended.err.count('\n') == 1;
    }
};

static const kiv::test::Suite<TestKivNetwork> suite;
#include "tst_kiv_network.moc"
