// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/transaction_source.h"

#include <vector>

namespace kiv::interchange {

TransactionSource transactionsOf(const std::set<accounting::Account> &accounts, QDate first,
                                 QDate last)
{
    return [&accounts, first,
            last](const std::function<void(const accounting::Transaction &)> &visit) {
        // Two accounts have each transaction; it is made only for the first of them.
        std::vector<bool> isVisited;
        for (const accounting::Account &account : accounts) {
            const accounting::TransactionList &list = account.transactions();
            for (auto each = list.begin(); each != list.end(); ++each) {
                const std::size_t number = each.number().integer();
                if (number >= isVisited.size())
                    isVisited.resize(number + 1);
                if (isVisited[number])
                    continue;
                isVisited[number] = true;
                // Making a transaction costs more than looking at its day.
                const QDate day = each.occurredOn();
                if ((!first.isValid() || day >= first) && (!last.isValid() || day <= last))
                    visit(*each);
            }
        }
    };
}

QDate firstDayOf(const std::set<accounting::Account> &accounts, QDate enough)
{
    QDate first;
    for (const accounting::Account &account : accounts) {
        const accounting::TransactionList &list = account.transactions();
        for (auto each = list.begin(); each != list.end(); ++each) {
            const QDate day = each.occurredOn();
            if (day <= enough)
                return day;
            if (!first.isValid() || day < first)
                first = day;
        }
    }
    return first;
}

} // namespace kiv::interchange
