// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/accounting.h"

#include "interchange/html_report.h"

#include "budgeting/item_account.h"
#include "foundation/presentation.h"

#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

using namespace kiv::interchange;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
using kiv::accounting::Account;
using kiv::accounting::AccountCode;
using kiv::accounting::AccountTypes;
using kiv::budgeting::BudgetSource;
using kiv::budgeting::EventFrequency;

namespace {

const QString hostile = u"<script>alert(\"1\")</script>&'\u202E"_s;

QString listed(const std::vector<numira::Money> &amounts)
{
    QStringList texts;
    for (const numira::Money &amount : amounts)
        texts += kiv::foundation::toQString(amount);
    return texts.join(u' ');
}

/// Checking with 1,000 opened in December, a bill, a wage and a debt, from
/// January to March.
class Household {
public:
    Household()
    {
        open(AccountTypes::Asset, 1, u"Checking"_s);
        open(AccountTypes::Expense, 2, kiv::budgeting::itemAccountName(BudgetSource(hostile)));
        open(AccountTypes::Income, 3, kiv::budgeting::itemAccountName(BudgetSource(u"Job"_s)));
        open(AccountTypes::Liability, 4, kiv::budgeting::itemAccountName(BudgetSource(u"Car"_s)));
        open(AccountTypes::Equity, 5, u"Opening"_s);
        // An item whose account is in another currency than its plan, and one without.
        open(AccountTypes::Expense, 6, kiv::budgeting::itemAccountName(BudgetSource(u"Trip"_s)),
             "EUR");
        post("2025-12-30", 1, 5, "1005");
        post("2025-12-31", 5, 1, "5");
        post("2026-01-31", 2, 1, "90.10");
        post("2026-02-01", 2, 1, "120.01");
        post("2026-02-02", 1, 2, "20");
        post("2026-02-28", 1, 3, "500");
        post("2026-03-01", 1, 4, "300");
        post("2026-03-02", 4, 1, "50");
        post("2026-03-03", 1, 2, "5");
        post("2026-03-16", 2, 1, "999"); // after the report's last day
        budget.items<kiv::budgeting::Bill>().add(kiv::budgeting::Bill(
            BudgetSource(hostile), usd("1200"), EventFrequency::Yearly, day("2026-04-01")));
        budget.items<kiv::budgeting::Wage>().add(kiv::budgeting::Wage(
            BudgetSource(u"Job"_s), usd("500"), EventFrequency::Monthly, day("2026-04-01")));
        budget.items<kiv::budgeting::Debt>().add(
            kiv::budgeting::Debt(BudgetSource(u"Car"_s), usd("50"), EventFrequency::Monthly,
                                 day("2026-04-01"), usd("300")));
        for (const auto &[name, amount] :
             {std::pair(u"Boat"_s, money("JPY", "30")), {u"Trip"_s, usd("40")}})
            budget.items<kiv::budgeting::Nontrack>().add(kiv::budgeting::Nontrack(
                BudgetSource(name), amount, EventFrequency::Monthly, day("2026-04-01")));
    }

    [[nodiscard]] Figures figures(const char *from = "2026-01-20") const
    {
        return figuresOf(Period(day(from), day("2026-03-15")), ledger.accounts(),
                         ledger.transactions(), budget);
    }

    kiv::accounting::GeneralLedger ledger;
    kiv::budgeting::Budget budget;

private:
    void open(AccountTypes type, std::uint32_t number, const QString &name,
              const char *currency = "USD")
    {
        ledger.add(
            Account(type, AccountCode(no(number), name, std::nullopt), money(currency, "0"), false),
            m_generator, day("2025-12-01"));
    }
    void post(const char *date, std::uint32_t debit, std::uint32_t credit, const char *amount)
    {
        ledger.post(transfer(no(debit), no(credit), usd(amount), day(date)));
    }

    kiv::accounting::SequentialAccountNumberGenerator m_generator;
};

} // namespace

class TestFigures : public QObject {
    Q_OBJECT

private slots:
    void monthByMonth()
    {
        const Figures figures = Household().figures();
        QCOMPARE(figures.currencies.size(), std::size_t{2});
        const CurrencyFigures &sums = figures.currencies.begin()->second;
        QCOMPARE(listed(sums.netWorth), u"909.90 1309.89 1314.89"_s);
        QCOMPARE(listed(sums.income), u"0.00 500.00 0.00"_s);
        QCOMPARE(listed(sums.expenses), u"90.10 100.01 -5.00"_s);
        QCOMPARE(sums.planned, usd("190"));
        QCOMPARE(listed(sums.outgoing), u"90.10 100.01 45.00"_s);
        QStringList items;
        for (const ItemFigure &item : figures.items)
            items += kiv::foundation::toQString(item.planned) + u": "_s + listed(item.actual);
        // The bill, the debt (what it grew by is no payment), the non-tracked ones, the wage.
        QCOMPARE(items, (QStringList{u"100.00: 90.10 100.01 -5.00"_s, u"50.00: 0.00 0.00 50.00"_s,
                                     u"30: 0 0 0"_s, u"40.00: 0.00 0.00 0.00"_s,
                                     u"500.00: 0.00 500.00 0.00"_s}));
        QCOMPARE(figures.balances.size(), std::size_t{5});
        QCOMPARE(figures.balances.front().balance, usd("1564.89"));
    }

    void periodsThatMakeNoSense()
    {
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error,
                                 Period(day("2026-02-01"), day("2026-01-31")));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error,
                                 Period(day("2016-01-01"), day("2026-01-01")));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, Period(QDate(), day("2026-01-01")));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, Period(day("2026-01-01"), QDate()));
        QCOMPARE(Period(day("2016-02-29"), day("2026-01-01")).months(), std::size_t{120});
    }

    void ticksHoldAllValues_data()
    {
        QTest::addColumn<QString>("low");
        QTest::addColumn<QString>("high");
        for (const char *range : {"0 0", "-3 0", "0.01 0.02", "-1234.56 98765.43", "0 1000",
                                  "999999999999 1000000000000", "-0.01 0"}) {
            const QStringList bounds = QString::fromLatin1(range).split(u' ');
            QTest::newRow(range) << bounds[0] << bounds[1];
        }
    }
    void ticksHoldAllValues()
    {
        QFETCH(QString, low);
        QFETCH(QString, high);
        const numira::Money lowest = usd(low.toLatin1().constData());
        const numira::Money highest = usd(high.toLatin1().constData());
        const auto ticks = axisTicks({ChartKind::Bars, {}, {}, {}, {{{}, {lowest, highest}}}});
        QVERIFY(ticks.size() >= 2 && ticks.size() <= 9);
        QVERIFY(ticks.front() <= lowest.amount() && ticks.back() >= highest.amount());
        QVERIFY(std::ranges::count(ticks, numira::Decimal()) == 1);
        QVERIFY(std::ranges::adjacent_find(ticks, std::greater_equal<>()) == ticks.end());
    }

    void thePageIsWellFormedAndObeysNoName()
    {
        const QByteArray page = toHtml(Household().figures(), hostile);
        QVERIFY(!page.contains("<script"));
        QVERIFY(!page.contains("\u202E"));
        QVERIFY(page.contains("&lt;script&gt;"));
        QCOMPARE(page.count("<td class=\"n over\">$100.01&nbsp;▲</td>"), 1);
        QVERIFY(page.contains("<td class=\"n minus\">"));
        for (const char *loaded : {"http:", "https:", "src=", "@import", "url("})
            QVERIFY2(!page.contains(loaded), loaded);

        // Void elements aside, the page is XML, so that a tag left open shows.
        QByteArray xml = page;
        xml.replace("<!DOCTYPE html>", "").replace("&nbsp;", " ");
        xml.replace("charset=\"utf-8\">", "charset=\"utf-8\"/>")
            .replace("'unsafe-inline'\">", "'unsafe-inline'\"/>")
            .replace("initial-scale=1\">", "initial-scale=1\"/>");
        QXmlStreamReader reader(xml);
        int charts = 0;
        int titled = 0;
        QSet<QString> ids;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement())
                continue;
            charts += reader.name() == u"svg";
            titled +=
                reader.name() == u"svg" && reader.attributes().hasAttribute(u"aria-labelledby"_s);
            const QString id = reader.attributes().value(u"id"_s).toString();
            QVERIFY(id.isEmpty() || !ids.contains(id));
            ids.insert(id);
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(charts, 3);
        QCOMPARE(titled, charts);
    }

    void whatIsMoreLiesHigher()
    {
        const QString curve = toSvg(
            {ChartKind::Line, {}, {}, {u"a"_s, u"b"_s}, {{u"n"_s, {usd("1"), usd("3")}}}}, u"c"_s);
        std::vector<double> heights;
        static const QRegularExpression dot(u"cy=\"([0-9.]+)\""_s);
        for (const QRegularExpressionMatch &match : dot.globalMatch(curve))
            heights.push_back(match.captured(1).toDouble());
        QCOMPARE(heights.size(), std::size_t{2});
        QVERIFY(0 < heights[1] && heights[1] < heights[0]);
    }

    void chartsOfNothingAreLeftOut()
    {
        const Household household;
        // In March nothing came in, and what was spent came back.
        QByteArray page = toHtml(household.figures("2026-03-01"), u"t"_s);
        QVERIFY(page.contains("Income and expenses, USD") && page.contains("Budget against"));
        const Period april(day("2026-04-01"), day("2026-04-30"));
        page = toHtml(
            figuresOf(april, household.ledger.accounts(), household.ledger.transactions(), {}),
            u"t"_s);
        QVERIFY(page.contains("Net worth over time, USD") && !page.contains("Budget against") &&
                !page.contains("Income and expenses, USD"));
    }

    void pagesOfNothingAndOfManyMonths()
    {
        const auto page = [](const Figures &figures) { return toHtml(figures, u"t"_s); };
        QVERIFY(page(figuresOf(Household().figures().period, {}, {}, {}))
                    .contains("All accounts are empty."));
        QCOMPARE(page(Household().figures("2021-01-01")).count("r=\"1.5\""), 63);
        QCOMPARE(toSvg({}, u"c"_s), QString());
        QCOMPARE(toSvg({ChartKind::Bars, {}, {}, {u"2026-01"_s}, {}}, u"c"_s), QString());
    }
};

QTEST_APPLESS_MAIN(TestFigures)
#include "tst_figures.moc"
