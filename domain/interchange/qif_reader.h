// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/statement.h"
#include "interchange/written_values.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// What a QIF file leaves open.
struct QifOptions {
    /// How days are written; found from them otherwise, or refused when they
    /// could be read in two ways.
    std::optional<DateFormat> dateFormat = std::nullopt;
    /// Found out from each number otherwise.
    std::optional<DecimalMark> decimalMark = std::nullopt;
    numira::Currency currency = {};             ///< QIF tells none
    QString encoding = QStringLiteral("UTF-8"); ///< any name that ICU knows
};

/// Reads the transactions of a bank account, a credit card or cash from a QIF
/// file. Each part of a split becomes an entry of its own; a category is the
/// name of the other side. Lists of categories and accounts are passed over,
/// investments are refused. Throws ImportError with the line of what it cannot
/// read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Statement readQif(const QByteArray &bytes, const QString &file,
                                                       const QifOptions &options);

} // namespace kiv::interchange
