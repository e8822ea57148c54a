// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include <QtCore/QDate>

namespace kiv::foundation {

/// Today by the computer's clock and time zone: the one place where the domain
/// reads it. Everything else takes its dates as arguments, with this as the
/// default where a default is useful.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate today();

} // namespace kiv::foundation
