// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

/// Words in banks' tables, in the languages whose tables are common. All are written as
/// plainWord() returns them.
namespace kiv::interchange::internal::words {

/// "datum der wertstellung" of "Datum_der Wertstellung:": in lower case, without marks, and
/// with one blank for what parts words.
[[nodiscard]] QString plainWord(QStringView text);

/// What a column can hold.
enum class Column {
    Date,      ///< when it was booked
    ValueDate, ///< from when it bears interest, or when a card paid
    Amount,
    In,
    Out, ///< a bank's debit is money that leaves the account
    Fee,
    Payee,
    Text,
    Id, ///< a reference is none: it is often the payer's own and the same each month
    Currency,
    Status,
    Balance,
    Account, ///< the number of the account that the statement is about
};

/// The common headings of a column; those that tell more come first.
[[nodiscard]] const QStringList &headingsOf(Column column);
/// Whether it is a common heading of any of the columns.
[[nodiscard]] bool isHeading(const QString &plain, std::initializer_list<Column> columns);
/// Whether it is a common heading of some column.
[[nodiscard]] bool isHeading(const QString &plain);

// In a column that tells the direction of an amount without a sign:

[[nodiscard]] bool saysOut(const QString &plain);
[[nodiscard]] bool saysIn(const QString &plain);

// In a column that tells whether the bank has booked an entry:

/// The bank has not booked it and may still change it.
[[nodiscard]] bool saysPending(QStringView cell);
/// It never took place, or was taken back before it was booked.
[[nodiscard]] bool saysUndone(QStringView cell);

} // namespace kiv::interchange::internal::words
