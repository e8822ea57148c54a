// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/schema.h"

#include <vector>

namespace kiv::storage::internal {
namespace {

/// A table's columns, in words that mean other types in other editions: DAY, AMOUNT,
/// CURRENCY, SHARED.
struct TableColumns {
    const char *name;
    const char *columns;
};

// No table refers to another in a way that SQLite knows of: the domain's rules
// check all that when the model is built again. Every key is one integer, so
// that no index is needed.
// The amount on a side of a transaction, which is in its account's currency, is
// left out where it is the transaction's own.
constexpr std::array<TableColumns, 9> common{{
    {"accounts", "number INTEGER PRIMARY KEY, name TEXT NOT NULL, parent INTEGER, "
                 "type INTEGER NOT NULL, currency CURRENCY NOT NULL, closed INTEGER NOT NULL, "
                 "holds_openings INTEGER NOT NULL, opened_by INTEGER"},
    {"transactions", "number INTEGER PRIMARY KEY, date DAY NOT NULL, debit INTEGER NOT NULL, "
                     "credit INTEGER NOT NULL, amount AMOUNT NOT NULL, currency CURRENCY NOT NULL, "
                     "debit_amount AMOUNT, credit_amount AMOUNT, description SHARED, "
                     "debit_status INTEGER NOT NULL, credit_status INTEGER NOT NULL, "
                     "refund_of INTEGER"},
    {"items", "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
              "amount AMOUNT NOT NULL, currency CURRENCY NOT NULL, frequency INTEGER NOT NULL, "
              "next_date DAY, day_of_month INTEGER NOT NULL, "
              "total AMOUNT, total_currency CURRENCY"},
    {"item_accounts", "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
                      "account INTEGER NOT NULL"},
    {"banks", "id INTEGER PRIMARY KEY, name TEXT NOT NULL, closed INTEGER NOT NULL"},
    {"bank_accounts", "id INTEGER PRIMARY KEY, bank INTEGER NOT NULL, account INTEGER NOT NULL, "
                      "type INTEGER NOT NULL"},
    {"surveys",
     "id INTEGER PRIMARY KEY, bank TEXT NOT NULL, account INTEGER NOT NULL, "
     "type INTEGER NOT NULL, balance AMOUNT NOT NULL, currency CURRENCY NOT NULL, "
     "reconciled_on DAY, left_over AMOUNT NOT NULL, left_over_currency CURRENCY NOT NULL, "
     "tolerance TEXT NOT NULL, tolerance_digits INTEGER NOT NULL"},
    {"distributions", "id INTEGER PRIMARY KEY, survey INTEGER NOT NULL, kind INTEGER NOT NULL, "
                      "source TEXT NOT NULL, amount AMOUNT NOT NULL, currency CURRENCY NOT NULL, "
                      "next_date DAY, expected AMOUNT NOT NULL, "
                      "expected_currency CURRENCY NOT NULL"},
    {"item_tags", "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
                  "tag TEXT NOT NULL"},
}};
// Of the first edition, after the common ones.
constexpr TableColumns sealTable{"seal", "id INTEGER PRIMARY KEY, sha256 TEXT NOT NULL"};
// Of the second: before the common ones, since all amounts need it, and after them.
constexpr TableColumns currencies{"currencies", "id INTEGER PRIMARY KEY, code TEXT NOT NULL, "
                                                "digits INTEGER NOT NULL"};
constexpr std::array<TableColumns, 2> added{{
    {"reconciliations", "id INTEGER PRIMARY KEY, bank TEXT NOT NULL, account INTEGER NOT NULL, "
                        "type INTEGER NOT NULL, day DAY NOT NULL, balance AMOUNT NOT NULL, "
                        "currency CURRENCY NOT NULL, transactions TEXT NOT NULL"},
    {"notes", "id INTEGER PRIMARY KEY, key TEXT NOT NULL, value TEXT NOT NULL"},
}};

/// What the words of TableColumns mean in an edition.
struct ColumnTypes {
    const char *day;
    const char *amount;
    const char *currency;
    const char *shared;
};
// ISO 8601; decimal text next to the currency's code.
constexpr ColumnTypes firstTypes{"TEXT", "TEXT", "TEXT", "TEXT"};
// The number of the Julian day; units of the currency's last digit where 64 bits hold
// them, else decimal text; the key in `currencies`; a text, or the key of the earlier row
// that has it.
constexpr ColumnTypes secondTypes{"INTEGER", "ANY", "INTEGER", "ANY"};

TableDefinition defined(const TableColumns &table, const ColumnTypes &types)
{
    std::string columns = table.columns;
    for (const auto &[word, type] :
         {std::pair(" DAY", types.day), std::pair(" AMOUNT", types.amount),
          std::pair(" CURRENCY", types.currency), std::pair(" SHARED", types.shared)}) {
        const std::string_view searched = word;
        for (auto at = columns.find(searched); at != std::string::npos; at = columns.find(searched))
            columns.replace(at + 1, searched.size() - 1, type);
    }
    return {table.name, std::string("CREATE TABLE ") + table.name + '(' + columns + ") STRICT"};
}

std::vector<TableDefinition> firstTables()
{
    std::vector<TableDefinition> tables;
    tables.reserve(common.size() + 1);
    for (const TableColumns &table : common)
        tables.push_back(defined(table, firstTypes));
    tables.push_back(defined(sealTable, firstTypes));
    return tables;
}

std::vector<TableDefinition> secondTables()
{
    std::vector<TableDefinition> tables{defined(currencies, secondTypes)};
    for (const TableColumns &table : common)
        tables.push_back(defined(table, secondTypes));
    for (const TableColumns &table : added)
        tables.push_back(defined(table, secondTypes));
    return tables;
}

} // namespace

std::span<const TableDefinition> tablesOf(std::uint32_t version)
{
    static const std::array editions{firstTables(), secondTables()};
    if (version == 0 || version > editions.size())
        return {};
    return editions.at(version - 1);
}

const char *nameOf(Table table) noexcept
{
    switch (table) {
    case Table::Currencies:
        return currencies.name;
    case Table::Reconciliations:
    case Table::Notes:
        return added
            .at(static_cast<std::size_t>(table) - static_cast<std::size_t>(Table::Reconciliations))
            .name;
    default:
        return common.at(static_cast<std::size_t>(table)).name;
    }
}

} // namespace kiv::storage::internal
