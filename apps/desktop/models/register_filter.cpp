// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/register_filter.h"

#include "workbench/entry/money_text.h"
#include "workbench/search/own_change.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using accounting::TransactionNumber;
using workbench::FilterKind;
using workbench::FilterPart;

RegisterFilter::RegisterFilter(RegisterModel &rows, QObject *parent)
    : QSortFilterProxyModel(parent), m_rows(rows)
{
    connect(&rows, &RegisterModel::changing, this, &RegisterFilter::forget);
    setSourceModel(&rows);
}

RegisterFilter::~RegisterFilter() = default;

void RegisterFilter::search(const QString &text, const workbench::AccountIndex &accounts,
                            QDate today)
{
    std::vector<FilterPart> parts = workbench::filterParts(text);
    if (parts.empty()) {
        if (!m_filter)
            return;
        m_filter.reset();
    } else {
        if (m_rows.account()) {
            parts.push_back(
                {FilterKind::Account, accounting::presentationText(*m_rows.account()), false});
        }
        m_filter.emplace(std::move(parts), accounts, today);
    }
    m_isKnown.reset();
    // All at once: runs of rows that come and go take long to follow for a view.
    invalidate();
}

void RegisterFilter::forget(const std::vector<TransactionNumber> &numbers)
{
    for (const TransactionNumber number : numbers)
        m_isKnown.reset(number.integer());
}

bool RegisterFilter::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    if (!m_filter)
        return true;
    const std::size_t number = m_rows.number(sourceRow).integer();
    if (!m_isKnown.test(number)) {
        m_fits.set(number, m_filter->matches(m_rows.transaction(sourceRow)));
        m_isKnown.set(number);
    }
    return m_fits.test(number);
}

QString RegisterFilter::resultText(navigation::CurrencyDisplayOptions displayAs) const
{
    const QLocale locale;
    const int all = m_rows.rowCount();
    if (!m_filter)
        return tr("%n transaction(s)", nullptr, all);
    const QString count = tr("%1 of %2").arg(locale.toString(rowCount()), locale.toString(all));
    QStringList together;
    for (const numira::Money &sum : sums())
        together += workbench::amountText(sum, displayAs);
    return together.isEmpty()
               ? count
               : tr("%1, together %2").arg(count, together.join(QStringLiteral(", ")));
}

std::vector<numira::Money> RegisterFilter::sums() const
{
    if (!m_rows.account()) {
        workbench::OwnChange change(m_rows.accounts());
        for (int row = 0; row < rowCount(); ++row)
            change.add(m_rows.transaction(sourceRow(row)));
        return change.sums();
    }
    if (rowCount() == 0)
        return {};
    // One account, so one currency.
    numira::Money sum;
    for (int row = 0; row < rowCount(); ++row)
        sum += m_rows.amount(sourceRow(row));
    return {sum};
}

int RegisterFilter::sourceRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

int RegisterFilter::rowOf(TransactionNumber number) const
{
    const int source = m_rows.rowOf(number);
    return source < 0 ? -1 : mapFromSource(m_rows.index(source, 0)).row();
}

} // namespace kiv::desktop
