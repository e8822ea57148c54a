// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_inspection.h"

namespace kiv::workbench {

/// What a budget file promises: first what its storage judges, then what its books
/// add up to.
enum class Promise : std::uint8_t {
    Identity = 1,
    Tables = 2,
    Seal = 3,
    Rules = 4,
    Ties = 5,
    Balances = 6, ///< every balance is the sum of its transactions
    Sides = 7,    ///< in every currency the debits equal the credits
};

/// One promise, and what became of it.
struct KIV_WORKBENCH_EXPORT PromiseVerdict {
    Promise promise{};
    storage::Verdict verdict = storage::Verdict::NotJudged;
    QStringList reasons; ///< in words; for Sides the sums that were compared

    /// What is promised, as a sentence without its end in the user's language.
    [[nodiscard]] QString sentence() const;
};

/// A budget file that was looked at.
struct KIV_WORKBENCH_EXPORT Verification {
    QString path;
    std::vector<PromiseVerdict> promises; ///< each once, in their order

    /// Whether no promise is broken.
    [[nodiscard]] bool isWhole() const;
};

/// Judges a budget file or one of its former versions. Writes nothing. Throws what
/// storage::inspectBudget throws.
[[nodiscard]] KIV_WORKBENCH_EXPORT Verification verify(const QString &path);

} // namespace kiv::workbench
