// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/reconciliation_check.h"

#include <algorithm>
#include <limits>

namespace kiv::surveying {
namespace {

using accounting::AccountNumber;
using accounting::GeneralLedger;
using accounting::TransactionNumber;
using accounting::TransactionOutline;
using accounting::TransactionStatuses;

/// Whether the side of the account is reconciled; either side for a transaction of an
/// account below it.
bool isReconciled(const TransactionOutline &outline, AccountNumber account)
{
    const bool isDebit = outline.debitStatus == TransactionStatuses::Reconciled;
    const bool isCredit = outline.creditStatus == TransactionStatuses::Reconciled;
    if (account == outline.debit)
        return isDebit;
    if (account == outline.credit)
        return isCredit;
    return isDebit || isCredit;
}

std::optional<Departure> departureOf(const ReconciledTransaction &then, AccountNumber account,
                                     const std::optional<TransactionOutline> &now)
{
    if (!now)
        return Departure::Gone;
    if (now->occurredOn != then.day || now->amount != then.amount || now->debit != then.debit ||
        now->credit != then.credit)
        return Departure::Changed;
    return isReconciled(*now, account) ? std::nullopt : std::optional(Departure::Unreconciled);
}

/// Adds the fault of a transaction, if it has one.
void judge(const Reconciliations &all, std::size_t reconciliation, std::size_t transaction,
           const GeneralLedger &ledger, std::vector<ReconciliationFault> &faults)
{
    const ReconciledTransaction &then = all[reconciliation].transactions[transaction];
    const AccountNumber account = all[reconciliation].account.account.number;
    const auto departure = departureOf(then, account, ledger.lookUpOutline(then.number));
    if (departure) {
        faults.push_back({reconciliation, transaction, *departure, then,
                          reconciledTransaction(ledger, then.number)});
    }
}

} // namespace

bool isBreach(Departure departure) noexcept
{
    return departure != Departure::Unreconciled;
}

std::vector<ReconciliationFault> reconciliationFaults(const Reconciliations &all,
                                                      const GeneralLedger &ledger)
{
    std::vector<ReconciliationFault> faults;
    for (std::size_t one = 0; one < all.size(); ++one) {
        for (std::size_t each = 0; each < all[one].transactions.size(); ++each)
            judge(all, one, each, ledger, faults);
    }
    return faults;
}

void ReconciliationIndex::follow(const Reconciliations &all)
{
    m_first.resize(std::size_t{std::numeric_limits<std::uint16_t>::max()} + 1);
    for (; m_followed < all.size(); ++m_followed) {
        const auto &transactions = all[m_followed].transactions;
        for (std::size_t each = 0; each < transactions.size(); ++each) {
            std::uint32_t &first = m_first[transactions[each].number.integer()];
            m_places.push_back(
                {static_cast<std::uint32_t>(m_followed), static_cast<std::uint32_t>(each), first});
            first = static_cast<std::uint32_t>(m_places.size());
        }
    }
}

std::vector<ReconciliationFault>
ReconciliationIndex::faults(const Reconciliations &all, const GeneralLedger &ledger,
                            std::span<const TransactionNumber> numbers) const
{
    std::vector<ReconciliationFault> found;
    for (const TransactionNumber number : numbers) {
        std::uint32_t place = m_first.empty() ? 0 : m_first[number.integer()];
        for (; place != 0; place = m_places[place - 1].next) {
            const Place &at = m_places[place - 1];
            judge(all, at.reconciliation, at.transaction, ledger, found);
        }
    }
    std::ranges::sort(found, {}, [](const ReconciliationFault &fault) {
        return std::pair(fault.reconciliation, fault.transaction);
    });
    return found;
}

} // namespace kiv::surveying
