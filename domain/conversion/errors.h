// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/export.h"

#include "foundation/error.h"

namespace kiv::conversion {

/// A table of exchange rates, a reply that should have held one, or a wish for
/// a rate, that is refused.
class KIV_CONVERSION_EXPORT ConversionError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~ConversionError() override;
};

} // namespace kiv::conversion
