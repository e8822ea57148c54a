// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"
#include "workbench/surveys/set_aside.h"

#include "adviser/budget_health.h"

namespace kiv::workbench {

/// Something that needs the user's care.
struct Care {
    /// What it is about.
    enum class About : std::uint8_t {
        File = 1,          ///< it is not saved
        Reconciliation,    ///< it no longer holds; of the account
        Difference,        ///< between the books of the account and its bank
        LongNotReconciled, ///< the account
        Rates,             ///< missing ones
        Health,            ///< of the budget
        SetAside           ///< what is set aside at the account, or what no line shows
    };
    /// What it is about.
    About about{};
    QString sentence;                                 ///< in the user's language
    std::optional<accounting::AccountNumber> account; ///< that it is about

    friend bool operator==(const Care &, const Care &) = default;
};

/// So many days after its last reconciliation an account needs care.
inline constexpr int reconciledDaysMax = 35;

/// Everything that needs care on this day, the most urgent first. The health of the budget is
/// judged only if no exchange rate is missing for it; the missing ones are named, with the
/// items and accounts that need them.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Care> neededCare(Document &document, QDate today);

/// What of the envelopes needs care.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Care>
setAsideCare(const Envelopes &all, const accounting::GeneralLedger &ledger,
             navigation::CurrencyDisplayOptions displayAs);

/// The budget's health; nothing if an exchange rate is missing for it.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<adviser::BudgetHealth>
healthOf(Requests &requests);

} // namespace kiv::workbench
