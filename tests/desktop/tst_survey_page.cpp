// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/document/bank_steps.h"
#include "workbench/requests/item_changes.h"

#include <QtWidgets/QLineEdit>

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// The survey of a bank account, made by keys.
class TestSurveyPage : public QObject {
    Q_OBJECT

private slots:
    void theStatementIsTickedAndCompletedAsOneStep()
    {
        SmallHousehold home;
        begin(home);
        const std::size_t before = home.requests().transactions().size();
        press(home, Qt::Key_B, Qt::AltModifier);
        type(home, u"2030"_s);
        press(home, Qt::Key_Return); // on to the ticks
        QCOMPARE(figures(home), u"0 ticked, $2,030.00 missing"_s);
        press(home, Qt::Key_Space);
        press(home, Qt::Key_Space);
        QCOMPARE(texts(home, 4, "ticks"), QStringList({u"ticked"_s, u"ticked"_s}));
        QCOMPARE(figures(home), u"2 ticked, -$70.00 missing"_s);
        press(home, Qt::Key_I, Qt::AltModifier); // on the statement, but not booked yet
        type(home, u"Phone"_s);
        press(home, Qt::Key_M, Qt::AltModifier);
        type(home, u"-70"_s);
        press(home, Qt::Key_Return);
        QCOMPARE(texts(home, 2, "ticks").last(), u"Phone"_s);
        QCOMPARE(figures(home), u"2 ticked, nothing missing"_s);
        table(home, "shares").choose(u"bill:Tax"_s);
        press(home, Qt::Key_S, Qt::AltModifier);
        part<QLineEdit>(home, "share").selectAll();
        type(home, u"50"_s);
        press(home, Qt::Key_Return);
        press(home, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        QCOMPARE(texts(home, 0, "past"), QStringList{u"Checking"_s});
        QCOMPARE(texts(home, 3, "past"), QStringList{dollars("2030")});
        QCOMPARE(texts(home, 4, "past"), QStringList{dollars("1980")}); // without the tax
        QCOMPARE(home.document().undoable()->undone, u"reconciling “Checking”"_s);
        QCOMPARE(home.requests().transactions().size(), before + 1);
        QCOMPARE(home.requests().transactions().back().amount(), usd("70"));
        home.trigger("undo");
        QCOMPARE(home.window().page()->detail(), number(home));
        QCOMPARE(texts(home, 0, "past"), QStringList());
        QCOMPARE(texts(home, 4, "ticks"), QStringList({{}, {}}));
        home.trigger("redo");
        // What was reconciled is changed behind its back.
        home.document().perform({u"Changed"_s, {}, {}}, [&] {
            const auto last = home.requests().transactions().back().number().value();
            home.requests().navigator().onMarkUnreconciled({last});
            home.requests().navigator().onRemovedTransaction(last);
        });
        QCOMPARE(texts(home, 6, "past"), QStringList{u"changed since"_s});
    }

    void refusalsStandAtTheirFieldAndKeepTheTicks()
    {
        SmallHousehold home;
        begin(home);
        part<QWidget>(home, "tickAll").setFocus();
        press(home, Qt::Key_Space);
        const std::size_t before = home.requests().transactions().size();
        for (const auto &[field, wrong, right] :
             {std::tuple("balance", u"5000"_s, u"2100"_s), // another sum
              {"balance", u"many"_s, u"2100"_s},
              {"day", u"+1"_s, u"+0"_s}}) { // tomorrow
            auto &edit = part<QLineEdit>(home, field);
            edit.setFocus();
            edit.selectAll();
            type(home, wrong);
            const QString typed = edit.text();
            press(home, Qt::Key_O, Qt::AltModifier);
            QVERIFY2(!message(home).isEmpty(), qPrintable(wrong));
            QVERIFY(edit.hasFocus());
            QVERIFY(edit.text() == typed || QLatin1String(field) == u"day");
            QCOMPARE(texts(home, 4, "ticks"), QStringList({u"ticked"_s, u"ticked"_s}));
            edit.setText(right);
        }
        QCOMPARE(home.requests().transactions().size(), before);
        QVERIFY(home.document().reconciliations().empty());
        // What lies in a goal's account cannot be set otherwise.
        table(home, "shares").choose(u"goal:Trip"_s);
        QVERIFY(!part<QLineEdit>(home, "share").isEnabled());
        QVERIFY(!part<QLineEdit>(home, "share").toolTip().isEmpty());
    }

    void theRegisterLeadsToTheSurveyOfItsAccount()
    {
        SmallHousehold home;
        begin(home);
        home.document().perform({u"More"_s, {}, {}}, [&] {
            auto &navigator = home.requests().navigator();
            const auto purse =
                navigator.onAddedBankAccount(u"Purse"_s, banking::BankAccountTypes::Cash, usd("5"));
            workbench::attachBankAccount(home.document(), banking::BankName(u"First"_s),
                                         purse->number(), banking::BankAccountTypes::Cash);
        });
        const QString purse = accounting::presentationText(
            home.requests().accounts().find(u"Purse"_s).code().number());
        home.window().goTo({u"register"_s, purse});
        home.trigger("reconcileAccount");
        QCOMPARE(home.window().page()->detail(), purse);
        QCOMPARE(texts(home, 3, "ticks"), QStringList{dollars("5")});
    }

private:
    /// Rent is paid: 2,100 are left at the bank, and a tax is due once a year.
    static void begin(SmallHousehold &home)
    {
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        home.document().perform({u"More"_s, {}, {}}, [&] {
            workbench::ItemValues values;
            workbench::Amount amount;
            workbench::readValue(u"1200"_s, amount);
            values.amount = amount;
            values.every = budgeting::EventFrequency::Yearly;
            values.next = foundation::today().addDays(90);
            workbench::addItem<budgeting::Bill>(home.requests(),
                                                navigation::GuiElementIdentifier(1), u"Tax"_s,
                                                values, *values.next, std::nullopt);
        });
        home.trigger("page survey");
    }
    static QString figures(HouseholdWindow &home) { return part<QLabel>(home, "figures").text(); }
    static QString number(HouseholdWindow &home)
    {
        return accounting::presentationText(
            home.requests().accounts().find(u"Checking"_s).code().number());
    }
};

static const kiv::test::Suite<TestSurveyPage> suite;

#include "tst_survey_page.moc"
