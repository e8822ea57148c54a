// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

namespace kiv::workbench {

/// Another type for an account that was opened as the wrong one.
struct Conversion {
    accounting::AccountNumber account;                  ///< with all accounts below it
    accounting::AccountTypes type{};                    ///< what it is to be
    std::optional<banking::BankAccountTypes> kind = {}; ///< what it is to its bank then
};

/// What convertAccount() did besides.
struct Converted {
    numira::Money balance;                          ///< positive on the side of the new type
    std::optional<banking::BankName> separatedFrom; ///< the bank that cannot keep it any more
    bool isReleased = false; ///< whether money was set aside there, and is free now
    bool isTopLevel = false; ///< whether it lay under an account of the former type
};

/// Gives an account another type. Its transactions stay, with numbers and marks, and so does
/// its last survey where a bank can keep the account; it is kept as a checking account or a
/// credit card unless `kind` says another. Refused: the type that it has, an account of a
/// budget item or above one, and the account for openings. Within Document::perform() the
/// budget is as before then.
KIV_WORKBENCH_EXPORT Converted convertAccount(Document &document, const Conversion &conversion);

/// "Visa is of the type liability now."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed convertDeed(Requests &requests,
                                                    const Conversion &conversion);
/// What was done, a sentence for each thing.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList toldOf(Requests &requests, const Converted &done,
                                                      const Conversion &conversion);

} // namespace kiv::workbench
