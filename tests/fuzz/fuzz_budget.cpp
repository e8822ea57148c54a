// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as a budget file. With an even first byte the rest is the file; with an
// odd one it says which cells of a whole file get which values. In both cases
// the checksum is made right again, so that what stands behind it is reached.
// What is read must be written and read again as the same.
#include "storage/image_surgery.h"
#include "storage/internal/schema.h"
#include "storage/random_budget.h"
#include "storage/scratch_folder.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <sqlite3.h>

using namespace kiv;

namespace {

const QString name = QStringLiteral("a.budget");

const QByteArray &wholeFile(unsigned seed)
{
    static std::map<unsigned, QByteArray> files;
    QByteArray &file = files[seed];
    if (file.isEmpty()) {
        const test::ScratchFolder folder;
        test::store(folder.path(name), test::someBudget(seed, 60));
        file = folder.read(name);
    }
    return file;
}

/// A copy of the image in memory.
void open(SQLite::Database &database, const QByteArray &image)
{
    if (image.isEmpty())
        return;
    auto *copy = static_cast<unsigned char *>(sqlite3_malloc64(std::size_t(image.size())));
    std::memcpy(copy, image.constData(), std::size_t(image.size()));
    sqlite3_deserialize(database.getHandle(), "main", copy, image.size(), image.size(),
                        SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE);
}

QByteArray imageOf(SQLite::Database &database)
{
    sqlite3_int64 size = 0;
    unsigned char *bytes = sqlite3_serialize(database.getHandle(), "main", &size, 0);
    QByteArray image(reinterpret_cast<const char *>(bytes), qsizetype(size));
    sqlite3_free(bytes);
    return image;
}

void bindTo(SQLite::Statement &statement, FuzzedDataProvider &bytes)
{
    switch (bytes.ConsumeIntegralInRange(0, 4)) {
    case 0:
        return; // null
    case 1:
        return statement.bind(1, bytes.ConsumeIntegralInRange<std::int64_t>(-2, 20));
    case 2:
        return statement.bind(1, bytes.ConsumeIntegral<std::int64_t>());
    case 3:
        return statement.bind(1, bytes.ConsumeRandomLengthString(40));
    case 4:
        return statement.bind(
            1, bytes.PickValueInArray<const char *>({"", "USD", "XXX", "0", "-1", "1e9",
                                                     "0.000000000001", "99999999999999999999999999",
                                                     "2024-02-29", "2026-02-30", "-0044-03-15"}));
    }
}

void changeCells(SQLite::Database &database, FuzzedDataProvider &bytes)
{
    const auto tables = storage::internal::tablesOf(storage::internal::currentVersion);
    for (int edits = 0; edits < 12 && bytes.remaining_bytes() > 3; ++edits) {
        const std::string table =
            tables[bytes.ConsumeIntegralInRange<std::size_t>(0, tables.size() - 1)].name;
        SQLite::Statement columns(database, "SELECT * FROM " + table);
        const std::string column =
            columns.getColumnName(bytes.ConsumeIntegralInRange(0, columns.getColumnCount() - 1));
        const std::string row = std::to_string(bytes.ConsumeIntegralInRange(0, 15));
        const std::string place =
            " WHERE rowid = (SELECT rowid FROM " + table + " LIMIT 1 OFFSET " + row + ')';
        try {
            if (bytes.ConsumeIntegralInRange(0, 7) == 0) {
                database.exec("DELETE FROM " + table + place);
            } else {
                SQLite::Statement update(database,
                                         "UPDATE " + table + " SET " + column + " = ?" + place);
                bindTo(update, bytes);
                update.exec();
            }
        } catch (const SQLite::Exception &) {
            // The table takes no such value.
        }
    }
}

QByteArray fileOf(FuzzedDataProvider &bytes)
{
    const auto kind = bytes.ConsumeIntegral<std::uint8_t>();
    SQLite::Database database(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    QByteArray raw;
    if (kind % 2 == 0) {
        // Overwrites a stretch of a whole file, or gives all of one.
        const auto at = bytes.ConsumeIntegral<std::uint16_t>();
        const std::string rest = bytes.ConsumeRemainingBytesAsString();
        raw = wholeFile(kind / 2 % 4);
        raw = kind % 4 == 0 ? QByteArray::fromStdString(rest)
                            : raw.replace(at % raw.size(), qsizetype(rest.size()),
                                          QByteArray::fromStdString(rest));
    } else {
        raw = wholeFile(kind / 2 % 4);
    }
    try {
        test::FileParts parts(raw);
        open(database, parts.image);
        if (kind % 2 != 0)
            changeCells(database, bytes);
        if (!parts.hasSeal)
            test::sealRowsAgain(database);
        parts.image = imageOf(database);
        parts.sealAgain();
        return parts.file();
    } catch (const SQLite::Exception &) {
        return raw;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static const test::ScratchFolder folder;
    FuzzedDataProvider bytes(data, size);
    folder.write(name, fileOf(bytes));
    storage::BudgetStorage::Data read;
    try {
        read = test::load(folder.path(name));
    } catch (const storage::StorageError &) {
        return 0;
    }
    const QString again = QStringLiteral("again.budget");
    QFile::remove(folder.path(again));
    storage::BudgetFile file;
    file.setFilePathName(folder.path(again));
    file.store(read);
    if (const QString part = test::difference(file.load(), read); !part.isEmpty())
        qFatal("Read again otherwise: %s", qPrintable(part));
    return 0;
}
