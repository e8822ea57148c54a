// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/entry/day_text.h"
#include "workbench/entry/description.h"
#include "workbench/entry/former_entries.h"
#include "workbench/entry/sum_text.h"
#include "workbench/entry/tags_text.h"
#include "workbench/errors.h"
#include "workbench/search/own_change.h"
#include "workbench/search/transaction_filter.h"

#include "foundation/local_dates.h"
#include "support/accounting.h"
#include "support/refusal.h"

using accounting::Transaction;
using namespace workbench;

/// What people type to enter and find transactions, and what they are shown.
class TestEntry : public QObject {
    Q_OBJECT

private slots:
    void searchesFindWhatTheTableSays_data()
    {
        QTest::addColumn<QString>("answer");
        QFile table(QFINDTESTDATA("filters.txt"));
        QVERIFY(table.open(QFile::ReadOnly));
        const QStringList rows =
            QString::fromUtf8(table.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &row : rows) {
            if (!row.startsWith(u'#'))
                QTest::newRow(row.section(u'|', 0, 0).trimmed().toUtf8())
                    << row.section(u'|', 1).trimmed();
        }
    }
    void searchesFindWhatTheTableSays()
    {
        QFETCH(const QString, answer);
        const AccountIndex index = accounts();
        const QString search = QString::fromUtf8(QTest::currentDataTag());
        QStringList found;
        try {
            const workbench::TransactionFilter filter(search, index, day("2026-03-20"));
            for (const Transaction &transaction : transactions()) {
                if (filter.matches(transaction))
                    found += QString::number(transaction.number()->integer());
            }
            const QString again = workbench::filterText(filter.parts());
            QCOMPARE(workbench::filterParts(again), filter.parts());
        } catch (const foundation::Error &error) {
            QVERIFY2(answer.startsWith(u"! "_s) && error.message().startsWith(answer.sliced(2)),
                     qPrintable(error.message()));
            return;
        }
        QCOMPARE(found.join(u' '), answer);
    }

    void sumsAreExact_data()
    {
        addRows<QByteArray>(
            {{"12.30", "12.30"},
             {"-12.30", "-12.30"},
             {" 12+3.5 ", "15.50"},
             {"12 - 3.5 + 1", "9.50"},
             {"3*4.20", "12.60"},
             {"1+2*3-4*0.5", "5.00"},
             {"2 × 3 ÷ 4 − 1", "0.50"},
             {"100/8", "12.50"},
             {"0.1+0.2", "0.30"},
             {"0.3/0.1", "3.00"},
             {"5 - -3", "8.00"},
             {"EUR 5 + 3", "8.00 EUR"},
             {"3*4.20 EUR", "12.60 EUR"},
             {"1 EUR + 2 EUR", "3.00 EUR"},
             {"100/3", "'100/3' does not come out even; enter the amount itself."},
             {"1/0", "'1/0' does not come out even; enter the amount itself."},
             {"1 EUR + 2 USD",
              "'1 EUR + 2 USD' has two currencies; enter amounts of one currency."},
             {"2+*3", "'*3' is not an amount; write one like 1234.50 or '1234.50 USD'."},
             {"2+", "An amount is missing; write one like 1234.50 or '1234.50 USD'."},
             {"0.5*0.05", "'0.5*0.05' has too many decimals; USD allows 2."},
             {"99999999999999999999999999*9",
              "The amount '99999999999999999999999999*9' is too large."}});
    }
    void sumsAreExact()
    {
        const numira::Currency dollar = numira::toCurrency("USD");
        QString result;
        const QString refusal = refusalOf([&] {
            workbench::Amount amount;
            workbench::readSum(QString::fromUtf8(QTest::currentDataTag()), amount);
            result = workbench::typedText(amount.in(dollar), dollar);
        });
        QCOMPARE(result + refusal, QString::fromUtf8(rowOf<QByteArray>()));
    }

    /// A locale and what is typed; today is 2026-03-05.
    void daysAreRead_data()
    {
        addRows<QByteArray>({{"C T", "2026-03-05"},
                             {"C  today ", "2026-03-05"},
                             {"C y", "2026-03-04"},
                             {"C +7", "2026-03-12"},
                             {"C -5", "2026-02-28"},
                             {"C 5", "2026-03-05"},
                             {"C 6", "2026-02-06"},
                             {"C 30", "2026-01-30"},
                             {"C 3-5", "2026-03-05"},
                             {"C 3/6", "2025-03-06"},
                             {"C 2-29", "2024-02-29"},
                             {"C 2026-12-31", "2026-12-31"},
                             {"de_DE 5.3", "2026-03-05"},
                             {"de_DE 31.12.", "2025-12-31"},
                             {"de_DE 31.12.2026", "2026-12-31"},
                             {"de_DE 2026-12-31", "2026-12-31"},
                             {"en_US 3/5", "2026-03-05"},
                             {"C ", ""},
                             {"C 32", ""},
                             {"C 0", ""},
                             {"C 13-1", ""},
                             {"C 2-30", ""},
                             {"C +", ""},
                             {"C tomorrow?", ""},
                             {"C 2026-02-30", ""}});
    }
    void daysAreRead()
    {
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        foundation::setDateLocale(row.section(u' ', 0, 0).toStdString());
        const auto reset = qScopeGuard([] { foundation::setDateLocale({}); });
        QDate read;
        try {
            read = workbench::dayOf(row.section(u' ', 1), QDate(2026, 3, 5));
        } catch (const workbench::EntryError &) {
            // An invalid day stands for it.
        }
        QCOMPARE(read.toString(Qt::ISODate), QString::fromUtf8(rowOf<QByteArray>()));
    }

    void spendingIsNegativeAndMovingIsNothing()
    {
        workbench::OwnChange change(accounts());
        QStringList sums;
        for (const Transaction &transaction : transactions())
            change.add(transaction);
        for (const numira::Money &sum : change.sums())
            sums += QString::fromStdString(numira::toText(sum)); // 5 and 7 only move money
        QCOMPARE(sums.join(u' '), u"1795.60 -50.01"_s);
    }

    void descriptionsAreTakenApartAndPutTogether_data()
    {
        addRows<QByteArray>({{"Market | weekly [id 7]", "Market/weekly/7"},
                             {"weekly", "/weekly/"},
                             {"Market |", "Market//"},
                             {"| a | b [id 1] [id 2]", "/a | b/1,2"},
                             {"[id 7]", "//7"},
                             {"Lunch [x]", "/Lunch [x]/"}});
    }
    void descriptionsAreTakenApartAndPutTogether()
    {
        const QString text = QString::fromLatin1(QTest::currentDataTag());
        const Description read = Description::of(text);
        QCOMPARE(read.payee + u'/' + read.reason + u'/' + read.bankIds.join(u','),
                 QString::fromUtf8(rowOf<QByteArray>()));
        QCOMPARE(read.text(), text);
    }

    void namesAreTakenApartAndPutTogether_data()
    {
        addRows<QByteArray>({{" home, car,, ", "home|car"},
                             {"\"a, b\" x, c", "a, b|c"},
                             {"\"say \"\"hi\"\"\"", "say \"hi\""},
                             {"\"a\"\"", "a\""}, // no mark at the end
                             {"\"\"", ""},
                             {"x\"y", "x\"y"}});
    }
    void namesAreTakenApartAndPutTogether()
    {
        const QStringList names = workbench::namesOf(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(names.join(u'|'), QString::fromUtf8(rowOf<QByteArray>()));
        QCOMPARE(workbench::namesOf(workbench::namesText(names)), names);
    }

    void textsOfOthersAreNoIdentifiers()
    {
        const Description told{u"Ann"_s, u"x [id 1] [id 2]"_s, {u"3"_s}};
        QCOMPARE(told.text(), u"Ann | x [id 1] (id 2) [id 3]"_s);
    }

    void payeesAreCompletedAndTheirNewestEntryIsKnown()
    {
        std::vector<Transaction> all = transactions();
        const auto add = [&all](const char *on, const char *amount, const QString &text) {
            all.emplace_back(day(on), no(3), no(1), usd(amount), text,
                             txn(static_cast<std::uint16_t>(all.size() + 1)));
        };
        for (int times = 0; times < 6; ++times)
            add("2024-01-01", "1", u"Mill | x"_s); // often, but long ago
        add("2026-03-04", "9", u"market | earlier"_s);
        add("2026-03-05", "8", u"MARKET |"_s);
        const workbench::FormerEntries former(all);
        QCOMPARE(former.payees(u"M"_s), (QStringList{u"MARKET"_s, u"Mill"_s}));
        QCOMPARE(former.payees(u"zoe"_s), QStringList{u"Chez Zoé"_s});
        QCOMPARE(former.payees({}, 1), QStringList{u"MARKET"_s});
        const auto *newest = former.newest(u"market"_s);
        QVERIFY(newest);
        QCOMPARE(newest->amount, usd("8"));
        QCOMPARE(newest->credited, no(1));
        QVERIFY(!former.newest(u"mark"_s));
    }

private:
    static AccountIndex accounts()
    {
        using enum accounting::AccountTypes;
        std::set<accounting::Account> all;
        std::uint32_t number = 0;
        for (const auto &[type, name] : {std::pair(Asset, u"Checking"_s),
                                         {Asset, u"Savings"_s},
                                         {Expense, u"Groceries [Budget Item]"_s},
                                         {Expense, u"Café & Bar"_s},
                                         {Income, u"Job [Budget Item]"_s},
                                         {Liability, u"Visa"_s}}) {
            all.emplace(type, accounting::AccountCode(no(++number), name, std::nullopt), usd("0"),
                        false);
        }
        return AccountIndex(std::move(all));
    }
    static std::vector<Transaction> transactions()
    {
        using enum accounting::TransactionStatuses;
        std::vector<Transaction> all;
        const auto add = [&all](const char *on, std::uint32_t debit, std::uint32_t credit,
                                const numira::Money &amount, const char *text, auto debitStatus,
                                auto creditStatus) {
            all.push_back(Transaction(day(on), no(debit), no(credit), amount,
                                      QString::fromUtf8(text),
                                      txn(static_cast<std::uint16_t>(all.size() + 1)))
                              .withStatuses(debitStatus, creditStatus));
        };
        add("2025-12-31", 3, 1, usd("50"), "Market | weekly shopping [id 4711]", None, Reconciled);
        add("2026-03-05", 3, 1, usd("42.10"), "Market | bread", None, Cleared);
        add("2026-03-20", 4, 1, usd("12.30"), "Chez Zoé | crème brûlée", None, None);
        add("2026-02-28", 1, 5, usd("1900"), "work", Cleared, None);
        add("2026-03-01", 2, 1, usd("80"), "to market day", Reconciled, None);
        add("2025-05-10", 4, 6, money("EUR", "50.01"), "Shop 50 | march past", None, None);
        add("2026-03-19", 6, 1, usd("420.15"), "", None, None);
        return all;
    }
};

static const kiv::test::Suite<TestEntry> testEntrySuite;
#include "tst_entry.moc"
