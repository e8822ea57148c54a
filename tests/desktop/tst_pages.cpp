// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/document/bank_steps.h"
#include "workbench/versions/kept_versions.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
using accounting::AccountNumber;

/// The pages beside the register, used by keys.
class TestPages : public QObject {
    Q_OBJECT

private slots:
    void enterOpensTheRegisterOfTheAccount()
    {
        SmallHousehold home;
        show(home, "accounts");
        QSignalSpy places(&home.window().desk(), &desktop::Desk::placeWanted);
        table(home).choose(home.number(u"Checking"_s));
        press(home, Qt::Key_Down); // over the heading of the next group
        keys(home, u"Up; Return"_s);
        QCOMPARE(places.size(), 1);
        QCOMPARE(places[0][0].value<desktop::Place>(),
                 (desktop::Place{u"register"_s, home.number(u"Checking"_s)}));
    }

    void severalArePaidAsOneStepOrNotAtAll()
    {
        SmallHousehold home;
        show(home, "due");
        const std::size_t before = home.requests().transactions().size();
        keys(home, u"Shift+Down; Alt+P"_s);
        QCOMPARE(texts(home, 0), QStringList{u"Salary"_s});
        home.trigger("undo");
        QCOMPARE(home.requests().transactions().size(), before);
        home.trigger("redo");
        QCOMPARE(home.requests().transactions().size(), before + 2);
        home.trigger("undo");
        // The goal stands behind a bill of its name, which would be posted in its place.
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Car", "5", foundation::today().addDays(1));
            home.addItem<budgeting::Goal>("Car", "6", foundation::today().addDays(1), "60");
        });
        table(home).selectAll();
        press(home, Qt::Key_P, Qt::AltModifier);
        QVERIFY(message(home).contains(u"Car"_s));
        QCOMPARE(home.requests().transactions().size(), before);
        QCOMPARE(table(home).chosen().size(), 5);
    }

    void whatMayNotBeMeantIsANoticeUntilTheNextChange()
    {
        SmallHousehold home;
        show(home, "due");
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Zero", "0", foundation::today().addDays(-9));
            home.addItem<budgeting::Bill>("House", "3001", foundation::today().addDays(-8));
        });
        table(home).selectRow(0);
        keys(home, u"Alt+P"_s);
        QVERIFY(message(home).contains(u"zero"_s)); // alone, it is meant
        table(home).setFocus();
        keys(home, u"Shift+Down; Alt+P"_s);
        QCOMPARE(home.document().undoable()->undone, u"paying “House”"_s);
        const QStringList told = home.notices();
        QCOMPARE(told, QStringList{u"'Zero' has an amount of zero and was skipped.\n"
                                   "Checking is below zero: -$1.00."_s});
        home.trigger("undo");
        QVERIFY(home.notices().isEmpty());
    }

    void theAccountIsTheChosenOneThenTheLastOneThenTheFirst()
    {
        SmallHousehold home;
        show(home, "due");
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addAccount("Purse", accounting::AccountTypes::Asset, "1000");
        });
        const auto accounts = [&home] { return texts(home, 4).join(u' '); };
        QCOMPARE(accounts(), u"Checking Checking Checking"_s);
        keys(home, u"Alt+A=Purse; Return"_s);
        QCOMPARE(accounts(), u"Purse Checking Checking"_s);
        QCOMPARE(texts(home, 5).first(), dollars("100"));
        press(home, Qt::Key_P, Qt::AltModifier);
        // Now it is due again, and a new window knows only what was posted.
        home.document().perform({u"More"_s, {}, {}}, [&] {
            workbench::ItemValues values;
            values.next = foundation::today();
            const workbench::BudgetView view(home.requests());
            workbench::updateItem(home.requests(), navigation::GuiElementIdentifier(1), view,
                                  view.budget().bills.at(budgeting::BudgetSource(u"Rent"_s)),
                                  values);
        });
        home.document().writeNow();
        SmallHousehold again;
        QVERIFY(again.window().open(home.path(u"home.budget"_s)));
        again.show();
        again.trigger("page due");
        QCOMPARE(texts(again, 0), QStringList({u"Phone"_s, u"Rent"_s, u"Salary"_s}));
        QCOMPARE(texts(again, 4).join(u' '), u"Checking Purse Checking"_s);
        // It is open in the first window, so nothing can be changed in this one.
        QVERIFY(!again.window().page()->findChild<QWidget *>(u"pay"_s)->isEnabled());
        QVERIFY(!again.window().page()->findChild<QWidget *>(u"pay"_s)->toolTip().isEmpty());
        home.document().perform({u"Closed"_s, {}, {}}, [&] {
            const auto purse = home.requests().accounts().find(u"Purse"_s).code();
            home.requests().change(workbench::transactionOutcome,
                                   &navigation::Navigator::onTransferRequested,
                                   home.requests().accounts().find(u"Checking"_s).code().number(),
                                   purse.number(), test::usd("100"), QString());
            home.requests().change(workbench::accountOutcome, &navigation::Navigator::onClosed,
                                   purse);
        });
        QCOMPARE(texts(home, 4).join(u' '), u"Checking Checking Checking"_s);
    }

    void aMissingRateBlanksNoPage()
    {
        SmallHousehold home;
        show(home, "home");
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Server", "500 JPY", foundation::today());
            home.addItem<budgeting::Wage>("Royalties", "300 JPY", foundation::today().addDays(1));
            home.addItem<budgeting::Bill>("Hotel", "120 EUR", foundation::today().addMonths(5),
                                          nullptr, budgeting::EventFrequency::Yearly);
            workbench::addBankAccount(home.document(),
                                      {u"Tokyo"_s,
                                       banking::BankName(u"First"_s),
                                       banking::BankAccountTypes::Savings,
                                       numira::Money(numira::toCurrency("JPY"), 700, 0),
                                       {}});
        });
        for (desktop::Page *page : home.window().pages()) {
            home.trigger("page " + page->id().toUtf8());
            QCOMPARE(home.notices(), QStringList());
        }
        home.trigger("page home");
        QVERIFY(says(home, u"There is no exchange rate for JPY; balances leave it out."_s));
        QVERIFY(says(home,
                     u"There is no exchange rate between JPY, EUR and USD; it is needed for: "_s
                     u"Hotel, Server, Royalties, Tokyo."_s));
        QVERIFY(says(home, u"The sum at Checking leaves 'Hotel' out. "_s
                           u"There is no exchange rate between EUR and USD."_s));
        QCOMPARE(texts(home, 4, "free"), QStringList({dollars("3000"), u"¥700"_s}));
        QVERIFY(says(home, u"¥700 is free to spend"_s));
        QVERIFY(says(home, u": ¥500, $920.00. "_s));
        home.trigger("page due");
        QCOMPARE(texts(home, 5),
                 QStringList({dollars("2100"), dollars("2080"), u"–"_s, u"–"_s, dollars("4580")}));
    }

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
        table(home, "steps").choose(u"version 1"_s);
        press(home, Qt::Key_B, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty());
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
    }

    void theCommandPaletteFindsAccountsAndItems()
    {
        SmallHousehold home;
        show(home, "home");
        home.trigger("palette");
        type(home, u"trip goal"_s);
        press(home, Qt::Key_Return);
        QCOMPARE(home.window().page()->id(), u"items"_s);
        QCOMPARE(table(home).chosen(), QStringList{u"Trip"_s});
    }

private:
};

static const kiv::test::Suite<TestPages> suite;

#include "tst_pages.moc"
