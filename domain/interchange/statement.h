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
    Place place;
    QDate date = {};
    numira::Money amount = {}; ///< positive when money came in
    QString text = {};
    /// The bank's own identifier of the transaction; empty when it gave none.
    QString bankId = {};
    /// The name that another program has for the other side; often empty.
    QString category = {};

    friend bool operator==(const StatementEntry &, const StatementEntry &) = default;
};

/// What a bank says about one account.
struct Statement {
    QString account; ///< the bank's number of it, where the file tells it
    numira::Currency currency;
    std::vector<StatementEntry> entries;
};

} // namespace kiv::interchange
