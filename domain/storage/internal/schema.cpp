// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/schema.h"

namespace kiv::storage::internal {
namespace {

// Amounts are decimal text next to the code of their currency, dates ISO 8601.
// The amount on a side of a transaction, which is in its account's currency, is
// left out where it is the transaction's own.
// No table refers to another in a way that SQLite knows of: the domain's rules
// check all that when the model is built again. Every key is one integer, so
// that no index is needed.
constexpr std::array<TableDefinition, sealedTables + 1> version1{{
    {"accounts", "CREATE TABLE accounts("
                 "number INTEGER PRIMARY KEY, name TEXT NOT NULL, parent INTEGER, "
                 "type INTEGER NOT NULL, currency TEXT NOT NULL, closed INTEGER NOT NULL, "
                 "holds_openings INTEGER NOT NULL, opened_by INTEGER) STRICT"},
    {"transactions", "CREATE TABLE transactions("
                     "number INTEGER PRIMARY KEY, date TEXT NOT NULL, debit INTEGER NOT NULL, "
                     "credit INTEGER NOT NULL, amount TEXT NOT NULL, currency TEXT NOT NULL, "
                     "debit_amount TEXT, credit_amount TEXT, description TEXT, "
                     "debit_status INTEGER NOT NULL, credit_status INTEGER NOT NULL, "
                     "refund_of INTEGER) STRICT"},
    {"items", "CREATE TABLE items("
              "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
              "amount TEXT NOT NULL, currency TEXT NOT NULL, frequency INTEGER NOT NULL, "
              "next_date TEXT, day_of_month INTEGER NOT NULL, "
              "total TEXT, total_currency TEXT) STRICT"},
    {"item_accounts", "CREATE TABLE item_accounts("
                      "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
                      "account INTEGER NOT NULL) STRICT"},
    {"banks", "CREATE TABLE banks("
              "id INTEGER PRIMARY KEY, name TEXT NOT NULL, closed INTEGER NOT NULL) STRICT"},
    {"bank_accounts", "CREATE TABLE bank_accounts("
                      "id INTEGER PRIMARY KEY, bank INTEGER NOT NULL, account INTEGER NOT NULL, "
                      "type INTEGER NOT NULL) STRICT"},
    {"surveys", "CREATE TABLE surveys("
                "id INTEGER PRIMARY KEY, bank TEXT NOT NULL, account INTEGER NOT NULL, "
                "type INTEGER NOT NULL, balance TEXT NOT NULL, currency TEXT NOT NULL, "
                "reconciled_on TEXT, left_over TEXT NOT NULL, left_over_currency TEXT NOT NULL, "
                "tolerance TEXT NOT NULL, tolerance_digits INTEGER NOT NULL) STRICT"},
    {"distributions", "CREATE TABLE distributions("
                      "id INTEGER PRIMARY KEY, survey INTEGER NOT NULL, kind INTEGER NOT NULL, "
                      "source TEXT NOT NULL, amount TEXT NOT NULL, currency TEXT NOT NULL, "
                      "next_date TEXT, expected TEXT NOT NULL, "
                      "expected_currency TEXT NOT NULL) STRICT"},
    {"item_tags", "CREATE TABLE item_tags("
                  "id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, source TEXT NOT NULL, "
                  "tag TEXT NOT NULL) STRICT"},
    {"seal", "CREATE TABLE seal(id INTEGER PRIMARY KEY, sha256 TEXT NOT NULL) STRICT"},
}};

} // namespace

std::span<const TableDefinition> tablesOf(std::uint32_t version) noexcept
{
    if (version == 1)
        return version1;
    return {};
}

const char *nameOf(Table table) noexcept
{
    return version1.at(static_cast<std::size_t>(table)).name;
}

} // namespace kiv::storage::internal
