// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace kiv::interchange {

/// What a bank's file may leave open.
struct BankFileOptions {
    /// Any name that ICU knows; found in the file otherwise.
    std::optional<QString> encoding = std::nullopt;
    numira::Currency currency = {}; ///< of the account, where the file does not tell it
};

/// One entry of a bank statement.
struct StatementEntry {
    Place place;               ///< where it begins
    QDate date = {};           ///< when it was booked
    numira::Money amount = {}; ///< positive when money came in
    QString text = {};         ///< what it was for, or all that the bank says about it
    /// The bank's own identifier of the transaction; empty when it gave none.
    QString bankId = {};
    /// The other side's name in the program that wrote the file; often empty.
    QString category = {};
    bool isTransfer = false; ///< whether that is the name of an account
    /// Who got the money, or gave it; empty where the bank does not tell it apart.
    QString payee = {};
    QDate valueDate = {}; ///< from which it bears interest; invalid where the bank tells none

    friend bool operator==(const StatementEntry &, const StatementEntry &) = default;
};

/// A bank's statement of one account. Several in one file of the same account are one.
struct Statement {
    QString account;                     ///< the bank's number, if the file has it
    numira::Currency currency;           ///< of the account
    std::vector<StatementEntry> entries; ///< in the order of the file
    qsizetype pending = 0; ///< number of skipped entries that the bank has not booked yet
    /// Sentences for the user: what was mended, what was left out, balances that the entries
    /// do not make up. No amount that was read is in doubt.
    QStringList notices = {};
    std::optional<numira::Money> opening = std::nullopt; ///< the balance before the first entry
    std::optional<numira::Money> closing = std::nullopt; ///< the balance after the last entry
    QDate closingOn = {};                                ///< the day of that balance

    friend bool operator==(const Statement &, const Statement &) = default;
};

} // namespace kiv::interchange
