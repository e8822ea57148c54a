// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/by_keys.h"

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

/// From the first start to a change of bank, by keys alone: the same books as with the command.
class TestBeginner : public QObject, private ByKeys {
    Q_OBJECT

private slots:
    void theFirstStart()
    {
        m_desk.show();
        QTRY_VERIFY(m_desk.window().findChild<desktop::FirstTimeWizard *>()->isVisible());
        fill({{Qt::Key_B, m_desk.path(u"window.budget"_s)}, {Qt::Key_U, u"USD"_s}});
        letter(Qt::Key_N);
        fill({{Qt::Key_B, u"First"_s}, {Qt::Key_A, u"Checking"_s}, {Qt::Key_W, u"1500"_s}});
        press(Qt::Key_Return);
        fill({{Qt::Key_U, u"One adult"_s}});
        item(u"Job"_s, {{Qt::Key_A, u"2500"_s}});
        item(u"Rent"_s, {{Qt::Key_A, u"900"_s}});
        item(u"Mobile"_s, {}); // the bill of the same beginning comes first
        item(u"Mobile"_s, {{Qt::Key_A, u"100"_s}, {Qt::Key_R, u"200"_s}});
        letter(Qt::Key_M);
        QVERIFY(m_desk.window().page());
        QCOMPARE(m_desk.window().page()->id(), u"home"_s);
    }

    void aBillAndWhatIsSpentOnIt()
    {
        open(u"items"_s);
        letter(Qt::Key_N);
        fill({{Qt::Key_N, u"Groceries"_s}, {Qt::Key_A, u"300"_s}});
        done(u"adding the bill “Groceries”"_s);
        press(Qt::Key_T, Qt::ControlModifier);
        entry(u"60"_s, u"Checking"_s, u"Groceries"_s);
        done(u"spending $60.00 on Groceries"_s);
    }

    void aNewLoanThatABankKeeps()
    {
        open(u"items"_s);
        choose(u"Debts"_s);
        letter(Qt::Key_N);
        fill({{Qt::Key_N, u"Loan"_s},
              {Qt::Key_A, u"50"_s},
              {Qt::Key_O, u"1000"_s},
              {Qt::Key_B, u"First"_s},
              {Qt::Key_K, u"loan"_s}});
        done(u"adding the debt “Loan”"_s);
    }

    void aGoalThatIsReached()
    {
        press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        entry(u"200"_s, u"Checking"_s, u"Mobile"_s);
        done(u"moving $200.00 from Checking to Mobile"_s);
        open(u"items"_s);
        choose(u"Goals"_s);
        QVERIFY(shown().contains(u"reached"_s));
    }

    void anAccountOfTheWrongKindAndAClosedBank()
    {
        open(u"banks"_s);
        letter(Qt::Key_A);
        fill({{Qt::Key_N, u"Saver"_s}, {Qt::Key_K, u"savings"_s}, {Qt::Key_L, u"100"_s}});
        done(u"adding the account “Saver”"_s);
        press(Qt::Key_F2);
        fill({{Qt::Key_K, u"money market"_s}});
        done(u"changing the account “Saver”"_s);
        letter(Qt::Key_N);
        fill({{Qt::Key_N, u"Old"_s}});
        done(u"adding the bank “Old”"_s);
        letter(Qt::Key_L);
        QVERIFY(shown().contains(u"closed"_s));
    }

    void onePaymentForTwoThingsAndAnExchange()
    {
        press(Qt::Key_T, Qt::ControlModifier);
        entry(u"40"_s, u"Checking"_s, u"Groceries"_s);
        letter(Qt::Key_L);
        fill({{Qt::Key_A, u"12.30"_s}, {Qt::Key_O, u"Rent or mortgage payment"_s}});
        press(Qt::Key_Tab);
        done(u"spending $52.30 on Groceries, Rent or mortgage payment"_s);
        open(u"accounts"_s);
        letter(Qt::Key_N);
        fill({{Qt::Key_N, u"Euros"_s}, {Qt::Key_K, u"owned"_s}, {Qt::Key_L, u"10 EUR"_s}});
        done(u"adding the account “Euros”"_s);
        press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        entry(u"200"_s, u"Checking"_s, u"Euros"_s);
        fill({{Qt::Key_X, u"183.50"_s}});
        done(u"exchanging $200.00 for €183.50"_s);
    }

    void theCommandMakesTheSameBooks()
    {
        press(Qt::Key_S, Qt::ControlModifier);
        KivCommand kiv(m_desk.path(u"kiv.budget"_s));
        kiv.run({u"wizard"_s, u"--template"_s, u"adult-single"_s, u"--currency"_s, u"USD"_s,
                 u"--bank"_s, u"First"_s, u"--account"_s, u"Checking"_s, u"--balance"_s, u"1500"_s,
                 u"--item"_s, u"Job=2500"_s, u"--item"_s, u"Rent or mortgage payment=900"_s,
                 u"--item"_s, u"goal:Mobile=100 of 200"_s});
        kiv.runLines("bill add Groceries 300\n"
                     "spend 60 Groceries --from Checking\n"
                     "debt add Loan 50 --borrowed 1000 --bank First --type loan\n"
                     "transfer Checking Mobile 200 --description ''\n"
                     "bank-account add Saver --bank First --type savings --balance 100\n"
                     "bank-account attach Saver --bank First --type money-market\n"
                     "bank add Old\n"
                     "bank close Old\n"
                     "transaction add --from Checking --split 'Groceries=40' "
                     "--split 'Rent or mortgage payment=12.30'\n"
                     "account add Euros --type asset --balance '10 EUR'\n"
                     "transfer Checking Euros '200 USD' --received '183.50 EUR' "
                     "--description ''\n");
        const QByteArray made = figures(m_desk.path(u"kiv.budget"_s));
        QVERIFY(made.contains("Groceries"));
        QCOMPARE(figures(m_desk.path(u"window.budget"_s)), made);
    }

private:
    /// Goes to the next item whose name begins so, and fills its fields.
    void item(const QString &name, const std::vector<std::pair<Qt::Key, QString>> &fields)
    {
        for (int tries = 0; !qobject_cast<QTableView *>(QApplication::focusWidget()) && tries < 20;
             ++tries)
            press(Qt::Key_Tab, Qt::ShiftModifier);
        QTest::qWait(QApplication::keyboardInputInterval() + 50); // what was typed before is old
        type(name);
        fill(fields);
        if (!fields.empty())
            press(Qt::Key_Return);
    }
    void entry(const QString &amount, const QString &own, const QString &other)
    {
        type(amount);
        for (const QString &account : {own, other}) {
            press(Qt::Key_Tab);
            press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_Delete);
            type(account);
        }
        press(Qt::Key_Tab);
    }
    /// A tab of the page.
    void choose(const QString &tab)
    {
        auto *tabs = m_desk.window().page()->findChild<QTabBar *>();
        for (int tries = 0; QApplication::focusWidget() != tabs && tries < 40; ++tries)
            press(Qt::Key_Tab);
        press(Qt::Key_Home);
        for (int tries = 0; tabs->tabText(tabs->currentIndex()) != tab && tries < 6; ++tries)
            press(Qt::Key_Right);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), tab);
    }
    /// Sends what was typed, and looks at what undo would take back then.
    void done(const QString &undone)
    {
        press(Qt::Key_Return);
        const auto undoable = m_desk.document().undoable();
        QCOMPARE(undoable ? undoable->undone : QString(), undone);
    }
    /// The texts of the page's table.
    QString shown()
    {
        const QAbstractItemModel &model =
            *m_desk.window().page()->findChild<QTableView *>()->model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < model.columnCount(); ++column)
                texts += model.index(row, column).data().toString();
        return texts.join(u'\n');
    }
};

static const kiv::test::Suite<TestBeginner> suite;

#include "tst_beginner.moc"
