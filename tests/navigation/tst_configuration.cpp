// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/configuration.h"

#include "numira/error.h"
#include "numira/library.h"

#include "support/message_log.h"
#include "support/preferences_store.h"
#include "support/refusal.h"

using kiv::foundation::Percentage;
using namespace kiv::navigation;
using namespace kiv::tagging;
using numira::Currency;
using namespace std::chrono_literals;

namespace {

const Currency dollar(840);
const Currency euro(978);
const Currency yen(392);

Tag tag(const char *name)
{
    return Tag(QString::fromLatin1(name));
}

BudgetTagManager someTags()
{
    BudgetItemTags tags;
    tags.set(BudgetItemTags::ItemTags(
        {kiv::budgeting::BudgetItemTypes::Bill, kiv::budgeting::BudgetSource(u"Rent"_s)},
        Tags{tag("Home"), tag("home"), tag("car")}));
    return BudgetTagManager(tags);
}

/// All values as text.
QString valuesOf(const UserPreferences &preferences)
{
    const auto code = [](const Currency &currency) {
        return QString::fromStdString(numira::toStdString(currency));
    };
    QString usable;
    for (const auto &currency : preferences.usableCurrencies())
        usable += u' ' + code(currency);
    return u"%1 % %2 h %3 d %4 d %5 %6:"_s.arg(preferences.surveyWindow().rate())
               .arg(preferences.hoursInWeek().count())
               .arg(preferences.daysInWeek().count())
               .arg(preferences.notifyDueWithin().count())
               .arg(toQString(preferences.currenciesDisplayAs()),
                    code(preferences.preferredCurrency())) +
           usable;
}

const auto defaults = u"2.75 % 40 h 5 d 14 d Symbol EUR: EUR"_s;
const auto warning = u"The '%1' failed to be converted, using default instead."_s;

ConfigurationData accepted()
{
    return {36h,
            std::chrono::days(4),
            euro,
            CurrencyDisplayOptions::SymbolAndCode,
            {dollar, euro, yen},
            Percentage(5.0, 6),
            std::chrono::days(30),
            Tags{tag("home"), tag("new")}};
}

using Refused = std::pair<ConfigurationData, QString>;

/// What is stored under a key, the setting that the warning names, and all values then.
using Misunderstood = std::tuple<QString, QVariant, QString, QString>;

} // namespace

class tst_Configuration : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::Yes); }
    void init() { QLocale::setDefault(QLocale(u"de_DE"_s)); }

    void storesWhatItLoads()
    {
        UserPreferences preferences(m_store.fresh());
        BudgetTagManager tags = someTags();
        store(accepted(), preferences, tags, {dollar, yen});
        // A tag that the manager lacks is not added, and case matters.
        ConfigurationData expected = accepted();
        expected.tags = Tags{tag("home")};
        QCOMPARE(load(preferences, tags), expected);
        QCOMPARE(tags.associations().allTags(), expected.tags);
    }

    void refusesWhatIsOutOfRangeAndWritesNothing_data()
    {
        QTest::addColumn<Refused>("row");
        const auto row = [](const char *name, const QString &refusal, auto edit) {
            ConfigurationData data = accepted();
            edit(data);
            QTest::newRow(name) << Refused(data, refusal);
        };
        using Data = ConfigurationData;
        using std::chrono::days;
        const auto hours = u"The number of work hours in a week must be between 1 and 168."_s;
        const auto workDays = u"The number of work days in a week must be between 1 and 7."_s;
        const auto notify = u"The number of days to notify within must be between 0 and 60."_s;
        const auto window = u"The survey balance window must be between 0 and 100 percent."_s;
        const auto usable = u"The data.usable_ currencies must contain '%1', as they are currently "
                            "in use in the application."_s;

        row("0 hours", hours, [](Data &data) { data.hoursInWeek = 0h; });
        row("1 hour", {}, [](Data &data) { data.hoursInWeek = 1h; });
        row("167 hours", {}, [](Data &data) { data.hoursInWeek = 167h; });
        row("168 hours", hours, [](Data &data) { data.hoursInWeek = 168h; });
        row("0 days", workDays, [](Data &data) { data.daysInWeek = days(0); });
        row("1 day", {}, [](Data &data) { data.daysInWeek = days(1); });
        row("7 days", {}, [](Data &data) { data.daysInWeek = days(7); });
        row("8 days", workDays, [](Data &data) { data.daysInWeek = days(8); });
        row("one in use is not usable", usable.arg(u"USD', 'EUR"_s),
            [](Data &data) { data.usableCurrencies.erase(dollar); });
        row("two in use", usable.arg(u"JPY', 'USD', 'EUR"_s),
            [](Data &data) { data.usableCurrencies = {euro}; });
        row("notify -1", notify, [](Data &data) { data.notifyDueWithin = days(-1); });
        row("notify 0", {}, [](Data &data) { data.notifyDueWithin = days(0); });
        row("notify 60", {}, [](Data &data) { data.notifyDueWithin = days(60); });
        row("notify 61", notify, [](Data &data) { data.notifyDueWithin = days(61); });
        row("window -0.1", window, [](Data &data) { data.surveyWindow = {-0.1, 6}; });
        row("window 100", {}, [](Data &data) { data.surveyWindow = {100.0, 6}; });
        row("window 100.5", window, [](Data &data) { data.surveyWindow = {100.5, 6}; });
        row("no number", window, [](Data &data) { data.surveyWindow = {qQNaN(), 6}; });
        row("hours first", hours, [](Data &data) { data = {}; });
        row("currencies before the days to notify", usable.arg(u"JPY', 'EUR"_s), [](Data &data) {
            data.usableCurrencies.erase(yen);
            data.notifyDueWithin = days(61);
        });
    }

    void refusesWhatIsOutOfRangeAndWritesNothing()
    {
        const auto [data, refusal] = kiv::test::rowOf<Refused>();
        UserPreferences preferences(m_store.fresh());
        BudgetTagManager tags = someTags();
        const ConfigurationData before = load(preferences, tags);
        QCOMPARE(refusalOf([&] { store(data, preferences, tags, {dollar, yen}); }), refusal);
        if (!refusal.isEmpty())
            QVERIFY(load(preferences, tags) == before && !preferences.doesExist());
    }

    void showsCurrenciesAndReadsThemBack()
    {
        using enum CurrencyDisplayOptions;
        const std::set<Currency> usable{yen, dollar, euro};
        for (const auto &[option, euros, francs] : {std::tuple(IsoCode, u"EUR"_s, u"CHF"_s),
                                                    {Symbol, u"€"_s, u"CHF"_s},
                                                    {SymbolAndCode, u"EUR [€]"_s, u"CHF"_s}}) {
            QCOMPARE(toDisplayable(euro, option), euros);
            QCOMPARE(toDisplayable(Currency(756), option), francs);
            QCOMPARE(toCurrencyFromDisplayable(euros, usable, option), euro);
            QCOMPARE(toCurrencyFromDisplayable(QString(), usable, option), Currency());
            QCOMPARE(kiv::navigation::toCurrencyDisplayOptions(toQString(option)), option);
        }
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 (void)toCurrencyFromDisplayable(u"€"_s, {yen, dollar}, Symbol));
    }

    void refusesUnknownOptionsAndTexts()
    {
        const auto unknown = CurrencyDisplayOptions(3);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, (void)toDisplayable(euro, unknown));
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 (void)toCurrencyFromDisplayable(u"EUR"_s, {euro}, unknown));
        QVERIFY_THROWS_EXCEPTION(
            numira::UnknownCurrency,
            (void)toCurrencyFromDisplayable(u"eur"_s, {euro}, CurrencyDisplayOptions::IsoCode));
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 (void)kiv::navigation::toCurrencyDisplayOptions(u"symbol"_s));
    }

    void readsTheCommandLine()
    {
        // 10 and the flags when the program goes on.
        const std::tuple<const char *, int, QString> rows[] = {
            {"", 10, {}},
            {"-a", 11, {}},
            {"--no-jargon", 12, {}},
            {"-j --advanced-ui", 13, {}},
            {"--help", 0, u"Enables the advanced GUI instead of the simplified one."_s},
            {"-h", 0, u"Disables the usage of accounting jargon in the application."_s},
            {"--version", 0, u"4.5.6"_s},
            {"--nonsense", 1, u"Unknown option 'nonsense'."_s},
        };
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        for (const auto &[arguments, exitCode, output] : rows) {
            program.start(QStringLiteral(PARSE_ARGUMENTS),
                          QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts));
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), exitCode);
            const QString said = QString::fromUtf8(program.readAll()).simplified();
            QVERIFY2(said.contains(output), qPrintable(said));
        }
    }

    void aFreshStoreGivesTheDefaultsSilently()
    {
        const MessageLog log;
        const UserPreferences preferences(m_store.fresh());
        QCOMPARE(valuesOf(preferences), defaults);
        QCOMPARE(preferences.surveyWindow().digits(), 6);
        QVERIFY(!preferences.doesExist() && log.text().isEmpty());
    }

    void aLocaleWithoutACurrencyGivesDollarsAndOneWarning()
    {
        QLocale::setDefault(QLocale::c());
        const UserPreferences preferences(m_store.fresh());
        const MessageLog log;
        QCOMPARE(preferences.preferredCurrency(), dollar);
        QCOMPARE(log.warnings().size(), 1);
        QVERIFY(log.text().startsWith(warning.arg(u"preferred currency"_s) + u' '));
        QCOMPARE(preferences.usableCurrencies(), std::set{dollar});
        QCOMPARE(log.warnings().size(), 2);
    }

    void whatIsSetIsReadBackByEveryone()
    {
        const auto path = m_store.fresh();
        UserPreferences preferences(path);
        preferences.setSurveyWindow({3.5, 6});
        preferences.setHoursInWeek(36h);
        preferences.setDaysInWeek(std::chrono::days(4));
        preferences.setNotifyDueWithin(std::chrono::days(30));
        preferences.setCurrenciesDisplayAs(CurrencyDisplayOptions::SymbolAndCode);
        preferences.setPreferredCurrency(yen);
        preferences.setUsableCurrencies({dollar, euro, yen});
        const auto expected = u"3.5 % 36 h 4 d 30 d Symbol and Code JPY: JPY USD EUR"_s;
        QCOMPARE(valuesOf(preferences), expected);
        QCOMPARE(valuesOf(UserPreferences(path)), expected);
        QVERIFY(preferences.doesExist());
        QCOMPARE(PreferencesStore::open(path).allKeys().join(u' '),
                 u"Accounting/SurveyWindow/rate Budgeting/dayInWeek Budgeting/hrInWeek "
                 "Budgeting/notifyDueWithin Currencies/displayAs Currencies/preferred "
                 "Currencies/usable"_s);

        preferences.setUsableCurrencies({});
        const MessageLog log;
        QVERIFY(UserPreferences(path).usableCurrencies().empty() && log.text().isEmpty());
    }

    void whatIsNotUnderstoodGivesADefaultAndAWarning_data()
    {
        const auto codes = QString(defaults).replace(u"Symbol"_s, u"ISO-4217 Code"_s);
        const auto dollars = QString(defaults).replace(u"EUR"_s, u"USD"_s);
        const auto window = u"Accounting/SurveyWindow/rate"_s;
        const auto preferred = u"Currencies/preferred"_s;
        const auto usable = u"Currencies/usable"_s;
        kiv::test::addRows<Misunderstood>(
            {{"comma", {window, u"3,5"_s, u"survey window"_s, defaults}},
             {"no number", {window, u"nan"_s, u"survey window"_s, defaults}},
             {"letters", {u"Budgeting/hrInWeek"_s, u"abc"_s, u"hours in a work week"_s, defaults}},
             {"a part", {u"Budgeting/hrInWeek"_s, u"37.5"_s, u"hours in a work week"_s, defaults}},
             {"a list",
              {u"Budgeting/dayInWeek"_s, QStringList{u"5"_s, u"5"_s}, u"days in a work week"_s,
               defaults}},
             {"too many",
              {u"Budgeting/notifyDueWithin"_s, u"99999999999"_s, u"notify due within"_s, defaults}},
             {"display",
              {u"Currencies/displayAs"_s, u"symbol"_s, u"currencies display as"_s, codes}},
             {"small letters", {preferred, u"eur"_s, u"preferred currency"_s, dollars}},
             {"hostile", {preferred, u"\x1b[31m\u202e"_s, u"preferred currency"_s, dollars}},
             {"one of two",
              {usable, QStringList{u"USD"_s, u"?"_s}, u"usable currencies"_s, defaults}},
             {"a rectangle", {usable, QRect(1, 2, 3, 4), u"usable currencies"_s, defaults}}});
    }
    void whatIsNotUnderstoodGivesADefaultAndAWarning()
    {
        const auto [key, value, named, values] = kiv::test::rowOf<Misunderstood>();
        const auto path = m_store.fresh();
        PreferencesStore::open(path).setValue(key, value);
        const UserPreferences preferences(path);
        const MessageLog log;
        QCOMPARE(valuesOf(preferences), values);
        QVERIFY(!log.warnings().isEmpty());
        for (const QString &line : log.warnings())
            QVERIFY2(line.startsWith(warning.arg(named)), qPrintable(line));
        QVERIFY(!log.text().contains(u'\x1b') && !log.text().contains(u'\x202e'));
    }

    void aStoreThatCannotBeWrittenWarnsOnce()
    {
        // A folder stands where the file should be, which even root cannot write.
        const auto path = m_store.fresh();
        QVERIFY(QDir().mkpath(m_store.fileOf(path)));
        const MessageLog log;
        QCOMPARE(UserPreferences(path).hoursInWeek(), 40h);
        QCOMPARE(log.warnings(),
                 QStringList{u"The user preferences file, %1, is not writable."_s.arg(
                     m_store.fileOf(path))});
    }

private:
    PreferencesStore m_store;
};

static const kiv::test::Suite<tst_Configuration> configurationSuite;
#include "tst_configuration.moc"
