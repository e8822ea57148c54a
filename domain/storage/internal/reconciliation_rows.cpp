// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/reconciliation_rows.h"

#include "storage/internal/dates.h"
#include "storage/internal/note_text.h"
#include "storage/internal/schema.h"

#include <charconv>
#include <limits>

namespace kiv::storage::internal {
namespace {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using surveying::ReconciledTransaction;
using surveying::Reconciliation;
using surveying::Reconciliations;

/// Longer than any line.
constexpr qsizetype lineSizeMax = 256;

/// "17 2026-01-15 43.22 USD 12 4" and a line feed.
QByteArray lineOf(const ReconciledTransaction &transaction)
{
    const std::string_view currency = transaction.amount.code().code();
    QByteArray line = QByteArray::number(transaction.number.integer());
    line += ' ' + toStoredDate(transaction.day) + ' ';
    line += QByteArray::fromStdString(transaction.amount.amount().toText()) + ' ';
    line.append(currency.data(), static_cast<qsizetype>(currency.size()));
    line += ' ' + QByteArray::number(transaction.debit.integer());
    line += ' ' + QByteArray::number(transaction.credit.integer()) + '\n';
    return line;
}

/// Reads the lines. A full budget has as many as it has transactions, and most repeat the
/// day and the currency of the line before.
class LineReader {
public:
    LineReader(const RowReader &row, std::string_view text) : m_row(row), m_rest(text) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return m_rest.empty(); }

    ReconciledTransaction next()
    {
        ReconciledTransaction transaction;
        transaction.number = number<TransactionNumber, std::uint16_t>(' ');
        transaction.day = day();
        const numira::Decimal amount = numira::Decimal::fromText(until(' '));
        transaction.amount = {currency(), amount};
        transaction.debit = number<AccountNumber, std::uint32_t>(' ');
        transaction.credit = number<AccountNumber, std::uint32_t>('\n');
        if (transaction.number <= m_last)
            m_row.refuse("has transactions out of order");
        m_last = transaction.number;
        return transaction;
    }

private:
    std::string_view until(char mark)
    {
        const std::size_t end = m_rest.find(mark);
        if (end == std::string_view::npos)
            m_row.refuse("has a malformed line");
        const std::string_view field = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return field;
    }

    template <typename Number, typename Integer>
    Number number(char mark)
    {
        const std::string_view field = until(mark);
        Integer value = 0;
        const auto read = std::from_chars(field.data(), field.data() + field.size(), value);
        if (read.ec != std::errc() || read.ptr != field.data() + field.size() || value == 0)
            m_row.refuse("has a malformed number");
        return Number(value);
    }

    QDate day()
    {
        const std::string_view field = until(' ');
        if (field != m_dayText) {
            m_day = fromStoredDate({field.data(), static_cast<qsizetype>(field.size())});
            if (!m_day.isValid())
                m_row.refuse("has a malformed date");
            m_dayText = field;
        }
        return m_day;
    }

    numira::Currency currency()
    {
        const std::string_view field = until(' ');
        if (field != m_currency.code())
            m_currency = numira::toCurrency(std::string(field));
        return m_currency;
    }

    const RowReader &m_row;
    std::string_view m_rest;
    TransactionNumber m_last;
    std::string_view m_dayText;
    QDate m_day;
    numira::Currency m_currency;
};

} // namespace

void writeReconciliations(RowSink &sink, const Reconciliations &all)
{
    RowWriter row(sink, Table::Reconciliations);
    for (const Reconciliation &one : all) {
        auto next = one.transactions.begin();
        do {
            QByteArray lines;
            for (; next != one.transactions.end() && lines.size() <= textSizeMax - lineSizeMax;
                 ++next)
                lines += lineOf(*next);
            row.newRow().text(one.account.bank.institution());
            row.integer(one.account.account.number.integer());
            row.integer(static_cast<int>(one.account.account.type));
            row.date(one.day).money(one.balance).storedText(std::move(lines)).endRow();
        } while (next != one.transactions.end());
    }
}

Reconciliations readReconciliations(RowSource &source)
{
    Reconciliations all;
    RowReader row(source, Table::Reconciliations);
    while (row.next()) {
        Reconciliation &one = all.emplace_back();
        one.account.bank = banking::BankName(row.text());
        one.account.account.number = AccountNumber(
            static_cast<std::uint32_t>(row.integer(0, std::numeric_limits<std::uint32_t>::max())));
        one.account.account.type = row.enumerator(banking::BankAccountTypes::Cash);
        one.day = row.date();
        if (!one.day.isValid())
            row.refuse("has no day");
        one.balance = row.money();
        const QByteArrayView text = row.storedText();
        LineReader lines(row, {text.data(), static_cast<std::size_t>(text.size())});
        while (!lines.isAtEnd())
            one.transactions.push_back(lines.next());
    }
    return all;
}

void writeNotes(RowSink &sink, const Notes &notes)
{
    RowWriter row(sink, Table::Notes);
    for (const auto &[key, value] : notes)
        row.newRow().text(key).storedText(noteText(value)).endRow();
}

Notes readNotes(RowSource &source)
{
    Notes notes;
    RowReader row(source, Table::Notes);
    while (row.next()) {
        const QString key = row.text();
        const QJsonValue value = noteFromText(row.storedText());
        if (!notes.value(key).isUndefined())
            row.refuse("repeats a key");
        notes.set(key, value);
    }
    return notes;
}

} // namespace kiv::storage::internal
