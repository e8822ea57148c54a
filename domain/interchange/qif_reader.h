// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"
#include "interchange/written_values.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// What a QIF file leaves open.
struct QifOptions {
    /// Any name that ICU knows; found from the bytes otherwise.
    std::optional<QString> encoding = std::nullopt;
    /// Found from each number otherwise.
    std::optional<DecimalMark> decimalMark = std::nullopt;
    /// Found from all dates otherwise; dates that could be read in two ways are refused.
    std::optional<DateFormat> dateFormat = std::nullopt;
    /// Of the account: QIF names none.
    numira::Currency currency = {};
};

/// Reads the transactions of bank accounts, credit cards and cash from a QIF file, one
/// statement for each account. Each part of a split becomes an entry of its own; its category
/// names the other side. Lists of categories and accounts are skipped, and so are, with a
/// notice, investments beside a bank account. Throws ImportError with the line of what it
/// cannot read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Statement>
readQif(const QByteArray &bytes, const QString &file, const QifOptions &options);

} // namespace kiv::interchange
