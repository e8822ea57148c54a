// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "navigation/user_preferences.h"

#include "support/message_log.h"
#include "support/preferences_store.h"

using kiv::navigation::CurrencyDisplayOptions;
using kiv::navigation::UserPreferences;
using numira::Currency;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);

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

} // namespace

class tst_UserPreferences : public QObject {
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale(u"de_DE"_s)); }

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
        QCOMPARE(preferences.preferredCurrency(), usd);
        QCOMPARE(log.warnings().size(), 1);
        QVERIFY(log.text().startsWith(warning.arg(u"preferred currency"_s) + u' '));
        QCOMPARE(preferences.usableCurrencies(), std::set{usd});
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
        preferences.setPreferredCurrency(jpy);
        preferences.setUsableCurrencies({usd, eur, jpy});
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
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("values");
        const auto row = [](const QString &key, const QVariant &value, const QString &named,
                            const QString &values = defaults) {
            QTest::newRow(qPrintable(key + u' ' + value.toString()))
                << key << value << named << values;
        };
        const auto dollars = QString(defaults).replace(u"EUR"_s, u"USD"_s);
        row(u"Accounting/SurveyWindow/rate"_s, u"3,5"_s, u"survey window"_s);
        row(u"Accounting/SurveyWindow/rate"_s, u"nan"_s, u"survey window"_s);
        row(u"Budgeting/hrInWeek"_s, u"abc"_s, u"hours in a work week"_s);
        row(u"Budgeting/hrInWeek"_s, u"37.5"_s, u"hours in a work week"_s);
        row(u"Budgeting/dayInWeek"_s, QStringList{u"5"_s, u"5"_s}, u"days in a work week"_s);
        row(u"Budgeting/notifyDueWithin"_s, u"99999999999"_s, u"notify due within"_s);
        row(u"Currencies/displayAs"_s, u"symbol"_s, u"currencies display as"_s,
            QString(defaults).replace(u"Symbol"_s, u"ISO-4217 Code"_s));
        row(u"Currencies/preferred"_s, u"eur"_s, u"preferred currency"_s, dollars);
        row(u"Currencies/preferred"_s, u"\x1b[31m\u202e"_s, u"preferred currency"_s, dollars);
        row(u"Currencies/usable"_s, QStringList{u"USD"_s, u"?"_s}, u"usable currencies"_s);
        row(u"Currencies/usable"_s, QRect(1, 2, 3, 4), u"usable currencies"_s);
    }

    void whatIsNotUnderstoodGivesADefaultAndAWarning()
    {
        QFETCH(const QString, key);
        QFETCH(const QVariant, value);
        QFETCH(const QString, named);
        QFETCH(const QString, values);
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

static const kiv::test::Suite<tst_UserPreferences> suite;
#include "tst_user_preferences.moc"
