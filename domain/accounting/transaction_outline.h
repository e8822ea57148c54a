// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_number.h"
#include "accounting/account_types.h"

#include "numira/money.h"

#include <QtCore/QDate>

namespace kiv::accounting {

/// What a transaction moves and how far it is checked, without its description and
/// its accounts' names: cheap to read from a ledger.
struct KIV_ACCOUNTING_EXPORT TransactionOutline {
    QDate occurredOn;                                             ///< the day
    AccountNumber debit;                                          ///< the debited account
    AccountNumber credit;                                         ///< the credited account
    numira::Money amount;                                         ///< as it was entered
    TransactionStatuses debitStatus = TransactionStatuses::None;  ///< of the debited side
    TransactionStatuses creditStatus = TransactionStatuses::None; ///< of the credited side

    friend bool operator==(const TransactionOutline &, const TransactionOutline &) = default;
};

} // namespace kiv::accounting
