// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/errors.h"

#include "numira/currency.h"

#include <QtCore/QDateTime>

/// Every sentence with which this library refuses something: one function each, which gives the
/// exception to throw, or the reason of a failure.
namespace kiv::conversion::internal {

[[nodiscard]] ConversionError rateOutOfRange(const numira::Currency &currency);
[[nodiscard]] ConversionError baseRateNotOne(const numira::Currency &base);
[[nodiscard]] ConversionError tableWithoutBase();
[[nodiscard]] ConversionError tableWithoutTime();
[[nodiscard]] ConversionError rateMissing(const numira::Currency &from, const numira::Currency &to);

// The user finds the rest in the log.
[[nodiscard]] ConversionError replyMalformed(const QString &member);
[[nodiscard]] ConversionError replyUnknownCurrency(const QString &code);
[[nodiscard]] QString fetchTimedOut();
[[nodiscard]] QString sourceGone();
[[nodiscard]] QString senderGone();
[[nodiscard]] ConversionError noWantedRates();
[[nodiscard]] ConversionError ratesOutdated(const QDateTime &given, const QDateTime &known);

} // namespace kiv::conversion::internal
