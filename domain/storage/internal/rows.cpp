// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/rows.h"

#include "storage/internal/dates.h"
#include "storage/internal/faults.h"
#include "storage/internal/text_codec.h"

#include "numira/error.h"

#include <QtCore/QObject>

#include <sqlite3.h>

#include <limits>
#include <stdexcept>
#include <utility>

namespace kiv::storage::internal {
namespace {

QByteArray insertInto(const ImageDatabase &database, Table table)
{
    const QByteArray name = nameOf(table);
    const Statement columns(database, "SELECT * FROM " + name);
    const int count = sqlite3_column_count(columns.get());
    return "INSERT INTO " + name + " VALUES(" + QByteArray("?,").repeated(count - 1) + "?)";
}

} // namespace

RowWriter::RowWriter(const ImageDatabase &database, Table table, Seal &seal)
    : m_seal(seal),
      m_insert(database, insertInto(database, table)),
      m_texts(static_cast<std::size_t>(sqlite3_bind_parameter_count(m_insert.get())))
{
    m_seal.beginTable(nameOf(table));
}

RowWriter &RowWriter::integer(std::int64_t value)
{
    sqlite3_bind_int64(m_insert.get(), ++m_column, value);
    m_seal.integer(value);
    return *this;
}

RowWriter &RowWriter::optionalInteger(std::optional<std::int64_t> value)
{
    return value ? integer(*value) : null();
}

RowWriter &RowWriter::text(const QString &text)
{
    return bytes(toStoredText(text));
}

RowWriter &RowWriter::optionalText(const std::optional<QString> &text)
{
    return text ? this->text(*text) : null();
}

RowWriter &RowWriter::date(QDate date)
{
    return date.isValid() ? bytes(toStoredDate(date)) : null();
}

RowWriter &RowWriter::decimal(const numira::Decimal &decimal)
{
    return bytes(QByteArray::fromStdString(decimal.toText()));
}

RowWriter &RowWriter::null()
{
    sqlite3_bind_null(m_insert.get(), ++m_column);
    m_seal.null();
    return *this;
}

RowWriter &RowWriter::money(const numira::Money &money)
{
    return decimal(money.amount()).currency(money.code());
}

RowWriter &RowWriter::currency(const numira::Currency &currency)
{
    const std::string_view code = currency.code();
    return bytes(QByteArray(code.data(), static_cast<qsizetype>(code.size())));
}

void RowWriter::endRow()
{
    if (std::exchange(m_column, 0) != static_cast<int>(m_texts.size()))
        throw rowNotWrittenWhole();
    if (++m_rows > rowsMax)
        throw tooManyRows();
    m_insert.step();
    m_insert.reset();
    m_seal.endRow();
}

RowWriter &RowWriter::bytes(QByteArray bytes)
{
    if (bytes.size() > textSizeMax)
        throw textTooLong();
    m_seal.text(bytes);
    QByteArray &kept = m_texts.at(static_cast<std::size_t>(m_column));
    kept = std::move(bytes);
    sqlite3_bind_text(m_insert.get(), ++m_column, kept.constData(), static_cast<int>(kept.size()),
                      SQLITE_STATIC);
    return *this;
}

RowReader::RowReader(const ImageDatabase &database, Table table, Seal &seal)
    : m_seal(seal),
      m_table(table),
      m_select(database, QByteArray("SELECT * FROM ") + nameOf(table) + " ORDER BY rowid"),
      m_columns(sqlite3_column_count(m_select.get())),
      m_column(m_columns)
{
    m_seal.beginTable(nameOf(table));
}

bool RowReader::next()
{
    if (m_column != m_columns)
        throw rowNotReadWhole();
    if (m_rows > 0)
        m_seal.endRow();
    if (!m_select.step())
        return false;
    m_column = 0;
    const std::int64_t key = integer(1, std::numeric_limits<std::int64_t>::max());
    if (key <= m_key)
        refuse("is out of order");
    m_key = key;
    if (++m_rows > rowsMax)
        refuse("is one too many");
    return true;
}

std::int64_t RowReader::integer(std::int64_t min, std::int64_t max)
{
    return integerFrom(nextValue(), min, max);
}

std::optional<std::int64_t> RowReader::optionalInteger(std::int64_t min, std::int64_t max)
{
    sqlite3_value *stored = nextPresent();
    return stored ? std::optional(integerFrom(stored, min, max)) : std::nullopt;
}

QString RowReader::text()
{
    return textFrom(nextValue());
}

std::optional<QString> RowReader::optionalText()
{
    sqlite3_value *stored = nextPresent();
    return stored ? std::optional(textFrom(stored)) : std::nullopt;
}

std::optional<QByteArrayView> RowReader::optionalStoredText()
{
    sqlite3_value *stored = nextPresent();
    return stored ? std::optional(bytesFrom(stored)) : std::nullopt;
}

QDate RowReader::date()
{
    sqlite3_value *stored = nextPresent();
    if (!stored)
        return {};
    // Many rows have the day of the row before, and most the currency.
    const QByteArrayView text = bytesFrom(stored);
    if (text != QByteArrayView(m_lastDateText)) {
        m_lastDate = fromStoredDate(text);
        if (!m_lastDate.isValid())
            refuse("has a malformed date");
        m_lastDateText = text.toByteArray();
    }
    return m_lastDate;
}

numira::Decimal RowReader::decimal()
{
    return decimalFrom(nextValue());
}

std::optional<numira::Decimal> RowReader::optionalDecimal()
{
    sqlite3_value *stored = nextPresent();
    return stored ? std::optional(decimalFrom(stored)) : std::nullopt;
}

numira::Currency RowReader::currency()
{
    const QByteArrayView code = bytesFrom(nextValue());
    const std::string_view text(code.data(), static_cast<std::size_t>(code.size()));
    if (text != m_lastCurrency.code())
        m_lastCurrency = numira::toCurrency(std::string(text));
    return m_lastCurrency;
}

numira::Money RowReader::money()
{
    const numira::Decimal amount = decimal();
    return {currency(), amount};
}

sqlite3_value *RowReader::nextValue()
{
    // One call for a value instead of three. It is valid until the next step,
    // because nothing else uses the connection.
    return sqlite3_column_value(m_select.get(), m_column++);
}

sqlite3_value *RowReader::nextPresent()
{
    sqlite3_value *stored = nextValue();
    if (sqlite3_value_type(stored) != SQLITE_NULL)
        return stored;
    m_seal.null();
    return nullptr;
}

std::int64_t RowReader::integerFrom(sqlite3_value *stored, std::int64_t min, std::int64_t max)
{
    if (sqlite3_value_type(stored) != SQLITE_INTEGER)
        refuse("has something else than a number");
    const std::int64_t value = sqlite3_value_int64(stored);
    if (value < min || value > max)
        refuse("has a number that means nothing");
    m_seal.integer(value);
    return value;
}

QByteArrayView RowReader::bytesFrom(sqlite3_value *stored)
{
    if (sqlite3_value_type(stored) != SQLITE_TEXT)
        refuse("has something else than a text");
    const QByteArrayView bytes = bytesOf(stored);
    if (bytes.size() > textSizeMax)
        refuse("has a text that is too long");
    m_seal.text(bytes);
    return bytes;
}

QString RowReader::textFrom(sqlite3_value *stored)
{
    std::optional<QString> text = fromStoredText(bytesFrom(stored));
    if (!text)
        refuse("has a malformed text");
    return *std::move(text);
}

numira::Decimal RowReader::decimalFrom(sqlite3_value *stored)
{
    const QByteArrayView text = bytesFrom(stored);
    return numira::Decimal::fromText({text.data(), static_cast<std::size_t>(text.size())});
}

} // namespace kiv::storage::internal
