// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/transaction_listing.h"

#include "output/json.h"

#include <QtCore/QObject>

namespace kiv::app {

using accounting::Transaction;

TransactionListing::TransactionListing(std::vector<Transaction> transactions, AccountIndex index)
    : m_transactions(std::make_shared<const std::vector<Transaction>>(std::move(transactions))),
      m_index(std::make_shared<const AccountIndex>(std::move(index)))
{
}

Rows TransactionListing::rows() const
{
    return {std::ssize(*m_transactions), [all = m_transactions, index = m_index](qsizetype at) {
                return withPaths(toJson((*all)[static_cast<std::size_t>(at)]), *index);
            }};
}

std::vector<Column> TransactionListing::columns() const
{
    return {{QObject::tr("Number"), QStringLiteral("number")},
            {QObject::tr("Date"), QStringLiteral("date"), dayText},
            {QObject::tr("Description"), QStringLiteral("description"), descriptionText},
            {QObject::tr("Debit"), QStringLiteral("debit"), accountText(m_index)},
            {QObject::tr("Credit"), QStringLiteral("credit"), accountText(m_index)},
            {QObject::tr("Amount"), QStringLiteral("amount")}};
}

Report TransactionListing::report(const QString &whenNone) const
{
    return Report::listing(columns(), rows(), whenNone);
}

Report transactionReport(Requests &requests, accounting::TransactionNumber number,
                         const QString &sentence)
{
    return Report(toJson(requests.transaction(number)))
        .line(sentence.arg(accounting::presentationText(number)));
}

} // namespace kiv::app
