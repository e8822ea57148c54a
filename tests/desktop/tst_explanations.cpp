// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// A row of the page of this name, and what the lines of its explanation begin with.
using Explained = std::tuple<QString, QStringList, QStringList>;

/// Balances of a day, and why a number is what it is.
class TestExplanations : public QObject {
    Q_OBJECT

private slots:
    void f9ExplainsTheNumberThatIsChosen_data()
    {
        addRows<Explained>(
            {{"home",
              {{},
               {u"Free to spend in USD: "_s + dollars("3000"), u"Balance of Checking"_s},
               {u""_s, dollars("3000")}}},
             {"accounts", {u"Checking"_s, {u"Opening balance"_s}, {dollars("3000")}}},
             {"due",
              {u"bill:Phone"_s,
               {u"Balance of Checking"_s, u"Rent"_s, u"Phone"_s},
               {dollars("3000"), dollars("-900"), dollars("-20")}}},
             {"items", {u"Rent"_s, {u"monthly"_s}, {dollars("900")}}},
             {"survey",
              {{},
               {u"Balance of the statement"_s, u"the window of 2.75 %"_s},
               {dollars("3000"), u"× 0.0275"_s}}}});
    }
    void f9ExplainsTheNumberThatIsChosen()
    {
        auto [row, whats, amounts] = rowOf<Explained>();
        SmallHousehold home;
        show(home, QTest::currentDataTag());
        if (row == u"Checking"_s)
            row = home.number(row);
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
        table(home).choose(home.number(u"Checking"_s));
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

private:
    static QWidget &panel(HouseholdWindow &home)
    {
        return *home.window().findChild<QWidget *>(u"explanation"_s);
    }
    /// The texts of a column of the panel.
    static QStringList shown(HouseholdWindow &home, int column)
    {
        return texts(*panel(home).findChild<desktop::Table *>()->model(), column);
    }
};

static const kiv::test::Suite<TestExplanations> suite;
#include "tst_explanations.moc"
