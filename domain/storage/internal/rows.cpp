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

/// The value must stay as it is until the statement has run.
void bindValue(const Statement &statement, int column, const StoredValue &value)
{
    if (const auto *number = std::get_if<std::int64_t>(&value))
        sqlite3_bind_int64(statement.get(), column, *number);
    else if (const auto *text = std::get_if<QByteArray>(&value))
        sqlite3_bind_text(statement.get(), column, text->constData(),
                          static_cast<int>(text->size()), SQLITE_STATIC);
    else
        sqlite3_bind_null(statement.get(), column);
}

} // namespace

std::pair<std::int64_t, unsigned> RowSink::keyOf(const numira::Currency &currency)
{
    const auto [known, isNew] = m_keys.try_emplace(currency);
    if (isNew) {
        const unsigned digits = numira::minorUnitDigits(currency);
        m_currencies.push_back({currency, digits});
        known->second = {static_cast<std::int64_t>(m_currencies.size()), digits};
    }
    return known->second;
}

void RowSink::finish()
{
    RowWriter row(*this, Table::Currencies);
    for (const StoredCurrency &stored : m_currencies) {
        const std::string_view code = stored.currency.code();
        row.newRow().text(QString::fromLatin1(code.data(), static_cast<qsizetype>(code.size())));
        row.integer(stored.digits).endRow();
    }
}

RowSource::RowSource(ImageDatabase &database, std::uint32_t version) : m_database(database)
{
    if (version == 1)
        return;
    RowReader row(*this, Table::Currencies);
    while (row.next()) {
        if (row.key() != static_cast<std::int64_t>(m_currencies.size()) + 1)
            row.refuse("is out of order");
        const numira::Currency currency = numira::toCurrency(row.text().toStdString());
        const auto digits = row.integer(0, numira::Decimal::scaleDigits);
        m_currencies.push_back({currency, static_cast<unsigned>(digits)});
    }
}

const StoredCurrency *RowSource::find(std::int64_t key) const noexcept
{
    const auto place = static_cast<std::size_t>(key) - 1;
    return place < m_currencies.size() ? &m_currencies[place] : nullptr;
}

RowWriter::RowWriter(RowSink &sink, Table table)
    : m_sink(sink),
      m_table(table),
      m_insert(sink.database(), insertInto(sink.database(), table)),
      m_values(static_cast<std::size_t>(sqlite3_bind_parameter_count(m_insert.get())))
{
}

RowWriter &RowWriter::optionalInteger(std::optional<std::int64_t> value)
{
    return value ? integer(*value) : null();
}

RowWriter &RowWriter::text(QStringView text)
{
    return bytes(toStoredText(text));
}

RowWriter &RowWriter::date(QDate date)
{
    return date.isValid() ? integer(date.toJulianDay()) : null();
}

RowWriter &RowWriter::amount(const numira::Money &money)
{
    const unsigned digits = m_sink.keyOf(money.code()).second;
    if (const auto units = money.amount().unitsOf(digits))
        return integer(*units);
    return bytes(QByteArray::fromStdString(money.amount().toText()));
}

RowWriter &RowWriter::money(const numira::Money &money)
{
    return amount(money).currency(money.code());
}

RowWriter &RowWriter::currency(const numira::Currency &currency)
{
    return integer(m_sink.keyOf(currency).first);
}

void RowWriter::endRow()
{
    checkIsWhole();
    int column = 0;
    for (const StoredValue &value : m_values)
        bindValue(m_insert, ++column, value);
    m_insert.step();
    m_insert.reset();
}

void RowWriter::writeAll(const std::function<bool()> &write)
{
    addRows(m_sink.database(), nameOf(m_table), m_values, [&] {
        const bool isWritten = write();
        if (isWritten)
            checkIsWhole();
        return isWritten;
    });
}

void RowWriter::checkIsWhole()
{
    if (std::exchange(m_column, 0) != m_values.size())
        throw rowNotWrittenWhole();
    if (++m_rows > rowsMax)
        throw tooManyRows();
}

RowWriter &RowWriter::bytes(QByteArray bytes)
{
    if (bytes.size() > textSizeMax)
        throw textTooLong();
    return value(std::move(bytes));
}

RowReader::RowReader(RowSource &source, Table table)
    : m_source(source),
      m_table(table),
      m_select(source.database(), QByteArray("SELECT * FROM ") + nameOf(table) + " ORDER BY rowid"),
      m_columns(sqlite3_column_count(m_select.get())),
      m_column(m_columns)
{
}

bool RowReader::next()
{
    checkIsWhole();
    if (!m_select.step())
        return false;
    begin();
    return true;
}

void RowReader::forEach(const std::function<void()> &read)
{
    QByteArrayList columns;
    for (int column = 0; column < m_columns; ++column)
        columns += sqlite3_column_name(m_select.get(), column);
    takeRows(m_source.database(), nameOf(m_table), columns, [&](sqlite3_value **values) {
        m_values = values;
        begin();
        read();
        checkIsWhole();
    });
}

void RowReader::begin()
{
    m_column = 0;
    const std::int64_t key = integer(1, std::numeric_limits<std::int64_t>::max());
    if (key <= m_key)
        refuse("is out of order");
    m_key = key;
    if (++m_rows > rowsMax)
        refuse("is one too many");
}

void RowReader::checkIsWhole() const
{
    if (m_column != m_columns)
        throw rowNotReadWhole();
}

QString RowReader::text()
{
    return textFrom(nextValue());
}

SharedText RowReader::sharedText()
{
    sqlite3_value *stored = nextPresent();
    if (!stored)
        return {};
    if (sqlite3_value_type(stored) == SQLITE_INTEGER)
        return {std::nullopt, integerFrom(stored, 1, m_key - 1)};
    const QByteArrayView bytes = bytesFrom(stored);
    m_shared.resize(0);
    if (!appendStoredText(m_shared, bytes))
        refuse("has a malformed text");
    return {QStringView(m_shared), std::nullopt};
}

QDate RowReader::date()
{
    sqlite3_value *stored = nextPresent();
    if (!stored)
        return {};
    if (sqlite3_value_type(stored) == SQLITE_INTEGER) {
        const QDate date = QDate::fromJulianDay(sqlite3_value_int64(stored));
        if (!date.isValid())
            refuse("has a number that means nothing");
        return date;
    }
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

numira::Money RowReader::money()
{
    sqlite3_value *const amount = nextValue();
    const StoredCurrency &stored = currencyFrom(nextValue());
    return {stored.currency, decimalFrom(amount, stored.digits)};
}

QByteArrayView RowReader::bytesFrom(sqlite3_value *stored) const
{
    if (sqlite3_value_type(stored) != SQLITE_TEXT)
        refuse("has something else than a text");
    const QByteArrayView bytes = bytesOf(stored);
    if (bytes.size() > textSizeMax)
        refuse("has a text that is too long");
    m_source.database().countText(bytes.size());
    return bytes;
}

QString RowReader::textFrom(sqlite3_value *stored) const
{
    std::optional<QString> text = fromStoredText(bytesFrom(stored));
    if (!text)
        refuse("has a malformed text");
    return *std::move(text);
}

numira::Decimal RowReader::decimalFrom(sqlite3_value *stored, unsigned digits) const
{
    if (sqlite3_value_type(stored) == SQLITE_INTEGER)
        return numira::Decimal::fromUnits(sqlite3_value_int64(stored), digits);
    const QByteArrayView text = bytesFrom(stored);
    return numira::Decimal::fromText({text.data(), static_cast<std::size_t>(text.size())});
}

const StoredCurrency &RowReader::currencyFrom(sqlite3_value *stored)
{
    if (sqlite3_value_type(stored) == SQLITE_INTEGER) {
        const StoredCurrency *const found = m_source.find(sqlite3_value_int64(stored));
        if (!found)
            refuse("has no currency");
        return *found;
    }
    const QByteArrayView code = bytesFrom(stored);
    const std::string_view text(code.data(), static_cast<std::size_t>(code.size()));
    if (text != m_coded.currency.code())
        m_coded.currency = numira::toCurrency(std::string(text));
    return m_coded;
}

} // namespace kiv::storage::internal
