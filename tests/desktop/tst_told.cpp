// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/step_runner.h"
#include "desktop/ways.h"
#include "widgets/notice_bar.h"

namespace {
QDate todayIs; ///< for a test; otherwise the calendar's
}
/// A program's own function goes before that of a library that is loaded.
QDate kiv::foundation::today()
{
    return todayIs.isValid() ? todayIs : QDate::currentDate();
}

namespace {

const QByteArray licence = "# SPDX-License-Identifier: GPL-3.0-or-later\n";

/// Compares with a file, or writes it anew.
void compare(const QByteArray &told, const char *path)
{
    if (qEnvironmentVariableIsSet("KIV_RENEW")) {
        QFile file(QString::fromLatin1(path));
        QVERIFY(file.open(QFile::WriteOnly) && file.write(told) == told.size());
        return;
    }
    QStringList found = QString::fromUtf8(told).split(u'\n');
    QStringList expected = test::linesOf(path);
    if (!test::Painted::isKnown()) {
        for (QStringList *lines : {&found, &expected})
            lines->replaceInStrings(QRegularExpression(u"painted [0-9a-f]+"_s), u"painted"_s);
    }
    for (qsizetype line = 0; line < std::max(expected.size(), found.size()); ++line)
        QCOMPARE(found.value(line), expected.value(line));
}

} // namespace

/// What each page, form and wizard tells about the household, against told.txt, how their parts
/// are set, against ways.txt, and what deeds tell, against deeds.txt. With KIV_RENEW the files are
/// written anew.
class TestTold : public QObject {
    Q_OBJECT

private slots:
    void init() { todayIs = QDate(2026, 3, 1); }
    void cleanup() { todayIs = QDate(); }

    void everyPageTellsWhatIsWritten()
    {
        HouseholdWindow desk;
        const auto *pages = desk.window().findChild<QWidget *>(u"pages"_s);
        QVERIFY(!pages->isEnabled()); // without a budget
        desk.openHousehold();
        desk.show();
        QStringList before;
        test::tell(*pages, std::numeric_limits<int>::max(), before);
        desk.window().desk().notices().add({u"one"_s, u"Mind."_s, {{u"Mend"_s, [] {}}}});
        test::tell(*desk.window().findChild<desktop::NoticeBar *>(), test::rowsMax, before);
        for (const QAction *menu : desk.window().menuBar()->actions())
            before += u"%1 (%2)"_s.arg(menu->text()).arg(menu->menu()->actions().size());
        QByteArray told = licence + test::inLines(u"## window"_s, before);
        test::Ways ways;
        const auto look = [&](QWidget &shown, QWidget &first, const QString &place) {
            QStringList parts;
            test::tell(shown, test::rowsMax, parts);
            for (int again = 0; again < 4; ++again) // what wraps needs another layout
                QCoreApplication::processEvents();
            const QString all = parts.join(u' ');
            const bool hasPath = all.contains(desk.path({})) || all.contains(test::documents());
            told += test::inLines(
                u"## %1: begins at '%2', Tab goes up %3 times, %4 parts, painted %5"_s
                    .arg(place, first.objectName())
                    .arg(test::tabsUp(shown, first))
                    .arg(parts.size())
                    .arg(hasPath ? u"with a path"_s : test::Painted(*shown.window()).sum()),
                test::newsOf(parts, before));
            before = parts;
        };
        desk.lookAtAll(look);
        ways.count(desk.window());
        desk.lookAtDialogs([&](QWidget &shown, QWidget &first, const QString &name) {
            look(shown, first, name);
            ways.count(shown);
        });
        told.replace(desk.path({}).toUtf8(), "FOLDER");
        told.replace(test::documents().toUtf8(), "DOCUMENTS");
        told = QString::fromUtf8(told).replace(test::moment(), u"MOMENT"_s).toUtf8();
        compare(told, KIV_TOLD);
        compare(licence + ways.text(test::lineMax), KIV_WAYS);
    }

    /// Each step of deeds.txt, behind $, with what is new then. A part begins with ## at a place,
    /// and at its end all is undone.
    void deedsTellWhatTheyDid()
    {
        QByteArray told;
        std::optional<test::StepRunner> runner;
        for (const QString &line : test::linesOf(KIV_DEEDS)) {
            const bool isPart = line.startsWith(u"## ");
            if (line.startsWith(u"# "))
                told += line.toUtf8() + '\n';
            if (!isPart && !line.startsWith(u"$ "))
                continue;
            const QString step = line.section(u" ⇒"_s, 0, 0);
            if (isPart && runner)
                runner->undoAll();
            if (isPart)
                runner.emplace(step.section(u' ', 1, 1));
            runner->step(step.section(u"$ "_s, 1));
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(step));
            told += test::inLines(step, runner->news());
        }
        QVERIFY(runner);
        runner->undoAll();
        compare(told, KIV_DEEDS);
    }
};

static const kiv::test::Suite<TestTold> testToldSuite;

#include "tst_told.moc"
