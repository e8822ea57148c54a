// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/bulk_rows.h"
#include "storage/internal/faults.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <sqlite3.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kiv::storage::internal {

/// A currency as a file has it: with the digits that its whole amounts had when it
/// was written, since a currency's may change.
struct StoredCurrency {
    numira::Currency currency;
    unsigned digits = 0;
};

/// A new image, with the currencies that its rows use.
class RowSink {
public:
    explicit RowSink(const ImageDatabase &database) : m_database(database) {}

    [[nodiscard]] const ImageDatabase &database() const noexcept { return m_database; }
    /// The key of the currency, and the digits of its whole amounts.
    [[nodiscard]] std::pair<std::int64_t, unsigned> keyOf(const numira::Currency &currency);
    /// Writes the currencies, after all other rows.
    void finish();

private:
    const ImageDatabase &m_database;
    std::map<numira::Currency, std::pair<std::int64_t, unsigned>> m_keys;
    std::vector<StoredCurrency> m_currencies; ///< in the order of their keys
};

/// An image that is read, with its currencies.
class RowSource {
public:
    /// Reads the currencies of any edition but the first, which has none.
    RowSource(ImageDatabase &database, std::uint32_t version);

    [[nodiscard]] ImageDatabase &database() const noexcept { return m_database; }
    /// Null for a key that no currency has.
    [[nodiscard]] const StoredCurrency *find(std::int64_t key) const noexcept;

private:
    ImageDatabase &m_database;
    std::vector<StoredCurrency> m_currencies; ///< in the order of their keys, from 1
};

/// A text, or the key of the earlier row that has the same one; or neither.
struct SharedText {
    std::optional<QStringView> text; ///< valid until the next row
    std::optional<std::int64_t> sameAs;
};

/// Writes the rows of one table, value by value in the order of the columns.
class RowWriter {
public:
    RowWriter(RowSink &sink, Table table);

    RowWriter &integer(std::int64_t number) { return value(number); }
    RowWriter &optionalInteger(std::optional<std::int64_t> value);
    RowWriter &text(QStringView text);
    /// Null for an invalid date.
    RowWriter &date(QDate date);
    /// UTF-8 that is no text of a user.
    RowWriter &storedText(QByteArray text) { return bytes(std::move(text)); }
    /// In a column of its own where another one tells the currency.
    RowWriter &amount(const numira::Money &money);
    RowWriter &currency(const numira::Currency &currency);
    RowWriter &null() { return value({}); }
    /// Amount and currency, in two columns.
    RowWriter &money(const numira::Money &money);
    /// Throws ContentFault when a text is too long or there are too many rows.
    void endRow();
    /// Writes many rows, in less time than endRow() takes for each. `write` writes the values
    /// of the next row, or answers that there is none. Throws what `write` throws, and what
    /// endRow() does.
    void writeAll(const std::function<bool()> &write);

    /// Begins the row of a table that numbers its rows.
    RowWriter &newRow() { return integer(m_rows + 1); }

private:
    RowWriter &value(StoredValue value)
    {
        m_values.at(m_column++) = std::move(value);
        return *this;
    }
    RowWriter &bytes(QByteArray bytes);
    void checkIsWhole();

    RowSink &m_sink;
    Table m_table;
    Statement m_insert;
    std::vector<StoredValue> m_values; ///< of the row
    std::size_t m_column = 0;
    qint64 m_rows = 0;
};

/// Reads the rows of one table in the same way, of either edition: the types of the
/// values tell which form they have. Throws ContentFault for a value that no writer
/// would have written.
class RowReader {
public:
    RowReader(RowSource &source, Table table);

    /// Goes on to the next row; false after the last one. Keys must rise from
    /// row to row.
    bool next();
    /// Calls `read` with each row instead, which takes less time for each.
    void forEach(const std::function<void()> &read);
    /// The key, which is the row's first value.
    [[nodiscard]] std::int64_t key() const noexcept { return m_key; }

    [[nodiscard]] std::int64_t integer(std::int64_t min, std::int64_t max)
    {
        return integerFrom(nextValue(), min, max);
    }
    [[nodiscard]] std::optional<std::int64_t> optionalInteger(std::int64_t min, std::int64_t max)
    {
        sqlite3_value *const stored = nextPresent();
        return stored ? std::optional(integerFrom(stored, min, max)) : std::nullopt;
    }
    [[nodiscard]] bool boolean() { return integer(0, 1) != 0; }
    template <typename Enum>
    [[nodiscard]] Enum enumerator(Enum max)
    {
        return static_cast<Enum>(integer(0, static_cast<std::int64_t>(max)));
    }
    [[nodiscard]] QString text();
    [[nodiscard]] SharedText sharedText();
    /// As it is stored and maybe malformed; valid until the next row.
    [[nodiscard]] QByteArrayView storedText() { return bytesFrom(nextValue()); }
    /// Refuses anything but null.
    void absent()
    {
        if (nextPresent())
            refuse("has more than its kind has");
    }
    /// Invalid for null.
    [[nodiscard]] QDate date();
    [[nodiscard]] StoredCurrency currency() { return currencyFrom(nextValue()); }
    [[nodiscard]] numira::Money money();
    /// An amount whose currency another row tells: `currency` gives it when there is one.
    template <typename Currency>
    [[nodiscard]] std::optional<numira::Money> optionalAmount(Currency currency)
    {
        sqlite3_value *const stored = nextPresent();
        if (!stored)
            return std::nullopt;
        const StoredCurrency known = currency();
        return numira::Money(known.currency, decimalFrom(stored, known.digits));
    }

    [[noreturn]] void refuse(const char *why) const
    {
        throw rowRefused(nameOf(m_table), m_key, why);
    }

private:
    // What these give is valid until the next step, because nothing else uses the
    // connection. One call for a value instead of three.
    [[nodiscard]] sqlite3_value *nextValue()
    {
        return m_values ? m_values[m_column++] : sqlite3_column_value(m_select.get(), m_column++);
    }
    /// Nothing when the value is null.
    [[nodiscard]] sqlite3_value *nextPresent()
    {
        sqlite3_value *const stored = nextValue();
        return sqlite3_value_type(stored) == SQLITE_NULL ? nullptr : stored;
    }
    [[nodiscard]] std::int64_t integerFrom(sqlite3_value *stored, std::int64_t min,
                                           std::int64_t max) const
    {
        if (sqlite3_value_type(stored) != SQLITE_INTEGER)
            refuse("has something else than a number");
        const std::int64_t value = sqlite3_value_int64(stored);
        if (value < min || value > max)
            refuse("has a number that means nothing");
        return value;
    }
    [[nodiscard]] QByteArrayView bytesFrom(sqlite3_value *stored) const;
    [[nodiscard]] QString textFrom(sqlite3_value *stored) const;
    [[nodiscard]] numira::Decimal decimalFrom(sqlite3_value *stored, unsigned digits) const;
    /// Valid until the next call.
    [[nodiscard]] const StoredCurrency &currencyFrom(sqlite3_value *stored);

    void begin();
    void checkIsWhole() const;

    RowSource &m_source;
    Table m_table;
    Statement m_select;
    sqlite3_value **m_values = nullptr; ///< of the row, if forEach goes through them
    int m_columns;
    int m_column = 0;
    std::int64_t m_key = -1;
    qint64 m_rows = 0;
    QString m_shared; ///< the last text of that kind
    QByteArray m_lastDateText;
    QDate m_lastDate;
    StoredCurrency m_coded; ///< the last one that stood there by its code
};

} // namespace kiv::storage::internal
