// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "pages/report_output.h"
#include "widgets/chart_view.h"

#include "conversion/currency_converter.h"
#include "numira/library.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace {

QString told(HouseholdWindow &home, const char *label)
{
    return part<QLabel>(home, label).text();
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

/// How many figures of all lines are the sums of the entries that are told with them.
int sums(HouseholdWindow &home)
{
    int summed = 0;
    for (int line = 0; line < table(home, "lines").model()->rowCount(); ++line) {
        table(home, "lines").selectRow(line);
        if (table(home, "values").model()->columnCount() > 2)
            continue; // income beside expenses
        const QStringList values = texts(home, 1, "values");
        for (qsizetype value = 0; value < values.size(); ++value) {
            table(home, "values").selectRow(static_cast<int>(value));
            const QString sum = told(home, "entriesTold");
            if (sum.endsWith(u"together "_s + values[value]))
                ++summed;
            else if (!sum.endsWith(u"no entries"_s) || values[value] != dollars("0"))
                return 0;
        }
    }
    return summed;
}

/// Whether it is finer than a screen, white to its corners, and black in the line of its title.
bool isChartOnPaper(const QTextDocument &document, const QString &name)
{
    const auto picture =
        document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    QFont bold;
    bold.setBold(true);
    const int title = 4 * 2 * QFontMetrics(bold).height();
    const QRect line =
        QRegion(QBitmap::fromImage(
                    picture.copy(0, 0, picture.width(), title).createMaskFromColor(qRgb(0, 0, 0))))
            .boundingRect();
    return picture.size() == QSize(2480, 800 + title) && picture.devicePixelRatio() == 1 &&
           picture.pixelColor(0, 0) == Qt::white &&
           picture.pixelColor(2479, 799 + title) == Qt::white && line.width() > 200 &&
           std::abs(line.center().y() - title / 2) < title / 8;
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
    void everyFigureIsTheSumOfItsEntries()
    {
        HouseholdWindow home;
        showReports(home);
        fill(home, "from", u"2025-10-01"_s);
        fill(home, "to", u"2026-02-28"_s);
        for (const QString &by : {u"By category"_s, u"By payee"_s, u"By tag"_s, u"By account"_s}) {
            choose(home, "by", by);
            for (const QString &spans : {u"Months"_s, u"Quarters"_s, u"Weeks"_s}) {
                choose(home, "spans", spans);
                QVERIFY2(sums(home) > 2, qPrintable(by + u", "_s + spans));
            }
        }
    }

    void itFollowsTheBooks()
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
        const QString other = home.path(u"other.budget"_s);
        KivCommand(other).run({u"demo"_s, other});
        QVERIFY(home.window().open(other));
        home.trigger("page reports");
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
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(desktop::paletteFor(desktop::Appearance::Dark, usual));
        const auto document = desktop::reportDocument(report, workbench::Grouping::Category);
        QApplication::setPalette(usual);
        int amounts = 0, pictures = 0;
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat image = part.fragment().charFormat().toImageFormat();
                pictures += image.isValid() && isChartOnPaper(*document, image.name());
            }
            if (!block.text().startsWith(u'$'))
                continue;
            ++amounts;
            QVERIFY(block.blockFormat().alignment() & Qt::AlignRight);
        }
        QVERIFY(amounts > 20);
        QCOMPARE(pictures, 3);
        QVERIFY(!document->toPlainText().contains(u"as a table"_s));
        home.questions().choices = {1};
        home.questions().files = {home.path(u"missing/out.html"_s)};
        home.trigger("saveReport");
        QVERIFY(home.notices().join(u' ').contains(u"Cannot write"_s));
    }
};

static const kiv::test::Suite<TestReportsPage> testReportsPageSuite;

#include "tst_reports_page.moc"
