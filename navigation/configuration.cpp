// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/configuration.h"

#include "navigation/internal/faults.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace kiv::navigation {

namespace {

namespace faults = internal::faults;

/// Every currency in use that is not usable, and the preferred one behind them.
void requireUsable(const std::set<numira::Currency> &inUse, const ConfigurationData &data)
{
    QStringList codes;
    for (const auto &currency : inUse) {
        if (!data.usableCurrencies.contains(currency))
            codes.append(foundation::toQString(currency));
    }
    if (codes.isEmpty())
        return;
    codes.append(foundation::toQString(data.preferredCurrency));
    throw faults::currenciesInUse(codes.join(QStringLiteral("', '")));
}

void validate(const ConfigurationData &data, const std::set<numira::Currency> &inUse)
{
    // The upper bound itself, a week without an hour off, is refused.
    if (data.hoursInWeek < std::chrono::hours(1) || data.hoursInWeek >= std::chrono::hours(168))
        throw faults::workHoursOutOfRange();
    if (data.daysInWeek < std::chrono::days(1) || data.daysInWeek > std::chrono::days(7))
        throw faults::workDaysOutOfRange();
    requireUsable(inUse, data);
    if (data.notifyDueWithin < std::chrono::days(0) || data.notifyDueWithin > std::chrono::days(60))
        throw faults::notifyDueWithinOutOfRange();
    // Written so that a window which is not a number is refused as well.
    if (!(data.surveyWindow >= 0.0 && data.surveyWindow <= 100.0))
        throw faults::surveyWindowOutOfRange();
    static_cast<void>(toQString(data.currenciesDisplayAs)); // throws for an unknown one
}

} // namespace

ConfigurationData load(const UserPreferences &preferences, const tagging::BudgetTagManager &tags)
{
    return {preferences.hoursInWeek(),       preferences.daysInWeek(),
            preferences.preferredCurrency(), preferences.currenciesDisplayAs(),
            preferences.usableCurrencies(),  preferences.surveyWindow(),
            preferences.notifyDueWithin(),   tags.possible()};
}

void store(const ConfigurationData &data, UserPreferences &preferences,
           tagging::BudgetTagManager &tags, const std::set<numira::Currency> &currencies)
{
    validate(data, currencies);
    tagging::BudgetTagManager fewer(tags);
    fewer.remove(tags.possible().without(data.tags));
    preferences.setHoursInWeek(data.hoursInWeek);
    preferences.setDaysInWeek(data.daysInWeek);
    preferences.setNotifyDueWithin(data.notifyDueWithin);
    preferences.setPreferredCurrency(data.preferredCurrency);
    preferences.setUsableCurrencies(data.usableCurrencies);
    preferences.setCurrenciesDisplayAs(data.currenciesDisplayAs);
    preferences.setSurveyWindow(data.surveyWindow);
    tags = std::move(fewer);
}

StartUpOptions parse(const QList<QString> &arguments)
{
    const QCommandLineOption advancedUi(
        {QStringLiteral("a"), QStringLiteral("advanced-ui")},
        QObject::tr("Enables the advanced GUI instead of the simplified one."));
    const QCommandLineOption noJargon(
        {QStringLiteral("j"), QStringLiteral("no-jargon")},
        QObject::tr("Disables the usage of accounting jargon in the application."));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(advancedUi);
    parser.addOption(noJargon);
    parser.process(arguments);
    return {parser.isSet(advancedUi), parser.isSet(noJargon)};
}

std::ostream &operator<<(std::ostream &out, const ConfigurationData &data)
{
    out << data.hoursInWeek.count() << " h on " << data.daysInWeek.count() << " days, "
        << data.preferredCurrency << " of ";
    foundation::streamRange(out, data.usableCurrencies);
    return out << " by " << data.currenciesDisplayAs << ", survey window "
               << data.surveyWindow.rate() << " %, due within " << data.notifyDueWithin.count()
               << " days, tags " << data.tags;
}

} // namespace kiv::navigation
