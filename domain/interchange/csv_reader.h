// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/statement.h"

namespace kiv::interchange {

/// What a CSV file leaves open.
struct CsvOptions {
    CsvProfile profile = {};        ///< how the bank writes its files
    numira::Currency currency = {}; ///< of the account, where the table does not tell it
};

/// Reads a bank statement in CSV. What the profile leaves open is found in the file, as
/// guessCsv() tells it.
///
/// Where the table has balances, each must be the one before plus the amount, from the
/// first entry to the last or from the last to the first. Fees in a column of their own are
/// subtracted from the amounts, unless the balances show that these include them. Entries
/// that were declined or reverted are left out with a notice.
///
/// Throws ImportError with the line of what it cannot read, and for days that can be read in
/// two ways.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Statement readCsv(const QByteArray &bytes, const QString &file,
                                                       const CsvOptions &options);

} // namespace kiv::interchange
