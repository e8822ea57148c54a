// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/survey_form.h"

namespace kiv::workbench {

/// What may be the reason why the statement and the ticks differ.
struct KIV_WORKBENCH_EXPORT DifferenceGuess {
    /// The reason.
    enum class Why : std::uint8_t {
        OpenEntry = 1,  ///< an entry that is not ticked
        TwoOpenEntries, ///< two of them, which add up
        AllOpenEntries, ///< all that are not ticked; more than two
        EnteredTwice,   ///< of two equal ones that are ticked, one is too much
        NotOnStatement, ///< an entry is ticked, and the bank does not have it
        WrongWay,       ///< money went in instead of out: the difference is twice the amount
        DigitsSwapped,  ///< two digits of an amount that stand side by side
    };
    Why why{};                                      ///< the reason
    std::vector<accounting::Transaction> entries{}; ///< one or two, or all
};

/// The reasons that would explain `missing`, what the statement has beyond the books; the
/// likeliest first, at most three. Empty if nothing is missing.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<DifferenceGuess>
guessesOf(const SurveyForm &form, const numira::Money &missing);

/// A guess as a sentence.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString guessText(const DifferenceGuess &guess,
                                                     const SurveyForm &form,
                                                     const AccountIndex &index,
                                                     navigation::CurrencyDisplayOptions displayAs);

/// The entry as questions and guesses name it: "#17 of 2026-01-15, Fuel (Groceries), -$43.22".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString entryText(const accounting::Transaction &entry,
                                                     const SurveyForm &form,
                                                     const AccountIndex &index,
                                                     navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
