// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "navigation/configuration.h"

#include "foundation/error.h"
#include "numira/error.h"
#include "numira/library.h"

#include "support/preferences_store.h"

#include <limits>

using kiv::foundation::Percentage;
using kiv::navigation::ConfigurationData;
using kiv::navigation::CurrencyDisplayOptions;
using kiv::navigation::UserPreferences;
using kiv::tagging::BudgetItemTags;
using kiv::tagging::BudgetTagManager;
using kiv::tagging::Tag;
using kiv::tagging::Tags;
using numira::Currency;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(std::function<void(ConfigurationData &)>)

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const Currency xxx;
constexpr auto parseVariable = "KIV_TEST_PARSE";

Tag tag(const char *name)
{
    return Tag(QString::fromLatin1(name));
}

BudgetTagManager someTags()
{
    BudgetItemTags tags;
    tags.set(BudgetItemTags::ItemTags({kiv::budgeting::BudgetItemTypes::Bill,
                                       kiv::budgeting::BudgetSource(QStringLiteral("Rent"))},
                                      Tags{tag("Home"), tag("home"), tag("car")}));
    return BudgetTagManager(tags);
}

ConfigurationData accepted()
{
    return {36h,
            std::chrono::days(4),
            eur,
            CurrencyDisplayOptions::SymbolAndCode,
            {usd, eur, jpy},
            Percentage(5.0, 6),
            std::chrono::days(30),
            Tags{tag("home"), tag("new")}};
}

} // namespace

class tst_Configuration : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
        numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::Yes);
    }

    void storesWhatItLoads()
    {
        UserPreferences preferences(m_store.fresh());
        BudgetTagManager tags = someTags();
        store(accepted(), preferences, tags, {usd, jpy});
        // A tag that the manager lacks is not added, and case matters.
        ConfigurationData expected = accepted();
        expected.tags = Tags{tag("home")};
        QCOMPARE(load(preferences, tags), expected);
        QCOMPARE(tags.associations().allTags(), expected.tags);
    }

    void refusesWhatIsOutOfRangeAndWritesNothing_data()
    {
        QTest::addColumn<std::function<void(ConfigurationData &)>>("edit");
        QTest::addColumn<QString>("refusal");
        const auto row = [](const char *name, std::function<void(ConfigurationData &)> edit,
                            const QString &refusal = {}) {
            QTest::newRow(name) << std::move(edit) << refusal;
        };
        using Data = ConfigurationData;
        using std::chrono::days;
        const auto hours =
            QStringLiteral("The number of work hours in a week must be between 1 and 168.");
        const auto workDays =
            QStringLiteral("The number of work days in a week must be between 1 and 7.");
        const auto notify =
            QStringLiteral("The number of days to notify within must be between 0 and 60.");
        const auto window =
            QStringLiteral("The survey balance window must be between 0 and 100 percent.");
        const auto usable = QStringLiteral(
            "The data.usable_ currencies must contain '%1', as they are currently in use in the "
            "application.");

        row(
            "0 hours", [](Data &data) { data.hoursInWeek = 0h; }, hours);
        row("1 hour", [](Data &data) { data.hoursInWeek = 1h; });
        row("167 hours", [](Data &data) { data.hoursInWeek = 167h; });
        row(
            "168 hours", [](Data &data) { data.hoursInWeek = 168h; }, hours);
        row(
            "0 days", [](Data &data) { data.daysInWeek = days(0); }, workDays);
        row("7 days", [](Data &data) { data.daysInWeek = days(7); });
        row(
            "8 days", [](Data &data) { data.daysInWeek = days(8); }, workDays);
        row(
            "a currency in use is not usable", [](Data &data) { data.usableCurrencies.erase(usd); },
            usable.arg(QStringLiteral("USD', 'EUR")));
        row(
            "two in use are not usable", [](Data &data) { data.usableCurrencies = {eur}; },
            usable.arg(QStringLiteral("JPY', 'USD', 'EUR")));
        row(
            "notify -1", [](Data &data) { data.notifyDueWithin = days(-1); }, notify);
        row("notify 0", [](Data &data) { data.notifyDueWithin = days(0); });
        row("notify 60", [](Data &data) { data.notifyDueWithin = days(60); });
        row(
            "notify 61", [](Data &data) { data.notifyDueWithin = days(61); }, notify);
        row(
            "window below 0", [](Data &data) { data.surveyWindow = Percentage(-0.1, 6); }, window);
        row("window 0", [](Data &data) { data.surveyWindow = Percentage(0.0, 6); });
        row("window 100", [](Data &data) { data.surveyWindow = Percentage(100.0, 6); });
        row(
            "window 100.5", [](Data &data) { data.surveyWindow = Percentage(100.5, 6); }, window);
        row(
            "window is no number",
            [](Data &data) {
                data.surveyWindow = Percentage(std::numeric_limits<double>::quiet_NaN(), 6);
            },
            window);
        row(
            "the first fault counts",
            [](Data &data) {
                data.hoursInWeek = 168h;
                data.daysInWeek = days(0);
                data.usableCurrencies.clear();
            },
            hours);
        row(
            "currencies before the days to notify",
            [](Data &data) {
                data.usableCurrencies.erase(jpy);
                data.notifyDueWithin = days(61);
            },
            usable.arg(QStringLiteral("JPY', 'EUR")));
    }

    void refusesWhatIsOutOfRangeAndWritesNothing()
    {
        QFETCH(const std::function<void(ConfigurationData &)>, edit);
        QFETCH(const QString, refusal);
        UserPreferences preferences(m_store.fresh());
        BudgetTagManager tags = someTags();
        const ConfigurationData before = load(preferences, tags);
        ConfigurationData data = accepted();
        edit(data);
        QString message;
        try {
            store(data, preferences, tags, {usd, jpy});
        } catch (const kiv::foundation::Error &error) {
            message = error.message();
            QCOMPARE(load(preferences, tags), before);
            QVERIFY(!preferences.doesExist());
        }
        QCOMPARE(message, refusal);
    }

    void showsCurrenciesAndReadsThemBack_data()
    {
        QTest::addColumn<Currency>("currency");
        QTest::addColumn<QStringList>("texts"); // by option
        QTest::newRow("euro") << eur
                              << QStringList{QStringLiteral("EUR"), QStringLiteral("€"),
                                             QStringLiteral("EUR [€]")};
        QTest::newRow("no symbol")
            << Currency(756)
            << QStringList{QStringLiteral("CHF"), QStringLiteral("CHF"), QStringLiteral("CHF")};
    }

    void showsCurrenciesAndReadsThemBack()
    {
        QFETCH(const Currency, currency);
        QFETCH(const QStringList, texts);
        for (int value = 0; value < texts.size(); ++value) {
            const auto option = CurrencyDisplayOptions(value);
            QCOMPARE(toDisplayable(currency, option), texts.at(value));
            // The code that stands in for a symbol is none.
            if (option != CurrencyDisplayOptions::Symbol || numira::currencySymbol(currency))
                QCOMPARE(toCurrencyFromDisplayable(texts.at(value), {currency}, option), currency);
            QCOMPARE(toCurrencyFromDisplayable(QString(), {currency}, option), xxx);
        }
    }

    void symbolsAreLookedForAmongTheUsableCurrencies()
    {
        const auto symbol = CurrencyDisplayOptions::Symbol;
        const auto euro = QStringLiteral("€");
        QCOMPARE(toCurrencyFromDisplayable(euro, {jpy, usd, eur}, symbol), eur);
        QVERIFY_EXCEPTION_THROWN((void)toCurrencyFromDisplayable(euro, {jpy, usd}, symbol),
                                 std::logic_error);
    }

    void refusesUnknownOptionsAndTexts()
    {
        const auto unknown = CurrencyDisplayOptions(3);
        const auto euro = QStringLiteral("EUR");
        QVERIFY_EXCEPTION_THROWN((void)toDisplayable(eur, unknown), std::logic_error);
        QVERIFY_EXCEPTION_THROWN((void)toCurrencyFromDisplayable(euro, {eur}, unknown),
                                 std::logic_error);
        QVERIFY_EXCEPTION_THROWN((void)presentationText(unknown), std::logic_error);
        QVERIFY_EXCEPTION_THROWN((void)toCurrencyFromDisplayable(QStringLiteral("eur"), {eur},
                                                                 CurrencyDisplayOptions::IsoCode),
                                 numira::UnknownCurrency);
        for (int value = 0; value < 3; ++value) {
            const auto option = CurrencyDisplayOptions(value);
            QCOMPARE(kiv::navigation::toCurrencyDisplayOptions(toQString(option)), option);
        }
        try {
            (void)kiv::navigation::toCurrencyDisplayOptions(QStringLiteral("symbol"));
            QFAIL("Case matters.");
        } catch (const std::logic_error &error) {
            QVERIFY(QString::fromUtf8(error.what())
                        .startsWith(QStringLiteral("Failed to convert from the weak value "
                                                   "'symbol' to another type for '")));
        }
    }

    void readsTheCommandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode"); // 10 and the flags when the program goes on
        QTest::addColumn<QString>("output");
        const auto row = [](const char *arguments, int exitCode, const char *output) {
            QTest::newRow(arguments)
                << QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts) << exitCode
                << QString::fromLatin1(output);
        };
        row("", 10, "");
        row("-a", 11, "");
        row("--no-jargon", 12, "");
        row("-j --advanced-ui", 13, "");
        row("--help", 0, "Enables the advanced GUI instead of the simplified one.");
        row("-h", 0, "Disables the usage of accounting jargon in the application.");
        row("--version", 0, "4.5.6");
        row("--nonsense", 1, "Unknown option 'nonsense'.");
    }

    void readsTheCommandLine()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, exitCode);
        QFETCH(const QString, output);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(parseVariable), QStringLiteral("1"));
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationFilePath(), arguments);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), exitCode);
        const QString said = QString::fromUtf8(program.readAll()).simplified();
        QVERIFY2(said.contains(output), qPrintable(said));
    }

private:
    PreferencesStore m_store;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    // Some command lines end the program, so it reads them in another one.
    if (qEnvironmentVariableIsSet(parseVariable)) {
        QCoreApplication::setApplicationVersion(QStringLiteral("4.5.6"));
        const auto options = kiv::navigation::parse(QCoreApplication::arguments());
        return 10 + int(options.isAdvancedUi) + 2 * int(options.isJargonFree);
    }
    tst_Configuration test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_configuration.moc"
