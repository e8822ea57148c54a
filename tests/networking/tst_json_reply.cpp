// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "networking/errors.h"
#include "networking/json_reply.h"

#include "support/json_text.h"

using kiv::networking::readJson;
using kiv::networking::Response;
using namespace Qt::StringLiterals;

namespace {

/// Why the response is refused; empty when it is not.
QString refusalOf(const Response &response)
{
    try {
        (void)readJson(response);
        return {};
    } catch (const kiv::networking::ReplyError &error) {
        return error.message();
    }
}

QString refusalOf(const char *json, const QString &type = u"application/json"_s)
{
    return refusalOf(Response::succeeded(jsonText(json), type));
}

} // namespace

class tst_JsonReply : public QObject {
    Q_OBJECT

private slots:
    void acceptsJson()
    {
        for (const char *json : {"{'a': {'b': 1}, 'c': [{'b': 2}, {'b': 3}]}",
                                 "[{'a': 1}, {'a': 2}]", "{'a:\\':': ':\\\\', 'b': ':'}"})
            QCOMPARE(refusalOf(json), QString());
        for (const QString &type :
             {u"Application/JSON; charset=utf-8"_s, u"application/problem+json"_s})
            QCOMPARE(refusalOf("{}", type), QString());
    }

    void refusesMembersThatAreNamedTwice()
    {
        for (const char *json : {"{'a': 1, 'a': 2}", "{'a': 1, 'a': 1}", "{'a': 1, '\\u0061': 2}",
                                 "[{'a': {'b': 1, 'c': 2, 'b': 3}}]"})
            QCOMPARE(refusalOf(json), u"The reply names a member twice."_s);
    }

    void refusesEverythingElse()
    {
        QCOMPARE(refusalOf("{}", u"text/html"_s),
                 u"The reply's type is 'text/html' and not JSON."_s);
        QCOMPARE(refusalOf("{}", {}), u"The reply's type is '' and not JSON."_s);
        const QByteArray deep = QByteArray(500'000, '[') + QByteArray(500'000, ']');
        for (const char *json : {"<html/>", "{'a': 1", "", deep.constData()})
            QVERIFY(refusalOf(json).startsWith(u"The reply is not JSON: "_s));
        QCOMPARE(refusalOf(Response::failed(u"no network"_s)), u"no network"_s);
    }
};

static const kiv::test::Suite<tst_JsonReply> suite;
#include "tst_json_reply.moc"
