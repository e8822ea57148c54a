// SPDX-License-Identifier: GPL-3.0-or-later
// accounts, ledger, account add|recode|convert|close|open|remove
#include "commands/account_arguments.h"
#include "commands/commands.h"

#include "output/json.h"
#include "output/survey_report.h"

#include "workbench/document/account_conversion.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/account_changes.h"
#include "workbench/requests/account_groups.h"
#include "workbench/requests/balances.h"

namespace kiv::app {

using accounting::Account;
using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using navigation::Navigator;
using workbench::GroupedAccount;

namespace {

/// "closed" for people; nothing for an open account.
QString openWord(const QJsonValue &isOpen)
{
    return isOpen.toBool() ? QString() : QObject::tr("closed");
}

/// A remark about an account whose reconciliations do not all hold.
QString reconciledText(const QJsonValue &isReconciled)
{
    return isReconciled.toBool(true) ? QString() : QObject::tr("not as reconciled");
}

struct ListAccounts {
    std::optional<accounting::AccountTypes> type;
    std::optional<QDate> day;
    bool isOpenOnly = false;

    void declare(Arguments &arguments)
    {
        arguments
            .optional(
                "--type", type,
                QObject::tr(
                    "Only accounts of this type: asset, equity, expense, liability or income"))
            .optional("--on", day, QObject::tr("Balances at the end of this day (default: now)"))
            .flag("--open", isOpenOnly, QObject::tr("Only open accounts"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        std::vector<GroupedAccount> shown =
            workbench::groupedAccounts(call.document.present(), day);
        std::erase_if(shown, [this](const GroupedAccount &one) {
            // On another day a closed account may have been in use.
            const bool isUnused =
                one.account.isClosed() && (!day || one.account.balance().isZero());
            return (type && one.account.type() != *type) || (isOpenOnly && isUnused);
        });
        std::map<QString, QJsonObject> byPath;
        for (const GroupedAccount &one : shown) {
            QJsonObject row = toJson(one.account, index);
            if (hasGoals(one))
                row.insert(whole, toJson(one.whole));
            byPath.emplace(index.path(one.account.code().number()), row);
        }
        QJsonArray rows;
        for (auto &[path, row] : byPath)
            rows.append(row);
        // Of another day nobody knows what was reconciled.
        if (!day)
            tellReconciled(call.document, rows);
        Report report =
            Report::listing(columns(shown), rows, QObject::tr("There are no accounts."));
        for (const QString &text :
             workbench::totalTexts(workbench::totalsOf(shown), call.document.displayAs()))
            report.line(text);
        if (!day)
            tellDifferences(report, call.document);
        return report;
    }

private:
    inline static const QString whole = QStringLiteral("withGoals");

    /// Whether the bank shows more than the account has, since goals lie under it.
    static bool hasGoals(const GroupedAccount &one)
    {
        return one.bank && one.whole != one.account.balance();
    }
    static std::vector<Column> columns(const std::vector<GroupedAccount> &shown)
    {
        std::vector<Column> columns{{QObject::tr("Number"), QStringLiteral("number")},
                                    {QObject::tr("Account"), QStringLiteral("path"), plainText},
                                    {QObject::tr("Balance"), QStringLiteral("balance")},
                                    {QString(), QStringLiteral("open"), openWord},
                                    {QString(), QStringLiteral("asReconciled"), reconciledText}};
        if (std::ranges::any_of(shown, hasGoals))
            columns.insert(columns.begin() + 3, {QObject::tr("With goals under it"), whole});
        return columns;
    }
    static void tellReconciled(Document &document, QJsonArray &rows)
    {
        std::map<AccountNumber, numira::Money> differences;
        for (const workbench::BooksDifference &one : booksDifferences(document))
            differences.emplace(one.account.account.number, one.amount);
        const std::map<AccountNumber, bool> reconciled = document.reconciledAccounts();
        for (QJsonValueRef value : rows) {
            QJsonObject row = value.toObject();
            const AccountNumber number(
                static_cast<std::uint32_t>(row[QLatin1String("number")].toInteger()));
            if (const auto found = reconciled.find(number); found != reconciled.end())
                row.insert(QStringLiteral("asReconciled"), found->second);
            if (const auto found = differences.find(number); found != differences.end())
                row.insert(QStringLiteral("bankDifference"), toJson(found->second));
            value = row;
        }
    }
};

struct ShowLedger {
    QString account;
    std::optional<QDate> from;
    std::optional<QDate> to;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .optional("--from", from, QObject::tr("First day"))
            .optional("--to", to, QObject::tr("Last day"));
    }

    Report run(Call &call) const
    {
        const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
        auto ledger = std::get<accounting::LedgerAccount>(call.requests.ask(
            &Navigator::showLedger, &Navigator::onSelectedLedger, index->find(account).code()));
        const QString heading = index->label(ledger.code().number());
        QJsonObject data{{QStringLiteral("account"), toJson(ledger, *index)}};
        numira::Money together(ledger.balance().code());
        const Rows rows = rowsOf(std::move(ledger), index, together);
        Report report =
            Report(std::move(data), QStringLiteral("transactions"), rows)
                .heading(heading)
                .table(
                    {{QObject::tr("Number"), QStringLiteral("number")},
                     {QObject::tr("Date"), QStringLiteral("date"), dayText},
                     {QObject::tr("Description"), QStringLiteral("description"), descriptionText},
                     {QObject::tr("Other account"), QStringLiteral("other"), accountText(index)},
                     {QObject::tr("Change"), QStringLiteral("change")},
                     {QObject::tr("Balance"), QStringLiteral("balance")},
                     {QObject::tr("Status"), QStringLiteral("status"), statusText}},
                    rows, QObject::tr("There are no transactions."));
        if (rows.size() > 1)
            report.line(
                QObject::tr("%n transactions, together %1.", nullptr, static_cast<int>(rows.size()))
                    .arg(workbench::amountText(together, call.document.displayAs())));
        return report;
    }

private:
    /// A transaction of the account, and the balance after it.
    struct Entry {
        TransactionNumber number;
        numira::Money balance;
    };
    struct Lines {
        accounting::LedgerAccount ledger;
        std::shared_ptr<const AccountIndex> index;
        std::vector<Entry> entries;

        [[nodiscard]] QJsonObject row(const Entry &entry) const
        {
            const Transaction transaction = ledger.transactions().find(entry.number).value();
            const AccountNumber number = ledger.code().number();
            const AccountCode &other = transaction.debiting().number() == number
                                           ? transaction.crediting()
                                           : transaction.debiting();
            QJsonObject row = toJson(transaction);
            row.insert(QStringLiteral("change"), toJson(workbench::changeOf(transaction, ledger)));
            row.insert(QStringLiteral("balance"), toJson(entry.balance));
            row.insert(QStringLiteral("status"), accounting::toQString(transaction.status()));
            row.insert(QStringLiteral("other"), toJson(other.number()));
            row.insert(QStringLiteral("otherPath"), index->path(other.number()));
            return row;
        }
    };

    /// The account's transactions by day, with the balance after each. Adds the changes of those
    /// that are shown to `together`.
    [[nodiscard]] Rows rowsOf(accounting::LedgerAccount ledger,
                              std::shared_ptr<const AccountIndex> index,
                              numira::Money &together) const
    {
        std::vector<std::pair<QDate, TransactionNumber>> byDay;
        for (const Transaction &transaction : ledger.transactions())
            byDay.emplace_back(transaction.occurredOn(), transaction.number().value());
        std::ranges::sort(byDay);
        std::vector<Entry> entries;
        numira::Money balance(ledger.balance().code());
        for (const auto &[day, number] : byDay) {
            const numira::Money change =
                workbench::changeOf(ledger.transactions().find(number).value(), ledger);
            balance += change;
            if ((from && day < *from) || (to && day > *to))
                continue;
            together += change;
            entries.push_back({number, balance});
        }
        const auto lines =
            std::make_shared<const Lines>(std::move(ledger), std::move(index), std::move(entries));
        return {static_cast<qsizetype>(lines->entries.size()), [lines](qsizetype at) {
                    return lines->row(lines->entries[static_cast<std::size_t>(at)]);
                }};
    }
};

struct AddAccount {
    NewName name;
    accounting::AccountTypes type = accounting::AccountTypes::Unknown;
    std::optional<AccountNumber> number;
    std::optional<QString> parent;
    std::optional<Amount> balance;
    std::optional<numira::Currency> currency;

    void declare(Arguments &arguments)
    {
        arguments.required("NAME", name, QObject::tr("Name"))
            .required("--type", type,
                      QObject::tr("Type: asset, equity, expense, liability or income"))
            .optional("--number", number, QObject::tr("Number (default: the next free one)"))
            .optional("--under", parent, QObject::tr("Parent account"))
            .optional("--balance", balance, QObject::tr("Opening balance (default: 0)"))
            .optional("--currency", currency, QObject::tr("Currency (default: the preferred one)"))
            .dated(QObject::tr("Day of the opening balance (default: today)"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        const numira::Currency code = currency.value_or(requests.preferredCurrency());
        std::optional<AccountNumber> under;
        if (parent)
            under = requests.accounts().find(*parent).code().number();
        const numira::Money opening = balance ? balance->in(code) : numira::Money(code);
        const AccountNumber chosen = workbench::addAccount(
            requests, {name.text, type, opening, number, under, call.options.date});
        return accountReport(requests, chosen,
                             QObject::tr("Added the account %1 %2.")
                                 .arg(accounting::presentationText(chosen), name.text));
    }
};

struct ConvertAccount {
    QString account;
    accounting::AccountTypes type = accounting::AccountTypes::Unknown;
    std::optional<banking::BankAccountTypes> kind;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .required("--type", type,
                      QObject::tr("Type: asset, equity, expense, liability or income"))
            .optional("--bank-type", kind,
                      QObject::tr("What it is to its bank then: checking, savings, credit-card, "
                                  "loan … (default: checking or credit-card)"));
    }
    Report run(Call &call) const
    {
        const workbench::Conversion said{call.requests.accounts().find(account).code().number(),
                                         type, kind};
        const workbench::Converted done = workbench::convertAccount(call.document, said);
        Report report = accountReport(call.requests, said.account,
                                      workbench::convertDeed(call.requests, said).line);
        for (const QString &sentence : workbench::toldOf(call.requests, done, said))
            report.line(sentence);
        return report;
    }
};

} // namespace

void addAccountCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("accounts", QObject::tr("List all accounts with their balances"), Query,
             ListAccounts{});
    root.add("ledger", QObject::tr("List the transactions of an account"), Query, ShowLedger{});

    CommandGroup account =
        root.group("account", QObject::tr("Add, change, close or remove an account"));
    account.add("add", QObject::tr("Add an account"), Change, AddAccount{});
    account.add("recode", QObject::tr("Change an account's number, name or parent"), Change,
                Recode{workbench::accountOutcome, &Navigator::onRecoded,
                       QObject::tr("The account %1 is now %2.")});
    account.add("convert", QObject::tr("Correct the type of an account; its transactions stay"),
                Change, ConvertAccount{});
    account.add("close", QObject::tr("Close an account"), Change,
                AccountVerb{workbench::accountOutcome, &Navigator::onClosed,
                            QObject::tr("Closed the account %1.")});
    account.add("open", QObject::tr("Reopen an account"), Change,
                AccountVerb{workbench::accountOutcome, &Navigator::onOpened,
                            QObject::tr("Opened the account %1 again.")});
    account.add("remove", QObject::tr("Remove an account without transactions"), Change,
                AccountVerb{workbench::accountOutcome, &Navigator::onRemovedAct,
                            QObject::tr("Removed the account %1.")});
}

} // namespace kiv::app
