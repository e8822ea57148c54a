// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/set_aside.h"

#include "navigation/currency_display.h"

#include <QtCore/QStringList>

/// The words for what is set aside, in the user's language.
namespace kiv::workbench {

/// Why each part of a line is what it is, without an end: "$600.00 yearly = $50.00 a month,
/// 2 months". Empty for a part of zero that needs no reason, and without parts.
struct PartReasons {
    QString before;   ///< "set aside on 2026-03-25"
    QString added;    ///< the share of a month, or what was put in
    QString paid;     ///< the transactions
    QString adjusted; ///< why something was added to the other parts
};

/// The reasons of a line of this account.
[[nodiscard]] KIV_WORKBENCH_EXPORT PartReasons
reasonsOf(const SetAsideLine &line, const SetAside &account,
          navigation::CurrencyDisplayOptions displayAs);

/// What the user should know of this account, each a sentence: that it was never reconciled,
/// that more is set aside than there is, what is left out.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
noticesOf(const SetAside &account, const accounting::GeneralLedger &ledger,
          navigation::CurrencyDisplayOptions displayAs);

/// The same of all accounts together: what no line shows, and what several show.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
sharedNoticesOf(const Envelopes &all, const accounting::GeneralLedger &ledger,
                navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
