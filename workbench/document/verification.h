// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_inspection.h"

namespace kiv::workbench {

/// What a budget file promises: first what its storage judges, then what its books
/// add up to.
enum class Promise : std::uint8_t {
    Identity = 1, ///< its header is that of a budget file of a known version
    Tables = 2,   ///< its tables are those of that version
    Seal = 3,     ///< its rows are those that were written
    Rules = 4,    ///< its books obey the rules of the ledger
    Ties = 5,     ///< its items, accounts and banks fit together
    Balances = 6, ///< every balance is the sum of its transactions
    Sides = 7,    ///< in every currency the debits equal the credits
};

/// One promise, and what became of it.
struct KIV_WORKBENCH_EXPORT PromiseVerdict {
    Promise promise{};                                      ///< what was judged
    storage::Verdict verdict = storage::Verdict::NotJudged; ///< whether it is kept
    QStringList reasons; ///< in words; for Sides the sums that were compared

    /// What is promised, as a sentence without its end in the user's language.
    [[nodiscard]] QString sentence() const;
};

/// A budget file that was looked at.
struct KIV_WORKBENCH_EXPORT Verification {
    QString path;                         ///< of the file
    std::vector<PromiseVerdict> promises; ///< each once, in their order

    /// Whether no promise is broken.
    [[nodiscard]] bool isWhole() const;
};

/// Judges a budget file or one of its former versions. Writes nothing. Throws what
/// storage::inspectBudget throws.
[[nodiscard]] KIV_WORKBENCH_EXPORT Verification verify(const QString &path);

} // namespace kiv::workbench
