// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

namespace kiv::workbench {

/// Replaces the budget in memory by a year of a household that ends on `end`, with everything
/// that a budget can have: two banks, a card, a loan, cash, a closed account, a second
/// currency, items of all kinds, splits, refunds, completed surveys, and open entries and due
/// items around the last day. One day, currency and language always give the same budget. The
/// amounts are in the preferred currency if it has two decimals, else in US dollars; the
/// settings stay as they are.
///
/// Throws a Refusal for a day after today, for which no statement can be compared, and for
/// what the Navigator refuses. The budget in memory is in between then, so revert the document.
KIV_WORKBENCH_EXPORT void makeDemonstration(Document &document, QDate end);

} // namespace kiv::workbench
