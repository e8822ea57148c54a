// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/page_keys.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

/// The survey of a bank account, made by keys.
class TestSurveyPage : public QObject {
    Q_OBJECT

private slots:
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
    static QString figures(HouseholdWindow &home) { return part<QLabel>(home, "figures").text(); }
};

static const kiv::test::Suite<TestSurveyPage> suite;

#include "tst_survey_page.moc"
