// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"
#include "desktop/told.h"

/// The window can do what the command can: places.txt names the place of each.
class TestPlaces : public QObject {
    Q_OBJECT

private slots:
    void everyCommandHasItsPlace()
    {
        HouseholdWindow desk;
        desk.openHousehold();
        desk.show();
        QStringList faults;
        QStringList named;
        const QStringList kinds{u"bill"_s, u"debt"_s, u"goal"_s, u"nontrack"_s, u"wage"_s};
        for (const QString &line : test::linesOf(KIV_PLACES)) {
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            for (const QString &kind : line.contains(u"KIND"_s) ? kinds : QStringList{{}}) {
                const QString place = QString(line).replace(u"KIND"_s, kind);
                named += place.section(u": "_s, 0, 0).split(u", "_s);
                if (!isThere(desk, place.section(u": "_s, 1)))
                    faults += place;
            }
        }
        QVERIFY(!isThere(desk, u"action nothing"_s) && !isThere(desk, u"page due#nothing"_s));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        named.sort();
        QCOMPARE(named, commands(desk.path(u"household.budget"_s)));
    }

private:
    static bool isThere(HouseholdWindow &desk, const QString &place)
    {
        const QString where = place.section(u' ', 1);
        if (place.startsWith(u"none, "))
            return true;
        if (place.startsWith(u"action ")) {
            const auto all = desk.window().desk().actions().all();
            return std::ranges::any_of(
                all, [&where](const QAction *action) { return action->objectName() == where; });
        }
        // A form that is open has the place of the page's buttons.
        QTest::keyClick(desk.window().page()->firstFocus(), Qt::Key_Escape);
        const auto page = desktop::Place::fromText(where.section(u'#', 0, 0));
        desk.window().goTo(page);
        const desktop::Page *shown = desk.window().page();
        if (shown->id() != page.page)
            return false;
        if (!where.contains(u'#'))
            return true;
        const auto *part = shown->findChild<QWidget *>(where.section(u'#', 1));
        return part && part->isVisible();
    }
    /// All commands that the manual has, sorted.
    static QStringList commands(const QString &file)
    {
        static const QRegularExpression heading(u"^\\.SS kiv (.*)$"_s,
                                                QRegularExpression::MultilineOption);
        const QString manual =
            QString::fromUtf8(KivCommand(file).run({u"completion"_s, u"manual"_s})).remove(u'\\');
        QStringList names;
        for (const auto &match : heading.globalMatch(manual))
            names += match.captured(1);
        names.sort();
        return names;
    }
};

static const kiv::test::Suite<TestPlaces> testPlacesSuite;

#include "tst_places.moc"
