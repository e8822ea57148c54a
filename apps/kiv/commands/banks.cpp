// SPDX-License-Identifier: GPL-3.0-or-later
// banks, bank add|rename|close|open|remove, bank-account
// add|attach|detach|move|replace|rename|remove
#include "commands/account_arguments.h"
#include "commands/commands.h"

#include "output/json.h"
#include "output/survey_report.h"

#include "workbench/document/bank_moves.h"
#include "workbench/document/bank_steps.h"

namespace kiv::app {

using accounting::AccountCode;
using accounting::AccountNumber;
using banking::Bank;
using banking::BankName;
using navigation::Navigator;

namespace {

Report bankReport(Requests &requests, const BankName &name, const QString &sentence)
{
    const banking::BankMap banks = requests.banks();
    QJsonObject json;
    if (banks.hasBank(name))
        json = toJson(banks.bank(name), requests.accounts());
    return Report(json).line(sentence);
}

struct ListBanks {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        QJsonArray banks;
        for (const auto &[name, bank] : call.requests.banks())
            banks.append(toJson(bank, index));
        Report report{QJsonValue(banks)};
        if (banks.isEmpty())
            report.line(QObject::tr("There are no banks."));
        for (const QJsonValue bank : banks) {
            const QString name = bank[QLatin1String("name")].toString();
            report
                .heading(bank[QLatin1String("open")].toBool()
                             ? name
                             : QObject::tr("%1 (closed)").arg(name))
                .table({{QObject::tr("Number"), QStringLiteral("number")},
                        {QObject::tr("Account"), QStringLiteral("name"), plainText},
                        {QObject::tr("Type"), QStringLiteral("type"), wordText},
                        {QObject::tr("Balance"), QStringLiteral("balance")}},
                       bank[QLatin1String("accounts")].toArray(),
                       QObject::tr("There are no accounts."));
        }
        tellDifferences(report, call.document);
        return report;
    }
};

struct AddBank {
    NewName name;

    void declare(Arguments &arguments)
    {
        arguments.required("BANK", name, QObject::tr("Name of the bank"));
    }
    Report run(Call &call) const
    {
        const BankName bank(name.text);
        workbench::addBank(call.requests, bank);
        return bankReport(call.requests, bank, QObject::tr("Added the bank '%1'.").arg(name.text));
    }
};

struct RenameBank {
    QString bank;
    NewName name;

    void declare(Arguments &arguments)
    {
        arguments.required("BANK", bank, QObject::tr("Name of the bank"))
            .required("NEW-NAME", name, QObject::tr("New name"));
    }
    Report run(Call &call) const
    {
        const BankName to(name.text);
        const BankName present = call.requests.bank(bank).name();
        workbench::renameBank(call.requests, present, to);
        return bankReport(call.requests, to,
                          QObject::tr("The bank is now called '%1'.").arg(name.text));
    }
};

/// close, open and remove, which differ in their step and their sentence.
struct BankVerb {
    void (*step)(Requests &, const BankName &);
    QString sentence;
    QString bank = {};

    void declare(Arguments &arguments)
    {
        arguments.required("BANK", bank, QObject::tr("Name of the bank"));
    }
    Report run(Call &call) const
    {
        const BankName name = call.requests.bank(bank).name();
        step(call.requests, name);
        return bankReport(call.requests, name, sentence.arg(bank));
    }
};

struct AddBankAccount {
    NewName name;
    QString bank;
    banking::BankAccountTypes type = banking::BankAccountTypes::Checking;
    std::optional<Amount> balance;
    std::optional<numira::Currency> currency;

    void declare(Arguments &arguments)
    {
        arguments.required("NAME", name, QObject::tr("Name"))
            .required("--bank", bank, QObject::tr("Name of the bank"))
            .optional("--type", type,
                      QObject::tr("Type: checking (default), savings, credit-card, loan, "
                                  "line-of-credit, money-market or cash"))
            .optional("--balance", balance, QObject::tr("Opening balance (default: 0)"))
            .optional("--currency", currency, QObject::tr("Currency (default: the preferred one)"))
            .dated(QObject::tr("Day of the opening balance (default: today)"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        const Bank keeper = requests.bank(bank);
        const numira::Currency code = currency.value_or(requests.preferredCurrency());
        const numira::Money opening = balance ? balance->in(code) : numira::Money(code);
        const AccountNumber added = workbench::addBankAccount(
            call.document, {name.text, keeper.name(), type, opening, call.options.date});
        return accountReport(
            requests, added,
            QObject::tr("Added the account %1 to the bank '%2'.")
                .arg(accounting::presentationText(AccountCode(added, name.text, {})), bank));
    }
};

struct AttachBankAccount {
    QString account;
    QString bank;
    banking::BankAccountTypes type = banking::BankAccountTypes::Unknown;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .required("--bank", bank, QObject::tr("Name of the bank"))
            .required("--type", type,
                      QObject::tr("Type: checking, savings, credit-card, loan, goal-sub-account, "
                                  "line-of-credit, money-market or cash"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const AccountCode code = index.find(account).code();
        const Bank keeper = call.requests.bank(bank);
        workbench::attachBankAccount(call.document, keeper.name(), code.number(), type);
        return bankReport(call.requests, keeper.name(),
                          QObject::tr("Assigned the account %2 to the bank '%1'.")
                              .arg(bank, index.label(code.number())));
    }
};

struct DetachBankAccount {
    QString account;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const AccountCode code = index.find(account).code();
        const banking::BankAccount kept = call.requests.bankAccount(code.number(), account);
        workbench::detachBankAccount(call.requests, kept);
        return bankReport(call.requests, kept.bank,
                          QObject::tr("Separated the account %2 from the bank '%1'.")
                              .arg(kept.bank.institution(), index.label(code.number())));
    }
};

struct MoveBankAccount {
    QString account;
    QString bank;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .required("--to", bank, QObject::tr("Name of the bank that keeps it from now on"));
    }
    Report run(Call &call) const
    {
        const AccountNumber number = call.requests.accounts().find(account).code().number();
        const BankName to = call.requests.bank(bank).name();
        workbench::moveBankAccount(call.document, number, to);
        return bankReport(call.requests, to, workbench::moveDeed(call.requests, number, to).line);
    }
};

struct ReplaceBankAccount {
    QString account;
    QString by;
    bool isKeptOpen = false;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .required("--by", by, QObject::tr("Account of a bank that takes its place"))
            .flag("--keep-open", isKeptOpen,
                  QObject::tr("Do not close it: a statement is still to come"))
            .dated(QObject::tr("Day on which the money goes over (default: today)"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const workbench::Replacement said{index.find(account).code().number(),
                                          index.find(by).code().number(), call.date(), isKeptOpen};
        const workbench::Replaced done = workbench::replaceBankAccount(call.document, said);
        Report report =
            accountReport(call.requests, said.by, workbench::replaceDeed(call.requests, said).line);
        for (const QString &sentence : workbench::toldOf(call.requests, done, said))
            report.line(sentence);
        return report;
    }
};

} // namespace

void addBankCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("banks", QObject::tr("List all banks with their accounts"), Query, ListBanks{});

    CommandGroup bank = root.group("bank", QObject::tr("Add, rename, close or remove a bank"));
    bank.add("add", QObject::tr("Add a bank"), Change, AddBank{});
    bank.add("rename", QObject::tr("Rename a bank"), Change, RenameBank{});
    bank.add("close", QObject::tr("Close a bank and its accounts"), Change,
             BankVerb{workbench::closeBank, QObject::tr("Closed the bank '%1'.")});
    bank.add("open", QObject::tr("Reopen a bank and its accounts"), Change,
             BankVerb{workbench::openBank, QObject::tr("Opened the bank '%1' again.")});
    bank.add("remove", QObject::tr("Remove a bank and its accounts"), Change,
             BankVerb{workbench::removeBank, QObject::tr("Removed the bank '%1'.")});

    CommandGroup account =
        root.group("bank-account", QObject::tr("Add, change or remove an account of a bank"));
    account.add("add", QObject::tr("Add an account to a bank"), Change, AddBankAccount{});
    account.add("attach", QObject::tr("Assign an account of the ledger to a bank"), Change,
                AttachBankAccount{});
    account.add("detach", QObject::tr("Separate an account from its bank; it stays in the ledger"),
                Change, DetachBankAccount{});
    account.add("move", QObject::tr("Give an account to another bank, with all that is set aside"),
                Change, MoveBankAccount{});
    account.add("replace",
                QObject::tr("Change banks: another account takes the money, goals and what is set "
                            "aside"),
                Change, ReplaceBankAccount{});
    account.add("rename", QObject::tr("Change a bank account's number, name or parent"), Change,
                Recode{workbench::bankAccountOutcome, &Navigator::onRenamedBankAccount,
                       QObject::tr("The bank account %1 is now %2.")});
    account.add("remove", QObject::tr("Remove a bank account"), Change,
                AccountVerb{workbench::bankAccountOutcome, &Navigator::onRemovedBankAccount,
                            QObject::tr("Removed the bank account %1.")});
}

} // namespace kiv::app
