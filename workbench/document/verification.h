// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_inspection.h"

namespace kiv::workbench {

/// The checks of a budget file: first those of the storage, then the sums of the books.
enum class Promise : std::uint8_t {
    Identity = 1, ///< it is a budget file of a known version
    Tables = 2,   ///< the tables belong to that version
    Seal = 3,     ///< the rows are as they were saved
    Rules = 4,    ///< the books follow the rules of the ledger
    Ties = 5,     ///< items, accounts and banks match
    Balances = 6, ///< every balance is the sum of its transactions
    Sides = 7,    ///< debits equal credits in every currency
};

/// A check and its result.
struct KIV_WORKBENCH_EXPORT PromiseVerdict {
    Promise promise{};                                      ///< the check
    storage::Verdict verdict = storage::Verdict::NotJudged; ///< its result
    QStringList reasons; ///< details; for Sides the compared sums

    /// The check as a sentence without its end, in the user's language.
    [[nodiscard]] QString sentence() const;
    /// The result in words, such as "ok", in the user's language.
    [[nodiscard]] QString result() const;
};

/// A checked budget file.
struct KIV_WORKBENCH_EXPORT Verification {
    QString path;                         ///< of the file
    std::vector<PromiseVerdict> promises; ///< all checks in order

    /// Whether no check failed.
    [[nodiscard]] bool isWhole() const;
};

/// Checks a budget file or a backup; `keys` open encrypted ones. Writes nothing. Throws what
/// storage::inspectBudget throws.
[[nodiscard]] KIV_WORKBENCH_EXPORT Verification verify(const QString &path,
                                                       const storage::KeyRing *keys = nullptr);

} // namespace kiv::workbench
