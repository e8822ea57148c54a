// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "navigation/user_preferences.h"

#include "support/message_log.h"
#include "support/preferences_store.h"

#include <QtCore/QRandomGenerator>

using kiv::foundation::Percentage;
using kiv::navigation::CurrencyDisplayOptions;
using kiv::navigation::UserPreferences;
using numira::Currency;
using namespace std::chrono_literals;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);

/// All values as text.
QString valuesOf(const UserPreferences &preferences)
{
    QStringList usable;
    for (const auto &currency : preferences.usableCurrencies())
        usable.append(QString::fromStdString(numira::toStdString(currency)));
    return QStringLiteral("%1 % %2 h %3 d %4 d %5 %6 (%7)")
        .arg(QString::number(preferences.surveyWindow().rate()),
             QString::number(preferences.hoursInWeek().count()),
             QString::number(preferences.daysInWeek().count()),
             QString::number(preferences.notifyDueWithin().count()),
             toQString(preferences.currenciesDisplayAs()),
             QString::fromStdString(numira::toStdString(preferences.preferredCurrency())),
             usable.join(u' '));
}

} // namespace

class tst_UserPreferences : public QObject {
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }

    void aFreshStoreGivesTheDefaultsSilently()
    {
        const MessageLog log;
        const UserPreferences preferences(m_store.fresh());
        QVERIFY(!preferences.doesExist());
        QCOMPARE(valuesOf(preferences), QStringLiteral("2.75 % 40 h 5 d 14 d Symbol EUR (EUR)"));
        QCOMPARE(log.text(), QString());
        QVERIFY(!preferences.doesExist());
    }

    void aLocaleWithoutACurrencyGivesDollarsAndOneWarning()
    {
        QLocale::setDefault(QLocale::c());
        const UserPreferences preferences(m_store.fresh());
        const MessageLog log;
        QCOMPARE(preferences.preferredCurrency(), usd);
        QCOMPARE(log.warnings().size(), 1);
        QVERIFY(log.warnings().front().startsWith(QStringLiteral(
            "The 'preferred currency' failed to be converted, using default instead. ")));
        QCOMPARE(preferences.usableCurrencies(), std::set{usd});
        QCOMPARE(log.warnings().size(), 2);
    }

    void whatIsSetIsReadBackByEveryone()
    {
        const auto path = m_store.fresh();
        UserPreferences preferences(path);
        preferences.setSurveyWindow(Percentage(3.5, 6));
        preferences.setHoursInWeek(36h);
        preferences.setDaysInWeek(std::chrono::days(4));
        preferences.setNotifyDueWithin(std::chrono::days(30));
        preferences.setCurrenciesDisplayAs(CurrencyDisplayOptions::SymbolAndCode);
        preferences.setPreferredCurrency(jpy);
        preferences.setUsableCurrencies({usd, eur, jpy});
        const auto expected =
            QStringLiteral("3.5 % 36 h 4 d 30 d Symbol and Code JPY (JPY USD EUR)");
        QCOMPARE(valuesOf(preferences), expected);
        QVERIFY(preferences.doesExist());
        QCOMPARE(valuesOf(UserPreferences(path)), expected);

        QSettings file = PreferencesStore::open(path);
        const QMap<QString, QVariant> written{
            {QStringLiteral("Accounting/SurveyWindow/rate"), 3.5},
            {QStringLiteral("Budgeting/hrInWeek"), 36},
            {QStringLiteral("Budgeting/dayInWeek"), 4},
            {QStringLiteral("Budgeting/notifyDueWithin"), 30},
            {QStringLiteral("Currencies/displayAs"), QStringLiteral("Symbol and Code")},
            {QStringLiteral("Currencies/preferred"), QStringLiteral("JPY")},
            {QStringLiteral("Currencies/usable"),
             QStringList{QStringLiteral("JPY"), QStringLiteral("USD"), QStringLiteral("EUR")}},
        };
        QCOMPARE(file.allKeys().size(), written.size());
        for (auto entry = written.begin(); entry != written.end(); ++entry)
            QCOMPARE(file.value(entry.key()).toStringList(), entry.value().toStringList());
    }

    void whatIsNotUnderstoodGivesADefaultAndAWarning_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const char *key, const QVariant &value,
                            const char *values, const char *named) {
            QTest::newRow(name) << QString::fromLatin1(key) << value << QString::fromLatin1(values)
                                << QString::fromLatin1(named);
        };
        const auto text = [](const char *words) { return QVariant(QString::fromUtf8(words)); };
        constexpr auto defaults = "2.75 % 40 h 5 d 14 d Symbol EUR (EUR)";
        row("window", "Accounting/SurveyWindow/rate", text("3,5"), defaults, "survey window");
        row("window is not a number", "Accounting/SurveyWindow/rate", text("nan"), defaults,
            "survey window");
        row("hours", "Budgeting/hrInWeek", text("abc"), defaults, "hours in a work week");
        row("half an hour", "Budgeting/hrInWeek", text("37.5"), defaults, "hours in a work week");
        row("days", "Budgeting/dayInWeek", QVariant(QStringList{QString(), QString()}), defaults,
            "days in a work week");
        row("due within", "Budgeting/notifyDueWithin", text("99999999999"), defaults,
            "notify due within");
        row("display", "Currencies/displayAs", text("symbol"),
            "2.75 % 40 h 5 d 14 d ISO-4217 Code EUR (EUR)", "currencies display as");
        row("preferred", "Currencies/preferred", text("eur"),
            "2.75 % 40 h 5 d 14 d Symbol USD (USD)", "preferred currency");
        row("one of the usable", "Currencies/usable",
            QVariant(QStringList{QStringLiteral("USD"), QStringLiteral("?")}), defaults,
            "usable currencies");
        row("usable is no list", "Currencies/usable", QVariant(QRect(1, 2, 3, 4)), defaults,
            "usable currencies");
        row("raw control characters", "Currencies/preferred", text("\x1b[31m\xe2\x80\xae"),
            "2.75 % 40 h 5 d 14 d Symbol USD (USD)", "preferred currency");
    }

    void whatIsNotUnderstoodGivesADefaultAndAWarning()
    {
        QFETCH(const QString, key);
        QFETCH(const QVariant, value);
        QFETCH(const QString, values);
        QFETCH(const QString, named);
        const auto path = m_store.fresh();
        PreferencesStore::open(path).setValue(key, value);
        const UserPreferences preferences(path);
        const MessageLog log;
        QCOMPARE(valuesOf(preferences), values);
        QVERIFY(!log.warnings().isEmpty());
        for (const QString &warning : log.warnings()) {
            QVERIFY2(warning.startsWith(
                         QStringLiteral("The '%1' failed to be converted, using default instead.")
                             .arg(named)),
                     qPrintable(warning));
        }
        QVERIFY(!log.text().contains(u'\x1b') && !log.text().contains(u'\x202e'));
    }

    void anEmptyListOfUsableCurrenciesStaysEmpty()
    {
        const auto path = m_store.fresh();
        UserPreferences(path).setUsableCurrencies({});
        const MessageLog log;
        QCOMPARE(UserPreferences(path).usableCurrencies(), std::set<Currency>());
        QCOMPARE(log.text(), QString());
    }

    void aStoreThatCannotBeWrittenWarnsOnce()
    {
        // A folder stands where the file should be, which even root cannot write.
        const auto path = m_store.fresh();
        QVERIFY(QDir().mkpath(m_store.fileOf(path)));
        const MessageLog log;
        const UserPreferences preferences(path);
        QCOMPARE(preferences.hoursInWeek(), 40h);
        QCOMPARE(log.warnings(),
                 (QStringList{QStringLiteral("The user preferences file, %1, is not writable.")
                                  .arg(m_store.fileOf(path))}));
    }

    void randomFilesAreSurvived()
    {
        static const QByteArray sample =
            "[Accounting]\nSurveyWindow\\rate=3.5\n\n[Budgeting]\nhrInWeek=36\ndayInWeek=4\n"
            "notifyDueWithin=30\n\n[Currencies]\ndisplayAs=Symbol and Code\npreferred=JPY\n"
            "usable=JPY, USD, EUR\n";
        static const QByteArrayList oddities{"@Invalid()",
                                             "@ByteArray(\\0)",
                                             "@Variant(\\0\\0\\0\\x7f)",
                                             "@Rect(1 2 3 4)",
                                             "\"unclosed",
                                             "nan",
                                             "-1",
                                             "99999999999",
                                             "\\x0\\xffff\\xd800,",
                                             "@Size(1)",
                                             "%U%%",
                                             "=;#"};
        const int runs = qEnvironmentVariableIntValue("KIV_RANDOM_RUNS");
        QRandomGenerator random(20260331);
        int changed = 0;
        for (int run = 0; run < (runs > 0 ? runs : 1'000); ++run) {
            QByteArray content = sample;
            const auto at = [&] { return random.bounded(int(content.size())); };
            for (int edits = random.bounded(1, 5); edits > 0 && content.size() > 8; --edits) {
                switch (random.bounded(3)) {
                case 0:
                    content[at()] = char(random.bounded(256));
                    break;
                case 1:
                    content.remove(at(), random.bounded(1, 8));
                    break;
                default:
                    content.insert(content.indexOf('=', at()) + 1,
                                   oddities.at(random.bounded(int(oddities.size()))));
                }
            }
            const auto path = m_store.withContent(content);
            const MessageLog log;
            const QString values = valuesOf(UserPreferences(path));
            QFile::remove(m_store.fileOf(path));
            changed += values != QStringLiteral("3.5 % 36 h 4 d 30 d Symbol and Code JPY "
                                                "(JPY USD EUR)");
            for (const QString &warning : log.warnings())
                QVERIFY2(!warning.contains(u'\0'), content);
        }
        // Files that change nothing would test nothing.
        QVERIFY(changed > 0);
    }

private:
    PreferencesStore m_store;
};

QTEST_GUILESS_MAIN(tst_UserPreferences)
#include "tst_user_preferences.moc"
