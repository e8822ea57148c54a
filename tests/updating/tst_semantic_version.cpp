// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "updating/errors.h"
#include "updating/semantic_version.h"

using kiv::updating::SemanticVersion;
using kiv::updating::UpdateError;
using namespace Qt::StringLiterals;

class tst_SemanticVersion : public QObject {
    Q_OBJECT

private slots:
    void isOrderedByPrecedence()
    {
        // Those that are joined by "=" have the same precedence and differ in the build.
        const auto rows = u"0.9.255 1.0.0-0=1.0.0-0+0 1.0.0-9 1.0.0-10 1.0.0-18446744073709551616 "
                          "1.0.0-18446744073709551617 1.0.0-- 1.0.0-X 1.0.0-alpha 1.0.0-alpha.1 "
                          "1.0.0-alpha.beta 1.0.0-beta 1.0.0-beta.2 1.0.0-beta.11 1.0.0-beta-1 "
                          "1.0.0-rc.1=1.0.0-rc.1+b.1 1.0.0=1.0.0+01=1.0.0+a-b.c 1.0.2 1.0.10 1.2.0 "
                          "1.10.0-rc.1 2.0.0 255.255.255"_s.split(u' ');
        QList<std::pair<QString, SemanticVersion>> versions;
        for (const QString &row : rows) {
            for (const QString &text : row.split(u'=')) {
                versions.append({row, SemanticVersion::fromText(text)});
                QCOMPARE(toQString(versions.back().second), text);
            }
        }
        for (qsizetype i = 0; i < versions.size(); ++i) {
            for (qsizetype j = 0; j < versions.size(); ++j) {
                const auto &[rowA, a] = versions.at(i);
                const auto &[rowB, b] = versions.at(j);
                const QString pair = toQString(a) + u' ' + toQString(b);
                QVERIFY2((a <=> b) == (i <=> j) && (a == b) == (i == j), qPrintable(pair));
                QVERIFY2(a.isNewerThan(b) == (i > j && rowA != rowB), qPrintable(pair));
            }
        }
    }

    void refusesWhatIsNoVersion()
    {
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
            try {
                (void)SemanticVersion::fromText(QString::fromUtf8(text));
                QFAIL(text);
            } catch (const UpdateError &) {
            }
        }
    }

    void takesItsPartsForWhatTheyAre()
    {
        QCOMPARE(SemanticVersion(1, 2, 3, u"rc.1"_s, u"5"_s),
                 SemanticVersion::fromText(u"1.2.3-rc.1+5"_s));
        for (const QString &preRelease : {u"rc+5"_s, QString(), u"01"_s})
            QVERIFY_THROWS_EXCEPTION(UpdateError, SemanticVersion(1, 2, 3, preRelease));
        QVERIFY_THROWS_EXCEPTION(UpdateError, SemanticVersion(1, 2, 3, std::nullopt, u"a+b"_s));
    }
};

static const kiv::test::Suite<tst_SemanticVersion> suite;
#include "tst_semantic_version.moc"
