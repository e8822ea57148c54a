// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/document/bank_steps.h"
#include "workbench/surveys/survey_form.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// A place, a field of its form, the field's letter, and what is refused there.
using Wrong = std::tuple<const char *, const char *, Qt::Key, const char *>;

/// The pages on which the household's items, banks and accounts are kept, used by keys.
class TestItemsPage : public QObject {
    Q_OBJECT

private slots:
    void anItemIsAddedChangedRenamedAndRemoved()
    {
        SmallHousehold home;
        show(home, "items");
        const auto before = home.document().present();
        keys(
            home,
            u"Alt+N; Alt+N=Gym; Alt+A=20+10; Alt+W=quarterly; Alt+X=2027-01-31; Alt+M=fun, \"a, \"\"b\"\"\"; Return"_s);
        QCOMPARE(row(home), (QStringList{u"Gym"_s, dollars("30"), u"quarterly"_s, day(2027, 1, 31),
                                         dollars("10"), dollars("0"), u"\"a, \"\"b\"\"\", fun"_s}));
        QVERIFY(table(home).hasFocus());
        QCOMPARE(home.document().undoable()->undone, u"adding the bill “Gym”"_s);
        const budgeting::BudgetItemIdentifier gym{budgeting::BudgetItemTypes::Bill,
                                                  budgeting::BudgetSource(u"Gym"_s)};
        QVERIFY(home.document().present().itemTags.tags(gym).contains(tagging::Tag(u"a, \"b\""_s)));
        keys(home, u"F2; Alt+N=Sport; Alt+A=33; Return"_s);
        QCOMPARE(row(home).mid(0, 4),
                 (QStringList{u"Sport"_s, dollars("33"), u"quarterly"_s, day(2027, 1, 31)}));
        press(home, Qt::Key_Delete);
        QCOMPARE(texts(home, 0), QStringList({u"Phone"_s, u"Rent"_s}));
        for (int step = 0; step < 3; ++step)
            home.trigger("undo");
        QCOMPARE(home.document().present(), before);
        home.trigger("redo");
        QCOMPARE(row(home).first(), u"Gym"_s);
    }

    void aGoalAndADebtTellHowFarTheyHaveCome()
    {
        SmallHousehold home;
        show(home, "items");
        goTo(home, "items/goal/new");
        keys(home, u"Alt+N=Car; Alt+A=100; Alt+O=400; Alt+B=Checking; Return"_s);
        QCOMPARE(row(home)[5], u"%1 of %2 (0 %)"_s.arg(dollars("0"), dollars("400")));
        move(home, "Car", "Checking", "103.99");
        QCOMPARE(row(home)[5], u"%1 of %2 (25 %)"_s.arg(dollars("103.99"), dollars("400")));
        move(home, "Car", "Checking", "296.01");
        QCOMPARE(row(home)[5], u"reached: %1 of %1"_s.arg(dollars("400")));
        press(home, Qt::Key_I, Qt::AltModifier);
        QCOMPARE(row(home)[2], u"none"_s);
        QVERIFY(table(home).hasFocus());
        QVERIFY(!part<QWidget>(home, "end").isVisible());
        QVERIFY(home.requests().accounts().find(u"Car"_s).isClosed());
        home.trigger("undo");
        QCOMPARE(row(home)[2], u"monthly"_s);
        QVERIFY(part<QWidget>(home, "end").isVisible());
        QCOMPARE(home.requests().accounts().find(u"Car"_s).code().parent(),
                 home.requests().accounts().find(u"Checking"_s).code().number());
        goTo(home, "items/debt/new");
        keys(
            home,
            u"Alt+N=Loan; Alt+A=50; Alt+O=1000; Alt+D=2026-01-05; Alt+B=First; Alt+K=line of credit; Return"_s);
        QCOMPARE(home.requests().transactions().back().occurredOn(), QDate(2026, 1, 5));
        const auto kept = home.requests().bank(u"First"_s).accounts();
        QCOMPARE(kept.at(home.requests().accounts().find(u"Loan"_s).code().number()),
                 banking::BankAccountTypes::LineOfCredit);
        move(home, "Loan", "Checking", "250");
        QCOMPARE(row(home)[5],
                 u"%1 still owed of %2 (25 % paid off)"_s.arg(dollars("750"), dollars("1000")));
        move(home, "Loan", "Checking", "750");
        QCOMPARE(row(home)[5], u"paid off"_s);
        press(home, Qt::Key_I, Qt::AltModifier);
        QCOMPARE(home.document().undoable()->undone, u"finishing the debt “Loan”"_s);
        QVERIFY(home.requests().accounts().find(u"Loan"_s).isClosed());
        home.trigger("undo");
        keys(home, u"F2; Alt+B=none; Return"_s);
        QCOMPARE(home.requests().bank(u"First"_s).accounts().size(), kept.size() - 1);
    }

    void whatIsSetAsideIsExplainedLineByLine()
    {
        SmallHousehold home;
        show(home, "items");
        const QDate today = foundation::today();
        home.document().perform({u"Surveyed"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Tax", "600", today.addMonths(8), nullptr,
                                          budgeting::EventFrequency::Yearly);
            auto survey =
                workbench::SurveyForm::propose(home.requests(), u"First"_s, u"Checking"_s, today);
            survey.distribution.clear();
            survey.distribute(home.requests(), u"Tax=150"_s);
            survey.complete(home.requests());
        });
        move(home, "Tax", "Checking", "60");
        goTo(home, "items/bill/Tax");
        QCOMPARE(row(home)[5], dollars("90"));
        QCOMPARE(texts(home, 0, "parts"), QStringList({u"Set aside at Checking"_s, u"Before"_s,
                                                       u"Added"_s, u"Paid"_s, u"Now"_s}));
        QCOMPARE(texts(home, 1, "parts").mid(1),
                 QStringList({dollars("150"), dollars("0"), dollars("-60"), dollars("90")}));
        QCOMPARE(texts(home, 2, "parts")[3], u"paid: "_s + foundation::presentationText(today));
        goTo(home, "items/bill/Rent"); // paid monthly
        QVERIFY(!table(home, "parts").isVisible());
        goTo(home, "items/aside/" + home.number(u"Checking"_s).toLatin1());
        QCOMPARE(texts(home, 0).first(),
                 u"Checking: %1 = %2 set aside + %3 free; paid since %4: %5"_s.arg(
                     dollars("2940"), dollars("90"), dollars("2850"),
                     foundation::presentationText(today), dollars("60")));
        QCOMPARE(row(home).mid(0, 6), QStringList({u"Tax"_s, dollars("150"), dollars("0"),
                                                   dollars("-60"), dollars("0"), dollars("90")}));
        press(home, Qt::Key_Return);
        QCOMPARE(home.window().page()->detail(), u"bill/Tax"_s);
    }

    void aMissingRateHindersNoChange()
    {
        SmallHousehold home;
        show(home, "items");
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Wage>("Royalties", "300 JPY", foundation::today());
            home.addItem<budgeting::Wage>("Rights", "12.50", foundation::today());
        });
        goTo(home, "items/wage/Royalties");
        QVERIFY(says(home, u"Together a month: "_s + u"¥300, "_s + dollars("2512.50")));
        goTo(home, "items/goal/Trip");
        keys(home, u"F2; Alt+A=120; Return"_s);
        QCOMPARE(message(home), QString());
        QCOMPARE(row(home)[1], dollars("120"));
        QVERIFY(says(home, u"Together a month: "_s + dollars("120")));
    }

    void whatMoreAMonthSparesIsOnlyAsked()
    {
        SmallHousehold home;
        show(home, "items");
        goTo(home, "items/goal/Trip");
        QCOMPARE(texts(home, 3, "schedule").size(), 12);
        QCOMPARE(texts(home, 3, "schedule").last(), dollars("0"));
        auto &more = part<QLineEdit>(home, "more");
        more.setFocus();
        type(home, u"300"_s);
        press(home, Qt::Key_Return);
        QCOMPARE(texts(home, 1, "schedule"), QStringList(3, dollars("400")));
        QVERIFY(says(home, u"With %1 more a month it ends on "_s.arg(dollars("300"))));
        type(home, u"x"_s);
        press(home, Qt::Key_Return);
        QVERIFY(!message(home).isEmpty() && more.hasFocus() && more.text() == u"300x");
        QCOMPARE(texts(home, 1, "schedule").size(), 12);
        QVERIFY(!home.document().undoable());
    }

    void refusalsOfItemsStandAtTheirField_data()
    {
        QTest::addColumn<Wrong>("row");
        for (const auto &[place, field, key, wrong] : std::initializer_list<Wrong>{
                 {"items/bill/new", "name", Qt::Key_N, " "},
                 {"items/bill/new", "name", Qt::Key_N, "Rent"},
                 {"items/bill/new", "amount", Qt::Key_A, "12.345"},
                 {"items/bill/new", "amount", Qt::Key_A, "-5"},
                 {"items/bill/new", "next", Qt::Key_X, "2026-02-30"},
                 {"items/goal/new", "extra", Qt::Key_O, "much"},
                 {"items/debt/new", "since", Qt::Key_D, "soon"},
                 {"banks/new", "name", Qt::Key_N, "First"},
                 {"banks/add", "opening", Qt::Key_L, "1.234"},
                 {"banks/add", "day", Qt::Key_Y, "soon"},
                 {"banks/assign", "account", Qt::Key_A, "Nowhere"},
                 {"accounts/new", "name", Qt::Key_N, ""},
                 {"accounts/new", "parent", Qt::Key_P, "Checking"}, // of another kind
                 {"accounts/new", "opening", Qt::Key_L, "x"}})
            QTest::addRow("%s %s %s", place, field, wrong) << Wrong(place, field, key, wrong);
    }
    void refusalsOfItemsStandAtTheirField()
    {
        const auto [where, field, key, typed] = rowOf<Wrong>();
        const QString place = QLatin1String(where);
        const QString wrong = QLatin1String(typed);
        SmallHousehold home;
        show(home, "items");
        const auto before = home.document().present();
        home.window().goTo(desktop::Place::fromText(place));
        if (place != u"banks/assign")
            keys(home, u"Alt+N=Fine"_s);
        if (place.startsWith(u"items"))
            keys(home, u"Alt+A=1"_s);
        press(home, key, Qt::AltModifier);
        enter(home, wrong);
        press(home, Qt::Key_Return);
        QVERIFY(!message(home).isEmpty());
        auto &edit = part<QWidget>(home, field);
        QVERIFY(edit.hasFocus());
        QCOMPARE(edit.property(edit.inherits("QComboBox") ? "currentText" : "text").toString(),
                 wrong);
        QCOMPARE(home.document().present(), before);
        press(home, Qt::Key_Escape);
        QVERIFY(!part<QWidget>(home, "save").isVisible());
        QCOMPARE(message(home), QString());
    }

    void banksAndTheirAccountsAreKept()
    {
        SmallHousehold home;
        show(home, "banks");
        const auto before = home.document().present();
        int steps = 0;
        const auto done = [&](const QString &undone) {
            ++steps;
            QCOMPARE(message(home), QString());
            QCOMPARE(home.document().undoable()->undone, undone);
        };
        keys(home, u"Alt+N=Second; Return"_s);
        done(u"adding the bank “Second”"_s);
        QCOMPARE(row(home), (QStringList{u"Second"_s, u"bank"_s, {}, u"open"_s}));
        keys(home, u"Alt+A; Alt+N=Card; Alt+K=savings; Alt+L=150; Alt+Y=2026-01-05; Return"_s);
        done(u"adding the account “Card”"_s);
        QCOMPARE(row(home), (QStringList{u"    Card"_s, u"savings"_s, dollars("150"), u"open"_s}));
        QCOMPARE(home.requests().transactions().back().occurredOn(), QDate(2026, 1, 5));
        keys(home, u"Return; Alt+N=Purse; Alt+K=cash; Return"_s);
        done(u"changing the account “Purse”"_s);
        QCOMPARE(row(home).mid(0, 2), (QStringList{u"    Purse"_s, u"cash"_s}));
        press(home, Qt::Key_B, Qt::AltModifier);
        done(u"separating “Purse” from its bank"_s);
        QCOMPARE(texts(home, 0).last(), u"Second"_s);
        goTo(home, "banks/bank/Second");
        keys(home, u"Alt+I; Alt+A=Purse; Alt+K=loan; Return"_s);
        QVERIFY(part<QComboBox>(home, "kind").hasFocus()); // it is no debt
        keys(home, u"Alt+K=money market; Return"_s);
        done(u"assigning “Purse” to “Second”"_s);
        press(home, Qt::Key_L, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty()); // it has a balance
        goTo(home, "banks/bank/First");
        keys(home, u"F2; Alt+N=Third; Return"_s);
        done(u"renaming “First” to “Third”"_s);
        goTo(home, "banks/bank/Second");
        press(home, Qt::Key_Delete);
        done(u"removing “Second”"_s);
        keys(home, u"Alt+N=Fourth; Return"_s);
        done(u"adding the bank “Fourth”"_s);
        press(home, Qt::Key_L, Qt::AltModifier);
        done(u"closing “Fourth”"_s);
        QCOMPARE(row(home)[3], u"closed"_s);
        press(home, Qt::Key_O, Qt::AltModifier);
        done(u"opening “Fourth”"_s);
        QCOMPARE(row(home)[3], u"open"_s);
        for (; steps > 0; --steps)
            home.trigger("undo");
        QCOMPARE(home.document().present(), before);
    }

    void anAccountIsReplacedOnADayThatHasCome()
    {
        SmallHousehold home;
        show(home, "banks");
        home.document().perform({u"More"_s, {}, {}}, [&home] {
            workbench::addBankAccount(home.document(),
                                      {u"Giro"_s, banking::BankName(u"First"_s),
                                       banking::BankAccountTypes::Checking, usd("0")});
        });
        const auto before = home.document().present();
        goTo(home, "banks/account/" + home.number(u"Checking"_s).toLatin1());
        keys(home, u"Alt+P; Alt+A=Giro; Alt+Y=9999-01-01; Return"_s);
        QVERIFY(message(home).contains(u"still to come"_s));
        keys(home, u"Alt+Y=2026-01-05; Return"_s);
        QCOMPARE(row(home).at(2), dollars("3000"));
        QVERIFY(home.window().findChild<desktop::Announcer *>()->text().contains(
            u"Moved %1 from"_s.arg(dollars("3000"))));
        home.trigger("undo");
        QCOMPARE(home.document().present(), before);
    }

    void accountsAreAddedRecodedClosedAndRemoved()
    {
        SmallHousehold home;
        show(home, "accounts");
        const auto before = home.document().present();
        keys(home, u"Alt+N; Alt+N=Purse; Alt+K=owned; Alt+L=40; Alt+Y=2026-01-05; Return"_s);
        QCOMPARE(row(home).mid(0, 3), (QStringList{u"Purse"_s, {}, dollars("40")}));
        QCOMPARE(home.requests().transactions().back().occurredOn(), QDate(2026, 1, 5));
        keys(home, u"F2; Alt+N=Wallet; Alt+P=Checking; Return"_s);
        QCOMPARE(row(home).first(), u"Wallet"_s);
        QCOMPARE(home.requests().accounts().find(u"Wallet"_s).code().parent(),
                 home.requests().accounts().find(u"Checking"_s).code().number());
        press(home, Qt::Key_L, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty()); // it has a balance
        press(home, Qt::Key_Delete);
        QVERIFY(!texts(home, 0).contains(u"Wallet"_s));
        keys(home, u"Alt+N; Alt+N=Fun; Return; Alt+L"_s);
        QCOMPARE(row(home).first(), u"Fun (closed)"_s);
        press(home, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(row(home).first(), u"Fun"_s);
        for (int step = 0; step < 6; ++step)
            home.trigger("undo");
        QCOMPARE(home.document().present(), before);
        goTo(home, "accounts/new");
        goTo(home, "accounts/" + home.number(u"Rent"_s).toLatin1());
        QVERIFY(!part<QWidget>(home, "save").isVisible()); // the form of the new one
        press(home, Qt::Key_Delete);                       // the item would go with it
        QCOMPARE(home.document().present(), before);
        QVERIFY(part<QWidget>(home, "remove").toolTip().contains(u"“Rent”"_s));
    }

private:
    static void goTo(HouseholdWindow &home, const QByteArray &place)
    {
        home.window().goTo(desktop::Place::fromText(QString::fromUtf8(place)));
    }
    /// The row that is chosen.
    static QStringList row(HouseholdWindow &home)
    {
        const desktop::Table &shown = table(home);
        QStringList cells;
        for (int column = 0; column < shown.model()->columnCount(); ++column)
            cells += shown.currentIndex().siblingAtColumn(column).data().toString();
        return cells;
    }
    static QString day(int year, int month, int dayOfMonth)
    {
        return foundation::presentationText(QDate(year, month, dayOfMonth));
    }
    /// Moves money to one account from another, as a step of undo.
    static void move(SmallHousehold &home, const char *to, const char *from, const char *amount)
    {
        home.document().perform({u"Moved"_s, {}, {}}, [&] {
            const workbench::AccountIndex index = home.requests().accounts();
            home.requests().change(
                workbench::transactionOutcome, &navigation::Navigator::onTransferRequested,
                index.find(QString::fromLatin1(to)).code().number(),
                index.find(QString::fromLatin1(from)).code().number(), usd(amount), QString());
        });
    }
};

static const kiv::test::Suite<TestItemsPage> suite;

#include "tst_items_page.moc"
