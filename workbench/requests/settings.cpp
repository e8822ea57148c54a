// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/settings.h"

#include "workbench/entry/similar.h"
#include "workbench/entry/values.h"
#include "workbench/internal/faults.h"

#include "navigation/user_preferences.h"

#include <QtCore/QRegularExpression>

namespace kiv::workbench {

using navigation::ConfigurationData;
using navigation::Navigator;

ConfigurationData presentSettings(Requests &requests)
{
    return std::get<ConfigurationData>(
        requests.ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure));
}

void storeSettings(Requests &requests, const ConfigurationData &settings)
{
    requests.change(configureOutcome, &Navigator::onConfigureUpdated, settings);
}

void storeCurrencies(const ConfigurationData &settings)
{
    navigation::UserPreferences stored(std::nullopt);
    stored.setPreferredCurrency(settings.preferredCurrency);
    stored.setUsableCurrencies(settings.usableCurrencies);
    stored.setCurrenciesDisplayAs(settings.currenciesDisplayAs);
}

void prefer(ConfigurationData &settings, const numira::Currency &currency)
{
    settings.usableCurrencies.insert(currency);
    settings.preferredCurrency = currency;
}

std::set<numira::Currency> currenciesOf(const QString &text)
{
    static const QRegularExpression between(QStringLiteral("[\\s,;]+"));
    std::set<numira::Currency> currencies;
    for (const QString &code : text.split(between, Qt::SkipEmptyParts)) {
        numira::Currency currency;
        readValue(code, currency);
        currencies.insert(currency);
    }
    if (currencies.empty())
        throw internal::noCurrencies();
    return currencies;
}

tagging::Tags removeTags(Requests &requests, const QStringList &names)
{
    ConfigurationData settings = presentSettings(requests);
    QStringList known;
    for (const tagging::Tag &tag : settings.tags)
        known += tag.name();
    tagging::Tags removed;
    for (const QString &name : names) {
        if (!known.contains(name))
            throw internal::noSuchTag(name, similarTo(name, known));
        removed.insert(tagging::Tag(name));
    }
    settings.tags = settings.tags.without(removed);
    storeSettings(requests, settings);
    return settings.tags;
}

} // namespace kiv::workbench
