// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "foundation/debug_stream.h"

#include "numira/currency.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <cstdint>
#include <ostream>
#include <set>

namespace kiv::navigation {

/// How a currency is named in lists.
enum class CurrencyDisplayOptions : std::uint8_t {
    IsoCode = 0,       ///< "EUR"
    Symbol = 1,        ///< "€", or the code when the currency has no symbol
    SymbolAndCode = 2, ///< "EUR [€]", or the code alone
};

/// The option's English name, in which settings keep it: "ISO-4217 Code",
/// "Symbol" or "Symbol and Code". Throws std::logic_error for any other value.
[[nodiscard]] KIV_NAVIGATION_EXPORT QString toQString(const CurrencyDisplayOptions &option);
/// The same name, translated. Throws std::logic_error for any other value.
[[nodiscard]] KIV_NAVIGATION_EXPORT QString presentationText(const CurrencyDisplayOptions &option);
/// The option with this name, translated or English; case matters. Throws
/// std::logic_error when there is none.
[[nodiscard]] KIV_NAVIGATION_EXPORT CurrencyDisplayOptions
toCurrencyDisplayOptions(const QString &text);

/// The currency as the option shows it. Throws std::logic_error for an unknown
/// option.
[[nodiscard]] KIV_NAVIGATION_EXPORT QString toDisplayable(const numira::Currency &currency,
                                                          CurrencyDisplayOptions option);
/// The currency that toDisplayable showed so; "no currency" for an empty text.
/// A symbol that several currencies share means the first of `usable` that has
/// it. Throws std::logic_error when no usable currency has the symbol or the
/// option is unknown, and numira::UnknownCurrency for an unknown code.
[[nodiscard]] KIV_NAVIGATION_EXPORT numira::Currency
toCurrencyFromDisplayable(const QString &text, const std::set<numira::Currency> &usable,
                          CurrencyDisplayOptions option);

KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, CurrencyDisplayOptions option);
using foundation::operator<<;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::CurrencyDisplayOptions)
