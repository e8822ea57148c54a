// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/bank_steps.h"

#include "workbench/internal/faults.h"
#include "workbench/requests/other_day.h"

namespace kiv::workbench {

using accounting::AccountCode;
using banking::Bank;
using banking::BankName;
using navigation::Navigator;

namespace {

std::vector<AccountCode> closedAccounts(Requests &requests, const Bank &bank)
{
    const AccountIndex index = requests.accounts();
    std::vector<AccountCode> closed;
    for (const auto &[number, type] : bank.accounts()) {
        const accounting::Account *account = index.find(number);
        if (account && account->isClosed())
            closed.push_back(account->code());
    }
    return closed;
}

void keep(Requests &requests, const BankName &name, Bank::Accounts accounts)
{
    requests.change(bankOutcome, &Navigator::onBankUpdated, Bank(name, std::move(accounts), false));
}

void refuseOtherNature(Requests &requests, accounting::AccountNumber number,
                       banking::BankAccountTypes kind)
{
    const AccountIndex index = requests.accounts();
    const accounting::Account *account = index.find(number);
    const bool isAsset = banking::isAssetAccount(kind);
    if (!account || kind == banking::BankAccountTypes::Unknown ||
        account->type() ==
            (isAsset ? accounting::AccountTypes::Asset : accounting::AccountTypes::Liability))
        return;
    throw internal::typeDoesNotFit(index.plainName(number),
                                   accounting::presentationText(account->type()),
                                   banking::presentationText(kind));
}

} // namespace

void addBank(Requests &requests, const BankName &name)
{
    requests.change(bankOutcome, &Navigator::onBankAdded, Bank(name, {}, false));
}

void renameBank(Requests &requests, const BankName &name, const BankName &to)
{
    requests.change(bankOutcome, &Navigator::onBankRenamed, name, to);
}

void removeBank(Requests &requests, const BankName &name)
{
    requests.change(bankOutcome, &Navigator::onBankRemoved, name);
}

void closeBank(Requests &requests, const BankName &name)
{
    // The Navigator closes the accounts one by one, and stops at a closed one.
    const Bank bank = requests.bank(name.institution());
    std::vector<AccountCode> opened;
    // Closing them again cannot fail: they were closed before.
    auto undo = qScopeGuard([&] {
        requests.within([&] {
            for (const AccountCode &code : opened)
                requests.navigator().onClosed(code);
        });
    });
    if (!bank.isClosed()) {
        for (const AccountCode &code : closedAccounts(requests, bank)) {
            requests.change(accountOutcome, &Navigator::onOpened, code);
            opened.push_back(code);
        }
    }
    requests.change(bankOutcome, &Navigator::onBankClosed, name);
    undo.dismiss();
}

void openBank(Requests &requests, const BankName &name)
{
    const bool wasClosed = requests.bank(name.institution()).isClosed();
    try {
        requests.change(bankOutcome, &Navigator::onBankOpened, name);
    } catch (const Refusal &) {
        // The Navigator opens the accounts one by one, and stops at an open one; the
        // bank itself is open then.
        const Bank bank = requests.bank(name.institution());
        if (!wasClosed || bank.isClosed())
            throw;
        for (const AccountCode &code : closedAccounts(requests, bank))
            requests.change(accountOutcome, &Navigator::onOpened, code);
    }
}

accounting::AccountNumber addBankAccount(Document &document, const NewBankAccount &account)
{
    Requests &requests = document.requests();
    const auto answers = requests.change(bankAccountOutcome, &Navigator::onAddedBankAccount,
                                         account.name, account.kind, account.opening);
    const accounting::AccountNumber added = std::get<AccountCode>(answers.front()).number();
    attachBankAccount(document, account.bank, added, account.kind);
    openOn(requests, added, account.openedOn);
    return added;
}

void attachBankAccount(Document &document, const BankName &bank, accounting::AccountNumber account,
                       banking::BankAccountTypes kind)
{
    Requests &requests = document.requests();
    refuseOtherNature(requests, account, kind);
    const Bank::Accounts before = requests.bank(bank.institution()).accounts();
    Bank::Accounts after = before;
    // The type of a bank account cannot be changed, so the account leaves its bank
    // first.
    const auto kept = before.find(account);
    const bool isOtherKind = kept != before.end() && kept->second != kind;
    if (isOtherKind) {
        after.erase(account);
        keep(requests, bank, after);
    }
    after.insert_or_assign(account, kind);
    try {
        keep(requests, bank, after);
    } catch (const Refusal &) {
        if (isOtherKind)
            keep(requests, bank, before);
        throw;
    }
    document.mend();
}

void detachBankAccount(Requests &requests, const banking::BankAccount &account)
{
    Bank::Accounts accounts = requests.bank(account.bank.institution()).accounts();
    accounts.erase(account.account.number);
    keep(requests, account.bank, std::move(accounts));
}

} // namespace kiv::workbench
