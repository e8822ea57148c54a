// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/other_day.h"

namespace kiv::workbench {

using accounting::AccountCode;
using navigation::Navigator;

void moveTo(Requests &requests, accounting::TransactionNumber number,
            const std::optional<QDate> &day)
{
    if (!day)
        return;
    const accounting::Transaction posted = requests.transaction(number);
    const accounting::Transaction moved(*day, posted.debiting(), posted.crediting(),
                                        posted.amount(), posted.description());
    requests.change(transactionOutcome, &Navigator::onUpdatedTransaction, number, moved);
}

void openOn(Requests &requests, accounting::AccountNumber account, const std::optional<QDate> &day)
{
    if (!day)
        return;
    const auto ledger = std::get<accounting::LedgerAccount>(requests.ask(
        &Navigator::showLedger, &Navigator::onSelectedLedger, AccountCode(account, std::nullopt)));
    if (const auto opening = ledger.openedBy())
        moveTo(requests, *opening, day);
}

void openNewOn(Requests &requests, const std::optional<QDate> &day,
               const std::function<void()> &add)
{
    if (!day)
        return add();
    const AccountIndex before = requests.accounts();
    add();
    const AccountIndex after = requests.accounts();
    for (const accounting::Account &account : after.accounts()) {
        const accounting::AccountNumber number = account.code().number();
        if (!before.find(number))
            openOn(requests, number, day);
    }
}

} // namespace kiv::workbench
