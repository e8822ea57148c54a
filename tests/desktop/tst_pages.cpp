// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "desktop/told.h"

#include "workbench/versions/kept_versions.h"

/// The pages beside the register, used by keys.
class TestPages : public QObject {
    Q_OBJECT

private slots:
    void goesBackToAStepAndToAFormerVersion()
    {
        SmallHousehold home;
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        home.document().writeNow();
        press(home, Qt::Key_P, Qt::AltModifier);
        home.trigger("page history");
        QCOMPARE(texts(home, 0, "steps").mid(0, 4),
                 QStringList({u"Since the file was opened"_s, u"Paid Phone."_s, u"Paid Rent."_s,
                              u"As it was opened"_s}));
        table(home, "steps").choose(u"step 1"_s);
        QTRY_VERIFY(table(home, "changes").isVisible());
        QVERIFY(texts(home, 1, "changes").join(u' ').contains(u"Phone"_s));
        QVERIFY(!texts(home, 1, "changes").join(u' ').contains(u"Rent"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
        QCOMPARE(texts(home, 2, "steps").mid(1, 3), QStringList({{}, u"present"_s, {}}));
        // The oldest version of the file is the budget as it began.
        table(home, "steps").choose(u"version 1"_s);
        QTRY_VERIFY(table(home, "changes").isVisible());
        QVERIFY(texts(home, 1, "changes").contains(u"3 Rent"_s));
        QVERIFY(texts(home, 3, "changes").contains(u"balance 0.00 USD → 900.00 USD"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), std::size_t{1});
        home.trigger("redo");
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
    }

    void aDamagedVersionIsShownAndRefused()
    {
        SmallHousehold home;
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        // What this session has seen is still in memory.
        QVERIFY(home.window().open(home.document().file()));
        const workbench::KeptVersions versions(home.document().file());
        QFile damaged(versions.named(u"1"_s).path);
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no budget") > 0);
        damaged.close();
        home.trigger("page history");
        QCOMPARE(texts(home, 2, "steps").last(), u"damaged"_s);
        // No number stands here to be explained.
        const QAction *explain = home.window().desk().actions().action(u"explain"_s);
        QVERIFY(!desktop::ActionCollection::reason(explain).isEmpty());
        table(home, "steps").choose(u"version 1"_s);
        QTRY_VERIFY(part<QLabel>(home, "difference").isVisible());
        QVERIFY(part<QLabel>(home, "difference").text().contains(u"damaged"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty());
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
    }

    void aBudgetThatIsOnlyReadOffersNoChange()
    {
        HouseholdWindow first;
        first.openHousehold();
        HouseholdWindow home;
        QVERIFY(home.window().open(first.document().file()));
        home.show();
        const QString whyNot = home.window().desk().whyNoChange().value();
        const auto saysWhyNot = [&home, &whyNot] {
            QStringList told;
            tell(*home.window().page(), 0, told);
            return told.join(u' ').contains(whyNot);
        };
        QStringList refused;
        int pressed = 0;
        for (desktop::Page *page : home.window().pages()) {
            for (const QString &part : QStringList{QString()} + page->parts()) {
                for (const QPointer<QAbstractButton> button :
                     page->findChildren<QAbstractButton *>()) {
                    home.window().goTo({page->id(), part});
                    if (!button || !button->isVisible() || !button->isEnabled())
                        continue;
                    const bool saidSo = saysWhyNot();
                    const QString text = button->text();
                    button->click();
                    ++pressed;
                    // Another page may say it from the start.
                    if (home.window().page() == page && !saidSo && saysWhyNot())
                        refused += page->id() + u' ' + part + u": "_s + text;
                }
            }
        }
        QVERIFY2(refused.isEmpty(), qPrintable(refused.join(u'\n')));
        QVERIFY(pressed > 50);
        home.window().goTo({u"register"_s, {}});
        QVERIFY(!part<QPushButton>(home, "addLine").isEnabled());
    }
};

static const kiv::test::Suite<TestPages> suite;

#include "tst_pages.moc"
