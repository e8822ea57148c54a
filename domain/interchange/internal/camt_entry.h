// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/element.h"
#include "interchange/statement.h"

namespace kiv::interchange::internal {

/// The currency with this code. Throws ImportError when there is none.
[[nodiscard]] numira::Currency currencyOf(const QString &code, const Place &place);
/// The currency of an amount, which must name it.
[[nodiscard]] numira::Currency currencyOf(const Element &amount);

/// Whether the bank has booked the entry. Throws ImportError when it does not say.
[[nodiscard]] bool isBooked(const Element &entry);

/// The amount of an entry or a balance, negative for debits. Throws ImportError when it has
/// none, no direction, or another currency.
[[nodiscard]] numira::Money signedAmount(const Element &element, const numira::Currency &currency);

/// The day below this tag, as the bank writes it; invalid when there is none. Throws
/// ImportError for one that does not exist.
[[nodiscard]] QDate dayOf(const Element &element, const char *tag);

/// The entry of a statement (Ntry) in the account's currency.
[[nodiscard]] StatementEntry entryOf(const Element &entry, const numira::Currency &currency);

} // namespace kiv::interchange::internal
