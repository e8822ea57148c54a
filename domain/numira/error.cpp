// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/error.h"

namespace numira {

// Defined here so that each class has one type description, which a catch
// clause in another library can match.
Error::~Error() = default;
OverflowError::~OverflowError() = default;
UnknownCurrency::~UnknownCurrency() = default;
InvalidAmount::~InvalidAmount() = default;
ConversionError::~ConversionError() = default;

} // namespace numira
