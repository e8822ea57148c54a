// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// Reads the statements of bank accounts and credit cards from an OFX file, in the SGML of
/// OFX 1 or the XML of OFX 2, one statement for each account.
///
/// End tags that are missing are mended, with a notice, where no amount depends on them.
/// Corrections of entries in the same file are applied. Amounts are read from their text,
/// never as binary numbers. Throws ImportError with the line of what it cannot read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Statement>
readOfx(const QByteArray &bytes, const QString &file, const BankFileOptions &options);

} // namespace kiv::interchange
