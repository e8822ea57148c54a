// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank_map.h"

#include "banking/internal/faults.h"

#include "foundation/streams.h"

#include <algorithm>
#include <ranges>

namespace kiv::banking {
namespace {

/// What kind the account is of tells on which side it stands, so each has one.
void checkKinds(const Bank::Accounts &accounts)
{
    for (const auto &[number, type] : accounts)
        static_cast<void>(toAccountTypes(type));
}

} // namespace

std::set<BankName> BankMap::names() const
{
    std::set<BankName> names;
    for (const auto &[name, bank] : m_banks)
        names.insert(names.end(), name);
    return names;
}

bool BankMap::hasBank(const BankName &name) const
{
    return m_banks.contains(name);
}

const Bank &BankMap::bank(const BankName &name) const
{
    const auto found = m_banks.find(name);
    if (found == end())
        throw internal::bankNotFound(name);
    return found->second;
}

std::optional<BankName> BankMap::find(accounting::AccountNumber number) const
{
    const auto found = std::ranges::find_if(
        m_banks, [&](const auto &entry) { return entry.second.accounts().contains(number); });
    return found == end() ? std::nullopt : std::optional(found->first);
}

void BankMap::add(const Bank &bank)
{
    if (bank.name().institution().isEmpty())
        throw internal::emptyBankName(bank.name());
    checkKinds(bank.accounts());
    if (!m_banks.try_emplace(bank.name(), bank).second)
        throw internal::bankExists(bank.name());
}

void BankMap::add(const BankName &name, accounting::AccountNumber number, BankAccountTypes type)
{
    const Bank &stored = bank(name);
    Bank::Accounts accounts = stored.accounts();
    accounts.insert_or_assign(number, type);
    checkKinds(accounts);
    replace(Bank(name, std::move(accounts), stored.isClosed()));
}

void BankMap::remove(const BankName &name)
{
    if (m_banks.erase(name) == 0)
        throw internal::bankNotFound(name);
}

void BankMap::remove(const BankName &name, accounting::AccountNumber number)
{
    const Bank &stored = bank(name);
    Bank::Accounts accounts = stored.accounts();
    if (accounts.erase(number) == 0)
        throw internal::bankAccountNotFound(name, number);
    replace(Bank(name, std::move(accounts), stored.isClosed()));
}

void BankMap::update(const Bank &bank)
{
    const Bank &stored = this->bank(bank.name());
    checkKinds(bank.accounts());
    replace(Bank(bank.name(), bank.accounts(), stored.isClosed()));
}

void BankMap::rename(const BankName &from, const BankName &to)
{
    const Bank &stored = bank(from);
    if (to.institution().isEmpty())
        throw internal::emptyBankName(to);
    if (hasBank(to))
        throw internal::bankExists(to);
    m_banks.emplace(to, Bank(to, stored.accounts(), stored.isClosed()));
    m_banks.erase(m_banks.find(from));
}

void BankMap::open(const BankName &name)
{
    const Bank &stored = bank(name);
    if (!stored.isClosed())
        throw internal::bankAlreadyOpen(name);
    replace(Bank(name, stored.accounts(), false));
}

void BankMap::close(const BankName &name)
{
    const Bank &stored = bank(name);
    if (stored.isClosed())
        throw internal::bankAlreadyClosed(name);
    replace(Bank(name, stored.accounts(), true));
}

void BankMap::replace(Bank bank)
{
    m_banks.at(bank.name()) = std::move(bank);
}

std::ostream &operator<<(std::ostream &out, const BankMap &banks)
{
    return foundation::streamRange(out, banks | std::views::values);
}

} // namespace kiv::banking
