// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// Balances of a day, and why a number is what it is.
class TestExplanations : public QObject {
    Q_OBJECT

private slots:
    void f9ExplainsTheNumberThatIsChosen_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QStringList>("whats");
        QTest::addColumn<QStringList>("amounts");
        QTest::newRow("home") << QString()
                              << QStringList{u"Free to spend in USD: "_s + dollars("3000"),
                                             u"Balance of Checking"_s}
                              << QStringList{u""_s, dollars("3000")};
        QTest::newRow("accounts") << u"Checking"_s << QStringList{u"Opening balance"_s}
                                  << QStringList{dollars("3000")};
        QTest::newRow("due") << u"bill:Phone"_s
                             << QStringList{u"Balance of Checking"_s, u"Rent"_s, u"Phone"_s}
                             << QStringList{dollars("3000"), dollars("-900"), dollars("-20")};
        QTest::newRow("items") << u"Rent"_s << QStringList{u"monthly"_s}
                               << QStringList{dollars("900")};
        QTest::newRow("survey") << QString()
                                << QStringList{u"Balance of the statement"_s,
                                               u"the window of 2.75 %"_s}
                                << QStringList{dollars("3000"), u"× 0.0275"_s};
    }
    void f9ExplainsTheNumberThatIsChosen()
    {
        QFETCH(QString, row);
        QFETCH(QStringList, whats);
        QFETCH(QStringList, amounts);
        SmallHousehold home;
        show(home, QTest::currentDataTag());
        if (row == u"Checking"_s)
            row = QString::number(home.requests().accounts().find(row).code().number().integer());
        if (!row.isEmpty())
            table(home).choose(row);
        QWidget *const before = QApplication::focusWidget();
        home.trigger("explain");
        QCOMPARE(shown(home, 0).mid(0, whats.size()), whats);
        QCOMPARE(shown(home, 2).mid(0, amounts.size()), amounts);
        QVERIFY(panel(home).isAncestorOf(QApplication::focusWidget()));
        press(home, Qt::Key_Escape);
        QVERIFY(panel(home).isHidden());
        QCOMPARE(QApplication::focusWidget(), before);
    }

    void enterOpensTheTransactionOfALine()
    {
        SmallHousehold home;
        show(home, "accounts");
        table(home).choose(QString::number(
            home.requests().accounts().find(u"Checking"_s).code().number().integer()));
        QSignalSpy places(&home.window().desk(), &desktop::Desk::placeWanted);
        home.trigger("explain");
        press(home, Qt::Key_Return);
        QCOMPARE(places.size(), 1);
        QCOMPARE(places[0][0].value<desktop::Place>(), (desktop::Place{u"register"_s, u"all/1"_s}));
        QVERIFY(panel(home).isHidden());
    }

    void whereThereIsNoNumberTheActionSaysSo()
    {
        SmallHousehold home;
        show(home, "history");
        const QAction *action = home.window().desk().actions().action(u"explain"_s);
        QVERIFY(!action->isEnabled());
        QVERIFY(!desktop::ActionCollection::reason(action).isEmpty());
        home.trigger("page home");
        QVERIFY(action->isEnabled());
    }

    void accountsShowTheBalancesOfADay()
    {
        SmallHousehold home;
        show(home, "accounts");
        const QStringList now = texts(home, 2);
        QVERIFY(now.contains(dollars("3000")));
        press(home, Qt::Key_D, Qt::AltModifier);
        type(home, u"2020-13-01"_s);
        press(home, Qt::Key_Return);
        QVERIFY(!message(home).isEmpty());
        QCOMPARE(texts(home, 2), now);
        QCOMPARE(part<QLineEdit>(home, "on").text(), u"2020-13-01"_s);
        part<QLineEdit>(home, "on").clear();
        type(home, u"2020-01-01"_s);
        press(home, Qt::Key_Return);
        QVERIFY(message(home).isEmpty());
        QVERIFY(!texts(home, 2).contains(dollars("3000")));
        QVERIFY(part<QLabel>(home, "totals").text().endsWith(dollars("0") + u'.'));
        part<QLineEdit>(home, "on").clear();
        press(home, Qt::Key_Return);
        QCOMPARE(texts(home, 2), now);
    }

private:
    static QWidget &panel(HouseholdWindow &home)
    {
        return *home.window().findChild<QWidget *>(u"explanation"_s);
    }
    /// The texts of a column of the panel.
    static QStringList shown(HouseholdWindow &home, int column)
    {
        const auto &model = *panel(home).findChild<desktop::Table *>()->model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts += model.index(row, column).data().toString();
        return texts;
    }
};

static const kiv::test::Suite<TestExplanations> suite;
#include "tst_explanations.moc"
