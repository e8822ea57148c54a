// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/strong_bool.h"

#include <QtCore/QMetaType>

namespace kiv::navigation {

struct AllowSubAccountsTag {};
/// Whether accounts that stand under another account are wanted too.
using AllowSubAccounts = foundation::StrongBool<AllowSubAccountsTag>;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::AllowSubAccounts)
