// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "updating/errors.h"
#include "updating/semantic_version.h"

using kiv::updating::SemanticVersion;
using kiv::updating::UpdateError;

class tst_SemanticVersion : public QObject {
    Q_OBJECT

private slots:
    void isOrderedByPrecedence()
    {
        // Those of one row have the same precedence and differ in the build.
        const QList<QStringList> rows{
            {QStringLiteral("0.9.255")},
            {QStringLiteral("1.0.0-0"), QStringLiteral("1.0.0-0+0")},
            {QStringLiteral("1.0.0-9")},
            {QStringLiteral("1.0.0-10")},
            {QStringLiteral("1.0.0-18446744073709551616")},
            {QStringLiteral("1.0.0-18446744073709551617")},
            {QStringLiteral("1.0.0--")},
            {QStringLiteral("1.0.0-X")},
            {QStringLiteral("1.0.0-alpha")},
            {QStringLiteral("1.0.0-alpha.1")},
            {QStringLiteral("1.0.0-alpha.beta")},
            {QStringLiteral("1.0.0-beta")},
            {QStringLiteral("1.0.0-beta.2")},
            {QStringLiteral("1.0.0-beta.11")},
            {QStringLiteral("1.0.0-beta-1")},
            {QStringLiteral("1.0.0-rc.1"), QStringLiteral("1.0.0-rc.1+b.1")},
            {QStringLiteral("1.0.0"), QStringLiteral("1.0.0+01"), QStringLiteral("1.0.0+a-b.c")},
            {QStringLiteral("1.0.2")},
            {QStringLiteral("1.0.10")},
            {QStringLiteral("1.2.0")},
            {QStringLiteral("1.10.0-rc.1")},
            {QStringLiteral("2.0.0")},
            {QStringLiteral("255.255.255")},
        };
        QList<std::pair<qsizetype, SemanticVersion>> versions;
        for (qsizetype row = 0; row < rows.size(); ++row) {
            for (const QString &text : rows.at(row)) {
                versions.append({row, SemanticVersion::fromText(text)});
                QCOMPARE(toQString(versions.back().second), text);
            }
        }
        for (qsizetype i = 0; i < versions.size(); ++i) {
            for (qsizetype j = 0; j < versions.size(); ++j) {
                const auto &a = versions.at(i).second;
                const auto &b = versions.at(j).second;
                const QString pair = toQString(a) + u' ' + toQString(b);
                QVERIFY2((a <=> b) == (i <=> j), qPrintable(pair));
                QVERIFY2((a == b) == (i == j), qPrintable(pair));
                const bool isSameRow = versions.at(i).first == versions.at(j).first;
                QVERIFY2(a.isNewerThan(b) == (i > j && !isSameRow), qPrintable(pair));
            }
        }
    }

    void refusesWhatIsNoVersion_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"",
                                 "1",
                                 "1.2",
                                 "1.2.3.4",
                                 "01.2.3",
                                 "1.02.3",
                                 "1.2.03",
                                 "v1.2.3",
                                 " 1.2.3",
                                 "1.2.3\n",
                                 "-1.2.3",
                                 "1.2.-3",
                                 "256.0.0",
                                 "0.256.0",
                                 "0.0.256",
                                 "99999999999999999999.0.0",
                                 "1.2.3-",
                                 "1.2.3-01",
                                 "1.2.3-a..b",
                                 "1.2.3-a.",
                                 "1.2.3-a_b",
                                 "1.2.3-\xc3\xa4",
                                 "1.2.3+",
                                 "1.2.3+a..b",
                                 "1.2.3+a+b",
                                 "1.2.3-+b",
                                 "\xd9\xa1.0.0"}) {
            QTest::newRow(text) << QString::fromUtf8(text);
        }
    }

    void refusesWhatIsNoVersion()
    {
        QFETCH(const QString, text);
        QVERIFY_EXCEPTION_THROWN((void)SemanticVersion::fromText(text), UpdateError);
    }

    void takesItsPartsForWhatTheyAre()
    {
        const SemanticVersion version(1, 2, 3, QStringLiteral("rc.1"), QStringLiteral("5"));
        QCOMPARE(version, SemanticVersion::fromText(QStringLiteral("1.2.3-rc.1+5")));
        for (const auto &preRelease : {QStringLiteral("rc+5"), QString(), QStringLiteral("01")})
            QVERIFY_EXCEPTION_THROWN(SemanticVersion(1, 2, 3, preRelease), UpdateError);
        QVERIFY_EXCEPTION_THROWN(SemanticVersion(1, 2, 3, std::nullopt, QStringLiteral("a+b")),
                                 UpdateError);
    }
};

QTEST_APPLESS_MAIN(tst_SemanticVersion)
#include "tst_semantic_version.moc"
