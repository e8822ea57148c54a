// SPDX-License-Identifier: GPL-3.0-or-later
// transactions, transaction add|load|update|remove|clear|reconcile|unreconcile, refund,
// refundable
#include "commands/commands.h"
#include "commands/transaction_listing.h"

#include "output/json.h"
#include "parsing/json_input.h"

#include "workbench/requests/entry_forms.h"
#include "workbench/requests/transactions.h"

namespace kiv::app {

using accounting::Transaction;
using accounting::TransactionNumber;
using navigation::Navigator;

namespace {

QString textOf(TransactionNumber number)
{
    return accounting::presentationText(number);
}

struct ListTransactions {
    std::optional<QDate> from;
    std::optional<QDate> to;

    void declare(Arguments &arguments)
    {
        arguments.optional("--from", from, QObject::tr("First day"))
            .optional("--to", to, QObject::tr("Last day"));
    }
    Report run(Call &call) const
    {
        std::vector<Transaction> transactions = call.requests.transactions();
        std::erase_if(transactions, [this](const Transaction &transaction) {
            const QDate date = transaction.occurredOn();
            return (from && date < *from) || (to && date > *to);
        });
        return TransactionListing(std::move(transactions), call.requests.accounts())
            .report(QObject::tr("There are no transactions."));
    }
};

/// A part of a split: "Groceries=40".
struct SplitArgument {
    QString account;
    Amount amount;
};

constexpr const char *valueWord(const SplitArgument *)
{
    return "ACCOUNT=AMOUNT";
}

void readValue(const QString &text, SplitArgument &argument)
{
    const auto [account, amount] = workbench::assignment(text);
    workbench::readValue(amount, argument.amount);
    argument.account = account;
}

/// Several transactions that were paid, or received, in one go.
struct Split {
    std::vector<SplitArgument> lines = {};
    AccountText from = {};
    AccountText to = {};
    QString payee = {};
    QString reason = {};

    void declare(Arguments &arguments)
    {
        arguments
            .several("--split", lines,
                     QObject::tr("Part of what was spent, or with --to earned, such as Food=40 "
                                 "(repeatable)"))
            .optional("--from", from,
                      QObject::tr("With --split, account that paid (default: that of the last time "
                                  "for the first part, or else the first checking account)"))
            .optional("--to", to, QObject::tr("With --split, account that got the money"))
            .optional("--payee", payee, QObject::tr("With --split, who got or gave the money"))
            .optional("--reason", reason, QObject::tr("With --split, what it was for"))
            .exclusive("--from", "--to");
        for (const char *other : {"AMOUNT", "--debit", "--credit", "--description"})
            arguments.exclusive("--split", other);
        for (const char *own : {"--from", "--to", "--payee", "--reason"})
            arguments.only(own, "--split");
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        workbench::SplitEntry entry;
        for (const SplitArgument &line : lines)
            entry.lines.push_back({index.find(line.account).code().number(), line.amount});
        if (!to.text.isEmpty())
            entry.form = workbench::EntryForm::Earned;
        entry.own = workbench::typedPayer(call.requests, from.text + to.text,
                                          *index.find(entry.lines.front().other));
        entry.payee = payee;
        entry.reason = reason;
        entry.day = call.date();
        std::vector<Transaction> posted;
        for (const TransactionNumber number : workbench::enterSplit(call.requests, entry))
            posted.push_back(call.requests.transaction(number));
        return TransactionListing(std::move(posted), call.requests.accounts())
            .report({})
            .line(workbench::splitDeed(call.requests, entry).line);
    }
};

struct AddTransaction {
    std::optional<Amount> amount;
    std::optional<QString> debit;
    std::optional<QString> credit;
    std::optional<QString> description;
    Split split;

    void declare(Arguments &arguments)
    {
        arguments
            .optional("AMOUNT", amount,
                      QObject::tr("Amount, in the currency of the debited account"))
            .optional("--debit", debit, QObject::tr("Account to debit"))
            .optional("--credit", credit, QObject::tr("Account to credit"))
            .optional("--description", description, QObject::tr("Description"));
        split.declare(arguments);
        arguments.dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        if (!split.lines.empty())
            return split.run(call);
        if (!amount)
            throw missing(placeholder("AMOUNT"));
        if (!debit || !credit)
            throw missing(debit ? QStringLiteral("--credit") : QStringLiteral("--debit"));
        const AccountIndex index = call.requests.accounts();
        const accounting::Account &debited = index.find(*debit);
        const Transaction transaction(call.date(), debited.code(), index.find(*credit).code(),
                                      amount->in(debited.balance().code()), description);
        return transactionReport(call.requests, workbench::post(call.requests, transaction),
                                 QObject::tr("Posted transaction %1."));
    }
};

struct LoadTransactions {
    QString file;

    void declare(Arguments &arguments)
    {
        arguments.required("FILE", file,
                           QObject::tr("JSON list of transactions; - for standard input"));
    }
    Report run(Call &call) const
    {
        QJsonArray numbers;
        for (const Transaction &transaction : readTransactions(file, call.requests.accounts()))
            numbers.append(toJson(std::optional(workbench::post(call.requests, transaction))));
        return Report(QJsonObject{{QStringLiteral("posted"), numbers}})
            .line(
                QObject::tr("Posted %n transactions.", nullptr, static_cast<int>(numbers.size())));
    }
};

struct UpdateTransaction {
    TransactionNumber number;
    std::optional<Amount> amount;
    std::optional<QString> debit;
    std::optional<QString> credit;
    std::optional<QString> description;

    void declare(Arguments &arguments)
    {
        arguments.required("NUMBER", number, QObject::tr("Number of the transaction"))
            .optional("--amount", amount, QObject::tr("Amount"))
            .optional("--debit", debit, QObject::tr("Account to debit"))
            .optional("--credit", credit, QObject::tr("Account to credit"))
            .optional("--description", description, QObject::tr("Description"))
            .dated(QObject::tr("Day"));
    }
    Report run(Call &call) const
    {
        if (!amount && !debit && !credit && !description && !call.options.date)
            throw nothingToChange();
        workbench::changeTransaction(call.requests, number,
                                     {call.options.date, amount, debit, credit, description});
        return transactionReport(call.requests, number, QObject::tr("Changed transaction %1."));
    }
};

/// remove, reconcile, clear and unreconcile. The slots of the first two take one number,
/// those of the others all numbers.
struct TransactionVerb {
    std::variant<void (Navigator::*)(const TransactionNumber &),
                 void (Navigator::*)(const std::set<TransactionNumber> &)>
        slot;
    const char *sentence; ///< marked for translation, with a singular form
    std::vector<TransactionNumber> numbers = {};

    void declare(Arguments &arguments)
    {
        arguments.severalRequired("NUMBER", numbers, QObject::tr("Numbers of the transactions"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        const std::set<TransactionNumber> all(numbers.begin(), numbers.end());
        if (const auto *forAll = std::get_if<1>(&slot)) {
            requests.change(workbench::transactionOutcome, *forAll, all);
        } else {
            for (const TransactionNumber number : all)
                requests.change(workbench::transactionOutcome, std::get<0>(slot), number);
        }
        QJsonArray json;
        QStringList texts;
        for (const TransactionNumber number : all) {
            json.append(toJson(std::optional(number)));
            texts += textOf(number);
        }
        return Report(QJsonObject{{QStringLiteral("transactions"), json}})
            .line(QObject::tr(sentence, nullptr, static_cast<int>(all.size()))
                      .arg(texts.join(QStringLiteral(", "))));
    }
};

struct Refund {
    TransactionNumber number;
    Amount amount;

    void declare(Arguments &arguments)
    {
        arguments.required("NUMBER", number, QObject::tr("Number of the transaction to refund"))
            .required("AMOUNT", amount, QObject::tr("Amount"))
            .dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        const TransactionNumber refund =
            workbench::refund(call.requests, number, amount, call.options.date);
        return transactionReport(call.requests, refund,
                                 QObject::tr("Posted the refund as transaction %1."));
    }
};

struct ListRefundable {
    QString name;
    std::optional<budgeting::BudgetItemTypes> kind;

    void declare(Arguments &arguments)
    {
        arguments.required("ITEM", name, QObject::tr("Name of the budget item"))
            .optional(
                "--kind", kind,
                QObject::tr(
                    "Kind, if several items have the name: bill, debt, goal, nontrack or wage"));
    }
    Report run(Call &call) const
    {
        const BudgetView view(call.requests);
        const auto answer = call.requests.ask(&Navigator::lookedUpRefundableTransactions,
                                              &Navigator::onLookUpRefundableTransactions,
                                              identify(view.find(name, kind)));
        const auto &refundable = std::get<std::set<Transaction>>(answer);
        return TransactionListing({refundable.begin(), refundable.end()}, call.requests.accounts())
            .report(QObject::tr("There are no refundable transactions."));
    }
};

} // namespace

void addTransactionCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("transactions", QObject::tr("List all transactions"), Query, ListTransactions{});

    CommandGroup transaction =
        root.group("transaction", QObject::tr("Add, change, mark or remove transactions"));
    transaction.add("add", QObject::tr("Post a transaction"), Entry, AddTransaction{});
    transaction.add("load", QObject::tr("Post all transactions of a JSON file"), Change,
                    LoadTransactions{});
    transaction.add("update", QObject::tr("Change the given values of a transaction"), Entry,
                    UpdateTransaction{});
    transaction.add(
        "remove", QObject::tr("Remove transactions"), Change,
        TransactionVerb{&Navigator::onRemovedTransaction,
                        QT_TRANSLATE_N_NOOP("QObject", "Removed the transactions %1.")});
    transaction.add(
        "clear", QObject::tr("Mark transactions as cleared by the bank"), Change,
        TransactionVerb{&Navigator::onMarkCleared,
                        QT_TRANSLATE_N_NOOP("QObject", "Cleared the transactions %1.")});
    transaction.add(
        "reconcile", QObject::tr("Mark transactions as reconciled with a statement"), Change,
        TransactionVerb{&Navigator::onMarkReconciled,
                        QT_TRANSLATE_N_NOOP("QObject", "Reconciled the transactions %1.")});
    transaction.add(
        "unreconcile", QObject::tr("Undo the reconciliation of transactions"), Change,
        TransactionVerb{
            &Navigator::onMarkUnreconciled,
            QT_TRANSLATE_N_NOOP("QObject", "Undid the reconciliation of the transactions %1.")});

    root.add("refundable", QObject::tr("List refundable transactions of a budget item"), Query,
             ListRefundable{});
    root.add("refund", QObject::tr("Post a refund of a transaction"), Entry, Refund{});
}

} // namespace kiv::app
