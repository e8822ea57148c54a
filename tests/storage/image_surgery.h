// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/schema.h"
#include "storage/internal/seal.h"

#include <QtCore/QString>

#include <SQLiteCpp/SQLiteCpp.h>

#include <span>

namespace kiv::test {

/// Runs SQL on a budget file as an enemy would, each text on a connection of
/// its own, so that a changed schema is read again.
inline void operate(const QString &path, std::span<const char *const> sql)
{
    for (const char *text : sql) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec(text);
    }
}

/// Makes the checksum right again for whatever stands in the tables, as far as
/// they are tables.
inline void sealAgain(SQLite::Database &database)
{
    storage::internal::Seal seal(storage::internal::currentVersion);
    const auto tables = storage::internal::tablesOf(storage::internal::currentVersion);
    for (const auto &table : tables.first(storage::internal::sealedTables)) {
        if (!database.tableExists(table.name))
            return;
        seal.beginTable(table.name);
        SQLite::Statement rows(database,
                               std::string("SELECT * FROM ") + table.name + " ORDER BY rowid");
        while (rows.executeStep()) {
            for (int i = 0; i < rows.getColumnCount(); ++i) {
                const SQLite::Column value = rows.getColumn(i);
                if (value.isNull())
                    seal.null();
                else if (value.isInteger())
                    seal.integer(value.getInt64());
                else
                    seal.text(QByteArray::fromStdString(value.getString()));
            }
            seal.endRow();
        }
    }
    SQLite::Statement update(database, "UPDATE seal SET sha256 = ?");
    update.bind(1, seal.result().toStdString());
    update.exec();
}

inline void sealAgain(const QString &path)
{
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    sealAgain(database);
}

} // namespace kiv::test
