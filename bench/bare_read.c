/* SPDX-License-Identifier: GPL-3.0-or-later */
/* bare_read BUDGET: reads every column of all transactions and prints the
   balance of each account in cents, debits less credits: what opening a book
   costs at least. It checks nothing. */
#include <sqlite3.h>
#include <stdio.h>

enum { accounts_max = 1000, description = 8 };

int main(int argc, char **argv)
{
    static long long balances[accounts_max];
    sqlite3 *database;
    sqlite3_stmt *rows;
    if (argc != 2 || sqlite3_open_v2(argv[1], &database, SQLITE_OPEN_READONLY, NULL) ||
        sqlite3_prepare_v2(database, "SELECT * FROM transactions", -1, &rows, NULL))
        return 1;
    int result;
    while ((result = sqlite3_step(rows)) == SQLITE_ROW) {
        const int debit = sqlite3_column_int(rows, 2);
        const int credit = sqlite3_column_int(rows, 3);
        if (debit >= accounts_max || credit >= accounts_max)
            return 1;
        const long long amount = sqlite3_column_int64(rows, 4);
        balances[debit] += amount;
        balances[credit] -= amount;
        for (int column = 5; column < sqlite3_column_count(rows); ++column)
            if (column == description)
                sqlite3_column_text(rows, column);
            else
                sqlite3_column_int64(rows, column);
    }
    for (int account = 0; account < accounts_max; ++account)
        if (balances[account])
            printf("%d %lld\n", account, balances[account]);
    return result != SQLITE_DONE;
}
