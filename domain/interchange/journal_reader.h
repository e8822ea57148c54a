// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/draft.h"
#include "interchange/journal_options.h"

namespace kiv::interchange {

/// Reads a plain-text accounting journal, as ledger and hledger read it.
///
/// Every transaction becomes as many transactions between two accounts as are
/// needed, currency by currency. Where one currency pays for another, each goes
/// through an account of its own under Equity:Conversion, so both amounts stay
/// exact whatever the rates are. What is no currency is kept at its cost. An
/// unbalanced virtual posting goes against Equity:Virtual. Comments and tags
/// are kept behind the description. Balance assertions are checked, in the
/// order of the file or of the days, whichever holds.
///
/// Throws ImportError with file and line for everything that it does not know, for
/// what ledger and hledger read in different ways, and for what would need too much
/// memory. What is left out, such as days of single postings, is noticed.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Draft readJournal(const QByteArray &bytes, const QString &file,
                                                       const JournalOptions &options);

} // namespace kiv::interchange
