// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/entry/day_text.h"
#include "workbench/entry/sum_text.h"
#include "workbench/errors.h"

#include "foundation/local_dates.h"
#include "foundation/presentation.h"

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

/// What people type as amounts and days in the window.
class TestTypedValues : public QObject {
    Q_OBJECT

private slots:
    void sumsAreExact_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *typed, const char *read) {
            QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(read);
        };
        row("12.30", "12.30");
        row("-12.30", "-12.30");
        row(" 12+3.5 ", "15.50");
        row("12 - 3.5 + 1", "9.50");
        row("3*4.20", "12.60");
        row("1+2*3-4*0.5", "5.00");
        row("2 × 3 ÷ 4 − 1", "0.50");
        row("100/8", "12.50");
        row("0.1+0.2", "0.30");
        row("0.3/0.1", "3.00");
        row("5 - -3", "8.00");
        row("EUR 5 + 3", "8.00 EUR");
        row("3*4.20 EUR", "12.60 EUR");
        row("1 EUR + 2 EUR", "3.00 EUR");
        row("100/3", "'100/3' does not come out even; enter the amount itself.");
        row("1/0", "'1/0' does not come out even; enter the amount itself.");
        row("1 EUR + 2 USD", "'1 EUR + 2 USD' has two currencies; enter amounts of one currency.");
        row("2+*3", "'*3' is not an amount; write one like 1234.50 or '1234.50 USD'.");
        row("2+", "'' is not an amount; write one like 1234.50 or '1234.50 USD'.");
        row("0.5*0.05", "'0.5*0.05' has too many decimals; USD allows 2.");
        row("99999999999999999999999999*9",
            "The amount '99999999999999999999999999*9' is too large.");
    }
    void sumsAreExact()
    {
        QFETCH(QString, typed);
        QFETCH(QString, read);
        const numira::Currency usd = numira::toCurrency("USD");
        QString result;
        try {
            workbench::Amount amount;
            workbench::readSum(typed, amount);
            result = workbench::typedText(amount.in(usd), usd);
        } catch (const workbench::EntryError &error) {
            result = error.message();
        }
        QCOMPARE(result, read);
    }

    void daysAreRead_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *locale, const char *typed, const char *read) {
            QTest::addRow("%s %s", locale, typed)
                << QString::fromLatin1(locale) << QString::fromLatin1(typed)
                << QString::fromLatin1(read);
        };
        // Today is 2026-03-05.
        row("C", "T", "2026-03-05");
        row("C", " today ", "2026-03-05");
        row("C", "y", "2026-03-04");
        row("C", "+7", "2026-03-12");
        row("C", "-5", "2026-02-28");
        row("C", "5", "2026-03-05");
        row("C", "6", "2026-02-06");
        row("C", "30", "2026-01-30"); // February has none
        row("C", "3-5", "2026-03-05");
        row("C", "3/6", "2025-03-06");
        row("C", "2-29", "2024-02-29");
        row("C", "2026-12-31", "2026-12-31");
        row("de_DE", "5.3", "2026-03-05");
        row("de_DE", "31.12.", "2025-12-31");
        row("de_DE", "31.12.2026", "2026-12-31");
        row("de_DE", "2026-12-31", "2026-12-31");
        row("en_US", "3/5", "2026-03-05");
        for (const char *typed : {"", "32", "0", "13-1", "2-30", "+", "tomorrow?", "2026-02-30"})
            row("C", typed, "");
    }
    void daysAreRead()
    {
        QFETCH(QString, locale);
        QFETCH(QString, typed);
        QFETCH(QString, read);
        foundation::setDateLocale(locale.toStdString());
        const auto reset = qScopeGuard([] { foundation::setDateLocale({}); });
        QDate day;
        try {
            day = workbench::dayOf(typed, QDate(2026, 3, 5));
        } catch (const workbench::EntryError &) {
            // An invalid day stands for it.
        }
        QCOMPARE(day.toString(Qt::ISODate), read);
    }
};

static const kiv::test::Suite<TestTypedValues> suite;

#include "tst_typed_values.moc"
