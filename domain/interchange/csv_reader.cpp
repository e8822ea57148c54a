// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_reader.h"

#include "interchange/internal/csv_checks.h"
#include "interchange/internal/csv_entries.h"
#include "interchange/internal/csv_notices.h"
#include "interchange/internal/description_count.h"
#include "interchange/internal/running_balance.h"
#include "interchange/internal/statement_faults.h"

#include "numira/error.h"

#include <algorithm>
#include <ranges>

namespace kiv::interchange {

namespace {

using internal::BalanceStep;
using internal::CsvColumns;
using internal::CsvEntry;
using internal::CsvLayout;
using internal::EntryState;

/// Reads the rows of a statement one after the other.
class EntryReader {
public:
    EntryReader(const CsvLayout &layout, qsizetype shortest)
        : m_layout(layout), m_shortest(shortest)
    {
        m_statement.currency = layout.currency;
        m_statement.notices = layout.notices;
    }

    void read(const CsvRecord &row)
    {
        internal::requireOneEntry(row, m_layout);
        if (!m_statement.entries.empty() && isContinued(row, m_layout.columns))
            return goOn(row);
        internal::requireWidth(row, m_layout, m_shortest);
        const EntryState state = stateOf(row, m_layout);
        m_isBooked = state == EntryState::Booked;
        switch (state) {
        case EntryState::Pending:
            ++m_statement.pending;
            m_steps.push_back({row.place, {}, balanceOf(row, m_layout)});
            break;
        case EntryState::Undone:
            ++m_undone;
            m_undoneStates.insert(row.cells.value(*m_layout.columns.status).simplified());
            break;
        case EntryState::Booked:
            add(row);
        }
    }

    Statement finish()
    {
        subtractFees();
        const auto balances = internal::balancesOf(m_steps, m_layout.profile.isNegated);
        const CsvColumns &columns = m_layout.columns;
        QStringList &notices = m_statement.notices;
        if (!balances.fit)
            notices += notices::balancesUnchecked(columns.headings[*columns.balance]);
        m_statement.opening = balances.opening;
        m_statement.closing = balances.closing;
        m_statement.closingOn = balances.closingOn;
        if (m_undone > 0)
            notices += notices::undone(m_undone, {m_undoneStates.begin(), m_undoneStates.end()});
        const bool isSignTold =
            !columns.amount || columns.sign || m_layout.isMarkedIn || m_layout.profile.isNegated;
        if (!isSignTold && m_statement.entries.size() > 1 &&
            std::ranges::none_of(m_statement.entries, &numira::Money::isNegative,
                                 &StatementEntry::amount))
            notices += notices::allCameIn();
        return std::move(m_statement);
    }

private:
    void add(const CsvRecord &row)
    {
        internal::requireWholeAmounts(row, m_layout);
        CsvEntry read = entryOf(row, m_layout);
        // In one column, an amount of the other sign would be what was given back.
        requireSame(m_hasMinusOut, read.hasMinusOut, [&] { return faults::mixedSigns(row.place); });
        if (!read.fee.isZero())
            requireSame(m_hasMinusFee, read.fee.isNegative(),
                        [&] { return faults::mixedFees(row.place); });
        m_descriptions.add(read.entry.text, row.place);
        m_descriptions.add(read.entry.payee, row.place);
        BalanceStep step{row.place, {}, balanceOf(row, m_layout), read.entry.date};
        if (read.entry.amount.code() == m_layout.currency)
            step.amount = read.entry.amount;
        m_steps.push_back(std::move(step));
        m_fees.push_back(read.fee.abs());
        m_statement.entries.push_back(std::move(read.entry));
    }

    static void requireSame(std::optional<bool> &known, std::optional<bool> found, auto &&fault)
    {
        if (found && known.value_or(*found) != *found)
            throw fault();
        known = found ? found : known;
    }

    /// A row without a day and an amount goes on with the text of the entry before.
    void goOn(const CsvRecord &row)
    {
        const QString more = textOf(row, m_layout);
        if (!m_isBooked || more.isEmpty())
            return;
        QString &text = m_statement.entries.back().text;
        m_descriptions.add(more, row.place);
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + more;
        if (text.size() > lineMax)
            throw faults::textTooLong(row.place, lineMax);
    }

    void subtractFees()
    {
        if (!m_hasMinusFee)
            return;
        std::vector<BalanceStep> steps = m_steps;
        try {
            auto fee = m_fees.begin();
            for (BalanceStep &step : steps) {
                if (!step.day.isValid()) // the bank has not booked it
                    continue;
                if (step.amount)
                    step.amount = *step.amount - *fee;
                ++fee;
            }
            const QString column = m_layout.columns.headings[*m_layout.columns.fee];
            if (fitsOnlyWithout(steps)) {
                m_statement.notices += notices::feesIncluded(column);
                return;
            }
            m_statement.notices += notices::feesSubtracted(column);
            m_steps = std::move(steps);
            for (std::size_t at = 0; at < m_fees.size(); ++at)
                m_statement.entries[at].amount -= m_fees[at];
        } catch (const numira::Error &cause) {
            throw faults::tooLarge(m_steps.front().place, cause);
        }
    }

    /// Whether the balances follow from the amounts alone and not with `fees`.
    [[nodiscard]] bool fitsOnlyWithout(const std::vector<BalanceStep> &fees) const
    {
        const auto fits = [this](const std::vector<BalanceStep> &steps) {
            try {
                return internal::balancesOf(steps, m_layout.profile.isNegated).fit;
            } catch (const ImportError &) {
                return false;
            }
        };
        return !fits(fees) && fits(m_steps);
    }

    const CsvLayout &m_layout;
    qsizetype m_shortest; ///< cells of the shortest row
    Statement m_statement;
    std::vector<BalanceStep> m_steps;
    std::vector<numira::Money> m_fees; ///< of the entries
    internal::DescriptionCount m_descriptions;
    std::optional<bool> m_hasMinusOut;
    std::optional<bool> m_hasMinusFee; ///< nothing while there was no fee
    bool m_isBooked = true;            ///< whether the row before is among the entries
    qsizetype m_undone = 0;
    std::set<QString> m_undoneStates;
};

QString accountOf(const internal::CsvSheet &sheet, const CsvLayout &layout)
{
    const auto &column = layout.columns.account;
    for (const CsvRecord &row : sheet.rows) {
        if (const QString number = column ? row.cells.value(*column).simplified() : QString();
            !number.isEmpty())
            return number;
    }
    return internal::accountIn(sheet.above);
}

} // namespace

Statement readCsv(const QByteArray &bytes, const QString &file, const CsvOptions &options)
{
    const internal::CsvSheet sheet =
        internal::sheetOf(bytes, file, options.profile, options.currency);
    const CsvLayout layout = internal::layoutOf(sheet, options.currency);
    internal::requireHeadings(sheet, layout);
    if (layout.dayForms.size() > 1)
        throw faults::ambiguousDates(sheet.rows.front().place);
    for (const CsvRecord &row : sheet.below)
        internal::requireNoEntry(row, layout);
    const auto cellsOf = [&layout](const CsvRecord &row) {
        return isContinued(row, layout.columns) ? layout.columns.headings.size() : row.cells.size();
    };
    const qsizetype shortest =
        sheet.rows.empty() ? 0 : std::ranges::min(sheet.rows | std::views::transform(cellsOf));
    EntryReader reader(layout, shortest);
    for (const CsvRecord &row : sheet.rows)
        reader.read(row);
    Statement statement = reader.finish();
    statement.account = accountOf(sheet, layout);
    return statement;
}

} // namespace kiv::interchange
