// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "pages/report_output.h"
#include "widgets/chart_view.h"

#include "conversion/currency_converter.h"
#include "numira/library.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

namespace {

QString told(HouseholdWindow &home, const char *label = "told")
{
    return part<QLabel>(home, label).text();
}

numira::Money amountOf(const QJsonValue &amount)
{
    return numira::toMoney(numira::toCurrency(amount[u"currency"].toString().toStdString()),
                           amount[u"amount"].toString().toStdString());
}

QString money(const QJsonValue &amount)
{
    return foundation::presentationText(amountOf(amount));
}

QStringList moneyOf(const QJsonValue &amounts)
{
    QStringList texts;
    for (const QJsonValue &amount : amounts.toArray())
        texts += money(amount);
    return texts;
}

/// A member of each object.
QJsonArray each(const QJsonValue &objects, const QString &member)
{
    QJsonArray values;
    for (const QJsonValue &object : objects.toArray())
        values += object[member];
    return values;
}

/// As a cell shows a rate or a part; a dash stands for none.
QString percent(const QJsonValue &rate)
{
    return rate.isNull() ? u"–"_s
                         : foundation::presentationText(foundation::Percentage(rate.toDouble(), 1));
}

QJsonObject reportOf(HouseholdWindow &home, const QStringList &arguments)
{
    return QJsonDocument::fromJson(KivCommand(home.document().file())
                                       .run(QStringList{u"report"_s, u"--from"_s, u"2025-10-01"_s,
                                                        u"--to"_s, u"2026-02-28"_s, u"--json"_s} +
                                            arguments))
        .object();
}

/// Fills in a field, and adds up.
void fill(HouseholdWindow &home, const char *field, const QString &text)
{
    auto &edit = part<QLineEdit>(home, field);
    edit.setFocus();
    edit.setText(text);
    press(home, Qt::Key_Return);
}

void choose(HouseholdWindow &home, const char *box, const QString &text)
{
    auto &combo = part<QComboBox>(home, box);
    const int at = combo.findText(text);
    QVERIFY2(at >= 0, qPrintable(text));
    combo.setCurrentIndex(at);
    emit combo.activated(at);
}

void showReports(HouseholdWindow &home)
{
    home.openHousehold();
    home.show();
    home.trigger("page reports");
}

} // namespace

/// The page that tells where the money went, by keys.
class TestReportsPage : public QObject {
    Q_OBJECT

private slots:
    void figuresAreThoseOfTheCommandAndAddUpFromEntries_data()
    {
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("span");
        for (const auto &[by, what] : {std::pair("category", "By category"),
                                       {"payee", "By payee"},
                                       {"tag", "By tag"},
                                       {"account", "By account"}}) {
            for (const auto &[span, spans] :
                 {std::pair("month", "Months"), {"quarter", "Quarters"}, {"week", "Weeks"}})
                QTest::addRow("%s, %s", by, span)
                    << QLatin1String(what) + u'|' + QLatin1String(by)
                    << QLatin1String(spans) + u'|' + QLatin1String(span);
        }
    }
    void figuresAreThoseOfTheCommandAndAddUpFromEntries()
    {
        QFETCH(QString, by);
        QFETCH(QString, span);
        HouseholdWindow home;
        showReports(home);
        fill(home, "from", u"2025-10-01"_s);
        fill(home, "to", u"2026-02-28"_s);
        choose(home, "by", by.section(u'|', 0, 0));
        choose(home, "spans", span.section(u'|', 0, 0));
        const QJsonObject report =
            reportOf(home, {u"--by"_s, by.section(u'|', 1), u"--period"_s, span.section(u'|', 1)});
        const QJsonArray groups = report[u"groups"].toArray();
        QVERIFY(!groups.isEmpty());
        const QStringList names = texts(home, 0, "lines");
        const QStringList totals = texts(home, 2, "lines");
        const auto sums = names.size() - groups.size();
        QCOMPARE(sums, 2 * report[u"currencies"].toArray().size());
        const QJsonValue flow = report[u"currencies"][0];
        const QJsonValue all = flow[u"total"];
        QCOMPARE(told(home), u"%1 spent, %2 received; %3 kept, which is %4."_s.arg(
                                 money(all[u"expenses"]), money(all[u"income"]),
                                 money(all[u"saved"]), percent(all[u"savingsRate"])));
        table(home, "lines").selectRow(0);
        QStringList rates;
        for (const QJsonValue &rate : each(flow[u"spans"], u"savingsRate"_s))
            rates += percent(rate);
        for (const auto &[column, key] :
             {std::pair(1, u"income"_s), {2, u"expenses"_s}, {3, u"saved"_s}})
            QCOMPARE(texts(home, column, "values"), moneyOf(each(flow[u"spans"], key)));
        QCOMPARE(texts(home, 4, "values"), rates);
        for (qsizetype at = 0; at < groups.size(); ++at) {
            const QJsonObject group = groups[at].toObject();
            const QString name = group[u"name"].toString();
            if (!name.isEmpty())
                QCOMPARE(names[sums + at], name);
            QCOMPARE(totals[sums + at], money(group[u"total"]));
            QCOMPARE(texts(home, 3, "lines")[sums + at], money(group[u"average"]));
            const QString kind = group[u"kind"].toString();
            const QJsonValue whole = kind == u"expense" ? all[u"expenses"] : all[u"income"];
            const double part = 100 * group[u"total"][u"amount"].toString().toDouble() /
                                whole[u"amount"].toString().toDouble();
            QCOMPARE(texts(home, 4, "lines")[sums + at], kind == u"expense" || kind == u"income"
                                                             ? percent(std::round(part * 10) / 10)
                                                             : u"–"_s);
            table(home, "lines").selectRow(static_cast<int>(sums + at));
            const QJsonArray amounts = group[u"amounts"].toArray();
            const QStringList values = texts(home, 1, "values");
            QCOMPARE(values.size(), amounts.size());
            for (qsizetype value = 0; value < amounts.size(); ++value) {
                QCOMPARE(values[value], money(amounts[value]));
                // The entries behind the value come to it, or there are none.
                table(home, "values").selectRow(static_cast<int>(value));
                const QString sum = told(home, "entriesTold");
                QVERIFY2(sum.endsWith(u"together "_s + values[value]) ||
                             (sum.endsWith(u"no entries"_s) &&
                              amounts[value][u"amount"].toString().toDouble() == 0),
                         qPrintable(sum + u" for "_s + values[value]));
            }
        }
    }

    void theOverviewHasThePlans()
    {
        HouseholdWindow home;
        showReports(home);
        fill(home, "from", u"2025-10-01"_s);
        fill(home, "to", u"2026-02-28"_s);
        choose(home, "by", u"Overview"_s);
        const QJsonObject report = reportOf(home, {});
        const QJsonValue sums = report[u"currencies"][0];
        const QStringList names = texts(home, 0, "lines");
        const auto check = [&](const QString &name, const QList<QJsonValue> &columns) {
            table(home, "lines").selectRow(static_cast<int>(names.indexOf(name)));
            for (qsizetype column = 0; column < columns.size(); ++column)
                QCOMPARE(texts(home, static_cast<int>(column) + 1, "values"),
                         moneyOf(columns[column]));
        };
        check(u"Net worth, USD"_s, {sums[u"netWorth"]});
        const QJsonArray worth = sums[u"netWorth"].toArray();
        const numira::Money change = amountOf(worth.last()) - amountOf(worth[worth.size() - 2]);
        QVERIFY2(told(home, "entriesTold")
                     .endsWith(u"change it by "_s + foundation::presentationText(change)),
                 qPrintable(told(home, "entriesTold")));
        check(u"All income, USD"_s, {sums[u"income"], sums[u"expenses"]});
        QJsonArray planned;
        for (qsizetype span = 0; span < sums[u"outgoing"].toArray().size(); ++span)
            planned += sums[u"planned"];
        check(u"All items but wages, USD"_s, {planned, sums[u"outgoing"]});
        QVERIFY(!told(home, "entriesTold").contains(u"no entries"_s));
        const QJsonArray items = report[u"items"].toArray();
        for (const QJsonValue &item : items) {
            const qsizetype row = names.indexOf(item[u"name"].toString());
            QCOMPARE(texts(home, 2, "lines")[row], money(item[u"planned"]));
            QCOMPARE(texts(home, 4, "lines")[row], money(item[u"average"]));
            for (qsizetype span = 0; span < planned.size(); ++span)
                planned[span] = item[u"planned"];
            check(names[row], {planned, item[u"actual"]});
        }
        // Without income there is no rate, and more was spent.
        fill(home, "words", u"item:Rent"_s);
        QVERIFY2(told(home).contains(u"; %1 more spent than received."_s.arg(dollars("1800"))),
                 qPrintable(told(home)));
    }

    void fromABarToItsEntriesByKeys()
    {
        HouseholdWindow home;
        showReports(home);
        fill(home, "to", u"2026-02-28"_s);
        QVERIFY2(told(home).contains(u"spent, "_s), qPrintable(told(home)));
        home.window().goTo(desktop::Place::fromText(u"reports/category/group/expense/USD/Rent"_s));
        auto &chart = *home.window().page()->findChild<desktop::ChartView *>();
        chart.setFocus();
        press(home, Qt::Key_Home);
        QCOMPARE(table(home, "values").chosen(), QStringList{u"0"_s});
        press(home, Qt::Key_End);
        press(home, Qt::Key_Return);
        QVERIFY(table(home, "entries").hasFocus());
        QCOMPARE(texts(home, 4, "entries"), QStringList{dollars("900")});
        press(home, Qt::Key_Return);
        QCOMPARE(home.window().page()->id(), u"register"_s);
        QVERIFY(home.window().page()->detail().startsWith(u"all/"_s));
        // Back shows the same line.
        home.trigger("back");
        QCOMPARE(home.window().page()->detail(), u"category/group/expense/USD/Rent"_s);
        // Of one span the bars are the names.
        choose(home, "spans", u"All as one"_s);
        QVERIFY(texts(home, 0, "values").contains(u"Rent"_s));
        chart.lookAt(static_cast<std::size_t>(texts(home, 0, "values").indexOf(u"Rent"_s)));
        QVERIFY(texts(home, 1, "entries").size() > 1);
        // The overview has items with their plans, and what is owned.
        choose(home, "spans", u"Months"_s);
        choose(home, "by", u"Overview"_s);
        QCOMPARE(texts(home, 2, "lines")[texts(home, 0, "lines").indexOf(u"Rent"_s)],
                 dollars("900"));
        table(home, "lines")
            .selectRow(static_cast<int>(texts(home, 0, "lines").indexOf(u"Net worth, USD"_s)));
        QVERIFY(told(home, "entriesTold").contains(u"which change it by"_s));
        // A search leaves only what can be compared with it.
        fill(home, "words", u"item:Rent"_s);
        QCOMPARE(texts(home, 0, "lines"),
                 QStringList({u"All expenses, USD"_s, u"All income, USD"_s}));
        QVERIFY(told(home).endsWith(u"Only what fits: item:Rent"_s));
    }

    void itFollowsTheBooksAndForgetsThemWithTheFile()
    {
        HouseholdWindow home;
        const QString file = home.path(u"home.budget"_s);
        KivCommand(file).makeHousehold();
        // An item keeps its figures when somebody renames its account.
        KivCommand(file).run({u"account"_s, u"recode"_s, u"Rent"_s, u"--name"_s, u"Flat"_s});
        QVERIFY(home.window().open(file));
        home.show();
        home.trigger("page reports");
        choose(home, "by", u"Overview"_s);
        const auto rent = texts(home, 0, "lines").indexOf(u"Rent"_s);
        QCOMPARE(texts(home, 3, "lines")[rent], dollars("1800"));
        fill(home, "words", u"account:Flat"_s);
        home.trigger("undo");
        // The account of the search is gone, and with it the figures.
        QVERIFY(told(home).isEmpty());
        QVERIFY(!message(home).isEmpty());
        home.trigger("redo");
        QVERIFY(!told(home).isEmpty());
        // Another file has other accounts.
        const QString other = home.path(u"other.budget"_s);
        KivCommand(other).run({u"demo"_s, other});
        QVERIFY(home.window().open(other));
        home.trigger("page reports");
        QCOMPARE(part<QLineEdit>(home, "words").text(), QString());
        QCOMPARE(message(home), QString());
        // Of many names the chosen one has a bar, however small it is.
        choose(home, "by", u"By category"_s);
        choose(home, "spans", u"All as one"_s);
        const QStringList names = texts(home, 0, "lines");
        QVERIFY(names.size() > 14);
        for (int line = 0; line < names.size(); ++line) {
            table(home, "lines").selectRow(line);
            if (line >= 4) // behind the sums of two currencies
                QVERIFY2(told(home, "entriesTold").startsWith(names[line] + u':'),
                         qPrintable(names[line]));
        }
        // Without a rate currencies stay apart, and with one they do not.
        choose(home, "in", u"EUR"_s);
        QVERIFY(told(home, "rates").endsWith(u"apart: USD"_s));
        // The process converts as its first window does, which is gone.
        const auto leave = qScopeGuard([] {
            conversion::CurrencyConverter::updateCache({});
            numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::Yes);
        });
        numira::setUpLibrary([rates = workbench::storeTypedRates(
                                  home.requests(), numira::toCurrency("USD"),
                                  {{numira::toCurrency("EUR"), numira::FloatingPoint("0.5")}})](
                                 const auto &from, const auto &to) { return rates.rate(from, to); },
                             "en_US", numira::ShouldAllowFallback::Yes);
        choose(home, "spans", u"Months"_s);
        QVERIFY2(told(home, "rates").startsWith(u"1 USD is 0.5 EUR, typed by hand"_s),
                 qPrintable(told(home, "rates")));
        QCOMPARE(texts(home, 0, "lines").filter(u"USD"_s), QStringList());
    }

    void whatCannotBeAskedIsToldAtItsField()
    {
        SmallHousehold home;
        show(home, "reports");
        const QString before = told(home);
        for (const auto &[field, wrong] : {std::pair("from", u"2030-01-01"_s),
                                           {"from", u"x"_s},
                                           {"to", u"2026-02-30"_s},
                                           {"words", u"not:such"_s},
                                           {"words", u"account:Nowhere"_s}}) {
            fill(home, field, wrong);
            QVERIFY2(!message(home).isEmpty(), qPrintable(wrong));
            QVERIFY(part<QLineEdit>(home, field).hasFocus());
            QCOMPARE(told(home), before);
            part<QLineEdit>(home, field).clear();
        }
        fill(home, "from", u"1990-01-01"_s);
        QCOMPARE(message(home), QString()); // months of so many years fit, weeks do not
        choose(home, "spans", u"Weeks"_s);
        QVERIFY(message(home).contains(u"1200 spans"_s));
        press(home, Qt::Key_Escape);
        QCOMPARE(message(home), QString());
        // What the days are blamed for is told at the days, whatever is searched.
        part<QLineEdit>(home, "words").setText(u"account:Nowhere"_s);
        fill(home, "from", u"2030-01-01"_s);
        QVERIFY(part<QLineEdit>(home, "from").hasFocus());
        press(home, Qt::Key_Escape);
        fill(home, "words", u"nobody"_s);
        QCOMPARE(told(home), u"Nothing was spent or earned.\nOnly what fits: nobody"_s);
        QVERIFY(part<desktop::ChartView>(home, "").isHidden());
    }

    void reportsAreSavedAndPrinted()
    {
        HouseholdWindow home;
        showReports(home);
        fill(home, "from", u"2026-01-01"_s);
        fill(home, "to", u"2026-02-28"_s);
        const QList<QByteArray> begins{"%PDF", "<!DOCTYPE html>", "kind,name,currency,2026-01"};
        for (qsizetype form = 0; form < begins.size(); ++form) {
            home.questions().choices = {form};
            home.questions().files = {home.path(u"out%1"_s.arg(form))};
            home.trigger("saveReport");
            QFile written(home.path(u"out%1"_s.arg(form)));
            QVERIFY(written.open(QIODevice::ReadOnly));
            const QByteArray bytes = written.readAll();
            QVERIFY(bytes.startsWith(begins[form]));
            if (form == 2)
                QCOMPARE(bytes,
                         KivCommand(home.document().file())
                             .run({u"report"_s, u"--csv"_s, u"--period"_s, u"month"_s, u"--from"_s,
                                   u"2026-01-01"_s, u"--to"_s, u"2026-02-28"_s}));
        }
        home.questions().files = {home.path(u"print.pdf"_s)};
        home.trigger("print");
        QVERIFY(QFileInfo(home.path(u"print.pdf"_s)).size() > 10000);
        // What is printed has its charts, amounts at the right, and nothing that cannot be
        // unfolded.
        const workbench::BudgetReport report(
            home.requests(),
            {interchange::SpanLength::Month, QDate(2026, 1, 1), QDate(2026, 2, 28), {}, {}, {}});
        const auto document = desktop::reportDocument(report, workbench::Grouping::Category);
        int amounts = 0;
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
            if (!block.text().startsWith(u'$'))
                continue;
            ++amounts;
            QVERIFY(block.blockFormat().alignment() & Qt::AlignRight);
        }
        QVERIFY(amounts > 20);
        QCOMPARE(document->toPlainText().count(QChar::ObjectReplacementCharacter), 3);
        QVERIFY(!document->toPlainText().contains(u"as a table"_s));
        home.questions().choices = {1};
        home.questions().files = {home.path(u"missing/out.html"_s)};
        home.trigger("saveReport");
        QVERIFY(home.notices().join(u' ').contains(u"Cannot write"_s));
    }
};

static const kiv::test::Suite<TestReportsPage> suite;

#include "tst_reports_page.moc"
