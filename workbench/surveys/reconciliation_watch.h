// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "surveying/reconciliation_check.h"

#include <set>

namespace kiv::workbench {

/// A reconciliation, and the first transaction that is not as it was reconciled.
struct KIV_WORKBENCH_EXPORT JudgedReconciliation {
    banking::BankAccount account; ///< that was reconciled
    QDate day;                    ///< of the statement
    numira::Money balance;        ///< of the statement
    std::size_t transactions = 0; ///< how many it reconciled
    /// The first breach; without one, the first transaction that is only no longer marked
    /// as reconciled. Nothing if all are as they were.
    std::optional<surveying::ReconciliationFault> fault;

    /// Whether no transaction is gone or changed.
    [[nodiscard]] bool holds() const noexcept
    {
        return !fault || !surveying::isBreach(fault->departure);
    }
    /// Why it does not hold, in the user's language and without an end: "#17, $43.22, was
    /// removed after the survey of 2026-01-31". Empty without a fault. The ledger gives the
    /// names of the accounts.
    [[nodiscard]] QString reason(const accounting::GeneralLedger &ledger,
                                 navigation::CurrencyDisplayOptions displayAs) const;
    /// The whole sentence: "1 Checking is not as it was reconciled: …."
    [[nodiscard]] QString sentence(const accounting::GeneralLedger &ledger,
                                   navigation::CurrencyDisplayOptions displayAs) const;
};

/// All reconciliations, in their order.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<JudgedReconciliation>
judged(const surveying::Reconciliations &all, const accounting::GeneralLedger &ledger);

/// Notices when a reconciliation breaks. A change costs the same however many
/// reconciliations there are.
class KIV_WORKBENCH_EXPORT ReconciliationWatch {
public:
    /// Checks all of them, and returns those that broke since the last check: of each
    /// account the first, so that one cause does not give a flood. For a version that was
    /// loaded.
    [[nodiscard]] std::vector<JudgedReconciliation> check(const surveying::Reconciliations &all,
                                                          const accounting::GeneralLedger &ledger);
    /// The same after a change: only the changed transactions are checked. `all` are those
    /// of the last check, with new ones at the end.
    [[nodiscard]] std::vector<JudgedReconciliation> follow(const surveying::Reconciliations &all,
                                                           const accounting::GeneralLedger &ledger);

    /// Whether the reconciliation at this place of the list held when it was checked last.
    [[nodiscard]] bool holds(std::size_t place) const;

private:
    /// A transaction of a reconciliation, by their places.
    using Place = std::pair<std::size_t, std::size_t>;

    [[nodiscard]] std::vector<JudgedReconciliation>
    news(const surveying::Reconciliations &all,
         const std::vector<surveying::ReconciliationFault> &faults, std::set<Place> broken);

    accounting::GeneralLedger m_ledger; ///< as it was checked last
    surveying::ReconciliationIndex m_index;
    std::set<Place> m_broken;
};

} // namespace kiv::workbench
