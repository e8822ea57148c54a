// SPDX-License-Identifier: GPL-3.0-or-later
#include "scratch_folder.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>

using namespace kiv;

/// Kills a program that saves, at random moments. The rig proves its worth on a
/// careless program first.
class SaveKillsTest final : public QObject {
    Q_OBJECT

private slots:
    void aCarelessSaverIsCaught();
    void aKilledSaveLeavesAWholeFile();

private:
    /// The rig's exit status.
    int kill(const QString &saver, int kills)
    {
        const QString program = QStringLiteral(BUDGET_SAVER);
        return QProcess::execute(QStringLiteral(KILL_RIG),
                                 {u"--kills"_qs, QString::number(kills), u"--file"_qs, m_path,
                                  u"--check"_qs, program + u" check"_qs, u"--"_qs, program, saver,
                                  m_path});
    }

    // In memory, where there is such a place: a kill then seldom waits for the
    // disk, so that it hits every step of a save.
    test::ScratchFolder m_folder{QFileInfo(u"/dev/shm"_qs).isWritable() ? u"/dev/shm"_qs
                                                                        : QDir::tempPath()};
    const QString m_path = m_folder.path(QStringLiteral("home.budget"));
};

void SaveKillsTest::aCarelessSaverIsCaught()
{
    QCOMPARE(kill(u"spoil"_qs, 200), 1);
}

void SaveKillsTest::aKilledSaveLeavesAWholeFile()
{
    for (const QString &name : m_folder.names())
        QFile::remove(m_folder.path(name));
    QCOMPARE(kill(u"save"_qs, 200), 0);

    test::store(m_path, {});
    for (const QString &name : m_folder.names())
        QVERIFY2(name.startsWith(u"home.budget"_qs), qPrintable(name));
}

QTEST_APPLESS_MAIN(SaveKillsTest)
#include "tst_save_kills.moc"
