// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"
#include "models/table_model.h"
#include "widgets/table.h"
#include "wizards/first_time_wizard.h"

#include "navigation/user_preferences.h"

#include <QtWidgets/QtWidgets>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;
using desktop::FirstTimeWizard;

/// A step, a field of it, what is typed there, and what is said of it.
using Wrong = std::tuple<QString, QString, QString, QString>;

/// The first start, by keys.
class TestWizard : public QObject {
    Q_OBJECT

private slots:
    void whatIsRefusedStandsAtItsField_data()
    {
        kiv::test::addRows<Wrong>(
            {{"no folder", {u"place"_s, u"file"_s, u"/none/home"_s, u"/none"_s}},
             {"no file", {u"place"_s, u"file"_s, u" "_s, {}}},
             {"no bank", {u"bank"_s, u"bank"_s, {}, {}}},
             {"no account", {u"bank"_s, u"account"_s, u" "_s, {}}},
             {"a balance", {u"bank"_s, u"balance"_s, u"much"_s, u"'much'"_s}},
             {"an amount", {u"household"_s, u"amount"_s, u"1.234"_s, u"1.234"_s}},
             {"a day", {u"household"_s, u"day"_s, u"2020-01-01"_s, u"future"_s}}});
    }
    void whatIsRefusedStandsAtItsField()
    {
        const auto [step, field, typed, sentence] = kiv::test::rowOf<Wrong>();
        HouseholdWindow desk;
        begin(desk);
        if (step != u"place")
            place(desk, desk.path(u"home"_s));
        if (step == u"household") {
            bank(desk, u"First"_s, u"Checking"_s, {});
            household(desk, u"A teenager"_s);
            chooseItem(desk, u"nontrack:Snacks"_s);
        }
        if (step == u"bank")
            fill(desk, u"bank"_s, u"First"_s);
        fill(desk, field, typed);
        press(Qt::Key_Return);
        auto *edit = part<QLineEdit>(desk, field);
        QVERIFY(edit->isVisible() && edit->hasFocus());
        QCOMPARE(edit->text(), typed);
        QStringList told;
        for (const auto *message : wizard(desk)->findChildren<desktop::FieldMessage *>())
            told += message->text();
        QVERIFY2(!told.join(QString()).isEmpty() && told.join(QString()).contains(sentence),
                 qPrintable(told.join(u'|')));
        QVERIFY(!QFile::exists(desk.path(u"home.budget"_s)));
    }

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
    static QStringList accounts(HouseholdWindow &desk)
    {
        QStringList names;
        const workbench::AccountIndex index = desk.requests().accounts();
        for (const accounting::Account &account : index.accounts())
            names += index.plainName(account.code().number());
        return names;
    }
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
