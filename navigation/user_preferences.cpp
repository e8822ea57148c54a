// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/user_preferences.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/logging.h"

#include "foundation/presentation.h"

#include <QtCore/QDebug>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <cmath>
#include <utility>

namespace kiv::navigation {

namespace {

constexpr std::uint8_t surveyWindowDigits = 6;
constexpr std::chrono::hours hoursInWeekDefault{40};
constexpr std::chrono::days daysInWeekDefault{5};
constexpr std::chrono::days notifyDueWithinDefault{14};

const foundation::Percentage &surveyWindowDefault()
{
    static const foundation::Percentage window(2.75, surveyWindowDigits);
    return window;
}

numira::Currency currencyOfLastResort()
{
    return numira::Currency(840);
}

std::unique_ptr<QSettings> makeStore(const std::optional<std::filesystem::path> &file)
{
    if (!file)
        return std::make_unique<QSettings>();
    return std::make_unique<QSettings>(QString::fromStdString(file->string()), QString());
}

/// What `parse` makes of the key's value; `fallback` and a warning when it
/// cannot be parsed (no value).
template <typename T, typename Parse>
T readNumber(const QSettings &store, const QString &key, const T &fallback, const char *warning,
             Parse parse)
{
    if (!store.contains(key))
        return fallback;
    if (const std::optional<T> value = parse(store.value(key)))
        return *value;
    qWarning() << warning;
    return fallback;
}

/// A whole number of the duration's units.
template <typename Duration>
std::optional<Duration> toDuration(const QVariant &value)
{
    // QVariant::toInt calls a number that is too large for it a success.
    bool isNumber = false;
    const qlonglong count = value.toLongLong(&isNumber);
    return isNumber && std::in_range<int>(count) ? std::optional(Duration(count)) : std::nullopt;
}

numira::Currency toCurrency(const QString &code)
{
    return numira::toCurrency(code.toStdString());
}

} // namespace

UserPreferences::UserPreferences(const std::optional<std::filesystem::path> &file)
    : m_store(makeStore(file))
{
    if (!m_store->isWritable()) {
        qWarning().noquote() << foundation::escaped(
            QObject::tr("The user preferences file, %1, is not writable.")
                .arg(m_store->fileName()));
    }
}

UserPreferences::UserPreferences(UserPreferences &&) noexcept = default;
UserPreferences &UserPreferences::operator=(UserPreferences &&) noexcept = default;
UserPreferences::~UserPreferences() = default;

bool UserPreferences::doesExist() const
{
    return !m_store->allKeys().isEmpty();
}

foundation::Percentage UserPreferences::surveyWindow() const
{
    return readNumber(*m_store, internal::accountingSurveyWindowRateKey, surveyWindowDefault(),
                      "The 'survey window' failed to be converted, using default instead.",
                      [](const QVariant &value) -> std::optional<foundation::Percentage> {
                          bool isNumber = false;
                          const double rate = value.toDouble(&isNumber);
                          // "nan" and "inf" read as doubles, but nothing can be compared with them.
                          if (!isNumber || !std::isfinite(rate))
                              return std::nullopt;
                          return foundation::Percentage(rate, surveyWindowDigits);
                      });
}

void UserPreferences::setSurveyWindow(const foundation::Percentage &window)
{
    m_store->setValue(internal::accountingSurveyWindowRateKey, window.rate());
}

std::chrono::hours UserPreferences::hoursInWeek() const
{
    return readNumber(*m_store, internal::budgetingHoursInWeekKey, hoursInWeekDefault,
                      "The 'hours in a work week' failed to be converted, using default instead.",
                      toDuration<std::chrono::hours>);
}

void UserPreferences::setHoursInWeek(const std::chrono::hours &hours)
{
    m_store->setValue(internal::budgetingHoursInWeekKey, static_cast<qlonglong>(hours.count()));
}

std::chrono::days UserPreferences::daysInWeek() const
{
    return readNumber(*m_store, internal::budgetingDaysInWeekKey, daysInWeekDefault,
                      "The 'days in a work week' failed to be converted, using default instead.",
                      toDuration<std::chrono::days>);
}

void UserPreferences::setDaysInWeek(const std::chrono::days &days)
{
    m_store->setValue(internal::budgetingDaysInWeekKey, static_cast<qlonglong>(days.count()));
}

std::chrono::days UserPreferences::notifyDueWithin() const
{
    return readNumber(*m_store, internal::budgetingNotifyDueWithinKey, notifyDueWithinDefault,
                      "The 'notify due within' failed to be converted, using default instead.",
                      toDuration<std::chrono::days>);
}

void UserPreferences::setNotifyDueWithin(const std::chrono::days &days)
{
    m_store->setValue(internal::budgetingNotifyDueWithinKey, static_cast<qlonglong>(days.count()));
}

CurrencyDisplayOptions UserPreferences::currenciesDisplayAs() const
{
    // Two defaults on purpose: what was never set shows symbols, while a value
    // that is not understood shows the code, which cannot mislead.
    if (!m_store->contains(internal::currenciesDisplayAsKey))
        return CurrencyDisplayOptions::Symbol;
    try {
        return toCurrencyDisplayOptions(
            m_store->value(internal::currenciesDisplayAsKey).toString());
    } catch (const std::exception &error) {
        internal::logWarning(
            "The 'currencies display as' failed to be converted, using default instead.", error);
        return CurrencyDisplayOptions::IsoCode;
    }
}

void UserPreferences::setCurrenciesDisplayAs(const CurrencyDisplayOptions &option)
{
    m_store->setValue(internal::currenciesDisplayAsKey, toQString(option));
}

numira::Currency UserPreferences::preferredCurrency() const
{
    try {
        if (!m_store->contains(internal::currenciesPreferredKey))
            return toCurrency(QLocale().currencySymbol(QLocale::CurrencyIsoCode));
        return toCurrency(m_store->value(internal::currenciesPreferredKey).toString());
    } catch (const std::exception &error) {
        internal::logWarning(
            "The 'preferred currency' failed to be converted, using default instead.", error);
        return currencyOfLastResort();
    }
}

void UserPreferences::setPreferredCurrency(const numira::Currency &currency)
{
    m_store->setValue(internal::currenciesPreferredKey, foundation::toQString(currency));
}

std::set<numira::Currency> UserPreferences::usableCurrencies() const
{
    if (!m_store->contains(internal::currenciesUsableKey))
        return {preferredCurrency()};
    try {
        const QVariant value = m_store->value(internal::currenciesUsableKey);
        // An empty list comes back from the file as an invalid value.
        if (value.isValid() && !value.canConvert<QStringList>())
            throw internal::faults::notAListOfTexts();
        std::set<numira::Currency> currencies;
        for (const QString &code : value.toStringList())
            currencies.insert(toCurrency(code));
        return currencies;
    } catch (const std::exception &error) {
        internal::logWarning(
            "The 'usable currencies' failed to be converted, using default instead.", error);
        return {preferredCurrency()};
    }
}

void UserPreferences::setUsableCurrencies(const std::set<numira::Currency> &currencies)
{
    QStringList codes;
    for (const auto &currency : currencies)
        codes.append(foundation::toQString(currency));
    m_store->setValue(internal::currenciesUsableKey, codes);
}

} // namespace kiv::navigation
