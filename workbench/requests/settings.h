// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "navigation/configuration.h"

/// The user's settings and the tags that there are.
namespace kiv::workbench {

/// The present settings.
[[nodiscard]] KIV_WORKBENCH_EXPORT navigation::ConfigurationData
presentSettings(Requests &requests);

/// Stores them. Throws a Refusal with the Navigator's reason; nothing is stored then.
KIV_WORKBENCH_EXPORT void storeSettings(Requests &requests,
                                        const navigation::ConfigurationData &settings);
/// Stores the preferred currency, the usable ones and how they are named, and nothing else of the
/// settings. Checks nothing: for those of before, or of a budget that is being made.
KIV_WORKBENCH_EXPORT void storeCurrencies(const navigation::ConfigurationData &settings);

/// Chooses the currency of amounts without one. It becomes usable.
KIV_WORKBENCH_EXPORT void prefer(navigation::ConfigurationData &settings,
                                 const numira::Currency &currency);

/// Reads a list of currencies: "USD, EUR". Throws an EntryError for anything else.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::set<numira::Currency> currenciesOf(const QString &text);

/// Removes tags from the list and from all budget items. Returns those that are left.
/// Throws a Refusal if there is no such tag; none is removed then.
KIV_WORKBENCH_EXPORT tagging::Tags removeTags(Requests &requests, const QStringList &names);

} // namespace kiv::workbench
