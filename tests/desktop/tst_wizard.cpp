// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"
#include "widgets/table.h"
#include "wizards/first_time_wizard.h"

#include "navigation/user_preferences.h"

#include <QtWidgets/QtWidgets>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;
using desktop::FirstTimeWizard;

/// The first start, by keys.
class TestWizard : public QObject {
    Q_OBJECT

private slots:
    void anItemThatIsRefusedIsChosen()
    {
        HouseholdWindow desk;
        begin(desk);
        place(desk, desk.path(u"home"_s));
        bank(desk, u"First"_s, u"Pet Care"_s, {}); // as an item is called
        household(desk, u"A teenager"_s);
        for (const QString &item : {u"bill:Pet Care"_s, u"bill:Petrol"_s}) {
            chooseItem(desk, item);
            fill(desk, u"amount"_s, u"12"_s);
            press(Qt::Key_Return);
        }
        part<QPushButton>(desk, u"finish"_s)->click();
        QVERIFY(wizard(desk)->isVisible());
        QCOMPARE(wizard(desk)->findChild<desktop::Table *>()->chosen(),
                 QStringList{u"bill:Pet Care"_s});
        QVERIFY(!QFile::exists(desk.path(u"home.budget"_s)));
        // Without it all is well.
        press(Qt::Key_Space);
        part<QPushButton>(desk, u"finish"_s)->click();
        QVERIFY(QFile::exists(desk.path(u"home.budget"_s)));
    }

    void itCanBeLeftAtEachStep_data()
    {
        kiv::test::addRows<int>({{"place", 0}, {"bank", 1}, {"household", 2}});
    }
    void itCanBeLeftAtEachStep()
    {
        const int step = kiv::test::rowOf<int>();
        HouseholdWindow desk;
        begin(desk);
        if (step > 0)
            place(desk, desk.path(u"home"_s));
        if (step > 1)
            bank(desk, u"First"_s, u"Checking"_s, {});
        press(Qt::Key_Escape);
        QVERIFY(!wizard(desk)->isVisible());
        QVERIFY(!QFile::exists(desk.path(u"home.budget"_s)));
        QVERIFY(navigation::UserPreferences(std::nullopt).doesExist());

        // What was typed is still there, and each other way leads to a budget.
        desk.trigger("wizard");
        QCOMPARE(static_cast<int>(wizard(desk)->step()), step);
        for (const QString &way : {u"new"_s, u"demonstration"_s}) {
            desk.questions().files = {desk.path(way)};
            part<QPushButton>(desk, way)->click();
            QVERIFY(QFile::exists(desk.path(way + u".budget"_s)));
            QVERIFY(!wizard(desk)->isVisible());
            desk.trigger("wizard");
        }
        desk.questions().files = {desk.path(u"new.budget"_s)};
        part<QPushButton>(desk, u"open"_s)->click();
        QCOMPARE(desk.window().windowTitle().section(u' ', 0, 0), u"new"_s);
    }

private:
    static FirstTimeWizard *wizard(HouseholdWindow &desk)
    {
        return desk.window().findChild<FirstTimeWizard *>();
    }
    template <typename Widget>
    static Widget *part(HouseholdWindow &desk, const QString &name)
    {
        return wizard(desk)->findChild<Widget *>(name);
    }
    /// The first start, without preferences, opens it by itself.
    static void begin(HouseholdWindow &desk)
    {
        desk.show();
        QTRY_VERIFY(wizard(desk)->isVisible());
        QVERIFY(part<QLineEdit>(desk, u"file"_s)->hasFocus());
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void fill(HouseholdWindow &desk, const QString &field, const QString &text)
    {
        auto *edit = part<QLineEdit>(desk, field);
        edit->setFocus();
        edit->selectAll();
        press(Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    static void place(HouseholdWindow &desk, const QString &file)
    {
        fill(desk, u"file"_s, file);
        part<QComboBox>(desk, u"currency"_s)->setCurrentText(u"USD ($)"_s);
        part<QLineEdit>(desk, u"file"_s)->setFocus();
        press(Qt::Key_Return);
        QCOMPARE(wizard(desk)->step(), FirstTimeWizard::Step::Bank);
    }
    static void bank(HouseholdWindow &desk, const QString &bank, const QString &account,
                     const QString &balance)
    {
        fill(desk, u"bank"_s, bank);
        fill(desk, u"account"_s, account);
        fill(desk, u"balance"_s, balance);
        press(Qt::Key_Return);
        QCOMPARE(wizard(desk)->step(), FirstTimeWizard::Step::Household);
    }
    static void household(HouseholdWindow &desk, const QString &text)
    {
        QVERIFY(part<QComboBox>(desk, u"household"_s)->hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), text);
        QCOMPARE(part<QComboBox>(desk, u"household"_s)->currentText(), text);
    }
    static void chooseItem(HouseholdWindow &desk, const QString &key)
    {
        auto *table = wizard(desk)->findChild<desktop::Table *>();
        table->setFocus();
        table->choose(key);
        QCOMPARE(table->chosen(), QStringList{key});
    }
};

static const kiv::test::Suite<TestWizard> suite;

#include "tst_wizard.moc"
