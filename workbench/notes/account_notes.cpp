// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/notes/account_notes.h"

#include "workbench/statements/import_memory.h"
#include "workbench/surveys/survey_notes.h"

#include "accounting/recoded_accounts.h"

namespace kiv::workbench {

using accounting::AccountNumber;

storage::Notes notesAfter(const storage::Notes &notes, const accounting::GeneralLedger &before,
                          const accounting::GeneralLedger &after)
{
    const auto isKept = [&after](const accounting::AccountCode &code) {
        return after.hasLedger(code);
    };
    if (notes.isEmpty() || std::ranges::all_of(before.accountCodes(), isKept))
        return notes;
    const std::map<AccountNumber, AccountNumber> recoded =
        accounting::recodedAccounts(before, after, accounting::changedTransactions(before, after));
    const auto numberNow = [&](AccountNumber number) -> std::optional<AccountNumber> {
        if (const auto found = recoded.find(number); found != recoded.end())
            return found->second;
        return after.hasLedger(number) ? std::optional(number) : std::nullopt;
    };
    ImportMemory memory = ImportMemory::of(notes);
    memory.renumber(numberNow);
    SurveyNotes surveys = SurveyNotes::of(notes);
    surveys.renumber(numberNow);
    return surveys.keptIn(memory.keptIn(notes));
}

} // namespace kiv::workbench
