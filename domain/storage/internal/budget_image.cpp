// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/budget_image.h"

#include "storage/internal/budget_rows.h"
#include "storage/internal/faults.h"
#include "storage/internal/ledger_rows.h"
#include "storage/internal/mending.h"

#include <QtCore/QObject>
#include <QtCore/QtEndian>

#include <sqlite3.h>

namespace kiv::storage::internal {
namespace {

constexpr QByteArrayView magic("SQLite format 3", 16);
constexpr qsizetype headerSize = 100;

// The offsets in the header of an SQLite database.
constexpr qsizetype pageSizeAt = 16;
constexpr qsizetype formatsAt = 18;
constexpr qsizetype pageCountAt = 28;
constexpr qsizetype encodingAt = 56;
constexpr qsizetype userVersionAt = 60;
constexpr qsizetype applicationIdAt = 68;

template <typename Number>
Number numberAt(QByteArrayView image, qsizetype offset) noexcept
{
    return qFromBigEndian<Number>(image.data() + offset);
}

/// Whether the header is as in every file that was written here. Another one, with
/// another journal mode for instance, would make SQLite look for further files.
bool isHeaderWhole(QByteArrayView image) noexcept
{
    return numberAt<quint16>(image, pageSizeAt) == pageSize &&
           numberAt<quint16>(image, formatsAt) == 0x0101 &&
           numberAt<quint32>(image, encodingAt) == SQLITE_UTF8 &&
           numberAt<quint32>(image, pageCountAt) * qint64(pageSize) == image.size();
}

void writeSeal(const ImageDatabase &database, Seal &seal)
{
    Statement insert(database, "INSERT INTO seal VALUES(1, ?)");
    const QByteArray digest = seal.result();
    sqlite3_bind_text(insert.get(), 1, digest.constData(), static_cast<int>(digest.size()),
                      SQLITE_STATIC);
    insert.step();
}

void checkSeal(const ImageDatabase &database, Seal &seal)
{
    Statement select(database, "SELECT id, sha256 FROM seal");
    if (!select.step() || sqlite3_column_int64(select.get(), 0) != 1 ||
        bytesOf(sqlite3_column_value(select.get(), 1)) != seal.result() || select.step())
        throw checksumWrong();
}

/// Writes or reads all tables in their order, since one may need an earlier one.
BudgetStorage::Data readTables(const ImageDatabase &database, Seal &seal, QStringList &mended)
{
    BudgetStorage::Data data;
    data.generalLedger = readLedger(database, seal, mended);
    data.budget = readItems(database, seal);
    data.budgetAccountCodes = readItemAccounts(database, seal);
    data.banks = readBanks(database, seal);
    data.surveys = readSurveys(database, seal);
    data.itemTags = readItemTags(database, seal);
    return data;
}

void writeTables(const ImageDatabase &database, Seal &seal, const BudgetStorage::Data &data)
{
    writeLedger(database, seal, data.generalLedger);
    writeItems(database, seal, data.budget);
    writeItemAccounts(database, seal, data.budgetAccountCodes);
    writeBanks(database, seal, data.banks);
    writeSurveys(database, seal, data.surveys);
    writeItemTags(database, seal, data.itemTags);
}

std::uint32_t versionOf(QByteArrayView image) noexcept
{
    return numberAt<quint32>(image, userVersionAt);
}

/// The rows of a table, as they stand there.
void sealRows(const ImageDatabase &database, const char *table, Seal &seal)
{
    seal.beginTable(table);
    Statement rows(database, QByteArray("SELECT * FROM ") + table + " ORDER BY rowid");
    while (rows.step()) {
        for (int column = 0; column < sqlite3_column_count(rows.get()); ++column) {
            sqlite3_value *const value = sqlite3_column_value(rows.get(), column);
            const int type = sqlite3_value_type(value);
            if (type == SQLITE_NULL)
                seal.null();
            else if (type == SQLITE_INTEGER)
                seal.integer(sqlite3_value_int64(value));
            else
                seal.text(bytesOf(value));
        }
        seal.endRow();
    }
}

} // namespace

void requireBudget(FileKind kind, const QString &path)
{
    if (kind == FileKind::Empty)
        throw emptyFile(path);
    if (kind == FileKind::Foreign)
        throw notOurs(path);
    if (kind == FileKind::Newer)
        throw newerVersion(path);
    if (kind == FileKind::Malformed)
        throw damaged(path, headerNotWhole());
}

FileKind kindOf(QByteArrayView image) noexcept
{
    if (image.isEmpty())
        return FileKind::Empty;
    if (image.size() < headerSize)
        return magic.startsWith(image.first(std::min(image.size(), magic.size())))
                   ? FileKind::Malformed
                   : FileKind::Foreign;
    if (!image.startsWith(magic) || numberAt<quint32>(image, applicationIdAt) != applicationId)
        return FileKind::Foreign;
    const std::uint32_t version = versionOf(image);
    if (version > currentVersion)
        return FileKind::Newer;
    return tablesOf(version).empty() || !isHeaderWhole(image) ? FileKind::Malformed
                                                              : FileKind::Budget;
}

Image encodeBudget(const BudgetStorage::Data &data)
{
    ImageDatabase database;
    Seal seal(currentVersion);
    writeTables(database, seal, data);
    writeSeal(database, seal);
    Image image = database.serialised();
    if (image.bytes().size() > fileSizeMax)
        throw moreThanAFileMayHold();
    return image;
}

BudgetStorage::Data decodeBudget(QByteArrayView image, QStringList &mended)
{
    const std::uint32_t version = versionOf(image);
    const ImageDatabase database(image, version);
    Seal seal(version, image.size());
    BudgetStorage::Data data = readTables(database, seal, mended);
    // The rows are trusted only now.
    checkSeal(database, seal);
    mend(data, mended);
    return data;
}

void checkTables(QByteArrayView image)
{
    const ImageDatabase database(image, versionOf(image));
}

void checkSeal(QByteArrayView image)
{
    const std::uint32_t version = versionOf(image);
    const ImageDatabase database(image, version);
    Seal seal(version, image.size());
    const auto tables = tablesOf(version);
    for (const TableDefinition &table : tables.first(tables.size() - 1))
        sealRows(database, table.name, seal);
    checkSeal(database, seal);
}

} // namespace kiv::storage::internal
