// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/export.h"

#include <stdexcept>

namespace numira {

/// The base of everything this library throws. The text is English and for
/// people who read logs; callers word their own messages around it.
class NUMIRA_EXPORT Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    ~Error() override;
};

/// A result that has more digits before the point than can be kept exactly.
class NUMIRA_EXPORT OverflowError final : public Error {
public:
    using Error::Error;
    ~OverflowError() override;
};

/// A text or a code that names no currency of ISO 4217.
class NUMIRA_EXPORT UnknownCurrency final : public Error {
public:
    using Error::Error;
    ~UnknownCurrency() override;
};

/// A text that is no exact decimal amount.
class NUMIRA_EXPORT InvalidAmount final : public Error {
public:
    using Error::Error;
    ~InvalidAmount() override;
};

/// Two currencies met and there is no converter, or it gave no usable rate.
class NUMIRA_EXPORT ConversionError final : public Error {
public:
    using Error::Error;
    ~ConversionError() override;
};

} // namespace numira
