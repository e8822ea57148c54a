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

} // namespace

/// Files of banks, imported by keys.
class TestImportWizard : public QObject {
    Q_OBJECT

private slots:
    void whatIsSaidOfOnePayeeIsRemembered()
    {
        HouseholdWindow home;
        const auto before = begin(home);
        import(home, march, u"columns"_s);
        press(home, Qt::Key_N, Qt::AltModifier);
        // Those to look at: the first is said, and the other follows it.
        keys(home, u"Alt+S; End"_s);
        table(home, "entries").setFocus();
        press(home, Qt::Key_Return);
        type(home, u"Pocket"_s);
        press(home, Qt::Key_M, Qt::AltModifier);
        QCOMPARE(texts(home, 5, "entries"), QStringList());
        keys(home, u"Alt+S; Home"_s);
        QCOMPARE(texts(home, 5, "entries").mid(3), QStringList({u"Pocket"_s, u"Pocket"_s}));
        table(home, "entries").setFocus();
        table(home, "entries").choose(u"4"_s);
        press(home, Qt::Key_Space);
        QCOMPARE(figures(home), u"3 new, 1 already there, 1 left out"_s);
        press(home, Qt::Key_P, Qt::AltModifier);

        const auto after = home.requests().transactions();
        QCOMPARE(after.size(), before.size() + 3);
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
