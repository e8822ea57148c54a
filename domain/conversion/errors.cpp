// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/errors.h"

namespace kiv::conversion {

ConversionError::~ConversionError() = default;

} // namespace kiv::conversion
