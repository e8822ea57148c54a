// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "networking/errors.h"
#include "networking/json_reply.h"

#include "support/json_text.h"

using kiv::networking::readJson;
using kiv::networking::ReplyError;
using kiv::networking::Response;

class tst_JsonReply : public QObject {
    Q_OBJECT

private slots:
    void readsStrictly_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("refusal");
        const auto row = [](const char *name, const QByteArray &body, const QString &refusal,
                            const QString &type = QStringLiteral("application/json")) {
            QTest::newRow(name) << body << type << refusal;
        };
        const auto twice = QStringLiteral("The reply names a member twice.");
        const auto notJson = QStringLiteral("The reply is not JSON: ");
        row("object", jsonText("{'a': {'b': 1}, 'c': [{'b': 2}, {'b': 3}]}"), {});
        row("array", jsonText("[{'a': 1}, {'a': 2}]"), {});
        row("colons in strings", jsonText("{'a:\\':': ':\\\\', 'b': ':'}"), {});
        row("type with a charset", "{}", {}, QStringLiteral("Application/JSON; charset=utf-8"));
        row("type of its own", "{}", {}, QStringLiteral("application/problem+json"));
        row("member twice", jsonText("{'a': 1, 'a': 2}"), twice);
        row("member twice with the same value", jsonText("{'a': 1, 'a': 1}"), twice);
        row("member twice, deep", jsonText("[{'a': {'b': 1, 'c': 2, 'b': 3}}]"), twice);
        row("member twice, written differently", jsonText("{'a': 1, '\\u0061': 2}"), twice);
        row("wrong type", "{}", QStringLiteral("The reply's type is 'text/html' and not JSON."),
            QStringLiteral("text/html"));
        row("no type", "{}", QStringLiteral("The reply's type is '' and not JSON."), QString());
        row("not JSON", "<html/>", notJson);
        row("truncated", jsonText("{'a': 1"), notJson);
        row("nothing", {}, notJson);
    }

    void readsStrictly()
    {
        QFETCH(const QByteArray, body);
        QFETCH(const QString, type);
        QFETCH(const QString, refusal);
        QString message;
        try {
            (void)readJson(Response::succeeded(body, type));
        } catch (const ReplyError &error) {
            message = error.message();
        }
        QCOMPARE(message.isEmpty(), refusal.isEmpty());
        QVERIFY2(message.startsWith(refusal), qPrintable(message));
    }

    void passesAFailureOn()
    {
        try {
            (void)readJson(Response::failed(QStringLiteral("no network")));
            QFAIL("A failed response brings no document.");
        } catch (const ReplyError &error) {
            QCOMPARE(error.message(), QStringLiteral("no network"));
        }
    }

    void survivesDeepNesting()
    {
        const QByteArray deep = QByteArray(500'000, '[') + QByteArray(500'000, ']');
        QVERIFY_EXCEPTION_THROWN(
            (void)readJson(Response::succeeded(deep, QStringLiteral("application/json"))),
            ReplyError);
    }
};

QTEST_APPLESS_MAIN(tst_JsonReply)
#include "tst_json_reply.moc"
