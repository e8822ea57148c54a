// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace kiv::storage::internal {

/// "kivb" in the header of every budget file.
inline constexpr std::uint32_t applicationId = 0x6B'69'76'62;
/// The versions of the tables: the first one, and the one that is written.
inline constexpr std::uint32_t firstEdition = 1;
inline constexpr std::uint32_t currentVersion = 2;
inline constexpr int pageSize = 4096;

/// The largest file that is read or written. 65,535 transactions with a
/// description of 700 bytes each fit in. Reading it takes less than 300 MiB: the file
/// itself, its texts in twice their size, and a few texts that are being read.
inline constexpr qsizetype fileSizeMax = 64LL * 1024 * 1024;
/// The longest text, in bytes.
inline constexpr int textSizeMax = 4 * 1024 * 1024;
/// The longest row: no table has more than two texts that users write.
inline constexpr int rowSizeMax = 2 * textSizeMax + 4096;
/// The most rows of any table: as many as there are transaction numbers.
inline constexpr qint64 rowsMax = 65'535;

/// A table, exactly as SQLite keeps it in its schema.
struct TableDefinition {
    const char *name;
    std::string sql;
};

/// The tables that are read and written by row. The first edition has neither the
/// last two nor the currencies.
enum class Table : std::uint8_t {
    Accounts,
    Transactions,
    Items,
    ItemAccounts,
    Banks,
    BankAccounts,
    Surveys,
    Distributions,
    ItemTags,
    Reconciliations,
    Notes,
    Currencies,
};

/// The tables of a version, in the order in which they are made; that of the first
/// one's checksum is its last one. Empty for a version that does not exist.
[[nodiscard]] std::span<const TableDefinition> tablesOf(std::uint32_t version);
[[nodiscard]] const char *nameOf(Table table) noexcept;

} // namespace kiv::storage::internal
