// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// What an OFX file leaves open.
struct OfxOptions {
    /// Any name that ICU knows; otherwise the one that the file names, or UTF-8.
    std::optional<QString> encoding = std::nullopt;
    /// The bank's number of the account, where the file has several statements.
    QString account = {};
};

/// Reads the statement of a bank account or a credit card from an OFX file, in
/// the SGML of OFX 1 or the XML of OFX 2.
///
/// Every tag must be closed as it was opened, except those of SGML that hold a value.
/// Amounts are read from their text, never as binary numbers. Throws ImportError with
/// the line of what it cannot read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Statement readOfx(const QByteArray &bytes, const QString &file,
                                                       const OfxOptions &options);

} // namespace kiv::interchange
