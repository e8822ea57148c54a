// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/row_digest.h"

#include "storage/internal/sha256.h"

#include <sqlite3.h>

namespace kiv::storage::internal {
namespace {

constexpr qsizetype blockSize = qsizetype{64} * 1024;

void dumpValue(ImageDatabase &database, sqlite3_value *value, QByteArray &dump)
{
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_NULL) {
        dump += '-';
    } else if (type == SQLITE_INTEGER) {
        (dump += 'i') += QByteArray::number(qint64{sqlite3_value_int64(value)});
        dump += ';';
    } else {
        const QByteArrayView text = bytesOf(value);
        database.countText(text.size());
        (dump += 't') += QByteArray::number(text.size());
        (dump += ':') += text;
    }
}

} // namespace

QByteArray rowDigest(ImageDatabase &database)
{
    Sha256 hash;
    QByteArray dump = "kiv-budget 1\n";
    const auto tables = tablesOf(firstEdition);
    for (const TableDefinition &table : tables.first(tables.size() - 1)) {
        ((dump += "table ") += table.name) += '\n';
        Statement rows(database, QByteArray("SELECT * FROM ") + table.name + " ORDER BY rowid");
        while (rows.step()) {
            for (int column = 0; column < sqlite3_column_count(rows.get()); ++column)
                dumpValue(database, sqlite3_column_value(rows.get(), column), dump);
            dump += '\n';
            if (dump.size() >= blockSize) {
                hash.add(dump);
                dump.resize(0);
            }
        }
    }
    hash.add(dump);
    return hash.result().toHex();
}

} // namespace kiv::storage::internal
