// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/schema.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

namespace kiv::test {

/// Runs SQL on a budget file as an enemy would, each text on a connection of
/// its own, so that a changed schema is read again.
inline void operate(const QString &path, const QStringList &sql)
{
    for (const QString &text : sql) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec(text.toStdString());
    }
}

/// Makes the checksum right again for whatever stands in the tables, as far as
/// they are tables: written anew from what docs/file-format.md says, so that a
/// change of the seal that fits itself does not go unseen.
inline void sealAgain(SQLite::Database &database)
{
    namespace schema = storage::internal;
    QByteArray dump = "kiv-budget " + QByteArray::number(schema::currentVersion) + '\n';
    const auto tables = schema::tablesOf(schema::currentVersion);
    for (const auto &table : tables.first(schema::sealedTables)) {
        if (!database.tableExists(table.name))
            return;
        dump += QByteArray("table ") + table.name + '\n';
        SQLite::Statement rows(database,
                               std::string("SELECT * FROM ") + table.name + " ORDER BY rowid");
        while (rows.executeStep()) {
            for (int i = 0; i < rows.getColumnCount(); ++i) {
                const SQLite::Column value = rows.getColumn(i);
                const QByteArray text = QByteArray::fromStdString(value.getString());
                dump += value.isNull()      ? "-"
                        : value.isInteger() ? 'i' + text + ';'
                                            : 't' + QByteArray::number(text.size()) + ':' + text;
            }
            dump += '\n';
        }
    }
    const auto digest = QCryptographicHash::hash(dump, QCryptographicHash::Sha256).toHex();
    SQLite::Statement update(database, "UPDATE seal SET sha256 = ?");
    update.bind(1, digest.toStdString());
    update.exec();
}

inline void sealAgain(const QString &path)
{
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    sealAgain(database);
}

} // namespace kiv::test
