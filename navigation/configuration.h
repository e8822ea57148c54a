// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/currency_display.h"
#include "navigation/export.h"
#include "navigation/user_preferences.h"

#include "foundation/debug_stream.h"
#include "foundation/percentage.h"
#include "numira/currency.h"
#include "tagging/budget_tag_manager.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <chrono>
#include <ostream>
#include <set>

namespace kiv::navigation {

/// What the configure view edits: the user's preferences and the budget's
/// tags.
struct KIV_NAVIGATION_EXPORT ConfigurationData {
    /// The hours of a working week.
    std::chrono::hours hoursInWeek{};
    /// The days of a working week.
    std::chrono::days daysInWeek{};
    /// The currency in which totals are shown.
    numira::Currency preferredCurrency;
    /// How currencies are named in lists.
    CurrencyDisplayOptions currenciesDisplayAs = CurrencyDisplayOptions::IsoCode;
    /// The currencies that can be chosen.
    std::set<numira::Currency> usableCurrencies;
    /// By how much the balance of a survey may miss the statement's.
    foundation::Percentage surveyWindow;
    /// How long before its date an item is announced as due.
    std::chrono::days notifyDueWithin{};
    /// The tags that can be chosen.
    tagging::Tags tags;

    friend bool operator==(const ConfigurationData &, const ConfigurationData &) = default;
};

KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const ConfigurationData &data);
using foundation::operator<<;

/// The record of what is set and of every tag that can be chosen.
[[nodiscard]] KIV_NAVIGATION_EXPORT ConfigurationData load(const UserPreferences &preferences,
                                                           const tagging::BudgetTagManager &tags);

/// Writes an edited record back: tags that it lacks are removed from the
/// manager (tags that the manager lacks are not added), and the preferences are
/// set. `currencies` are those that the open budget uses.
///
/// Throws foundation::Error, with nothing written, when the hours are not 1 to
/// 167, the days not 1 to 7, a currency in use is not usable, the days to
/// notify within not 0 to 60, or the survey window not 0 to 100 %. Likewise
/// std::logic_error for an unknown display of currencies.
KIV_NAVIGATION_EXPORT void store(const ConfigurationData &data, UserPreferences &preferences,
                                 tagging::BudgetTagManager &tags,
                                 const std::set<numira::Currency> &currencies);

/// What the application is told when it is started.
struct StartUpOptions {
    bool isAdvancedUi = false; ///< -a, --advanced-ui
    bool isJargonFree = false; ///< -j, --no-jargon

    friend bool operator==(const StartUpOptions &, const StartUpOptions &) = default;
};

/// Reads the command line, whose first argument is the program's name. Help,
/// the version and unknown options end the program, as
/// QCommandLineParser::process does. Needs the application object.
[[nodiscard]] KIV_NAVIGATION_EXPORT StartUpOptions parse(const QList<QString> &arguments);

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::ConfigurationData)
