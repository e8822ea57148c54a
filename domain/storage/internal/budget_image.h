// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"
#include "storage/internal/image_database.h"

#include <QtCore/QStringList>

namespace kiv::storage::internal {

/// The kind of a file, from its first bytes.
enum class FileKind : std::uint8_t {
    Empty,
    Foreign,   ///< no budget file
    Malformed, ///< a budget file whose header is not whole
    Newer,     ///< a budget file of a newer version
    Budget,
};
[[nodiscard]] FileKind kindOf(QByteArrayView image) noexcept;
/// Throws the StorageError for a file of another kind than FileKind::Budget.
void requireBudget(FileKind kind, const QString &path);

/// The budget file with the data; the same bytes for the same data. Throws
/// ContentFault when a budget file cannot hold it.
[[nodiscard]] Image encodeBudget(const BudgetStorage::Data &data);

/// The data in the image of a FileKind::Budget, mended where it needs it, with
/// a sentence in `mended` for each thing that was. Throws ContentFault, or what
/// the domain throws, for an image that is not as it was written.
[[nodiscard]] BudgetStorage::Data decodeBudget(QByteArrayView image, QStringList &mended);

/// Throws ContentFault when the image of a FileKind::Budget has other tables than
/// its version has.
void checkTables(QByteArrayView image);
/// Throws ContentFault when its seal does not fit its rows, whatever they mean.
void checkSeal(QByteArrayView image);

} // namespace kiv::storage::internal
