// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/export.h"

#include "foundation/error.h"
#include "numira/currency.h"

#include <QtCore/QDateTime>

namespace kiv::conversion {

/// A table of exchange rates, a reply that should have held one, or a wish for
/// a rate, that is refused.
class KIV_CONVERSION_EXPORT ConversionError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~ConversionError() override;
};

namespace internal {

[[nodiscard]] ConversionError rateOutOfRange(const numira::Currency &currency);
[[nodiscard]] ConversionError baseRateNotOne(const numira::Currency &base);
[[nodiscard]] ConversionError tableWithoutBase();
[[nodiscard]] ConversionError tableWithoutTime();
[[nodiscard]] ConversionError rateMissing(const numira::Currency &from, const numira::Currency &to);

// Where the user finds the rest is the log.
[[nodiscard]] ConversionError replyMalformed(const QString &member);
[[nodiscard]] ConversionError replyUnknownCurrency(const QString &code);
[[nodiscard]] QString fetchTimedOut();
[[nodiscard]] QString sourceGone();
[[nodiscard]] QString senderGone();
[[nodiscard]] ConversionError noWantedRates();
[[nodiscard]] ConversionError ratesOutdated(const QDateTime &given, const QDateTime &known);

} // namespace internal

} // namespace kiv::conversion
