// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/statement_books.h"

namespace kiv::workbench {

using banking::BankAccountTypes;
using navigation::Navigator;

namespace {

std::optional<QDate> openedOn(Requests &requests, const accounting::AccountCode &code)
{
    const auto ledger = std::get<accounting::LedgerAccount>(
        requests.ask(&Navigator::showLedger, &Navigator::onSelectedLedger, code));
    const auto opening = ledger.openedBy();
    return opening ? std::optional(requests.transaction(*opening).occurredOn()) : std::nullopt;
}

/// The accounts of all banks.
std::set<accounting::AccountNumber> keptByBanks(Requests &requests)
{
    std::set<accounting::AccountNumber> kept;
    for (const auto &[name, bank] : requests.banks()) {
        for (const auto &[number, type] : bank.accounts()) {
            if (type != BankAccountTypes::Cash && type != BankAccountTypes::GoalSubAccount)
                kept.insert(number);
        }
    }
    return kept;
}

} // namespace

interchange::StatementBooks statementBooks(Requests &requests, const accounting::Account &account)
{
    const AccountIndex index = requests.accounts();
    return {account.code(),   account.balance().code(), openedOn(requests, account.code()),
            index.accounts(), requests.transactions(),  keptByBanks(requests)};
}

} // namespace kiv::workbench
