// SPDX-License-Identifier: GPL-3.0-or-later
// explain balance|share|conversion|set-aside|free|tolerance|health|outlook
#include "commands/commands.h"

#include "output/json.h"

#include "workbench/explain/explainer.h"

#include "foundation/presentation.h"

namespace kiv::app {

using accounting::AccountNumber;
using workbench::ExplainedLine;
using workbench::Explainer;
using workbench::Explanation;

namespace {

QJsonObject explainedJson(const ExplainedLine &line)
{
    return {
        {QStringLiteral("role"), QLatin1String(wordOf(line.role))},
        {QStringLiteral("text"), line.text},
        {QStringLiteral("amount"), line.amount ? QJsonValue(toJson(*line.amount)) : QJsonValue()},
        {QStringLiteral("factor"),
         line.factor ? QJsonValue(QString::fromStdString(line.factor->str())) : QJsonValue()},
        {QStringLiteral("date"), toJson(line.day)},
        {QStringLiteral("transaction"), toJson(line.entry)}};
}

QJsonObject explanationJson(const Explanation &one)
{
    QJsonArray lines;
    for (const ExplainedLine &line : one.lines)
        lines.append(explainedJson(line));
    const auto *amount = std::get_if<numira::Money>(&one.figure);
    const auto *percent = std::get_if<numira::Decimal>(&one.figure);
    return {{QStringLiteral("title"), one.title},
            {QStringLiteral("amount"), amount ? QJsonValue(toJson(*amount)) : QJsonValue()},
            {QStringLiteral("percent"),
             percent ? QJsonValue(QString::fromStdString(percent->toText())) : QJsonValue()},
            {QStringLiteral("lines"), lines}};
}

/// The explanations, each a table that ends with its figure.
Report explained(Call &call, const std::vector<Explanation> &all)
{
    const auto displayAs = call.document.displayAs();
    QJsonArray data;
    for (const Explanation &one : all)
        data.append(explanationJson(one));
    Report report{QJsonValue(data)};
    const QString what = QStringLiteral("what");
    const QString value = QStringLiteral("value");
    for (const Explanation &one : all) {
        QJsonArray rows;
        for (const ExplainedLine &line : one.lines)
            rows.append(QJsonObject{{what, line.text},
                                    {QStringLiteral("date"), toJson(line.day)},
                                    {QStringLiteral("transaction"), toJson(line.entry)},
                                    {value, line.amount ? QJsonValue(toJson(line.amount->rounded()))
                                                        : QJsonValue(line.valueText(displayAs))}});
        report.heading(one.heading(displayAs))
            .table({{QObject::tr("What"), what},
                    {QObject::tr("Date"), QStringLiteral("date"), dayText},
                    {QObject::tr("Transaction"), QStringLiteral("transaction")},
                    {QObject::tr("Amount"), value}},
                   rows, QString());
    }
    return report;
}

AccountNumber accountOf(Call &call, const QString &text)
{
    return call.requests.accounts().find(text).code().number();
}

budgeting::BudgetItemIdentifier itemOf(Call &call, const QString &text)
{
    return BudgetView(call.requests).findTyped(text);
}

struct ExplainBalance {
    QString account;
    std::optional<QDate> day;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .optional("--on", day, QObject::tr("Day of the balance (default: all transactions)"));
    }
    Report run(Call &call) const
    {
        return explained(
            call, {Explainer(call.document, call.date()).balance(accountOf(call, account), day)});
    }
};

struct ExplainShare {
    QString item;

    void declare(Arguments &arguments)
    {
        arguments.required("ITEM", item, QObject::tr("Budget item"));
    }
    Report run(Call &call) const
    {
        return explained(call, {Explainer(call.document, call.date()).share(itemOf(call, item))});
    }
};

struct ExplainConversion {
    std::optional<Amount> amount;
    std::optional<numira::Currency> currency;
    std::optional<accounting::TransactionNumber> entry;

    void declare(Arguments &arguments)
    {
        arguments.optional("AMOUNT", amount, QObject::tr("Amount, such as '100 EUR'"))
            .optional("CURRENCY", currency,
                      QObject::tr("Currency of the result (default: the preferred one)"))
            .optional("--entry", entry,
                      QObject::tr("Transaction whose sides were converted when it was posted"))
            .exclusive("--entry", "AMOUNT");
    }
    Report run(Call &call) const
    {
        const Explainer explainer(call.document, call.date());
        if (entry)
            return explained(call, explainer.conversions(*entry));
        if (!amount)
            throw UsageError(QObject::tr("Give an amount, or a transaction with --entry."));
        const numira::Currency preferred = call.requests.preferredCurrency();
        return explained(
            call, {explainer.conversion(amount->in(preferred), currency.value_or(preferred))});
    }
};

struct ExplainSetAside {
    QString account;
    QString item;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .required("ITEM", item, QObject::tr("Budget item"))
            .dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        return explained(call, {Explainer(call.document, call.date())
                                    .setAside(accountOf(call, account), itemOf(call, item))});
    }
};

struct ExplainFree {
    void declare(Arguments &arguments) { arguments.dated(QObject::tr("Day (default: today)")); }
    Report run(Call &call) const
    {
        return explained(call, Explainer(call.document, call.date()).freeMoney());
    }
};

struct ExplainTolerance {
    QString account;
    std::optional<Amount> balance;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"))
            .optional("--balance", balance,
                      QObject::tr("Balance of the statement (default: the expected one)"))
            .dated(QObject::tr("Day of the statement (default: today)"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const accounting::Account &found = index.find(account);
        std::optional<numira::Money> statement;
        if (balance)
            statement = balance->in(found.balance().code());
        return explained(
            call,
            {Explainer(call.document, call.date()).tolerance(found.code().number(), statement)});
    }
};

struct ExplainHealth {
    std::optional<QString> name;

    void declare(Arguments &arguments)
    {
        arguments.optional(
            "NAME", name,
            QObject::tr("Only one: planned, needs, debts, spending or goals (default: all)"));
    }
    Report run(Call &call) const
    {
        const Explainer explainer(call.document, call.date());
        return explained(call, name ? std::vector{explainer.health(*name)} : explainer.health());
    }
};

struct ExplainOutlook {
    QDate day;
    std::optional<QString> account;

    void declare(Arguments &arguments)
    {
        arguments.required("DAY", day, QObject::tr("Day that is to come"))
            .optional("ACCOUNT", account,
                      QObject::tr("Account: number, name or path (default: all money together)"))
            .dated(QObject::tr("First day (default: today)"));
    }
    Report run(Call &call) const
    {
        std::optional<AccountNumber> number;
        if (account)
            number = accountOf(call, *account);
        return explained(call, {Explainer(call.document, call.date()).outlook(day, number)});
    }
};

} // namespace

void addExplainCommands(CommandGroup &root)
{
    using enum CommandKind;
    CommandGroup group = root.group("explain", QObject::tr("Tell why a figure is what it is"));
    group.add("balance", QObject::tr("Explain the balance of an account"), Query, ExplainBalance{});
    group.add("share", QObject::tr("Explain an item's share of a month"), Query, ExplainShare{});
    group.add("conversion", QObject::tr("Explain a conversion into another currency"), Query,
              ExplainConversion{});
    group.add("set-aside", QObject::tr("Explain what is set aside for an item"), Query,
              ExplainSetAside{});
    group.add("free", QObject::tr("Explain what is free to spend"), Query, ExplainFree{});
    group.add("tolerance", QObject::tr("Explain how far the books may be from a statement"), Query,
              ExplainTolerance{});
    group.add("health", QObject::tr("Explain the percentages of the budget's health"), Query,
              ExplainHealth{});
    group.add("outlook", QObject::tr("Explain what is expected at the end of a day"), Query,
              ExplainOutlook{});
}

} // namespace kiv::app
