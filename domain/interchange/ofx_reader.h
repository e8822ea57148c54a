// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// Reads the statement of a bank account or a credit card from an OFX file, in
/// the SGML of OFX 1 or the XML of OFX 2.
///
/// `account` chooses one statement by the bank's number of its account; it may
/// be empty when there is but one. Every tag must be closed as it was opened,
/// save those of SGML that hold a value. Amounts are taken from their text, not
/// by way of binary numbers. `encoding` goes before the one that the file names;
/// it may be empty. Throws ImportError with the line of what is broken.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Statement readOfx(const QByteArray &bytes, const QString &file,
                                                       const QString &account = {},
                                                       const QString &encoding = {});

} // namespace kiv::interchange
