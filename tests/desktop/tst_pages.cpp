// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/small_household.h"
#include "models/table_model.h"
#include "widgets/table.h"

#include "foundation/presentation.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;
using accounting::AccountNumber;

/// The pages beside the register, used by keys.
class TestPages : public QObject {
    Q_OBJECT

private slots:
    // ---- accounts ----------------------------------------------------------------

    void enterOpensTheRegisterOfTheAccount()
    {
        SmallHousehold home;
        show(home, "accounts");
        QSignalSpy places(&home.window().desk(), &desktop::Desk::placeWanted);
        table(home).choose(number(home, u"Checking"_s));
        press(home, Qt::Key_Down); // over the heading of the next group
        press(home, Qt::Key_Up);
        press(home, Qt::Key_Return);
        QCOMPARE(places.size(), 1);
        QCOMPARE(places[0][0].value<desktop::Place>(),
                 (desktop::Place{u"register"_s, number(home, u"Checking"_s)}));
    }

    void anItemsAccountHasTheItemsName()
    {
        SmallHousehold home;
        show(home, "accounts");
        QVERIFY(texts(home, 0).contains(u"Rent"_s));
        QVERIFY(!texts(home, 0).join(u' ').contains(u'['));
    }

    // ---- due ---------------------------------------------------------------------

    void payingPostsTheAmountAndMovesTheItemOn()
    {
        SmallHousehold home;
        show(home, "due");
        QCOMPARE(texts(home, 0), QStringList({u"Rent"_s, u"Phone"_s, u"Salary"_s}));
        QCOMPARE(texts(home, 2).at(0), u"3 days late"_s);
        QCOMPARE(texts(home, 5), QStringList({dollars("2100"), dollars("2080"), dollars("4580")}));
        press(home, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(texts(home, 0), QStringList({u"Phone"_s, u"Salary"_s}));
        const accounting::Transaction paid = home.requests().transactions().back();
        QCOMPARE(paid.occurredOn(), foundation::today());
        QCOMPARE(paid.crediting().name(), u"Checking"_s);
        QCOMPARE(paid.amount(), test::usd("900"));
        QCOMPARE(home.document().undoable()->undone, u"paying “Rent”"_s);
        home.trigger("undo");
        QCOMPARE(texts(home, 0), QStringList({u"Rent"_s, u"Phone"_s, u"Salary"_s}));
        QCOMPARE(table(home).chosen(), QStringList{u"bill:Rent"_s});
    }

    void skippingPostsNothing()
    {
        SmallHousehold home;
        show(home, "due");
        const std::size_t before = home.requests().transactions().size();
        press(home, Qt::Key_K, Qt::AltModifier);
        QCOMPARE(texts(home, 0), QStringList({u"Phone"_s, u"Salary"_s}));
        QCOMPARE(home.requests().transactions().size(), before);
    }

    void anotherAmountIsPaidInsteadOrBesides()
    {
        SmallHousehold home;
        show(home, "due");
        press(home, Qt::Key_M, Qt::AltModifier);
        type(home, u"12.5"_s);
        press(home, Qt::Key_I, Qt::AltModifier); // in addition
        press(home, Qt::Key_M, Qt::AltModifier);
        press(home, Qt::Key_Return);
        QCOMPARE(home.requests().transactions().back().amount(), test::usd("12.5"));
        QCOMPARE(texts(home, 0).first(), u"Rent"_s); // still due
        type(home, u"850"_s);
        press(home, Qt::Key_Return);
        QCOMPARE(home.requests().transactions().back().amount(), test::usd("850"));
        QCOMPARE(texts(home, 0).first(), u"Phone"_s);
    }

    void severalArePaidAsOneStepOrNotAtAll()
    {
        SmallHousehold home;
        show(home, "due");
        const std::size_t before = home.requests().transactions().size();
        press(home, Qt::Key_Down, Qt::ShiftModifier);
        press(home, Qt::Key_P, Qt::AltModifier);
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

    void refusalsStandAtTheirFieldAndKeepWhatWasTyped()
    {
        SmallHousehold home;
        show(home, "due");
        const std::size_t before = home.requests().transactions().size();
        for (const auto &[key, field, wrong, right] :
             {std::tuple(Qt::Key_M, "amount", u"12.345"_s, u"12"_s),
              {Qt::Key_M, "amount", u"many"_s, u"12"_s},
              {Qt::Key_Y, "day", u"2026-02-30"_s, u"2026-02-28"_s}}) {
            press(home, key, Qt::AltModifier);
            auto *edit = home.window().page()->findChild<QLineEdit *>(QLatin1String(field));
            edit->selectAll();
            type(home, wrong);
            press(home, Qt::Key_Return);
            QVERIFY(!message(home).isEmpty());
            QCOMPARE(edit->text(), wrong);
            QVERIFY(edit->hasFocus());
            edit->setText(right);
        }
        QCOMPARE(home.requests().transactions().size(), before);
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
        press(home, Qt::Key_A, Qt::AltModifier);
        type(home, u"Purse"_s);
        press(home, Qt::Key_Return);
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

private:
    static void show(SmallHousehold &home, const char *page)
    {
        home.begin();
        home.show();
        home.trigger(QByteArray("page ") + page);
        for (auto *model : home.window().findChildren<desktop::TableModel *>())
            new QAbstractItemModelTester(model, model);
    }
    static desktop::Table &table(HouseholdWindow &home, const char *name = "")
    {
        return *home.window().page()->findChild<desktop::Table *>(QLatin1String(name));
    }
    static QStringList texts(HouseholdWindow &home, int column, const char *name = "")
    {
        const QAbstractItemModel &model = *table(home, name).model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts += model.index(row, column).data().toString();
        return texts;
    }
    static QString message(HouseholdWindow &home)
    {
        return home.window().page()->findChild<desktop::FieldMessage *>()->text();
    }
    static QString number(HouseholdWindow &home, const QString &account)
    {
        return accounting::presentationText(
            home.requests().accounts().find(account).code().number());
    }
    static QString dollars(const char *text)
    {
        return foundation::presentationText(test::usd(text));
    }
    static void press(HouseholdWindow &home, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        // A button that was pressed by its letter is released a moment later.
        const auto buttons = home.window().page()->findChildren<QAbstractButton *>();
        QTRY_VERIFY(std::ranges::none_of(buttons, &QAbstractButton::isDown));
    }
    static void type(HouseholdWindow &, const QString &text)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
};

static const kiv::test::Suite<TestPages> suite;

#include "tst_pages.moc"
