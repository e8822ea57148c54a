// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

/// Limits that keep reading a file of 64 MiB below 300 MiB of memory.
namespace kiv::interchange::limits {

/// Characters of an entry or a directive with all its lines. A short line counts as
/// lineTextMin, since each is kept.
inline constexpr qsizetype entryTextMax = qsizetype{4} * 1024 * 1024;
inline constexpr qsizetype lineTextMin = 16;
/// Characters of a table's cells. A short cell counts as cellTextMin.
inline constexpr qsizetype tableTextMax = qsizetype{16} * 1024 * 1024;
inline constexpr qsizetype cellTextMin = 16;
/// Characters of the descriptions of all transactions.
inline constexpr qsizetype descriptionsMax = qsizetype{8} * 1024 * 1024;
/// Characters of the paths of all accounts, parents included.
inline constexpr qsizetype accountPathsMax = qsizetype{4} * 1024 * 1024;
/// Accounts, parents included; and declarations of accounts.
inline constexpr qsizetype accountsMax = 30'000;
/// Aliases, each time that one is declared.
inline constexpr std::size_t aliasesMax = 10'000;

} // namespace kiv::interchange::limits
