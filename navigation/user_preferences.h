// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/currency_display.h"
#include "navigation/export.h"

#include "foundation/percentage.h"
#include "numira/currency.h"

#include <QtCore/QString>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>

QT_BEGIN_NAMESPACE
class QSettings;
QT_END_NAMESPACE

namespace kiv::navigation {

namespace internal {
// The keys of the settings file.
inline const QString accountingSurveyWindowKey = QStringLiteral("Accounting/SurveyWindow");
inline const QString accountingSurveyWindowRateKey =
    accountingSurveyWindowKey + QStringLiteral("/rate");
inline const QString budgetingHoursInWeekKey = QStringLiteral("Budgeting/hrInWeek");
inline const QString budgetingDaysInWeekKey = QStringLiteral("Budgeting/dayInWeek");
inline const QString budgetingNotifyDueWithinKey = QStringLiteral("Budgeting/notifyDueWithin");
inline const QString currenciesDisplayAsKey = QStringLiteral("Currencies/displayAs");
inline const QString currenciesPreferredKey = QStringLiteral("Currencies/preferred");
inline const QString currenciesUsableKey = QStringLiteral("Currencies/usable");
} // namespace internal

/// The settings that belong to the user rather than to one budget, in a
/// settings file. Nothing is cached: every getter reads the file's value, and
/// every setter writes it at once.
///
/// No member throws, but for an unknown display option (std::logic_error). A value that was never
/// written gives its default; one that cannot be read gives a default with a warning in the log,
/// each time it is read. Setters check no ranges; storing a configuration does.
class KIV_NAVIGATION_EXPORT UserPreferences {
public:
    /// Without `file`, the settings of the running application. With it, the
    /// settings of an organisation of that name and of no application, which
    /// QSettings keeps in its folder for the user's settings. Warns when they
    /// cannot be written.
    explicit UserPreferences(const std::optional<std::filesystem::path> &file);
    UserPreferences(UserPreferences &&) noexcept;
    UserPreferences &operator=(UserPreferences &&) noexcept;
    ~UserPreferences();

    /// Whether any setting was ever written.
    [[nodiscard]] bool doesExist() const;

    /// By how much the balance of a survey may miss the statement's: 2.75 %
    /// unless set.
    [[nodiscard]] foundation::Percentage surveyWindow() const;
    /// Writes the survey window.
    void setSurveyWindow(const foundation::Percentage &window);
    /// The working week: 40 hours on 5 days unless set.
    [[nodiscard]] std::chrono::hours hoursInWeek() const;
    /// Writes the hours of the working week.
    void setHoursInWeek(const std::chrono::hours &hours);
    /// The days of the working week.
    [[nodiscard]] std::chrono::days daysInWeek() const;
    /// Writes the days of the working week.
    void setDaysInWeek(const std::chrono::days &days);
    /// How long before its date a budget item is announced as due: 14 days
    /// unless set.
    [[nodiscard]] std::chrono::days notifyDueWithin() const;
    /// Writes how long before its date an item is announced.
    void setNotifyDueWithin(const std::chrono::days &days);
    /// By symbol unless set, but by code when what was set is not understood.
    [[nodiscard]] CurrencyDisplayOptions currenciesDisplayAs() const;
    /// Writes how currencies are named.
    void setCurrenciesDisplayAs(const CurrencyDisplayOptions &option);
    /// The currency of the system's locale unless set; the US dollar when that
    /// locale has none or what was set is not understood.
    [[nodiscard]] numira::Currency preferredCurrency() const;
    /// Writes the preferred currency.
    void setPreferredCurrency(const numira::Currency &currency);
    /// The preferred currency alone unless set, or when one of those set is not
    /// understood.
    [[nodiscard]] std::set<numira::Currency> usableCurrencies() const;
    /// Writes the currencies that can be chosen.
    void setUsableCurrencies(const std::set<numira::Currency> &currencies);

private:
    std::unique_ptr<QSettings> m_store;
};

} // namespace kiv::navigation
