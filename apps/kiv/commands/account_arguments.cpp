// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/account_arguments.h"

#include "output/json.h"

namespace kiv::app {

using accounting::AccountCode;
using accounting::AccountNumber;
using navigation::Navigator;

void CodeChange::declare(Arguments &arguments)
{
    arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
        .optional("--number", number, QObject::tr("New number"))
        .optional("--name", name, QObject::tr("New name"))
        .optional("--under", parent, QObject::tr("New parent account"))
        .flag("--top-level", isTopLevel, QObject::tr("Remove the parent account"))
        .exclusive("--under", "--top-level");
}

AccountCode CodeChange::from(const AccountIndex &index) const
{
    return index.find(account).code();
}

AccountCode CodeChange::to(const AccountIndex &index) const
{
    const AccountCode present = from(index);
    std::optional<AccountNumber> under = present.parent();
    if (parent)
        under = index.find(*parent).code().number();
    else if (isTopLevel)
        under = std::nullopt;
    AccountCode changed(number.value_or(present.number()), name ? name->text : present.name(),
                        under);
    if (changed == present)
        throw nothingToChange();
    return changed;
}

Report accountReport(Requests &requests, AccountNumber number, const QString &sentence)
{
    const AccountIndex index = requests.accounts();
    const accounting::Account *account = index.find(number);
    return Report(account ? toJson(*account, index) : QJsonObject()).line(sentence);
}

} // namespace kiv::app
