// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/transaction_source.h"

#include <vector>

namespace kiv::interchange {

TransactionSource transactionsOf(const std::set<accounting::Account> &accounts)
{
    return [&accounts](const std::function<void(const accounting::Transaction &)> &visit) {
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
                visit(*each);
            }
        }
    };
}

} // namespace kiv::interchange
