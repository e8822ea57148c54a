// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// Reads the statements of an MT940 file, also the interim reports of MT942: one statement for
/// each account. Days, statements and pages may stand in blocks of SWIFT or between lines of a
/// hyphen.
///
/// A day is the booking day where the bank tells it; a value day that does not exist is left
/// out. Throws ImportError with the line of what it cannot
/// read, and for a statement without its closing balance: the file may be cut off.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Statement>
readMt940(const QByteArray &bytes, const QString &file, const BankFileOptions &options);

} // namespace kiv::interchange
