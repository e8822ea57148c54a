// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

#include "workbench/statements/import_memory.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Of the checking account in March: the rent of February, a wage that is due, and what is new.
constexpr auto march = "Date,Description,Amount\n"
                       "2026-02-28,Landlord rent,-900.00\n"
                       "2026-03-02,Mill salary,2500.00\n"
                       "2026-03-05,Market food,-45.10\n"
                       "2026-03-06,Corner kiosk 17,-7.50\n"
                       "2026-03-07,Corner kiosk 18,-3.00\n";

/// Of the card: a purchase that was typed, and one that was not.
QByteArray card(const QByteArray &number)
{
    const auto entry = [](const QByteArray &day, const QByteArray &amount, const QByteArray &id) {
        return "<STMTTRN><TRNTYPE>DEBIT<DTPOSTED>" + day + "<TRNAMT>" + amount + "<FITID>" + id +
               "<NAME>Market</STMTTRN>";
    };
    return "OFXHEADER:100\nDATA:OFXSGML\nVERSION:102\nENCODING:USASCII\nCHARSET:1252\n\n"
           "<OFX><CREDITCARDMSGSRSV1><CCSTMTTRNRS><CCSTMTRS><CURDEF>USD<CCACCTFROM><ACCTID>" +
           number + "</CCACCTFROM><BANKTRANLIST>" + entry("20260217", "-180.00", "A" + number) +
           entry("20260301", "-12.00", "B" + number) +
           "</BANKTRANLIST></CCSTMTRS></CCSTMTTRNRS></CREDITCARDMSGSRSV1></OFX>";
}

/// A file, the field at which it is refused, and what is said there.
using Unread = std::tuple<QString, QByteArray, const char *, QString>;

} // namespace

/// Files of banks, imported by keys.
class TestImportWizard : public QObject {
    Q_OBJECT

private slots:
    void aFileIsCorrectedAndImportedAsOneStep()
    {
        HouseholdWindow home;
        const auto before = begin(home);
        import(home, march, u"columns"_s);
        QVERIFY(part<QLabel>(home, "summary").text().contains(u"'Description'"));
        press(home, Qt::Key_N, Qt::AltModifier);
        QCOMPARE(texts(home, 2, "entries"),
                 QStringList({u"Already there"_s, u"Due"_s, u"New"_s, u"⚠ New, to look at"_s,
                              u"⚠ New, to look at"_s}));
        QCOMPARE(texts(home, 5, "entries").mid(1, 2), QStringList({u"Salary"_s, u"Groceries"_s}));
        QCOMPARE(figures(home), u"4 new, 1 already there, 2 to look at"_s);
        QVERIFY(part<QWidget>(home, "import").toolTip().contains(u"2 entries"));
        for (const auto &[filter, shown] : {std::pair(0, 5), {1, 4}, {2, 1}, {3, 2}}) {
            part<QComboBox>(home, "filter").setCurrentIndex(filter);
            QCOMPARE(texts(home, 0, "entries").size(), shown);
        }
        // Those to look at: the first is said, and the other follows it.
        keys(home, u"Alt+S; End"_s);
        table(home, "entries").setFocus();
        press(home, Qt::Key_Return);
        type(home, u"Nowhere"_s);
        press(home, Qt::Key_Return);
        QVERIFY2(message(home).contains(u"Nowhere"), qPrintable(message(home)));
        QVERIFY(part<QWidget>(home, "other").hasFocus());
        type(home, QString(7, QChar(8)) + u"Pocket"_s);
        press(home, Qt::Key_M, Qt::AltModifier);
        QCOMPARE(texts(home, 5, "entries"), QStringList());
        keys(home, u"Alt+S; Home"_s);
        QCOMPARE(texts(home, 5, "entries").mid(3), QStringList({u"Pocket"_s, u"Pocket"_s}));
        table(home, "entries").setFocus();
        table(home, "entries").choose(u"4"_s);
        press(home, Qt::Key_Space);
        QCOMPARE(figures(home), u"3 new, 1 already there, 1 left out"_s);
        press(home, Qt::Key_P, Qt::AltModifier);

        QCOMPARE(message(home), QString());
        const auto after = home.requests().transactions();
        QCOMPARE(after.size(), before.size() + 3);
        QCOMPARE(home.window().page()->detail(),
                 home.number(u"Checking"_s) + u'/' +
                     presentationText(*after[before.size()].number()));
        QVERIFY(said(home).contains(u"3 new, 1 already there"));
        QCOMPARE(workbench::ImportMemory::of(home.document().notes()).learned.size(), 1U);
        home.trigger("undo");
        QVERIFY(home.requests().transactions() == before);
        QVERIFY(home.document().notes().isEmpty());
        home.trigger("redo");
        QVERIFY(home.requests().transactions() == after);
        // The one that was left out is as it was said of the payee; the others are there.
        import(home, march);
        QCOMPARE(figures(home), u"1 new, 4 already there"_s);
        QCOMPARE(texts(home, 5, "entries").last(), u"Pocket"_s);
        press(home, Qt::Key_P, Qt::AltModifier);
        import(home, march);
        press(home, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(said(home), u"All 5 entries are there already."_s);
        QCOMPARE(home.requests().transactions().size(), after.size() + 1);
    }

    void columnsAreShownAskedAndKept()
    {
        HouseholdWindow home;
        const auto before = begin(home);
        const QByteArray april = "My bank\n\nWhen;What;Paid;Left\n"
                                 "03/04/2026;Kiosk;-7,50;1092,50\n05/04/2026;Fee;-1,00;1091,50\n";
        import(home, april, u"columns"_s);
        QVERIFY(!message(home).isEmpty());
        keys(home, u"Alt+D=When; Alt+A=Paid; Alt+X=What; Alt+R=03/04/2026 is 3 April"_s);
        press(home, Qt::Key_N, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        QCOMPARE(texts(home, 3, "entries"), QStringList({u"Kiosk"_s, u"Fee"_s}));
        QCOMPARE(texts(home, 0, "entries").first(),
                 foundation::presentationText(QDate(2026, 4, 3)));
        for (const int row : {0, 1}) {
            table(home, "entries").selectRow(row);
            keys(home, u"Alt+I=Fees; Return"_s);
        }
        press(home, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), before.size() + 2);
        import(home, april);
    }

    void whatIsOpenIsAskedAtItsField()
    {
        HouseholdWindow home;
        const auto before = begin(home);
        home.beginImport(u"card.ofx"_s, card("4711"), "");
        QVERIFY(part<QWidget>(home, "account").hasFocus()); // two could be meant
        QVERIFY(!message(home).isEmpty());
        type(home, u"Card"_s);
        press(home, Qt::Key_N, Qt::AltModifier);
        QCOMPARE(texts(home, 2, "entries"), QStringList({u"Already there"_s, u"New"_s}));
        // The purchase that was typed is parted from its entry, and found again by hand.
        keys(home, u"Alt+W; Down"_s);
        QCOMPARE(figures(home), u"2 new, 0 already there"_s);
        keys(home, u"Down; Alt+P"_s);
        QCOMPARE(home.requests().transactions().size(), before.size() + 1);
        // Its number is known from now on, and another one is agreed to first.
        home.beginImport(u"card.ofx"_s, card("4711"), "");
        QCOMPARE(figures(home), u"0 new, 2 already there"_s);
        home.questions().files = {home.write(u"card.ofx"_s, card("0815"))};
        home.window().goTo({u"register"_s, home.number(u"Card"_s)});
        part<QWidget>(home, "import").setFocus();
        press(home, Qt::Key_Space);
        QVERIFY(part<QWidget>(home, "agreed").hasFocus());
        QVERIFY2(message(home).contains(u"4711"), qPrintable(message(home)));
        press(home, Qt::Key_N, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty());
        keys(home, u"Alt+M; Alt+N"_s);
        QCOMPARE(home.window().page()->detail(), u"rows"_s);
        // What changes the books meanwhile is compared anew.
        QCOMPARE(figures(home), u"2 new, 0 already there"_s);
        home.trigger("undo");
        home.window().goTo({u"import"_s, u"rows"_s});
        QCOMPARE(figures(home), u"1 new, 1 already there"_s);
    }

    void whatCannotBeReadIsToldAtItsField_data()
    {
        addRows<Unread>(
            {{"no file", {{}, {}, "bankFile", {}}},
             {"unknown", {u"a.bin"_s, "What?", "kind", {}}},
             {"broken", {u"a.ofx"_s, card("1").replace("-12.00", "many"), "bankFile", u"many"_s}},
             {"no table", {u"a.csv"_s, "One\nTwo\n", "day", {}}},
             {"journal",
              {u"a.journal"_s, "2026-03-01 Open\n  Food  2 USD\n", "bankFile", u"line 1"_s}}});
    }
    void whatCannotBeReadIsToldAtItsField()
    {
        const auto [name, bytes, field, sentence] = rowOf<Unread>();
        HouseholdWindow home;
        const auto before = begin(home);
        home.trigger("page import");
        const QString path = name.isEmpty() ? u" "_s : home.write(name, bytes);
        part<QLineEdit>(home, "bankFile").setText(path);
        press(home, Qt::Key_Return);
        QVERIFY2(!message(home).isEmpty() && message(home).contains(sentence),
                 qPrintable(message(home)));
        QVERIFY(part<QWidget>(home, field).hasFocus());
        QCOMPARE(part<QLineEdit>(home, "bankFile").text(), path);
        QVERIFY(home.requests().transactions() == before);
    }

    void aJournalIsShownAndImportedAsOneStep()
    {
        HouseholdWindow home;
        const auto before = begin(home);
        home.beginImport(
            u"old.journal"_s,
            "2026-02-15 Market | food\n  Expenses:Groceries  180 USD\n  Liabilities:Card\n"
            "2026-03-01 Baker\n  Expenses:Bread  4 USD\n  Assets:Checking\n");
        QCOMPARE(texts(home, 1, "journal"), QStringList({u"Already there"_s, u"New"_s}));
        QVERIFY(part<QLabel>(home, "journalFigures").text().contains(u"opened: Bread"));
        press(home, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), before.size() + 1);
        QVERIFY(said(home).contains(u"1 new, 1 already there"));
        home.trigger("undo");
        QVERIFY(home.requests().transactions() == before);
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal,
                                 (void)home.requests().accounts().find(u"Bread"_s));
    }

private:
    /// Opens the household. Returns what is in its books.
    static std::vector<accounting::Transaction> begin(HouseholdWindow &home)
    {
        home.openHousehold();
        home.show();
        return home.requests().transactions();
    }
    /// Into the checking account.
    static void import(HouseholdWindow &home, const QByteArray &bytes,
                       const QString &step = u"rows"_s)
    {
        home.beginImport(u"march.csv"_s, bytes);
        QVERIFY2(home.window().page()->detail() == step, qPrintable(message(home)));
    }
    static QString figures(HouseholdWindow &home) { return part<QLabel>(home, "figures").text(); }
    static QString said(HouseholdWindow &home)
    {
        return home.window().findChild<desktop::Announcer *>()->text();
    }
};

static const kiv::test::Suite<TestImportWizard> suite;

#include "tst_import_wizard.moc"
