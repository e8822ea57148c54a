// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"

#include "workbench/entry/money_text.h"

#include <QtWidgets/QtWidgets>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

/// A field, what is typed into it, and what is said of it.

/// The register's work by real keys.
class TestRegisterPage : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_desk.emplace();
        m_desk->openHousehold();
        m_desk->show();
        m_desk->window().goTo({u"register"_s, m_desk->number(u"Checking"_s)});
        m_before = m_last = all();
    }
    void cleanup() { m_desk.reset(); }

    void onePaymentOnSeveralThingsIsOneStep()
    {
        press(Qt::Key_T, Qt::ControlModifier);
        const auto line = [this](const QString &amount, const QString &other) {
            fill(u"amount"_s, amount);
            fill(u"other"_s, other);
            press(Qt::Key_Tab); // which closes the list of names
        };
        fill(u"payee"_s, u"Market"_s);
        line(u"40"_s, u"Groceries"_s);
        press(Qt::Key_L, Qt::AltModifier);
        QTRY_COMPARE(text(u"amount"_s), QString());
        line(u"12.345"_s, u"Rent"_s); // too many digits
        press(Qt::Key_L, Qt::AltModifier);
        QTRY_VERIFY(!pageMessage().isEmpty());
        QCOMPARE(text(u"amount"_s), u"12.345"_s);
        line(u"12.30"_s, u"Rent"_s);
        press(Qt::Key_L, Qt::AltModifier);
        QTRY_COMPARE(text(u"amount"_s), QString());
        line(u"1"_s, u"Salary"_s); // nothing is spent on it, so no line is
        press(Qt::Key_Return);
        QVERIFY(!pageMessage().isEmpty());
        QCOMPARE(all(), m_before);
        fill(u"other"_s, {});
        fill(u"amount"_s, {});
        fill(u"day"_s, u"2026-02-20"_s);
        press(Qt::Key_Return);
        QCOMPARE(news(), u"2026-02-20 Checking > Groceries 40.00 USD Market |\n"
                         "2026-02-20 Checking > Rent 12.30 USD Market |"_s);
        m_desk->trigger("undo");
        QCOMPARE(all(), m_before);
    }

    void anExchangeTakesTheCurrencyOfItsAccount()
    {
        m_desk->trigger("save");
        m_desk->requests().change(
            workbench::accountOutcome, &navigation::Navigator::onAddedAct,
            accounting::Account(accounting::AccountTypes::Asset,
                                {m_desk->requests().accounts().nextNumber(), u"Euros"_s, {}},
                                numira::Money(numira::toCurrency("EUR")), false));
        emit m_desk->window().desk().refreshWanted();
        press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        fill(u"amount"_s, u"200"_s);
        fill(u"other"_s, u"Euros"_s);
        press(Qt::Key_Tab);
        fill(u"received"_s, u"183.50 USD"_s); // of the wrong account
        press(Qt::Key_Return);
        QVERIFY(pageMessage().contains(u"EUR"_s));
        QCOMPARE(all(), m_before);
    }

    void severalRowsAreCategorisedAtOnceOrNone()
    {
        selectRow(u"Landlord: rent"_s);
        // The next one was set aside and has no category: neither changes.
        press(Qt::Key_Up);
        press(Qt::Key_Down, Qt::ShiftModifier);
        m_desk->trigger("categoryOfEntries");
        m_desk->type(u"Fees"_s);
        press(Qt::Key_Return);
        QVERIFY(pageMessage().contains(u"has no category"_s));
        QCOMPARE(all(), m_before);
        press(Qt::Key_Escape);

        m_desk->window().goTo({u"register"_s, m_desk->number(u"Rent"_s)});
        page()->findChild<QTableView *>()->selectAll();
        m_desk->trigger("categoryOfEntries");
        m_desk->type(u"Fees"_s);
        press(Qt::Key_Return);
        QCOMPARE(news().count(u"Checking > Fees 900.00 USD"_s), 2);
        m_desk->trigger("undo");
        QCOMPARE(all(), m_before);
    }

    void aBudgetForReadingSaysWhyNothingCanBeEntered()
    {
        HouseholdWindow other;
        QVERIFY(other.window().open(m_desk->path(u"household.budget"_s)));
        other.window().goTo({u"register"_s, {}});
        const QAction *action = other.window().desk().actions().action(u"newEntry"_s);
        QVERIFY(!action->isEnabled());
        QCOMPARE(desktop::ActionCollection::reason(action), *other.document().whyReadOnly());
    }

private:
    [[nodiscard]] desktop::Page *page() { return m_desk->window().page(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_desk->keyTarget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    /// Replaces what is in a field.
    void fill(const QString &field, const QString &text)
    {
        page()->findChild<QWidget *>(field)->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        m_desk->type(text);
    }
    [[nodiscard]] QString text(const QString &field)
    {
        const auto *box = page()->findChild<QComboBox *>(field);
        return box ? box->currentText() : page()->findChild<QLineEdit *>(field)->text();
    }
    [[nodiscard]] QString pageMessage()
    {
        QStringList texts;
        for (const auto *message : page()->findChildren<desktop::FieldMessage *>())
            texts += message->text();
        return texts.join(u' ');
    }
    /// The row with this text, or one of those behind it with the same text.
    void selectRow(const QString &text, qsizetype which = 0)
    {
        auto *table = page()->findChild<QTableView *>();
        table->setFocus();
        const QModelIndexList found = table->model()->match(
            table->model()->index(0, 1), Qt::DisplayRole, text, static_cast<int>(which) + 1);
        QVERIFY(found.size() > which);
        table->setCurrentIndex(found.at(which));
    }
    /// All transactions as lines.
    [[nodiscard]] QStringList all()
    {
        QStringList lines;
        const workbench::AccountIndex index = m_desk->requests().accounts();
        for (const accounting::Transaction &transaction : m_desk->requests().transactions()) {
            const auto mark = std::max(transaction.debitStatus(), transaction.creditStatus());
            lines += u"%1 %2 > %3 %4 %5%6"_s.arg(
                transaction.occurredOn().toString(Qt::ISODate),
                index.plainName(transaction.crediting().number()),
                index.plainName(transaction.debiting().number()),
                workbench::amountText(transaction.amount(),
                                      navigation::CurrencyDisplayOptions::IsoCode),
                transaction.description().value_or(QString()),
                mark == accounting::TransactionStatuses::None ? QString()
                                                              : u' ' + accounting::toQString(mark));
        }
        return lines;
    }
    /// The line that all() has now and did not have at the last call.
    [[nodiscard]] QString news()
    {
        QStringList now = all();
        const QStringList present = now;
        for (const QString &line : std::as_const(m_last))
            now.removeOne(line);
        m_last = present;
        return now.join(u'\n');
    }

    std::optional<HouseholdWindow> m_desk;
    QStringList m_before;
    QStringList m_last;
};

static const kiv::test::Suite<TestRegisterPage> suite;

#include "tst_register_page.moc"
