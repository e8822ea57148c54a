// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "desktop/told.h"
#include "widgets/chart_view.h"

#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/settings.h"
#include "workbench/versions/kept_versions.h"

namespace {

/// The middle of all that is drawn in a colour.
QPoint middleOf(desktop::ChartView &chart, desktop::Colour meaning)
{
    const QImage picture = chart.grab().toImage();
    const QRgb wanted = desktop::colour(meaning, chart.palette()).rgb();
    QPoint sum;
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == wanted) {
                sum += QPoint(x, y);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : QPoint();
}

} // namespace

/// The pages beside the register, used by keys.
class TestPages : public QObject {
    Q_OBJECT

private slots:
    void goesBackToAStepAndToAFormerVersion()
    {
        SmallHousehold home;
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        home.document().writeNow();
        press(home, Qt::Key_P, Qt::AltModifier);
        home.trigger("page history");
        QCOMPARE(texts(home, 0, "steps").mid(0, 4),
                 QStringList({u"Since the file was opened"_s, u"Paid Phone."_s, u"Paid Rent."_s,
                              u"As it was opened"_s}));
        table(home, "steps").choose(u"step 1"_s);
        QTRY_VERIFY(table(home, "changes").isVisible());
        QVERIFY(texts(home, 1, "changes").join(u' ').contains(u"Phone"_s));
        QVERIFY(!texts(home, 1, "changes").join(u' ').contains(u"Rent"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
        QCOMPARE(texts(home, 2, "steps").mid(1, 3), QStringList({{}, u"present"_s, {}}));
        // The oldest version of the file is the budget as it began.
        table(home, "steps").choose(u"version 1"_s);
        QTRY_VERIFY(table(home, "changes").isVisible());
        QVERIFY(texts(home, 1, "changes").contains(u"3 Rent"_s));
        QVERIFY(texts(home, 3, "changes").contains(u"balance 0.00 USD → 900.00 USD"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(home.requests().transactions().size(), std::size_t{1});
        home.trigger("redo");
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
    }

    void aDamagedVersionIsShownAndRefused()
    {
        SmallHousehold home;
        show(home, "due");
        press(home, Qt::Key_P, Qt::AltModifier);
        // What this session has seen is still in memory.
        QVERIFY(home.window().open(home.document().file()));
        const workbench::KeptVersions versions(home.document().file());
        QFile damaged(versions.named(u"1"_s).path);
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no budget") > 0);
        damaged.close();
        home.trigger("page history");
        QCOMPARE(texts(home, 2, "steps").last(), u"damaged"_s);
        // No number stands here to be explained.
        const QAction *explain = home.window().desk().actions().action(u"explain"_s);
        QVERIFY(!desktop::ActionCollection::reason(explain).isEmpty());
        table(home, "steps").choose(u"version 1"_s);
        QTRY_VERIFY(part<QLabel>(home, "difference").isVisible());
        QVERIFY(part<QLabel>(home, "difference").text().contains(u"damaged"_s));
        press(home, Qt::Key_B, Qt::AltModifier);
        QVERIFY(!message(home).isEmpty());
        QCOMPARE(home.requests().transactions().size(), std::size_t{2});
    }

    void aBudgetThatIsOnlyReadOffersNoChange()
    {
        HouseholdWindow first;
        first.openHousehold();
        HouseholdWindow home;
        QVERIFY(home.window().open(first.document().file()));
        home.show();
        const QString whyNot = home.window().desk().whyNoChange().value();
        const auto saysWhyNot = [&home, &whyNot] {
            QStringList told;
            tell(*home.window().page(), 0, told);
            return told.join(u' ').contains(whyNot);
        };
        QStringList refused;
        int pressed = 0;
        for (desktop::Page *page : home.window().pages()) {
            for (const QString &part : QStringList{QString()} + page->parts()) {
                for (const QPointer<QAbstractButton> button :
                     page->findChildren<QAbstractButton *>()) {
                    home.window().goTo({page->id(), part});
                    if (!button || !button->isVisible() || !button->isEnabled())
                        continue;
                    const bool saidSo = saysWhyNot();
                    const QString text = button->text();
                    button->click();
                    ++pressed;
                    // Another page may say it from the start.
                    if (home.window().page() == page && !saidSo && saysWhyNot())
                        refused += page->id() + u' ' + part + u": "_s + text;
                }
            }
        }
        QVERIFY2(refused.isEmpty(), qPrintable(refused.join(u'\n')));
        QVERIFY(pressed > 50);
        home.window().goTo({u"register"_s, {}});
        QVERIFY(!part<QPushButton>(home, "addLine").isEnabled());
    }

    void aChartIsReadInBothDirectionsAndByKeys()
    {
        interchange::Chart chart{interchange::ChartKind::Steps,
                                 u"Money"_s,
                                 u"Lowest."_s,
                                 {u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s},
                                 {{u"Money"_s, {usd("100"), usd("-20"), usd("60"), usd("80")}}}};
        chart.mark = {0, 1, u"here"_s};
        desktop::ChartView view(nullptr);
        view.resize(600, 300);
        view.setChart(chart, {});
        QSignalSpy told(&view, &desktop::ChartView::told);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            view.setLayoutDirection(direction);
            const bool isFromRight = direction == Qt::RightToLeft;
            const QPoint mark = middleOf(view, desktop::Colour::Wrong);
            QCOMPARE(mark.x() > 300, isFromRight); // the second of four
            QVERIFY(mark.y() > middleOf(view, desktop::Colour::Heading).y());
            QTest::keyClick(&view, Qt::Key_Home);
            QTest::keyClick(&view, isFromRight ? Qt::Key_Left : Qt::Key_Right);
            QCOMPARE(told.last()[0].toString(), u"Tue: -20.00 USD"_s);
            QVERIFY(view.accessibleName().endsWith(u"-20.00 USD"_s));
            QTest::mouseClick(&view, Qt::LeftButton, {}, {isFromRight ? 1 : 599, 100});
            QCOMPARE(told.last()[0].toString(), u"Thu: 80.00 USD"_s);
            QTest::keyClick(&view, isFromRight ? Qt::Key_Left : Qt::Key_Right); // there is no more
            QCOMPARE(view.point(), std::optional(std::size_t{3}));
        }
        QCOMPARE(view.accessibleDescription(), u"Lowest."_s);
        view.setChart({}, {});
        QTest::keyClick(&view, Qt::Key_End);
        view.grab();
    }

    void whileRatesAreFetchedNothingElseIsChanged()
    {
        networking::Response answer = networking::Response::failed(u"The server is silent."_s);
        QStringList reasons;
        SmallHousehold *asking = nullptr;
        SmallHousehold home([&](const QUrl &) -> std::optional<networking::Response> {
            // Not when the window refreshes old rates by itself.
            if (asking && asking->requests().isBusy()) {
                reasons += part<QPushButton>(*asking, "keep").toolTip();
                reasons += desktop::ActionCollection::reason(
                    asking->window().desk().actions().action(u"undo"_s));
            }
            return answer;
        });
        showRates(home);
        asking = &home;
        press(home, Qt::Key_A, Qt::AltModifier);
        const QString wait = u"Another request is not answered yet; try again in a moment."_s;
        QCOMPARE(QSet(reasons.begin(), reasons.end()), QSet{wait});
        QVERIFY(home.notices().join(u' ').contains(u"server is silent"_s));
        QCOMPARE(texts(home, 1), QStringList{u"not converted"_s});
        QVERIFY(part<QPushButton>(home, "fetch").hasFocus());
        QVERIFY(part<QPushButton>(home, "keep").isEnabled());
        answer = networking::Response::succeeded(
            R"({"timestamp": 1772366400, "base": "USD", "rates": {"CHF": 0.5}})",
            u"application/json"_s);
        press(home, Qt::Key_A, Qt::AltModifier);
        QCOMPARE(home.notices(), QStringList());
        QCOMPARE(texts(home, 1), QStringList{u"1 USD = 0.5 CHF"_s});
        QCOMPARE(texts(home, 4), QStringList{u"fetched"_s});
    }

private:
    /// The page with francs, which have no rate.
    static void showRates(SmallHousehold &home)
    {
        show(home, "home");
        navigation::ConfigurationData settings = workbench::presentSettings(home.requests());
        settings.usableCurrencies = {numira::toCurrency("USD"), numira::toCurrency("CHF")};
        workbench::storeSettings(home.requests(), settings);
        home.requests().navigator().onStoreExchangeRates({}); // those of former tests
        home.trigger("page rates");
    }
};

static const kiv::test::Suite<TestPages> testPagesSuite;

#include "tst_pages.moc"
