// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/set_aside.h"

#include "navigation/currency_display.h"

#include <QtCore/QStringList>

#include <functional>

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

/// How a reason names a transaction, such as "#16".
using PostingName = std::function<QString(accounting::TransactionNumber)>;
/// By its number.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString postingNumber(accounting::TransactionNumber number);

/// The reasons of a line of this account.
[[nodiscard]] KIV_WORKBENCH_EXPORT PartReasons
reasonsOf(const SetAsideLine &line, const SetAside &account,
          navigation::CurrencyDisplayOptions displayAs, const PostingName &nameOf = postingNumber);

/// "There is no exchange rate between EUR and USD."
[[nodiscard]] KIV_WORKBENCH_EXPORT QString lackingRateText(const LackingRate &lacking);

/// What is free to spend in all, each currency by itself. Empty without an account.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString freeText(const Envelopes &all,
                                                    navigation::CurrencyDisplayOptions displayAs);

/// What of it is still due this month. Empty if nothing is.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString
stillDueText(const Envelopes &all, navigation::CurrencyDisplayOptions displayAs);

/// What needs care at this account, each a sentence: that more is set aside than there is,
/// what is left out.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
warningsOf(const SetAside &account, const accounting::GeneralLedger &ledger,
           navigation::CurrencyDisplayOptions displayAs);

/// What the user should know of this account: that it was never reconciled, and warningsOf().
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
noticesOf(const SetAside &account, const accounting::GeneralLedger &ledger,
          navigation::CurrencyDisplayOptions displayAs);

/// The same of all accounts together: what no line shows, and what several show.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
sharedNoticesOf(const Envelopes &all, const accounting::GeneralLedger &ledger,
                navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
