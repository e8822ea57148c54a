// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/former_entries.h"

#include "workbench/entry/description.h"
#include "workbench/entry/folded.h"

#include <algorithm>
#include <cmath>

namespace kiv::workbench {

using accounting::Transaction;

namespace {

/// After so many days a use counts half.
constexpr double halfLife = 90;

} // namespace

FormerEntries::FormerEntries(const std::vector<Transaction> &transactions)
{
    qint64 last = 0;
    for (const Transaction &transaction : transactions)
        last = std::max(last, transaction.occurredOn().toJulianDay());
    for (const Transaction &transaction : transactions) {
        if (!transaction.description() || !transaction.description()->contains(u'|') ||
            transaction.refundOf())
            continue;
        Description parts = Description::of(*transaction.description());
        if (parts.payee.isEmpty())
            continue;
        QString key = folded(parts.payee);
        const auto [place, isNew] = m_places.try_emplace(key, m_payees.size());
        if (isNew)
            m_payees.push_back({std::move(key), {}, 0});
        Payee &payee = m_payees[place->second];
        const QDate day = transaction.occurredOn();
        payee.weight += std::exp2(static_cast<double>(day.toJulianDay() - last) / halfLife);
        const accounting::TransactionNumber number =
            transaction.number().value_or(accounting::TransactionNumber());
        if (isNew || std::pair(payee.newest.day, payee.newest.number) < std::pair(day, number)) {
            payee.newest = {std::move(parts.payee),
                            std::move(parts.reason),
                            number,
                            day,
                            transaction.debiting().number(),
                            transaction.crediting().number(),
                            transaction.amount()};
        }
    }
    std::ranges::sort(m_payees, [](const Payee &a, const Payee &b) {
        return a.weight != b.weight ? a.weight > b.weight : a.key < b.key;
    });
    for (std::size_t place = 0; place < m_payees.size(); ++place)
        m_places[m_payees[place].key] = place;
}

QStringList FormerEntries::payees(const QString &typed, qsizetype most) const
{
    const QString key = folded(typed.trimmed());
    const QString word = u' ' + key;
    QStringList first;
    QStringList later;
    for (const Payee &payee : m_payees) {
        if (first.size() >= most)
            break;
        if (payee.key.startsWith(key))
            first += payee.newest.payee;
        else if (later.size() < most && payee.key.contains(word))
            later += payee.newest.payee;
    }
    return (first + later).mid(0, most);
}

const FormerEntries::Entry *FormerEntries::newest(const QString &payee) const
{
    const auto found = m_places.find(folded(payee.trimmed()));
    return found == m_places.end() ? nullptr : &m_payees[found->second].newest;
}

} // namespace kiv::workbench
