// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/surveys/survey_form.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// A place, a field of its form, the field's letter, and what is refused there.

/// The pages on which the household's items, banks and accounts are kept, used by keys.
class TestItemsPage : public QObject {
    Q_OBJECT

private slots:
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
