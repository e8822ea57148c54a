// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include "storage/kept_versions.h"
#include "storage/version.h"

#include <optional>

namespace kiv::workbench {

/// A budget file and its former versions, and where undo and redo go among them.
class KIV_WORKBENCH_EXPORT KeptVersions {
public:
    /// Looks at the files; `keys`, which outlive this object, open encrypted ones. Throws what
    /// storage::keptVersions throws.
    explicit KeptVersions(const QString &file, const storage::KeyRing *keys = nullptr);

    /// Each version once, the highest number first, then the backups of the first edition.
    [[nodiscard]] const std::vector<storage::KeptVersion> &all() const noexcept { return m_all; }
    /// The version in the file. Throws a Refusal if there is no file, with the remedy to
    /// bring it back if former versions are kept.
    [[nodiscard]] const storage::KeptVersion &present() const;
    /// The version of this name. Throws a Refusal if there is none.
    [[nodiscard]] const storage::KeptVersion &named(const QString &name) const;
    /// The version so many changes before the present one: each time the nearest ancestor
    /// that is kept, or without any the version before it. Throws a Refusal if there are
    /// not so many.
    [[nodiscard]] const storage::KeptVersion &undone(qsizetype steps) const;
    /// The version so many changes after the present one: each time the newest that was
    /// made from it. Throws a Refusal if there are not so many.
    [[nodiscard]] const storage::KeptVersion &redone(qsizetype steps) const;
    /// The version with the same id, which may tell more about itself; else this one.
    [[nodiscard]] storage::KeptVersion known(const storage::KeptVersion &version) const;
    /// The version from which this one came, as undone() finds it; null if there is none.
    [[nodiscard]] const storage::KeptVersion *before(const storage::KeptVersion &version) const;
    /// The newest that was made from this one, as redone() finds it; null if there is none.
    [[nodiscard]] const storage::KeptVersion *after(const storage::KeptVersion &version) const;
    /// The newest former version that is whole, with its budget; nothing if none is. Throws
    /// StorageError PassphraseNeeded if no key opens it.
    [[nodiscard]] std::optional<std::pair<storage::KeptVersion, storage::BudgetStorage::Data>>
    newestWhole() const;

private:
    using Step = const storage::KeptVersion *(KeptVersions::*)(const storage::KeptVersion &) const;

    [[nodiscard]] const storage::KeptVersion &walked(Step step, qsizetype steps,
                                                     Refusal (*ended)(qsizetype done)) const;

    QString m_file;
    const storage::KeyRing *m_keys;
    std::vector<storage::KeptVersion> m_found; ///< that in the file may be among the others
    std::vector<storage::KeptVersion> m_all;
};

/// The budget of the version. Throws a Refusal if it is damaged or gone, and StorageError
/// PassphraseNeeded if it is encrypted and none of the keys opens it.
[[nodiscard]] KIV_WORKBENCH_EXPORT storage::BudgetStorage::Data
dataOf(const storage::KeptVersion &version, const storage::KeyRing *keys = nullptr);
/// The whole version, with the mark that it is kept under. Throws as dataOf().
[[nodiscard]] KIV_WORKBENCH_EXPORT storage::Version versionOf(const storage::KeptVersion &version,
                                                              const storage::KeyRing *keys = nullptr);

/// Whether former versions of the file are kept. False where that cannot be told.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool hasFormerVersions(const QString &file);

} // namespace kiv::workbench
