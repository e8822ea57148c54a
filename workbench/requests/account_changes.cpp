// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/account_changes.h"

#include "workbench/requests/other_day.h"

namespace kiv::workbench {

using accounting::AccountNumber;

AccountNumber addAccount(Requests &requests, const NewAccount &account)
{
    const AccountNumber number =
        account.number ? *account.number : requests.accounts().nextNumber();
    const accounting::AccountCode code(number, account.name, account.parent);
    requests.change(accountOutcome, &navigation::Navigator::onAddedAct,
                    accounting::Account(account.type, code, account.opening, false));
    openOn(requests, number, account.openedOn);
    return number;
}

} // namespace kiv::workbench
