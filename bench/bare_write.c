/* SPDX-License-Identifier: GPL-3.0-or-later */
/* bare_write BUDGET COPY: reads all transactions into memory and writes them
   into a new database, in one transaction with a sync; prints how many seconds
   the writing took. It checks nothing. */
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

enum { columns_max = 16 };

int main(int argc, char **argv)
{
    sqlite3 *from, *to;
    sqlite3_stmt *select, *create, *insert;
    if (argc != 3 || sqlite3_open_v2(argv[1], &from, SQLITE_OPEN_READONLY, NULL) ||
        sqlite3_prepare_v2(from, "SELECT * FROM transactions", -1, &select, NULL) ||
        sqlite3_prepare_v2(from, "SELECT sql FROM sqlite_schema WHERE name = 'transactions'", -1,
                           &create, NULL) ||
        sqlite3_step(create) != SQLITE_ROW)
        return 1;
    const int columns = sqlite3_column_count(select);
    size_t count = 0, room = 0;
    sqlite3_value **values = NULL;
    if (columns > columns_max)
        return 1;
    for (; sqlite3_step(select) == SQLITE_ROW; ++count) {
        if (count == room) {
            room = room ? 2 * room : 1024;
            values = realloc(values, room * (size_t)columns * sizeof *values);
            if (!values)
                return 1;
        }
        for (int column = 0; column < columns; ++column)
            values[count * (size_t)columns + (size_t)column] =
                sqlite3_value_dup(sqlite3_column_value(select, column));
    }

    struct timespec begin, end;
    clock_gettime(CLOCK_MONOTONIC, &begin);
    if (sqlite3_open(argv[2], &to) ||
        sqlite3_exec(to, (const char *)sqlite3_column_text(create, 0), NULL, NULL, NULL) ||
        sqlite3_prepare_v2(to, "INSERT INTO transactions VALUES(?,?,?,?,?,?,?,?,?,?,?,?)", -1,
                           &insert, NULL) ||
        sqlite3_exec(to, "PRAGMA synchronous = FULL; BEGIN", NULL, NULL, NULL))
        return 1;
    for (size_t row = 0; row < count; ++row) {
        for (int column = 0; column < columns; ++column)
            sqlite3_bind_value(insert, column + 1, values[row * (size_t)columns + (size_t)column]);
        if (sqlite3_step(insert) != SQLITE_DONE)
            return 1;
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    if (sqlite3_exec(to, "COMMIT", NULL, NULL, NULL) || sqlite3_close(to))
        return 1;
    clock_gettime(CLOCK_MONOTONIC, &end);
    printf("%.6f\n",
           (double)(end.tv_sec - begin.tv_sec) + (double)(end.tv_nsec - begin.tv_nsec) / 1e9);
    return 0;
}
