// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/page_keys.h"

#include "workbench/document/bank_steps.h"
#include "workbench/requests/item_changes.h"
#include "workbench/requests/transactions.h"

#include "workbench/surveys/survey_notes.h"

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
        keys(home, u"Alt+B=2030; Return"_s); // on to the ticks
        QVERIFY(figures(home).startsWith(u"0 ticked, the books are $2,030.00 below the bank"_s));
        keys(home, u"Space; Space"_s);
        QCOMPARE(texts(home, 2, "ticks"), QStringList({u"ticked"_s, u"ticked"_s}));
        QCOMPARE(figures(home), u"2 ticked, the books are $70.00 above the bank (3.45 %)"_s);
        QVERIFY(details(home).contains(u"beyond the survey window of 2.75"_s));
        // What is missing is offered for what is not booked yet.
        keys(home, u"Alt+I=Phone; Return"_s);
        QCOMPARE(texts(home, 3, "ticks").last(), u"Phone"_s);
        QCOMPARE(figures(home), u"2 ticked, no difference"_s);
        setTaxAside(home, u"30"_s);
        setTaxAside(home, u"50"_s);
        QVERIFY(details(home).contains(u"items: $50.00; free: $1,980.00."_s));
        home.trigger("page home");
        home.trigger("page survey");
        QCOMPARE(figures(home), u"2 ticked, no difference"_s); // nothing is lost
        press(home, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        QCOMPARE(texts(home, 0, "past"), QStringList{u"Checking"_s});
        QCOMPARE(texts(home, 3, "past"), QStringList{dollars("2030")});
        QCOMPARE(texts(home, 4, "past"), QStringList{dollars("1980")}); // without the tax
        QCOMPARE(home.document().undoable()->undone, u"reconciling “Checking”"_s);
        QCOMPARE(home.requests().transactions().size(), before + 1);
        QCOMPARE(home.requests().transactions().back().amount(), usd("70"));
        home.trigger("undo");
        QCOMPARE(home.window().page()->detail(), home.number(u"Checking"_s));
        QCOMPARE(texts(home, 0, "past"), QStringList());
        QCOMPARE(texts(home, 2, "ticks"), QStringList({{}, {}}));
        home.trigger("redo");
        // What was reconciled is changed behind its back.
        home.document().perform({u"Changed"_s, {}, {}}, [&] {
            const auto last = home.requests().transactions().back().number().value();
            home.requests().navigator().onMarkUnreconciled({last});
            home.requests().navigator().onRemovedTransaction(last);
        });
        QCOMPARE(texts(home, 6, "past"), QStringList{u"changed since"_s});
    }

    void aDifferenceMayStayIfTheUserAgrees()
    {
        SmallHousehold home;
        begin(home);
        keys(home, u"Alt+L; Alt+B=2090"_s);
        QVERIFY(details(home).contains(u"inside the survey window"_s));
        press(home, Qt::Key_O, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty());
        auto &consent = part<QCheckBox>(home, "consent");
        QVERIFY(consent.hasFocus() && consent.text().contains(u"$10.00"_s));
        press(home, Qt::Key_Space);
        // Consent is given to this difference, and to no other one.
        part<QLineEdit>(home, "balance").setText(u"2089"_s);
        QVERIFY(!consent.isChecked());
        keys(home, u"Alt+Y; Alt+O"_s);
        QCOMPARE(message(home), QString());
        QCOMPARE(texts(home, 3, "past"), QStringList{dollars("2089")});
        home.window().goTo({u"survey"_s, home.number(u"Checking"_s)});
        QVERIFY(details(home).contains(u"of Checking are $11.00 above the bank since"_s));
        home.trigger("page accounts");
        QVERIFY(texts(home, 4).join(u' ').contains(u"$11.00 above the bank"_s));
        home.trigger("page banks");
        QCOMPARE(texts(home, 3).last(), u"open, $11.00 above the bank"_s);
    }

    void aFileOfTheBankFillsInDayBalanceAndTicks()
    {
        SmallHousehold home;
        begin(home);
        const QString yesterday = foundation::today().addDays(-1).toString(u"yyyyMMdd"_s);
        const auto ofx = [](const QString &entries) {
            return u"OFXHEADER:100\nDATA:OFXSGML\n\n<OFX><BANKMSGSRSV1><STMTTRNRS><STMTRS>"
                   "<CURDEF>USD<BANKACCTFROM><BANKID>1<ACCTID>12<ACCTTYPE>CHECKING</BANKACCTFROM>"
                   "<BANKTRANLIST>%1</STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>"_s.arg(entries)
                       .toUtf8();
        };
        const QString entry = u"<STMTTRN><TRNTYPE>DEBIT<DTPOSTED>%1<TRNAMT>%2<FITID>%2<NAME>%3"
                              "</STMTTRN>"_s;
        const QString today = foundation::today().toString(u"yyyyMMdd"_s);
        home.questions().files = {
            home.write(u"bad.ofx"_s, "nothing"),
            home.write(u"dayless.ofx"_s, ofx(u"</BANKTRANLIST>"_s)),
            home.write(u"good.ofx"_s,
                       ofx(entry.arg(today, u"-900.00"_s, u"Rent"_s) +
                           entry.arg(today, u"-7.50"_s, u"Kiosk"_s) +
                           u"</BANKTRANLIST><LEDGERBAL><BALAMT>2092.50<DTASOF>%1</LEDGERBAL>"_s.arg(
                               today)))};
        part<QLineEdit>(home, "day").setText(yesterday);
        for (int wrong = 0; wrong < 2; ++wrong) {
            press(home, Qt::Key_K, Qt::AltModifier);
            QVERIFY(!message(home).isEmpty());
            QVERIFY(part<QWidget>(home, "layFile").hasFocus());
        }
        QCOMPARE(part<QLineEdit>(home, "day").text(), yesterday);
        press(home, Qt::Key_K, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        QCOMPARE(part<QLineEdit>(home, "balance").text(), u"2092.50"_s);
        QCOMPARE(texts(home, 2, "ticks"), QStringList({{}, u"ticked"_s}));
        QVERIFY(part<QLabel>(home, "told").text().contains(u"Kiosk"_s));
        press(home, Qt::Key_Space); // what the books began with
        QCOMPARE(figures(home), u"2 ticked, the books are $7.50 above the bank (0.36 %)"_s);
        home.window().resize(1024, 600);
        QCoreApplication::processEvents();
        QCOMPARE(misfits(home.window()), QStringList()); // with all that can be there
        home.questions().asked.clear();
        press(home, Qt::Key_W, Qt::AltModifier);
        QCOMPARE(home.window().page()->id(), u"import"_s);
        QCOMPARE(home.questions().asked, QStringList()); // it is the same file
    }

    void whatIsPutOffIsTakenUpAsTheBooksAreThen()
    {
        SmallHousehold home;
        begin(home);
        keys(home, u"Alt+L; Alt+B=3000"_s);
        setTaxAside(home, u"50"_s);
        press(home, Qt::Key_U, Qt::AltModifier);
        QCOMPARE(home.document().undoable()->undone, u"putting off the survey of “Checking”"_s);
        home.document().perform({u"Removed"_s, {}, {}}, [&] {
            home.requests().navigator().onRemovedTransaction(
                home.requests().transactions().back().number().value());
        });
        keys(home, u"Alt+1; Alt+N"_s); // begin anew
        QCOMPARE(texts(home, 2, "ticks"), QStringList{{}});
        QCOMPARE(part<QLineEdit>(home, "balance").text(), QString());
        home.trigger("undo");
        QCOMPARE(texts(home, 2, "ticks"), QStringList{u"ticked"_s});
        QCOMPARE(part<QLineEdit>(home, "balance").text(), u"3000.00"_s);
        QVERIFY(part<QLabel>(home, "told").text().contains(u"not ticked any more: #"_s));
        QVERIFY(details(home).contains(u"items: $50.00; free: $2,950.00."_s));
        press(home, Qt::Key_O, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        QVERIFY(workbench::SurveyNotes::of(home.document().notes()).putOff.empty());
    }

    void whatIsSetAsideAtAClosedAccountCanBeDropped()
    {
        SmallHousehold home;
        begin(home);
        keys(home, u"Alt+L; Alt+B=2100"_s);
        setTaxAside(home, u"50"_s);
        press(home, Qt::Key_O, Qt::AltModifier);
        const auto code = home.requests().accounts().find(u"Checking"_s).code();
        const QByteArray drop = "drop " + home.number(u"Checking"_s).toUtf8();
        home.document().perform({u"Closed"_s, {}, {}}, [&] {
            const auto box = home.addAccount("Box", accounting::AccountTypes::Asset);
            const accounting::AccountCode other(box, u"Box"_s, std::nullopt);
            (void)workbench::post(home.requests(),
                                  {foundation::today(), other, code, usd("2100"), u"moved"_s});
            home.requests().change(workbench::accountOutcome, &navigation::Navigator::onClosed,
                                   code);
        });
        const auto recorded = [&] {
            return home.document().present().surveys.begin()->second.distribution().size();
        };
        QCOMPARE(recorded(), 1U);
        QVERIFY(part<QPushButton>(home, drop.constData()).text().startsWith(u"Set nothing"_s));
        part<QWidget>(home, drop.constData()).setFocus();
        press(home, Qt::Key_Space);
        QCOMPARE(message(home), QString());
        QCOMPARE(recorded(), 0U);
        home.trigger("undo");
        QCOMPARE(recorded(), 1U);
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
            QCOMPARE(texts(home, 2, "ticks"), QStringList({u"ticked"_s, u"ticked"_s}));
            edit.setText(right);
        }
        QCOMPARE(home.requests().transactions().size(), before);
        QVERIFY(home.document().reconciliations().empty());
        // What lies in a goal's account cannot be set otherwise.
        press(home, Qt::Key_2, Qt::AltModifier);
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
        const QString purse = home.number(u"Purse"_s);
        home.window().goTo({u"register"_s, purse});
        home.trigger("reconcileAccount");
        QCOMPARE(home.window().page()->detail(), purse);
        QCOMPARE(texts(home, 1, "ticks"), QStringList{dollars("5")});
    }

private:
    /// Rent is paid: 2,100 are left at the bank, and a tax is due once a year.
    static void begin(SmallHousehold &home)
    {
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Tax", "1200", foundation::today().addDays(90), nullptr,
                                          budgeting::EventFrequency::Yearly);
        });
        home.trigger("page survey");
    }
    static void setTaxAside(HouseholdWindow &home, const QString &amount)
    {
        press(home, Qt::Key_2, Qt::AltModifier);
        table(home, "shares").choose(u"bill:Tax"_s);
        press(home, Qt::Key_S, Qt::AltModifier);
        type(home, amount);
        press(home, Qt::Key_Return);
    }
    static QString details(HouseholdWindow &home) { return part<QLabel>(home, "details").text(); }
    static QString figures(HouseholdWindow &home) { return part<QLabel>(home, "figures").text(); }
};

static const kiv::test::Suite<TestSurveyPage> suite;

#include "tst_survey_page.moc"
