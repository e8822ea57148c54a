// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/document/bank_steps.h"
#include "workbench/surveys/survey_form.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// The pages on which the household's items, banks and accounts are kept, used by keys.
class TestItemsPage : public QObject {
    Q_OBJECT

private slots:
    // ---- items -------------------------------------------------------------------

    void anItemIsAddedChangedRenamedAndRemoved()
    {
        SmallHousehold home;
        show(home, "items");
        const auto before = home.document().present();
        press(home, Qt::Key_N, Qt::AltModifier);
        fill(home, {{Qt::Key_N, u"Gym"_s},
                    {Qt::Key_A, u"20+10"_s},
                    {Qt::Key_W, u"quarterly"_s},
                    {Qt::Key_X, u"2027-01-31"_s},
                    {Qt::Key_M, u"fun, \"a, \"\"b\"\"\""_s}});
        press(home, Qt::Key_Return);
        QCOMPARE(row(home), (QStringList{u"Gym"_s, dollars("30"), u"quarterly"_s, day(2027, 1, 31),
                                         dollars("10"), dollars("0"), u"\"a, \"\"b\"\"\", fun"_s}));
        QVERIFY(table(home).hasFocus());
        QCOMPARE(home.document().undoable()->undone, u"adding the bill “Gym”"_s);
        const budgeting::BudgetItemIdentifier gym{budgeting::BudgetItemTypes::Bill,
                                                  budgeting::BudgetSource(u"Gym"_s)};
        QVERIFY(home.document().present().itemTags.tags(gym).contains(tagging::Tag(u"a, \"b\""_s)));
        press(home, Qt::Key_F2);
        fill(home, {{Qt::Key_N, u"Sport"_s}, {Qt::Key_A, u"33"_s}});
        press(home, Qt::Key_Return);
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
        fill(home, {{Qt::Key_N, u"Car"_s},
                    {Qt::Key_A, u"100"_s},
                    {Qt::Key_O, u"400"_s},
                    {Qt::Key_B, u"Checking"_s}});
        press(home, Qt::Key_Return);
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
        fill(home, {{Qt::Key_N, u"Loan"_s},
                    {Qt::Key_A, u"50"_s},
                    {Qt::Key_O, u"1000"_s},
                    {Qt::Key_D, u"2026-01-05"_s},
                    {Qt::Key_B, u"First"_s},
                    {Qt::Key_K, u"line of credit"_s}});
        press(home, Qt::Key_Return);
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
        press(home, Qt::Key_F2);
        fill(home, {{Qt::Key_B, u"none"_s}});
        press(home, Qt::Key_Return);
        QCOMPARE(home.requests().bank(u"First"_s).accounts().size(), kept.size() - 1);
    }

    void whatIsSetAsideIsExplainedLineByLine()
    {
        SmallHousehold home;
        show(home, "items");
        const QDate today = foundation::today();
        home.document().perform({u"Surveyed"_s, {}, {}}, [&] {
            workbench::ItemValues yearly;
            workbench::readValue(u"600"_s, yearly.amount.emplace());
            yearly.every = budgeting::EventFrequency::Yearly;
            workbench::addItem<budgeting::Bill>(home.requests(),
                                                navigation::GuiElementIdentifier(1), u"Tax"_s,
                                                yearly, today.addMonths(8), {});
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
        goTo(home, "items/aside/" + number(home, u"Checking"_s));
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
        press(home, Qt::Key_F2);
        fill(home, {{Qt::Key_A, u"120"_s}});
        press(home, Qt::Key_Return);
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
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("field");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("wrong");
        const auto add = [](const char *place, const char *field, Qt::Key key, const char *wrong) {
            QTest::addRow("%s %s %s", place, field, wrong)
                << QString::fromLatin1(place) << QString::fromLatin1(field) << key
                << QString::fromLatin1(wrong);
        };
        add("items/bill/new", "name", Qt::Key_N, " ");
        add("items/bill/new", "name", Qt::Key_N, "Rent");
        add("items/bill/new", "amount", Qt::Key_A, "12.345");
        add("items/bill/new", "amount", Qt::Key_A, "-5");
        add("items/bill/new", "next", Qt::Key_X, "2026-02-30");
        add("items/goal/new", "extra", Qt::Key_O, "much");
        add("items/debt/new", "since", Qt::Key_D, "soon");
        add("banks/new", "name", Qt::Key_N, "First");
        add("banks/add", "opening", Qt::Key_L, "1.234");
        add("banks/add", "day", Qt::Key_Y, "soon");
        add("banks/assign", "account", Qt::Key_A, "Nowhere");
        add("accounts/new", "name", Qt::Key_N, "");
        add("accounts/new", "parent", Qt::Key_P, "Checking"); // of another kind
        add("accounts/new", "opening", Qt::Key_L, "x");
    }
    void refusalsOfItemsStandAtTheirField()
    {
        QFETCH(QString, place);
        QFETCH(QString, field);
        QFETCH(Qt::Key, key);
        QFETCH(QString, wrong);
        SmallHousehold home;
        show(home, "items");
        const auto before = home.document().present();
        home.window().goTo(desktop::Place::fromText(place));
        if (place != u"banks/assign")
            fill(home, {{Qt::Key_N, u"Fine"_s}});
        if (place.startsWith(u"items"))
            fill(home, {{Qt::Key_A, u"1"_s}});
        fill(home, {{key, wrong}});
        press(home, Qt::Key_Return);
        QVERIFY(!message(home).isEmpty());
        auto &edit = part<QWidget>(home, field.toLatin1().constData());
        QVERIFY(edit.hasFocus());
        QCOMPARE(edit.property(edit.inherits("QComboBox") ? "currentText" : "text").toString(),
                 wrong);
        QCOMPARE(home.document().present(), before);
        press(home, Qt::Key_Escape);
        QVERIFY(!part<QWidget>(home, "save").isVisible());
        QCOMPARE(message(home), QString());
    }

    // ---- banks -------------------------------------------------------------------

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
        press(home, Qt::Key_N, Qt::AltModifier);
        type(home, u"Second"_s);
        press(home, Qt::Key_Return);
        done(u"adding the bank “Second”"_s);
        QCOMPARE(row(home), (QStringList{u"Second"_s, u"bank"_s, {}, u"open"_s}));
        press(home, Qt::Key_A, Qt::AltModifier);
        fill(home, {{Qt::Key_N, u"Card"_s},
                    {Qt::Key_K, u"savings"_s},
                    {Qt::Key_L, u"150"_s},
                    {Qt::Key_Y, u"2026-01-05"_s}});
        press(home, Qt::Key_Return);
        done(u"adding the account “Card”"_s);
        QCOMPARE(row(home), (QStringList{u"    Card"_s, u"savings"_s, dollars("150"), u"open"_s}));
        QCOMPARE(home.requests().transactions().back().occurredOn(), QDate(2026, 1, 5));
        press(home, Qt::Key_Return);
        fill(home, {{Qt::Key_N, u"Purse"_s}, {Qt::Key_K, u"cash"_s}});
        press(home, Qt::Key_Return);
        done(u"changing the account “Purse”"_s);
        QCOMPARE(row(home).mid(0, 2), (QStringList{u"    Purse"_s, u"cash"_s}));
        press(home, Qt::Key_B, Qt::AltModifier);
        done(u"separating “Purse” from its bank"_s);
        QCOMPARE(texts(home, 0).last(), u"Second"_s);
        goTo(home, "banks/bank/Second");
        press(home, Qt::Key_I, Qt::AltModifier);
        fill(home, {{Qt::Key_A, u"Purse"_s}, {Qt::Key_K, u"loan"_s}});
        press(home, Qt::Key_Return);
        QVERIFY(part<QComboBox>(home, "kind").hasFocus()); // it is no debt
        fill(home, {{Qt::Key_K, u"money market"_s}});
        press(home, Qt::Key_Return);
        done(u"assigning “Purse” to “Second”"_s);
        press(home, Qt::Key_L, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty()); // it has a balance
        goTo(home, "banks/bank/First");
        press(home, Qt::Key_F2);
        fill(home, {{Qt::Key_N, u"Third"_s}});
        press(home, Qt::Key_Return);
        done(u"renaming “First” to “Third”"_s);
        goTo(home, "banks/bank/Second");
        press(home, Qt::Key_Delete);
        done(u"removing “Second”"_s);
        press(home, Qt::Key_N, Qt::AltModifier);
        type(home, u"Fourth"_s);
        press(home, Qt::Key_Return);
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
        goTo(home, "banks/account/" + number(home, u"Checking"_s));
        press(home, Qt::Key_P, Qt::AltModifier);
        fill(home, {{Qt::Key_A, u"Giro"_s}, {Qt::Key_Y, u"9999-01-01"_s}});
        press(home, Qt::Key_Return);
        QVERIFY(message(home).contains(u"still to come"_s));
        fill(home, {{Qt::Key_Y, u"2026-01-05"_s}});
        press(home, Qt::Key_Return);
        QCOMPARE(row(home).at(2), dollars("3000"));
        QVERIFY(home.window().findChild<desktop::Announcer *>()->text().contains(
            u"Moved %1 from"_s.arg(dollars("3000"))));
        home.trigger("undo");
        QCOMPARE(home.document().present(), before);
    }

    // ---- accounts ----------------------------------------------------------------

    void accountsAreAddedRecodedClosedAndRemoved()
    {
        SmallHousehold home;
        show(home, "accounts");
        const auto before = home.document().present();
        press(home, Qt::Key_N, Qt::AltModifier);
        fill(home, {{Qt::Key_N, u"Purse"_s},
                    {Qt::Key_K, u"owned"_s},
                    {Qt::Key_L, u"40"_s},
                    {Qt::Key_Y, u"2026-01-05"_s}});
        press(home, Qt::Key_Return);
        QCOMPARE(row(home).mid(0, 3), (QStringList{u"Purse"_s, {}, dollars("40")}));
        QCOMPARE(home.requests().transactions().back().occurredOn(), QDate(2026, 1, 5));
        press(home, Qt::Key_F2);
        fill(home, {{Qt::Key_N, u"Wallet"_s}, {Qt::Key_P, u"Checking"_s}});
        press(home, Qt::Key_Return);
        QCOMPARE(row(home).first(), u"Wallet"_s);
        QCOMPARE(home.requests().accounts().find(u"Wallet"_s).code().parent(),
                 home.requests().accounts().find(u"Checking"_s).code().number());
        press(home, Qt::Key_L, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty()); // it has a balance
        press(home, Qt::Key_Delete);
        QVERIFY(!texts(home, 0).contains(u"Wallet"_s));
        press(home, Qt::Key_N, Qt::AltModifier);
        fill(home, {{Qt::Key_N, u"Fun"_s}});
        press(home, Qt::Key_Return);
        press(home, Qt::Key_L, Qt::AltModifier);
        QCOMPARE(row(home).first(), u"Fun (closed)"_s);
        press(home, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(row(home).first(), u"Fun"_s);
        for (int step = 0; step < 6; ++step)
            home.trigger("undo");
        QCOMPARE(home.document().present(), before);
        goTo(home, "accounts/new");
        goTo(home, "accounts/" + number(home, u"Rent"_s));
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
    /// Types texts in the fields whose labels have these letters.
    static void fill(HouseholdWindow &home, const std::vector<std::pair<Qt::Key, QString>> &fields)
    {
        for (const auto &[key, text] : fields) {
            press(home, key, Qt::AltModifier);
            auto *box = qobject_cast<QComboBox *>(QApplication::focusWidget());
            if (auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
                edit->clear();
            else if (box && box->isEditable())
                box->clearEditText();
            else if (box) {
                press(home, Qt::Key_Home);
                for (int left = box->count(); left > 0 && !box->currentText().startsWith(text);
                     --left)
                    press(home, Qt::Key_Down);
                continue;
            }
            type(home, text);
        }
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
    static bool says(HouseholdWindow &home, const QString &text)
    {
        const auto labels = home.window().page()->findChildren<QLabel *>();
        return std::ranges::any_of(
            labels, [&text](const QLabel *label) { return label->text().contains(text); });
    }
    static QByteArray number(HouseholdWindow &home, const QString &account)
    {
        return QByteArray::number(
            home.requests().accounts().find(account).code().number().integer());
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
