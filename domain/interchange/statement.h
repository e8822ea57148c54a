// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>

#include <optional>
#include <vector>

namespace kiv::interchange {

/// One line of a bank statement.
struct StatementEntry {
    Place place;               ///< where it begins
    QDate date = {};           ///< when it was booked
    numira::Money amount = {}; ///< positive when money came in
    QString text = {};         ///< what the bank says about it
    /// The bank's own identifier of the transaction; empty when it gave none.
    QString bankId = {};
    /// The other side's name in the program that wrote the file; often empty.
    QString category = {};
    bool isTransfer = false; ///< whether that is the name of an account

    friend bool operator==(const StatementEntry &, const StatementEntry &) = default;
};

/// A bank's statement of one account.
struct Statement {
    QString account;                     ///< the bank's number, if the file has it
    numira::Currency currency;           ///< of the account
    std::vector<StatementEntry> entries; ///< in the order of the file
    qsizetype pending = 0; ///< number of skipped entries that the bank has not booked yet
};

} // namespace kiv::interchange
