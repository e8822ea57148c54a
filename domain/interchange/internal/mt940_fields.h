// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/statement_parts.h"

namespace kiv::interchange::internal {

/// What the line :61: of an entry says.
struct Mt940Entry {
    QDate booked;            ///< the value day where it tells no other
    QDate valueDate;         ///< invalid where there is no such day
    numira::Money amount;    ///< negative when money went out
    bool isExpected = false; ///< not booked yet
    QString reference = {};  ///< the customer's, empty where it is none
    QString bankReference = {};
};

/// Reads such a line, as "1211230101C1234,56NTRFReference//Bank reference". Throws ImportError
/// for any other form.
[[nodiscard]] Mt940Entry readMt940Entry(QStringView text, const numira::Currency &currency,
                                        const Place &place);

/// Reads a balance, as "C121123EUR1234,56". Without a currency it is in `currency`. Throws
/// ImportError for any other form.
[[nodiscard]] ToldBalance readMt940Balance(QStringView text, const numira::Currency &currency,
                                           const Place &place);

} // namespace kiv::interchange::internal
