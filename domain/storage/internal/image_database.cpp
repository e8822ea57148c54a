// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/image_database.h"

#include "storage/internal/faults.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

#include <new>
#include <utility>

namespace kiv::storage::internal {
namespace {

constexpr int stepsBetweenChecks = 1000;
constexpr int pagesKept = 64;

/// A database belongs to the function that made it, so SQLite need not guard
/// each call.
const int openFlags = SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX;

/// Want of memory is no fault of the content, so it is std::bad_alloc.
[[noreturn]] void fail(int result, const std::string &why)
{
    if (result == SQLITE_NOMEM)
        throw std::bad_alloc();
    throw ContentFault(why);
}

/// Turns exceptions of the library into ContentFault.
template <typename Task>
auto checked(Task task)
{
    try {
        return task();
    } catch (const SQLite::Exception &failure) {
        fail(failure.getErrorCode(), failure.what());
    }
}

SQLite::Database emptyDatabase()
{
    return checked([] { return SQLite::Database(":memory:", openFlags); });
}

void run(SQLite::Database &database, const std::string &sql)
{
    checked([&] { return database.exec(sql); });
}

std::string_view textAt(const Statement &statement, int column)
{
    const QByteArrayView bytes = bytesOf(sqlite3_column_value(statement.get(), column));
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

void check(sqlite3 *database, int result)
{
    if (result != SQLITE_OK)
        fail(result, sqlite3_errmsg(database));
}

void Image::Free::operator()(unsigned char *bytes) const noexcept
{
    sqlite3_free(bytes);
}

ImageDatabase::ImageDatabase() : m_database(emptyDatabase())
{
    harden();
    // The same rows give the same bytes with every build of SQLite.
    run(m_database, "PRAGMA page_size = " + std::to_string(pageSize) +
                        "; PRAGMA auto_vacuum = 0; PRAGMA encoding = 'UTF-8'"
                        "; PRAGMA journal_mode = OFF"
                        "; PRAGMA application_id = " +
                        std::to_string(applicationId) +
                        "; PRAGMA user_version = " + std::to_string(currentVersion) + "; BEGIN");
    for (const TableDefinition &table : tablesOf(currentVersion))
        run(m_database, table.sql);
}

ImageDatabase::ImageDatabase(QByteArrayView image, std::uint32_t version)
    : m_database(emptyDatabase())
{
    harden();
    limitSteps(image.size());
    m_textsLeft = image.size();
    // SQLite does not change bytes that it gets as read-only.
    auto *bytes = reinterpret_cast<unsigned char *>(const_cast<char *>(image.data()));
    check(handle(), sqlite3_deserialize(handle(), "main", bytes, image.size(), image.size(),
                                        SQLITE_DESERIALIZE_READONLY));
    // Each page is read once, so a few are enough. To take new memory for all costs time.
    run(m_database, "PRAGMA cache_size = " + std::to_string(pagesKept));
    checkSchema(version);
}

Image ImageDatabase::serialised()
{
    run(m_database, "COMMIT");
    sqlite3_int64 size = 0;
    unsigned char *bytes = sqlite3_serialize(handle(), "main", &size, 0);
    if (!bytes)
        throw std::bad_alloc();
    return {bytes, size};
}

void ImageDatabase::countText(qsizetype size)
{
    m_textsLeft -= size;
    if (m_textsLeft < 0)
        throw tooManyTexts();
}

void ImageDatabase::harden()
{
    sqlite3 *database = handle();
    sqlite3_extended_result_codes(database, 0);
    for (const auto &[option, value] :
         {std::pair(SQLITE_DBCONFIG_DEFENSIVE, 1), std::pair(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0),
          std::pair(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0), std::pair(SQLITE_DBCONFIG_ENABLE_VIEW, 0),
          std::pair(SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0),
          std::pair(SQLITE_DBCONFIG_WRITABLE_SCHEMA, 0)})
        check(database, sqlite3_db_config(database, option, value, nullptr));
    for (const auto &[limit, value] :
         {std::pair(SQLITE_LIMIT_LENGTH, rowSizeMax), std::pair(SQLITE_LIMIT_SQL_LENGTH, 4096),
          std::pair(SQLITE_LIMIT_COLUMN, 32), std::pair(SQLITE_LIMIT_EXPR_DEPTH, 16),
          std::pair(SQLITE_LIMIT_COMPOUND_SELECT, 2), std::pair(SQLITE_LIMIT_VDBE_OP, 10'000),
          std::pair(SQLITE_LIMIT_FUNCTION_ARG, 16), std::pair(SQLITE_LIMIT_ATTACHED, 0),
          std::pair(SQLITE_LIMIT_VARIABLE_NUMBER, 32), std::pair(SQLITE_LIMIT_TRIGGER_DEPTH, 1),
          std::pair(SQLITE_LIMIT_WORKER_THREADS, 0)})
        sqlite3_limit(database, limit, value);
}

void ImageDatabase::limitSteps(qsizetype imageSize)
{
    // A value takes a step and at least a byte, a row a few steps more.
    m_stepsLeft = 100'000 + 4 * imageSize;
    sqlite3_progress_handler(
        handle(), stepsBetweenChecks,
        [](void *left) { return (*static_cast<qint64 *>(left) -= stepsBetweenChecks) < 0 ? 1 : 0; },
        &m_stepsLeft);
}

void ImageDatabase::checkSchema(std::uint32_t version)
{
    Statement schema(*this, "SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY rowid");
    for (const TableDefinition &table : tablesOf(version)) {
        if (!schema.step() || textAt(schema, 0) != "table" || textAt(schema, 1) != table.name ||
            textAt(schema, 3) != table.sql)
            throw tableNotAsItShould(table.name);
    }
    if (schema.step())
        throw moreInSchema();
}

Statement::Statement(const ImageDatabase &database, const QByteArray &sql)
{
    sqlite3_stmt *statement = nullptr;
    check(database.handle(),
          sqlite3_prepare_v2(database.handle(), sql.constData(), -1, &statement, nullptr));
    m_statement.reset(statement);
}

bool Statement::step()
{
    const int result = sqlite3_step(get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        check(sqlite3_db_handle(get()), result);
    return result == SQLITE_ROW;
}

void Statement::reset() noexcept
{
    sqlite3_reset(get());
}

void Statement::Finalize::operator()(sqlite3_stmt *statement) const noexcept
{
    sqlite3_finalize(statement);
}

QByteArrayView bytesOf(sqlite3_value *text) noexcept
{
    // A blob is given as it is stored, while a text may need memory for the zero
    // behind it. The encoding is UTF-8, or the header would have been refused.
    const void *bytes = sqlite3_value_blob(text);
    return {static_cast<const char *>(bytes), sqlite3_value_bytes(text)};
}

} // namespace kiv::storage::internal
