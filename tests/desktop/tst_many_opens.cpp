// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/small_household.h"
#include "support/damage.h"

namespace {

/// The memory that the program has, in KiB.
qint64 memory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        qFatal("There are no figures of memory.");
    const QString text = QString::fromLatin1(status.readAll());
    return text.section(u"VmRSS:"_s, 1).simplified().section(u' ', 0, 0).toLongLong();
}

} // namespace

/// One window that opens one file after the other.
class TestManyOpens : public QObject {
    Q_OBJECT

private slots:
    void memoryStaysFlat()
    {
        // Thousands of messages would be kept.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        SmallHousehold home;
        home.begin();
        home.show();
        const QStringList files{home.document().file(), home.path(u"other.budget"_s)};
        home.document().saveCopy(files.last());
        const int opens = randomRuns(60);
        qint64 warm = 0;
        for (int open = 0; open < opens; ++open) {
            QVERIFY(home.window().open(files.at(open % 2)));
            const auto &pages = home.window().pages();
            home.window().goTo({pages.at(static_cast<std::size_t>(open) % pages.size())->id(), {}});
            QCoreApplication::processEvents();
            // Which only an event loop that goes on does.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (open == opens / 4)
                warm = memory();
        }
        const qint64 end = memory();
        qInstallMessageHandler(nullptr);
        qInfo() << "From" << warm << "to" << end << "KiB.";
        QVERIFY(home.questions().asked.isEmpty());
        QVERIFY(home.notices().isEmpty());
#ifndef __SANITIZE_ADDRESS__ // which keeps what is freed
        QVERIFY(end < warm + 1'024);
#endif
    }
};

static const kiv::test::Suite<TestManyOpens> testManyOpensSuite;

#include "tst_many_opens.moc"
