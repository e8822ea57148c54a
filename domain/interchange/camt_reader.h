// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// Reads the statements, reports and notifications of accounts in a file of ISO 20022
/// (camt.053, camt.052 and camt.054, any version), one statement for each account.
///
/// Entries are those of the bank: a batch of payments stays one. What the bank has not booked
/// is counted as pending. No document type and so no entity is read. Throws ImportError with
/// the line of what it cannot read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Statement>
readCamt(const QByteArray &bytes, const QString &file, const BankFileOptions &options);

} // namespace kiv::interchange
