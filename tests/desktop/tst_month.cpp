// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

/// March of the household that docs/domain.md works out, entered by keys alone: the same
/// figures as with the command, from the first state to the last and back.
class TestMonth : public QObject {
    Q_OBJECT

private slots:
    void theWindowAndTheCommandHaveTheSameFigures()
    {
        m_desk.openHousehold();
        m_desk.show();
        const QByteArray begun = figures(m_desk.path(u"household.budget"_s));

        post(u"Salary"_s, u"2026-03-02"_s);
        move(u"180"_s, u"Checking"_s, u"Card"_s, u"2026-03-05"_s);
        post(u"Trip"_s, u"2026-03-10"_s);
        spend(u"60"_s, u"Card"_s, u"Groceries"_s, u"2026-03-12"_s);
        spend(u"70+5"_s, u"Checking"_s, u"Groceries"_s, u"2026-03-20"_s);
        post(u"Rent"_s, u"2026-03-28"_s);
        press(Qt::Key_S, Qt::ControlModifier);
        const QByteArray made = figures(m_desk.path(u"household.budget"_s));

        KivCommand kiv(m_desk.path(u"by kiv.budget"_s));
        kiv.makeHousehold();
        QCOMPARE(figures(m_desk.path(u"by kiv.budget"_s)), begun);
        kiv.runLines("post Salary --account Checking --date 2026-03-02\n"
                     "transfer Checking Card '180 USD' --date 2026-03-05 --description ''\n"
                     "post Trip --account Checking --date 2026-03-10\n"
                     "spend '60 USD' Groceries --from Card --date 2026-03-12\n"
                     "spend '75 USD' Groceries --from Checking --date 2026-03-20\n"
                     "post Rent --account Checking --date 2026-03-28\n");
        QCOMPARE(made, figures(m_desk.path(u"by kiv.budget"_s)));

        for (int step = 0; step < m_steps; ++step)
            press(Qt::Key_Z, Qt::ControlModifier);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(figures(m_desk.path(u"household.budget"_s)), begun);
        for (int step = 0; step < m_steps; ++step)
            press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(figures(m_desk.path(u"household.budget"_s)), made);
    }

private:
    static void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QVERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    /// Replaces what is in the field with the focus.
    static void type(const QString &text)
    {
        press(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    /// Goes on with Tab until the focus is in the field of this name.
    static void tabTo(const QString &name)
    {
        for (int tries = 0; tries < 40 && QApplication::focusWidget()->objectName() != name;
             ++tries)
            press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), name);
    }

    /// Posts what is due for an item, on the page of what is due.
    void post(const QString &item, const QString &day)
    {
        goTo(u"due"_s);
        auto *table = qobject_cast<QTableView *>(QApplication::focusWidget());
        QVERIFY(table);
        press(Qt::Key_Home, Qt::ControlModifier);
        const auto current = [table] {
            return table->currentIndex().siblingAtColumn(0).data().toString();
        };
        for (int row = 1; row < table->model()->rowCount() && current() != item; ++row)
            press(Qt::Key_Down);
        QCOMPARE(current(), item);
        tabTo(u"day"_s);
        type(day);
        press(Qt::Key_Return);
        ++m_steps;
    }
    void spend(const QString &amount, const QString &from, const QString &on, const QString &day)
    {
        press(Qt::Key_T, Qt::ControlModifier);
        enter(amount, from, on, day);
    }
    void move(const QString &amount, const QString &from, const QString &to, const QString &day)
    {
        press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        enter(amount, from, to, day);
    }
    void enter(const QString &amount, const QString &own, const QString &other, const QString &day)
    {
        type(amount);
        tabTo(u"own"_s);
        type(own);
        tabTo(u"other"_s);
        type(other);
        tabTo(u"day"_s);
        type(day);
        press(Qt::Key_Return);
        ++m_steps;
    }
    /// Shows a page by its number.
    void goTo(const QString &id)
    {
        const auto &pages = m_desk.window().pages();
        const auto found = std::ranges::find(pages, id, &desktop::Page::id);
        press(Qt::Key_1 + static_cast<int>(found - pages.begin()), Qt::ControlModifier);
        QCOMPARE(m_desk.window().page()->id(), id);
    }

    /// All accounts with their balances, the entries and what is due, as the command tells
    /// them.
    static QByteArray figures(const QString &file)
    {
        KivCommand kiv(file);
        return kiv.run({u"accounts"_s, u"--json"_s}) + kiv.run({u"transactions"_s, u"--json"_s}) +
               kiv.run({u"due"_s, u"--json"_s});
    }

    HouseholdWindow m_desk;
    int m_steps = 0;
};

static const kiv::test::Suite<TestMonth> suite;

#include "tst_month.moc"
