// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/version.h"

#include <QtCore/QStringList>

namespace kiv::storage::internal {

/// The kind of a file, from its first bytes.
enum class FileKind : std::uint8_t {
    Empty,
    Foreign,   ///< no budget file
    Malformed, ///< a budget file whose header is not whole
    Newer,     ///< a budget file of a newer version
    Budget,
    Encrypted, ///< a budget file behind a passphrase
};
[[nodiscard]] FileKind kindOf(QByteArrayView image) noexcept;
/// Throws the StorageError for a file of another kind than a budget, open or encrypted.
void requireBudget(FileKind kind, const QString &path);

/// The budget file with the version; the same bytes for the same version. Throws
/// ContentFault when a budget file cannot hold it.
[[nodiscard]] QByteArray encodeBudget(const Version &version);

/// A file of FileKind::Budget, of either edition: a view of its bytes.
class BudgetImage {
public:
    explicit BudgetImage(QByteArrayView file) noexcept;

    /// Whether its checksum is over its bytes, so that it can be checked first.
    [[nodiscard]] bool hasByteSeal() const noexcept { return m_version > 1; }
    /// Throws ContentFault when it is not as it was written, whatever it means. The
    /// first edition's checksum is over its rows, so its tables must be right.
    void checkSeal() const;
    /// Throws ContentFault when it has other tables than its version has.
    void checkTables() const;
    /// The version with its mark, and the data mended where it needs it, with a sentence
    /// in `mended` for each thing that was. One that kept no reconciliations gets those
    /// of its surveys. Its seal is not checked. Throws ContentFault, or what the domain
    /// throws, for a file that was not written so.
    [[nodiscard]] Version version(QStringList &mended) const;
    /// What the version tells about itself; the first edition nothing but its id, which
    /// follows from its bytes. Throws ContentFault when that is malformed.
    [[nodiscard]] VersionMark mark() const;

private:
    [[nodiscard]] QByteArrayView image() const;

    QByteArrayView m_file;
    std::uint32_t m_version;
};

} // namespace kiv::storage::internal
