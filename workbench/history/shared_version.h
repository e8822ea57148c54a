// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/version.h"

#include <memory>

namespace kiv::workbench {

/// The content of a version, without its mark. Copies share it, and so do versions that
/// followed from each other, as far as they are equal: a step of a session takes the
/// memory of what it changed. Several threads may have copies.
class KIV_WORKBENCH_EXPORT SharedVersion {
public:
    /// Shares what is equal with `like`.
    explicit SharedVersion(storage::Version version, const SharedVersion *like = nullptr);

    /// A copy of the budget.
    [[nodiscard]] storage::BudgetStorage::Data data() const;
    /// A copy of the whole with this mark.
    [[nodiscard]] storage::Version version(storage::VersionMark mark) const;
    /// Whether the budget is this one.
    [[nodiscard]] bool has(const storage::BudgetStorage::Data &data) const;

    /// The accounts and transactions.
    [[nodiscard]] const accounting::GeneralLedger &ledger() const noexcept { return m_ledger; }
    /// The completed surveys.
    [[nodiscard]] const surveying::CompletedSurveys &surveys() const noexcept { return *m_surveys; }
    /// What the surveys left behind.
    [[nodiscard]] const surveying::Reconciliations &reconciliations() const noexcept
    {
        return *m_reconciliations;
    }
    /// What front ends remember.
    [[nodiscard]] const storage::Notes &notes() const noexcept { return *m_notes; }

private:
    template <typename Part>
    using Shared = std::shared_ptr<const Part>;

    accounting::GeneralLedger m_ledger; // copies share their content
    Shared<budgeting::Budget> m_budget;
    Shared<storage::BudgetStorage::BudgetAccountCodes> m_codes;
    Shared<banking::BankMap> m_banks;
    Shared<surveying::CompletedSurveys> m_surveys;
    Shared<tagging::BudgetItemTags> m_itemTags;
    Shared<surveying::Reconciliations> m_reconciliations;
    Shared<storage::Notes> m_notes;
};

} // namespace kiv::workbench
