// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

/// What a file may hold at most, so that reading one of 64 MiB needs less than 300 MiB.
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
/// Characters of the paths of all accounts and of those above them.
inline constexpr qsizetype accountPathsMax = qsizetype{4} * 1024 * 1024;
/// Accounts with those above them, and declarations of accounts.
inline constexpr qsizetype accountsMax = 30'000;
/// Aliases, each time that one is declared.
inline constexpr std::size_t aliasesMax = 10'000;

} // namespace kiv::interchange::limits
