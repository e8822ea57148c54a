// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/draft.h"

#include "interchange/account_paths.h"

#include "foundation/presentation.h"

#include <limits>
#include <numeric>

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountCode;
using accounting::AccountNumber;

namespace {

class Planner {
public:
    explicit Planner(const std::set<Account> &existing)
    {
        const std::map<AccountNumber, QString> paths = accountPaths(existing);
        for (const Account &account : existing) {
            const AccountNumber number = account.code().number();
            m_byPath.emplace(paths.at(number), Known{account.code(), account.balance().code()});
            m_taken.insert(number);
        }
    }

    AccountCode codeOf(const DraftAccount &wanted)
    {
        QStringList names = wanted.names;
        while (const Known *known = find(wanted.type, names)) {
            if (known->currency == wanted.currency)
                return known->code;
            names.back() += QStringLiteral(" (%1)").arg(foundation::toQString(wanted.currency));
        }
        return open(wanted, names);
    }

    std::vector<Account> m_missing;

private:
    struct Known {
        AccountCode code;
        numira::Currency currency;
    };

    static QString pathOf(accounting::AccountTypes type, const QStringList &names)
    {
        return rootOf(type) + u':' + names.join(u':');
    }
    const Known *find(accounting::AccountTypes type, const QStringList &names) const
    {
        const auto found = m_byPath.find(pathOf(type, names));
        return found == m_byPath.end() ? nullptr : &found->second;
    }

    AccountCode open(const DraftAccount &wanted, const QStringList &names)
    {
        std::optional<AccountNumber> parent;
        for (qsizetype count = 1; count < names.size(); ++count) {
            const QStringList above = names.first(count);
            const Known *known = find(wanted.type, above);
            parent = known ? known->code.number()
                           : add(wanted.type, above, parent, wanted.currency, {}).number();
        }
        return add(wanted.type, names, parent, wanted.currency, wanted.number);
    }

    AccountCode add(accounting::AccountTypes type, const QStringList &names,
                    std::optional<AccountNumber> parent, const numira::Currency &currency,
                    std::optional<AccountNumber> number)
    {
        while (!number || m_taken.contains(*number))
            number = AccountNumber(++m_last);
        AccountCode code(*number, names.back(), parent);
        m_taken.insert(*number);
        m_byPath.emplace(pathOf(type, names), Known{code, currency});
        m_missing.emplace_back(type, code, numira::Money(currency), false);
        return code;
    }

    std::map<QString, Known> m_byPath;
    std::set<AccountNumber> m_taken;
    std::uint32_t m_last = 0;
};

} // namespace

DraftAccount conversionAccount(const numira::Currency &currency)
{
    return {accounting::AccountTypes::Equity,
            {QStringLiteral("Conversion"), foundation::toQString(currency)},
            currency};
}

AccountPlan planAccounts(const Draft &draft, const std::set<Account> &existing)
{
    Planner planner(existing);
    AccountPlan plan;
    plan.codes.resize(draft.accounts.size());
    // Accounts that want a number get it before others take it as the next one. Parents get
    // theirs before they are opened for a child.
    std::vector<std::size_t> order(draft.accounts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&draft](std::size_t at) {
        const DraftAccount &account = draft.accounts[at];
        return account.number ? account.names.size() : std::numeric_limits<qsizetype>::max();
    });
    for (const std::size_t at : order)
        plan.codes[at] = planner.codeOf(draft.accounts[at]);
    plan.missing = std::move(planner.m_missing);
    return plan;
}

} // namespace kiv::interchange
