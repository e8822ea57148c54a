// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

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
        Health             ///< of the budget
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
/// judged only if no exchange rate is missing for it; the missing ones are named.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Care> neededCare(Document &document, QDate today);

/// The budget's health; nothing if an exchange rate is missing for it.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<adviser::BudgetHealth>
healthOf(Requests &requests);

} // namespace kiv::workbench
