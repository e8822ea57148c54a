// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/image_database.h"

#include <QtCore/QByteArrayList>

#include <cstdint>
#include <functional>
#include <variant>
#include <vector>

namespace kiv::storage::internal {

// One statement for all rows of a table: for many rows it takes less time than a step
// for each.

/// A value of a row: null, a number, or a text in UTF-8.
using StoredValue = std::variant<std::monostate, std::int64_t, QByteArray>;

/// Hands the values of these columns of each row of a table to `take`, in the order of
/// the keys; they are good until it returns. Throws what `take` throws, and ContentFault
/// when the database is malformed.
void takeRows(const ImageDatabase &database, const QByteArray &table, const QByteArrayList &columns,
              const std::function<void(sqlite3_value **values)> &take);

/// Adds rows to a table. `next` sets `values`, one for each column, to those of the next
/// row, or answers that there is none. Throws what `next` throws, and ContentFault when
/// the table refuses a row; nothing can be said of the table then.
void addRows(const ImageDatabase &database, const QByteArray &table,
             const std::vector<StoredValue> &values, const std::function<bool()> &next);

} // namespace kiv::storage::internal
