// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/faults.h"
#include "storage/internal/image_database.h"
#include "storage/internal/seal.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>
#include <string>
#include <vector>

struct sqlite3_value;

namespace kiv::storage::internal {

/// Writes the rows of one table, value by value in the order of the columns,
/// and puts them under the seal.
class RowWriter {
public:
    RowWriter(const ImageDatabase &database, Table table, Seal &seal);

    RowWriter &integer(std::int64_t value);
    RowWriter &optionalInteger(std::optional<std::int64_t> value);
    RowWriter &text(const QString &text);
    RowWriter &optionalText(const std::optional<QString> &text);
    /// ISO 8601; null for an invalid date.
    RowWriter &date(QDate date);
    RowWriter &decimal(const numira::Decimal &decimal);
    RowWriter &currency(const numira::Currency &currency);
    RowWriter &null();
    /// Amount and currency, in two columns.
    RowWriter &money(const numira::Money &money);
    /// Throws ContentFault when a text is too long or there are too many rows.
    void endRow();

    /// Begins the row of a table that numbers its rows.
    RowWriter &newRow() { return integer(m_rows + 1); }

private:
    RowWriter &bytes(QByteArray bytes);

    Seal &m_seal;
    Statement m_insert;
    std::vector<QByteArray> m_texts; ///< what is bound, until the row is written
    int m_column = 0;
    qint64 m_rows = 0;
};

/// Reads the rows of one table in the same way. Throws ContentFault for a value
/// that the writer would not have written.
class RowReader {
public:
    RowReader(const ImageDatabase &database, Table table, Seal &seal);

    /// Goes on to the next row; false after the last one. Keys must rise from
    /// row to row.
    bool next();
    /// The key, which is the row's first value.
    [[nodiscard]] std::int64_t key() const noexcept { return m_key; }

    [[nodiscard]] std::int64_t integer(std::int64_t min, std::int64_t max);
    [[nodiscard]] std::optional<std::int64_t> optionalInteger(std::int64_t min, std::int64_t max);
    [[nodiscard]] bool boolean() { return integer(0, 1) != 0; }
    template <typename Enum>
    [[nodiscard]] Enum enumerator(Enum max)
    {
        return static_cast<Enum>(integer(0, static_cast<std::int64_t>(max)));
    }
    [[nodiscard]] QString text();
    [[nodiscard]] std::optional<QString> optionalText();
    /// As it is stored and maybe malformed; valid until the next row.
    [[nodiscard]] std::optional<QByteArrayView> optionalStoredText();
    /// Invalid for null.
    [[nodiscard]] QDate date();
    [[nodiscard]] numira::Decimal decimal();
    [[nodiscard]] std::optional<numira::Decimal> optionalDecimal();
    [[nodiscard]] numira::Currency currency();
    [[nodiscard]] numira::Money money();

    [[noreturn]] void refuse(const std::string &why) const
    {
        throw rowRefused(nameOf(m_table), m_key, why);
    }

private:
    // What these give is valid until the next step.
    [[nodiscard]] sqlite3_value *nextValue();
    /// Nothing when the value is null.
    [[nodiscard]] sqlite3_value *nextPresent();
    [[nodiscard]] std::int64_t integerFrom(sqlite3_value *stored, std::int64_t min,
                                           std::int64_t max);
    [[nodiscard]] QByteArrayView bytesFrom(sqlite3_value *stored);
    [[nodiscard]] QString textFrom(sqlite3_value *stored);
    [[nodiscard]] numira::Decimal decimalFrom(sqlite3_value *stored);

    Seal &m_seal;
    Table m_table;
    Statement m_select;
    int m_columns;
    int m_column = 0;
    std::int64_t m_key = -1;
    qint64 m_rows = 0;
    QByteArray m_lastDateText;
    QDate m_lastDate;
    numira::Currency m_lastCurrency;
};

} // namespace kiv::storage::internal
