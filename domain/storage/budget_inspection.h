// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/version.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace kiv::storage {

class KeyRing;

/// What every budget file promises, in the order in which it is looked at. None
/// is judged when one before it is broken.
enum class FilePromise : std::uint8_t {
    Identity = 1, ///< its header is that of a budget file of a known version
    Tables = 2,   ///< its tables are those of that version
    Seal = 3,     ///< its rows are those that were written
    Rules = 4,    ///< its books obey the rules of the ledger
    Ties = 5,     ///< its items, accounts and banks fit together
};

/// Whether a promise is kept.
enum class Verdict : std::uint8_t {
    Kept = 1,
    Mended = 2, ///< not, but loading makes it so
    Broken = 3,
    NotJudged = 4,
};

/// A promise, its verdict, and the reasons where it is not kept.
struct KIV_STORAGE_EXPORT Judgement {
    /// The promise that was judged.
    FilePromise promise = FilePromise::Identity; ///< what the file should keep
    /// Whether it is kept.
    Verdict verdict = Verdict::NotJudged; ///< whether it does
    QStringList reasons;                  ///< why not, in words; empty when kept
};

/// What a look at a budget file found.
struct KIV_STORAGE_EXPORT BudgetInspection {
    /// When this version was written, in UTC.
    QDateTime savedAt;
    /// In bytes.
    qint64 size = 0;
    /// Whether it is encrypted.
    bool isEncrypted = false;
    /// One for each promise, in their order.
    std::vector<Judgement> judgements;
    /// What the version tells about itself, when its seal and its tables are whole.
    VersionMark mark;
    /// The budget, when no promise is broken.
    std::optional<BudgetStorage::Data> data;
    /// What is kept beside the budget, when no promise is broken.
    surveying::Reconciliations reconciliations;
    Notes notes; ///< see reconciliations
};

/// Looks at a budget file or one of its backups, without a lock, which reading
/// alone does not need: a save replaces the file by another one and never
/// changes it. Nothing is written. An encrypted file whose key is in `keys` is looked at as
/// if it were in the clear. Throws StorageError when there is no file to look at, or none
/// that can be read, and PassphraseNeeded.
[[nodiscard]] KIV_STORAGE_EXPORT BudgetInspection inspectBudget(const QString &filePathName,
                                                                const KeyRing *keys = nullptr);

} // namespace kiv::storage
