// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/by_keys.h"

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

/// March of the household that docs/domain.md works out, entered by keys alone: the same
/// figures as with the command, from the first state to the last and back.
class TestMonth : public QObject, private ByKeys {
    Q_OBJECT

private slots:
    void theWindowAndTheCommandHaveTheSameFigures()
    {
        m_desk.openHousehold();
        m_desk.show();
        const QByteArray begun = figures(m_desk.path(u"household.budget"_s));

        post(u"Salary"_s, u"2026-03-02"_s);
        enter(Qt::ShiftModifier, u"180"_s, u"Checking"_s, u"Card"_s, u"2026-03-05"_s);
        post(u"Trip"_s, u"2026-03-10"_s);
        enter({}, u"60"_s, u"Card"_s, u"Groceries"_s, u"2026-03-12"_s);
        enter({}, u"70+5"_s, u"Checking"_s, u"Groceries"_s, u"2026-03-20"_s);
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
    /// Replaces what is in the field with the focus.
    void replace(const QString &text)
    {
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    /// Goes on with Tab until the focus is in the field of this name.
    void tabTo(const QString &name)
    {
        for (int tries = 0; tries < 40 && QApplication::focusWidget()->objectName() != name;
             ++tries)
            press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), name);
    }

    /// Posts what is due for an item, on the page of what is due.
    void post(const QString &item, const QString &day)
    {
        open(u"due"_s);
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
        replace(day);
        press(Qt::Key_Return);
        ++m_steps;
    }
    /// Ctrl+T spends, with Shift it moves.
    void enter(Qt::KeyboardModifiers shift, const QString &amount, const QString &own,
               const QString &other, const QString &day)
    {
        press(Qt::Key_T, Qt::ControlModifier | shift);
        replace(amount);
        tabTo(u"own"_s);
        replace(own);
        tabTo(u"other"_s);
        replace(other);
        tabTo(u"day"_s);
        replace(day);
        press(Qt::Key_Return);
        ++m_steps;
    }

    int m_steps = 0;
};

static const kiv::test::Suite<TestMonth> suite;

#include "tst_month.moc"
