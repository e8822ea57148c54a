// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_reading.h"
#include "workbench/surveys/survey_sheet.h"

namespace kiv::workbench {

/// What a bank's file says for a sheet.
struct KIV_WORKBENCH_EXPORT SheetStatement {
    QDate first; ///< of the earliest entry; invalid without entries
    QDate day;   ///< of the balance, or of the last entry; invalid if the file has neither
    std::optional<numira::Money> balance;         ///< in the account's terms, if the file has it
    std::set<accounting::TransactionNumber> seen; ///< transactions that are in the file
    /// Entries that the books lack: import them first, or they are missing.
    std::vector<interchange::StatementEntry> unknown;
    QStringList notices; ///< sentences about the file

    /// Throws a Refusal that names the file if it tells no day.
    void requireDay(const QString &file) const;
    /// Fills in the balance, and ticks what is in the file. Of what is before its first entry,
    /// which a former file may have told, the ticks stay.
    void layOn(SurveySheet &sheet) const;
    /// "3 entries of the file are not in the books: …"; empty if all are.
    [[nodiscard]] QString unknownText(navigation::CurrencyDisplayOptions displayAs) const;
};

/// A bank's file to be laid beside a sheet. Throws a Refusal if it cannot be read or is no
/// statement.
[[nodiscard]] KIV_WORKBENCH_EXPORT ImportSource sheetSource(const QString &path);

/// Reads the file for the account. Throws an ImportError for what cannot be read, and a Refusal
/// if the file is of another account.
[[nodiscard]] KIV_WORKBENCH_EXPORT SheetStatement readForSheet(Document &document,
                                                               const banking::BankAccount &account,
                                                               ImportSource source);

} // namespace kiv::workbench
