// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/debug_stream.h"
#include "foundation/strong_bool.h"

#include <QtCore/QMetaType>

namespace kiv::navigation {

struct AllowSubAccountsTag {};
/// Whether accounts that stand under another account are wanted too.
using AllowSubAccounts = foundation::StrongBool<AllowSubAccountsTag>;

inline std::ostream &operator<<(std::ostream &out, AllowSubAccounts allow)
{
    return out << (allow ? "with sub-accounts" : "without sub-accounts");
}

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::AllowSubAccounts)
