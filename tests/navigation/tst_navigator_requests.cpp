// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_requests.h"

/// All that is said to each request stands in navigator_requests.txt, a row for each
/// situation: "what is special | request; request | answer / answer"; what leaves a slot
/// stands behind "x ".
class NavigatorRequests : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { m_first = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_first.reset(); }
    void saysWhatIsWrittenDown_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const Situation &one : situations())
            QTest::newRow(one.name.constData()) << index++;
    }
    void saysWhatIsWrittenDown()
    {
        QFETCH(const int, index);
        const Situation &situation = situations().at(std::size_t(index));
        const bool isFile = situation.name.startsWith("file: ");
        m_settings.reset();
        FurnishedDesk desk;
        QStringList said;
        for (const QString &request : situation.request.split(QStringLiteral("; "))) {
            // Saving would answer what is asked of files.
            const auto before = isFile ? storage::BudgetStorage::Data() : desk.save();
            QStringList now;
            try {
                requestOf(request)(*desk.navigator);
                now = desk.take();
            } catch (const std::exception &error) {
                now = desk.take() +
                      QStringList(QStringLiteral("x ") + QString::fromUtf8(error.what()));
            }
            said += shortened(now);
            const auto has = [&](const char *text) {
                return now.join(u' ').contains(QLatin1String(text));
            };
            if (isFile)
                continue;
            QCOMPARE(desk.isChanged(), has(" *"));
            // Whatever answers with no success has changed nothing.
            if (!has("Succeeded"))
                QVERIFY2(desk.save() == before, qPrintable(request));
        }
        QCOMPARE(said.join(u'\n'), situation.answers.join(u'\n'));
    }

    void queuedViewsHearTheSame()
    {
        QSet<QString> heard;
        const auto compare = [&](Desk &desk, const Request &request) {
            SignalLog direct(*desk.navigator);
            SignalLog queued(*desk.navigator, Qt::QueuedConnection);
            try {
                request(*desk.navigator);
            } catch (const std::exception &) {
                // What leaves a slot is another test's.
            }
            const QList<QVariantList> values = direct.takeValues();
            const QStringList said = direct.take();
            QVERIFY(queued.take().isEmpty());
            QCoreApplication::sendPostedEvents(&queued);
            QCOMPARE(queued.take(), said);
            QVERIFY2(queued.takeValues() == values, qPrintable(said.join(u'\n')));
            for (const QString &signal : said)
                heard.insert(signal.section(u'(', 0, 0));
        };
        for (const auto &row : allRequests()) {
            m_settings.reset();
            FurnishedDesk desk;
            compare(desk, row.second);
        }
        // What comes from elsewhere than a request.
        Desk desk;
        compare(desk, [](Navigator &n) {
            const updating::SemanticVersion latest(9, 1, 0);
            emit n.fetchedReleaseNotes({{latest, day("2026-01-31"), QStringLiteral("More.")}});
            emit n.updateReleased(latest);
            emit n.updateAvailableAcknowledged();
        });
        const QMetaObject &meta = Navigator::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QString name = QString::fromLatin1(meta.method(i).name());
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                QVERIFY2(heard.contains(name), qPrintable(name));
        }
        QCOMPARE(heard.size(), 50);
    }

private:
    OwnSettings m_settings;
    std::unique_ptr<Desk> m_first; ///< converts for all others
};

static const kiv::test::Suite<NavigatorRequests> navigatorRequestsSuite;
#include "tst_navigator_requests.moc"
