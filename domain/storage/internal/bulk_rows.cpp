// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/bulk_rows.h"

#include <sqlite3.h>

#include <QtCore/QScopeGuard>

#include <exception>
#include <memory>

namespace kiv::storage::internal {
namespace {

/// An exception must not pass through SQLite, which is written in C. It is kept until
/// SQLite has given up.
class ExceptionKeeper {
public:
    /// Answers with SQLite's code for how it went.
    template <typename Task>
    int run(Task task) noexcept
    {
        try {
            task();
            return SQLITE_OK;
        } catch (...) {
            m_kept = std::current_exception();
            return SQLITE_ABORT;
        }
    }
    /// Runs a statement in which there are calls of run().
    void execute(const ImageDatabase &database, const QByteArray &sql) const
    {
        try {
            Statement(database, sql).step();
        } catch (...) {
            if (m_kept)
                std::rethrow_exception(m_kept);
            throw;
        }
    }

private:
    std::exception_ptr m_kept;
};

// ---- taking: an aggregate function, which gets the values of each row -----------------

struct Taking {
    const std::function<void(sqlite3_value **values)> &take;
    ExceptionKeeper exceptions;
};

void takeRow(sqlite3_context *context, int, sqlite3_value **values) noexcept
{
    Taking &taking = *static_cast<Taking *>(sqlite3_user_data(context));
    const int result = taking.exceptions.run([&] { taking.take(values); });
    if (result != SQLITE_OK)
        sqlite3_result_error_code(context, result);
}

/// All rows together have no result.
void endRows(sqlite3_context *) noexcept {}

// ---- giving: a virtual table, which is read once and from its top ---------------------

struct Giving {
    const std::vector<StoredValue> &values;
    const std::function<bool()> &next;
    ExceptionKeeper exceptions;
    bool hasRow = false;
    sqlite3_vtab_cursor cursor{}; ///< the only one
};

/// SQLite may keep it longer than all else.
struct GivenTable : sqlite3_vtab {
    explicit GivenTable(Giving &rows) : sqlite3_vtab(), giving(rows) {}
    Giving &giving;
};

Giving &givingOf(sqlite3_vtab *table) noexcept
{
    return static_cast<GivenTable *>(table)->giving;
}

Giving &givingOf(sqlite3_vtab_cursor *cursor) noexcept
{
    return givingOf(cursor->pVtab);
}

int connect(sqlite3 *database, void *given, int, const char *const *, sqlite3_vtab **table,
            char **) noexcept
{
    Giving &giving = *static_cast<Giving *>(given);
    return giving.exceptions.run([&] {
        QByteArrayList columns;
        for (std::size_t column = 0; column < giving.values.size(); ++column)
            columns += 'c' + QByteArray::number(static_cast<qulonglong>(column));
        const QByteArray definition = "CREATE TABLE x(" + columns.join(',') + ')';
        auto connected = std::make_unique<GivenTable>(giving);
        check(database, sqlite3_declare_vtab(database, definition.constData()));
        *table = connected.release();
    });
}

int disconnect(sqlite3_vtab *table) noexcept
{
    delete static_cast<GivenTable *>(table);
    return SQLITE_OK;
}

int open(sqlite3_vtab *table, sqlite3_vtab_cursor **cursor) noexcept
{
    *cursor = &givingOf(table).cursor;
    return SQLITE_OK;
}

int advance(sqlite3_vtab_cursor *cursor) noexcept
{
    Giving &giving = givingOf(cursor);
    return giving.exceptions.run([&] { giving.hasRow = giving.next(); });
}

int giveValue(sqlite3_vtab_cursor *cursor, sqlite3_context *context, int column) noexcept
{
    const StoredValue &value = givingOf(cursor).values[static_cast<std::size_t>(column)];
    if (const auto *number = std::get_if<std::int64_t>(&value))
        sqlite3_result_int64(context, *number);
    else if (const auto *text = std::get_if<QByteArray>(&value))
        sqlite3_result_text(context, text->constData(), static_cast<int>(text->size()),
                            SQLITE_STATIC);
    return SQLITE_OK;
}

/// See https://www.sqlite.org/vtab.html. The table is not in the image's schema, so an
/// image that is read cannot name it.
sqlite3_module givingModule() noexcept
{
    sqlite3_module module{};
    module.xConnect = &connect;
    module.xBestIndex = [](sqlite3_vtab *, sqlite3_index_info *) { return SQLITE_OK; };
    module.xDisconnect = &disconnect;
    module.xOpen = &open;
    module.xClose = [](sqlite3_vtab_cursor *) { return SQLITE_OK; };
    module.xFilter = [](sqlite3_vtab_cursor *cursor, int, const char *, int, sqlite3_value **) {
        return advance(cursor);
    };
    module.xNext = &advance;
    module.xEof = [](sqlite3_vtab_cursor *cursor) { return givingOf(cursor).hasRow ? 0 : 1; };
    module.xColumn = &giveValue;
    return module;
}

} // namespace

void takeRows(const ImageDatabase &database, const QByteArray &table, const QByteArrayList &columns,
              const std::function<void(sqlite3_value **values)> &take)
{
    constexpr const char *name = "take_row";
    const int count = static_cast<int>(columns.size());
    Taking taking{take, {}};
    const auto define = [&](auto step, auto end) {
        return sqlite3_create_function_v2(database.handle(), name, count,
                                          SQLITE_UTF8 | SQLITE_DIRECTONLY, &taking, nullptr, step,
                                          end, nullptr);
    };
    check(database.handle(), define(&takeRow, &endRows));
    const auto forget = qScopeGuard([&] { define(nullptr, nullptr); });
    // A table without an index is gone through in the order of its keys.
    taking.exceptions.execute(database, QByteArray("SELECT ") + name + '(' + columns.join(',') +
                                            ") FROM " + table);
}

void addRows(const ImageDatabase &database, const QByteArray &table,
             const std::vector<StoredValue> &values, const std::function<bool()> &next)
{
    constexpr const char *name = "given_rows";
    static const sqlite3_module module = givingModule();
    Giving giving{values, next, {}};
    const auto define = [&](const sqlite3_module *defined) {
        return sqlite3_create_module_v2(database.handle(), name, defined, &giving, nullptr);
    };
    check(database.handle(), define(&module));
    const auto forget = qScopeGuard([&] { define(nullptr); });
    giving.exceptions.execute(database, "INSERT INTO " + table + " SELECT * FROM " + name);
}

} // namespace kiv::storage::internal
