// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/schema.h"

#include <SQLiteCpp/Database.h>

#include <QtCore/QByteArray>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;
struct sqlite3_value;

namespace kiv::storage::internal {

/// Throws for a code of SQLite other than SQLITE_OK: std::bad_alloc for want of memory,
/// else ContentFault with the database's own words.
void check(sqlite3 *database, int result);

/// The bytes of a database, as SQLite made them.
class Image {
public:
    Image(unsigned char *bytes, qsizetype size) noexcept : m_bytes(bytes), m_size(size) {}
    [[nodiscard]] QByteArrayView bytes() const noexcept { return {m_bytes.get(), m_size}; }

private:
    struct Free {
        void operator()(unsigned char *bytes) const noexcept;
    };
    std::unique_ptr<unsigned char, Free> m_bytes;
    qsizetype m_size;
};

/// A database in memory that never touches a file and does not trust its content.
/// Views, triggers and functions of the schema do not run, texts and rows have
/// limits, and the size of the image limits the steps of reading.
class ImageDatabase {
public:
    /// Empty, with the tables of the current version.
    ImageDatabase();
    /// Read from the image, which must outlive it. Throws ContentFault when the
    /// schema is not the one of the version, letter by letter.
    ImageDatabase(QByteArrayView image, std::uint32_t version);

    [[nodiscard]] sqlite3 *handle() const noexcept { return m_database.getHandle(); }
    /// The finished image; nothing can be written after it.
    [[nodiscard]] Image serialised();
    /// A text of so many bytes is read. Throws ContentFault when all texts together
    /// have more bytes than the image, which only rows can have that share them.
    void countText(qsizetype size);

private:
    void harden();
    void limitSteps(qsizetype imageSize);
    void checkSchema(std::uint32_t version);

    SQLite::Database m_database;
    qint64 m_stepsLeft = 0;
    qint64 m_textsLeft = 0;
};

/// A prepared statement, with its rows one after the other.
class Statement {
public:
    Statement(const ImageDatabase &database, const QByteArray &sql);

    [[nodiscard]] sqlite3_stmt *get() const noexcept { return m_statement.get(); }
    /// Whether there is one more row. Throws ContentFault when the database is
    /// malformed or refuses.
    bool step();
    void reset() noexcept;

private:
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const noexcept;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

/// The bytes of a stored text, good until the next step; none of NULL.
QByteArrayView bytesOf(sqlite3_value *text) noexcept;

} // namespace kiv::storage::internal
