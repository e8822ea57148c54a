// SPDX-License-Identifier: GPL-3.0-or-later
// due, post, pay, skip
#include "commands/account_arguments.h"
#include "commands/commands.h"
#include "messages/message_log.h"

#include "output/json.h"

#include "workbench/requests/due_items.h"
#include "workbench/requests/due_list.h"
#include "workbench/requests/settings.h"

#include "foundation/presentation.h"

namespace kiv::app {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemAmountDue;
using budgeting::BudgetItemDueIdentifier;
using budgeting::BudgetItemTypes;

namespace {

/// The transaction as JSON, with the kind and name of its item.
QJsonObject postedJson(Requests &requests, accounting::TransactionNumber number,
                       const BudgetItemDueIdentifier &id)
{
    QJsonObject json = toJson(requests.transaction(number));
    json.insert(QStringLiteral("kind"), kindWord(id.type));
    json.insert(QStringLiteral("name"), id.source.name());
    return json;
}

/// The argument ITEM, with its kind.
struct ItemToPay {
    QString name;
    std::optional<BudgetItemTypes> kind;

    void declare(Arguments &arguments)
    {
        arguments.required("ITEM", name, QObject::tr("Name of the budget item"))
            .optional(
                "--kind", kind,
                QObject::tr(
                    "Kind, if several items have the name: bill, debt, goal, nontrack or wage"));
    }
    [[nodiscard]] BudgetItemAmountDue due(const BudgetView &view) const
    {
        return workbench::dueOf(view.find(name, kind));
    }
};

struct ListDue {
    std::optional<std::chrono::days> within;

    void declare(Arguments &arguments)
    {
        arguments.optional("--within", within, QObject::tr("Days ahead (default: the setting)"))
            .dated(QObject::tr("Day to count from (default: today)"));
    }
    Report run(Call &call) const
    {
        QJsonArray rows;
        const qint64 today = call.date().toJulianDay();
        const std::vector<BudgetItemAmountDue> items =
            workbench::dueItems(call.requests, within, call.options.date);
        for (const BudgetItemAmountDue &due : items) {
            QJsonObject row = toJson(due);
            row.insert(QStringLiteral("inDays"), due.id.dueOn.toJulianDay() - today);
            rows.append(row);
        }
        const auto when = [day = call.date()](const QJsonValue &inDays) {
            return workbench::whenText(day.addDays(inDays.toInteger()), day);
        };
        Report report = Report::listing({{QObject::tr("Due"), QStringLiteral("due"), dayText},
                                         {QObject::tr("Item"), QStringLiteral("name")},
                                         {QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                                         {QObject::tr("Amount"), QStringLiteral("amount")},
                                         {QObject::tr("When"), QStringLiteral("inDays"), when}},
                                        rows, QObject::tr("Nothing is due."));
        const QDate until = call.date().addDays(
            within.value_or(workbench::presentSettings(call.requests).notifyDueWithin).count());
        if (items.size() > 1)
            for (const QString &text :
                 dueTotalTexts(workbench::dueList(call.document.present(), items, {}), until,
                               call.document.displayAs()))
                report.line(text);
        return report;
    }
};

struct PostDue {
    std::optional<QString> name;
    std::optional<BudgetItemTypes> kind;
    QString account;
    bool isAll = false;
    std::optional<Amount> amount;

    void declare(Arguments &arguments)
    {
        arguments.optional("ITEM", name, QObject::tr("Name of the budget item"))
            .optional("--kind", kind,
                      QObject::tr("Kind, if several items have the name, or to limit --all: bill, "
                                  "debt, goal, nontrack or wage"))
            .required("--account", account,
                      QObject::tr("Account that pays, or that receives a wage"))
            .optional("--amount", amount, QObject::tr("Amount (default: that of the item)"))
            .flag("--all", isAll, QObject::tr("Post all due items"))
            .dated(QObject::tr("Day (default: today)"))
            .exclusive("--all", "ITEM")
            .exclusive("--all", "--amount");
    }
    Report run(Call &call) const
    {
        if (!isAll && !name)
            throw missing(placeholder("ITEM"));
        Requests &requests = call.requests;
        const accounting::AccountCode code = requests.accounts().find(account).code();
        QJsonArray rows;
        Report report;
        const BudgetView view(requests);
        const std::vector<BudgetItemAmountDue> items = chosen(call, view);
        for (const BudgetItemAmountDue &due : items) {
            if (isAll && workbench::comesToNothing(due)) {
                workbench::skipDue(requests, view.budget(), due.id);
                warn(workbench::skippedAsNothing(due));
                continue;
            }
            const auto &[id, number] =
                workbench::payDue(requests, view.budget(), due, code, call.date());
            rows.append(postedJson(requests, number, id));
            report.line(QObject::tr("Posted the %1 '%2', due on %3: %4.")
                            .arg(kindText(id.type), id.source.name(),
                                 foundation::presentationText(due.id.dueOn),
                                 amountText(toJson(due.amount), requests.displayAs())));
        }
        if (items.empty())
            report.line(QObject::tr("Nothing is due."));
        report.setData(isAll ? QJsonValue(rows) : rows.first());
        return report;
    }

private:
    [[nodiscard]] std::vector<BudgetItemAmountDue> chosen(Call &call, const BudgetView &view) const
    {
        if (isAll) {
            std::vector<BudgetItemAmountDue> due =
                workbench::dueItems(call.requests, std::chrono::days(0), call.options.date);
            std::erase_if(due, [this](const auto &one) { return kind && one.id.type != *kind; });
            return due;
        }
        BudgetItemAmountDue due = workbench::dueOf(view.find(*name, kind));
        if (amount)
            due.amount = amount->in(due.amount.code());
        return {due};
    }
};

struct PayUnexpected {
    ItemToPay item;
    Amount amount;
    QString account;

    void declare(Arguments &arguments)
    {
        item.declare(arguments);
        arguments.required("AMOUNT", amount, QObject::tr("Amount"))
            .required("--account", account,
                      QObject::tr("Account that pays, or that receives a wage"))
            .dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        const BudgetItemAmountDue due = item.due(BudgetView(requests));
        const numira::Money money = amount.in(due.amount.code());
        const accounting::AccountCode code = requests.accounts().find(account).code();
        const auto [id, number] = workbench::payExtra(requests, due.id, money, code, call.date());
        return Report(postedJson(requests, number, id))
            .line(QObject::tr("Posted %1 for the %2 '%3', which is still due on %4.")
                      .arg(amountText(toJson(money), requests.displayAs()), kindText(id.type),
                           id.source.name(), foundation::presentationText(due.id.dueOn)));
    }
};

struct SkipDue {
    ItemToPay item;

    void declare(Arguments &arguments) { item.declare(arguments); }
    Report run(Call &call) const
    {
        const BudgetView before(call.requests);
        const BudgetItemAmountDue due = item.due(before);
        workbench::skipDue(call.requests, before.budget(), due.id);
        const BudgetView view(call.requests);
        const BudgetedMoney &skipped = view.find(item.name, due.id.type);
        return Report(toJson(skipped, view))
            .line(QObject::tr("Skipped the %1 '%2' due on %3; it is next due on %4.")
                      .arg(kindText(due.id.type), item.name,
                           foundation::presentationText(due.id.dueOn),
                           foundation::presentationText(skipped.nextOccurOn())));
    }
};

} // namespace

void addDueCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("due", QObject::tr("List due items"), Query, ListDue{});
    root.add("post", QObject::tr("Post a due budget item"), Entry, PostDue{});
    root.add("pay", QObject::tr("Post an unexpected amount for a budget item"), Entry,
             PayUnexpected{});
    root.add("skip", QObject::tr("Skip a budget item once, without posting"), Change, SkipDue{});
}

} // namespace kiv::app
