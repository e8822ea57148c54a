// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/reconciliation.h"

#include <span>

/// Whether the books still are as they were reconciled.
namespace kiv::surveying {

/// How a reconciled transaction differs from what was reconciled.
enum class Departure : std::uint8_t {
    Gone = 1,         ///< the ledger has no transaction of its number
    Changed = 2,      ///< it has another day, amount or account
    Unreconciled = 3, ///< it is the same, but no longer marked as reconciled
};

/// Whether it breaks the reconciliation. One that is only marked otherwise does not.
[[nodiscard]] KIV_SURVEYING_EXPORT bool isBreach(Departure departure) noexcept;

/// A transaction of a reconciliation that is not as it was reconciled.
struct KIV_SURVEYING_EXPORT ReconciliationFault {
    std::size_t reconciliation = 0;           ///< its place in the list
    std::size_t transaction = 0;              ///< the transaction's place there
    Departure departure{};                    ///< how it differs
    ReconciledTransaction then;               ///< as it was reconciled
    std::optional<ReconciledTransaction> now; ///< as it is; nothing when it is gone

    friend bool operator==(const ReconciliationFault &, const ReconciliationFault &) = default;
};

/// All transactions that are not as they were reconciled, in the order of the
/// reconciliations and their transactions. A reconciliation without a breach holds.
[[nodiscard]] KIV_SURVEYING_EXPORT std::vector<ReconciliationFault>
reconciliationFaults(const Reconciliations &all, const accounting::GeneralLedger &ledger);

/// Finds the reconciliations of a transaction, so that after a change only the changed
/// transactions are checked. It holds places, not the reconciliations themselves: it stays
/// right while these are renamed and new ones are added to the end.
class KIV_SURVEYING_EXPORT ReconciliationIndex {
public:
    /// Adds those that were added to the list since the last call.
    void follow(const Reconciliations &all);
    /// As reconciliationFaults, for transactions of these numbers only. `all` is the list
    /// that was followed.
    [[nodiscard]] std::vector<ReconciliationFault>
    faults(const Reconciliations &all, const accounting::GeneralLedger &ledger,
           std::span<const accounting::TransactionNumber> numbers) const;

private:
    /// A transaction in the list, and the place here of another one of its number.
    struct Place {
        std::uint32_t reconciliation;
        std::uint32_t transaction;
        std::uint32_t next;
    };

    std::vector<Place> m_places;
    std::vector<std::uint32_t> m_first; ///< by number: one more than the place; 0 is none
    std::size_t m_followed = 0;
};

} // namespace kiv::surveying
