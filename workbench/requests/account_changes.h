// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

namespace kiv::workbench {

/// An account that is to be opened in the ledger.
struct NewAccount {
    QString name;                                         ///< as the user wrote it
    accounting::AccountTypes type{};                      ///< what kind it is
    numira::Money opening;                                ///< its first balance
    std::optional<accounting::AccountNumber> number = {}; ///< the next free one if missing
    std::optional<accounting::AccountNumber> parent = {}; ///< the account above it
    std::optional<QDate> openedOn = {}; ///< the day of the first balance; today if missing
};

/// Opens the account, and returns its number. Throws a Refusal; if moving the opening to its
/// day is refused, the account stays.
KIV_WORKBENCH_EXPORT accounting::AccountNumber addAccount(Requests &requests,
                                                          const NewAccount &account);

} // namespace kiv::workbench
