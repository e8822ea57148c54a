// SPDX-License-Identifier: GPL-3.0-or-later
// bill|debt|goal|nontrack|wage add|update|rename|remove|list
#include "commands/account_arguments.h"
#include "commands/commands.h"
#include "commands/schedules.h"

#include "output/json.h"

#include "workbench/document/finished_items.h"
#include "workbench/requests/item_changes.h"
#include "workbench/requests/item_figures.h"

namespace kiv::app {

using banking::BankAccount;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetSource;
using budgeting::EventFrequency;
using budgeting::ItemTraits;
using workbench::ItemValues;

namespace {

/// The command has no GUI elements, so one identifier serves all.
constexpr navigation::GuiElementIdentifier caller(1);

/// The arguments of an item besides its name, as far as they were given.
template <budgeting::BudgetItem Item>
struct ItemArguments {
    std::optional<Amount> amount;
    std::optional<EventFrequency> every;
    std::optional<QDate> next;
    std::vector<QString> tags;
    std::optional<Amount> extra; ///< the borrowed amount, or the target
    std::optional<QString> bankAccount;
    std::optional<QString> bank;
    std::optional<banking::BankAccountTypes> type;

    void declare(Arguments &arguments)
    {
        arguments.optional("--every", every, QObject::tr("Frequency, such as monthly"))
            .optional("--next", next, QObject::tr("Next due date"))
            .several("--tag", tags, QObject::tr("Tag (repeatable)"));
        if constexpr (std::same_as<Item, budgeting::Debt>) {
            arguments
                .optional("--borrowed", extra,
                          QObject::tr("Amount borrowed; the opening balance of its account"))
                .optional("--bank,--bank-account", bank, QObject::tr("Name of the bank"))
                .optional("--type", type,
                          QObject::tr("Type of the bank account, such as loan (default)"))
                .only("--type", "--bank");
        }
        if constexpr (std::same_as<Item, budgeting::Goal>) {
            arguments.optional("--target", extra, QObject::tr("Target amount"))
                .optional("--bank-account", bankAccount,
                          QObject::tr("Bank account that holds the savings"));
        }
    }

    [[nodiscard]] bool isEmpty() const
    {
        return !amount && !every && !next && tags.empty() && !extra && !bankAccount && !bank &&
               !type;
    }

    /// The values as given, with the bank account that they name.
    [[nodiscard]] ItemValues values(Requests &requests) const
    {
        ItemValues given{amount, every, next, extra, std::nullopt, named(requests)};
        if (!tags.empty())
            given.tags = asTags();
        return given;
    }

private:
    [[nodiscard]] tagging::Tags asTags() const
    {
        tagging::Tags made;
        for (const QString &tag : tags)
            made.insert(tagging::Tag(tag));
        return made;
    }

    /// The given bank account: for a debt from --bank, for a goal from --bank-account.
    [[nodiscard]] std::optional<BankAccount> named(Requests &requests) const
    {
        if (bank) {
            const auto kind = type.value_or(banking::BankAccountTypes::Loan);
            return BankAccount{requests.bank(*bank).name(), {accounting::AccountNumber(), kind}};
        }
        if (!bankAccount)
            return std::nullopt;
        const accounting::AccountNumber number =
            requests.accounts().find(*bankAccount).code().number();
        return requests.bankAccount(number, *bankAccount);
    }
};

Report itemReport(Requests &requests, const BudgetItemIdentifier &id, const QString &sentence)
{
    const BudgetView view(requests);
    return Report(toJson(view.find(id.source.name(), id.type), view)).line(sentence);
}

template <budgeting::BudgetItem Item>
struct AddItem {
    NewName name;
    ItemArguments<Item> arguments;
    Amount amount;

    void declare(Arguments &line)
    {
        line.required("NAME", name, QObject::tr("Name"))
            .required("AMOUNT", amount, QObject::tr("Amount"));
        arguments.declare(line);
        line.dated(QObject::tr("Day of the opening; next due date if --next is missing"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        ItemValues given = arguments.values(requests);
        given.amount = amount;
        const BudgetItemIdentifier id = workbench::addItem<Item>(requests, caller, name.text, given,
                                                                 call.date(), call.options.date);
        return itemReport(
            requests, id,
            QObject::tr("Added the %1 '%2'.").arg(kindText(ItemTraits<Item>::type), name.text));
    }
};

template <budgeting::BudgetItem Item>
struct UpdateItem {
    QString name;
    ItemArguments<Item> arguments;
    bool isUntied = false;
    bool isUntagged = false;

    void declare(Arguments &line)
    {
        line.required("NAME", name, QObject::tr("Name"))
            .optional("--amount", arguments.amount, QObject::tr("Amount"));
        arguments.declare(line);
        line.flag("--no-tags", isUntagged, QObject::tr("Remove all tags"))
            .exclusive("--no-tags", "--tag");
        if constexpr (budgeting::BankTiedItem<Item>)
            line.flag("--no-bank", isUntied, QObject::tr("Remove the link to the bank"))
                .exclusive("--no-bank",
                           std::same_as<Item, budgeting::Debt> ? "--bank" : "--bank-account");
    }
    Report run(Call &call) const
    {
        if (arguments.isEmpty() && !isUntied && !isUntagged)
            throw nothingToChange();
        Requests &requests = call.requests;
        const BudgetView view(requests);
        const auto &present = dynamic_cast<const Item &>(view.find(name, ItemTraits<Item>::type));
        ItemValues given = arguments.values(requests);
        given.isUntied = isUntied;
        if (isUntagged)
            given.tags = tagging::Tags();
        workbench::updateItem(requests, caller, view, present, given);
        return itemReport(
            requests, {ItemTraits<Item>::type, present.source()},
            QObject::tr("Changed the %1 '%2'.").arg(kindText(ItemTraits<Item>::type), name));
    }
};

template <budgeting::BudgetItem Item>
struct RenameItem {
    QString name;
    NewName changed;

    void declare(Arguments &arguments)
    {
        arguments.required("NAME", name, QObject::tr("Name"))
            .required("NEW-NAME", changed, QObject::tr("New name"));
    }
    Report run(Call &call) const
    {
        const BudgetItemIdentifier id{ItemTraits<Item>::type, BudgetSource(changed.text)};
        const BudgetSource present = BudgetView(call.requests).find(name, id.type).source();
        workbench::renameItem(call.requests, caller, {id.type, present}, id.source);
        return itemReport(call.requests, id,
                          QObject::tr("The %1 '%2' is now called '%3'.")
                              .arg(kindText(ItemTraits<Item>::type), name, changed.text));
    }
};

template <budgeting::BudgetItem Item>
struct RemoveItem {
    QString name;

    void declare(Arguments &arguments) { arguments.required("NAME", name, QObject::tr("Name")); }
    Report run(Call &call) const
    {
        const BudgetView view(call.requests);
        const QJsonObject json = toJson(view.find(name, ItemTraits<Item>::type), view);
        workbench::removeItem(call.requests, caller, {ItemTraits<Item>::type, BudgetSource(name)});
        return Report(json).line(
            QObject::tr("Removed the %1 '%2'.").arg(kindText(ItemTraits<Item>::type), name));
    }
};

/// finish, for goals and debts.
template <budgeting::BankTiedItem Item>
struct FinishItem {
    static constexpr bool isGoal = std::same_as<Item, budgeting::Goal>;

    QString name;
    std::optional<AccountText> to;

    void declare(Arguments &line)
    {
        line.required("NAME", name, QObject::tr("Name"));
        if constexpr (isGoal)
            line.optional("--to", to,
                          QObject::tr("Account that gets the money, or on which it is spent "
                                      "(default: the bank account that holds it)"))
                .dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        Requests &requests = call.requests;
        const BudgetItemIdentifier id{ItemTraits<Item>::type, BudgetSource(name)};
        workbench::Finished done;
        if constexpr (isGoal) {
            std::optional<accounting::AccountNumber> place;
            if (to)
                place = requests.accounts().find(to->text).code().number();
            done = workbench::finishGoal(call.document, name, place, call.date());
        } else {
            done = workbench::finishDebt(call.document, name);
        }
        Report report = itemReport(requests, id, workbench::finishDeed(id).line);
        for (const QString &sentence : workbench::toldOf(requests, done, id))
            report.line(sentence);
        return report;
    }
};

template <budgeting::BudgetItem Item>
struct ListItems {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const BudgetView view(call.requests);
        QJsonArray rows;
        for (const auto &[source, item] : view.budget().items<Item>())
            rows.append(toJson(item, view));
        std::vector<Column> columns{{QObject::tr("Name"), QStringLiteral("name")},
                                    {QObject::tr("Amount"), QStringLiteral("amount")},
                                    {QObject::tr("Every"), QStringLiteral("every"), wordText},
                                    {QObject::tr("Next"), QStringLiteral("next"), dayText}};
        if constexpr (std::same_as<Item, budgeting::Debt>)
            columns.push_back({QObject::tr("Borrowed"), QStringLiteral("borrowed")});
        if constexpr (std::same_as<Item, budgeting::Goal>)
            columns.push_back({QObject::tr("Target"), QStringLiteral("target")});
        if constexpr (budgeting::BankTiedItem<Item>)
            columns.push_back({QObject::tr("Bank"), QStringLiteral("bank")});
        columns.push_back({QObject::tr("Tags"), QStringLiteral("tags")});
        Report report = Report::listing(columns, rows, QObject::tr("There are no budget items."));
        if (rows.size() > 1)
            report.line(
                workbench::monthlyTotalText(call.requests, budgeting::ItemTraits<Item>::type));
        return report;
    }
};

} // namespace

void addItemCommands(CommandGroup &root)
{
    const auto addKind = [&root]<typename Item>(std::type_identity<Item>, const QString &help) {
        using enum CommandKind;
        CommandGroup group = root.group(ItemTraits<Item>::word, help);
        group.add("add", QObject::tr("Add an item"), Change, AddItem<Item>{});
        group.add("update", QObject::tr("Change the given values of an item"), Change,
                  UpdateItem<Item>{});
        group.add("rename", QObject::tr("Rename an item"), Change, RenameItem<Item>{});
        group.add("remove", QObject::tr("Remove an item"), Change, RemoveItem<Item>{});
        if constexpr (std::same_as<Item, budgeting::Goal>)
            group.add("finish", QObject::tr("End a goal: its money goes back or is spent"), Entry,
                      FinishItem<Item>{});
        if constexpr (std::same_as<Item, budgeting::Debt>)
            group.add("finish", QObject::tr("End a debt that is paid off"), Change,
                      FinishItem<Item>{});
        if constexpr (budgeting::BankTiedItem<Item>)
            addScheduleCommand(group, ItemTraits<Item>::type);
        group.add("list", QObject::tr("List all items"), Query, ListItems<Item>{});
    };
    addKind(std::type_identity<budgeting::Bill>{}, QObject::tr("Add, change or list bills"));
    addKind(std::type_identity<budgeting::Debt>{}, QObject::tr("Add, change or list debts"));
    addKind(std::type_identity<budgeting::Goal>{},
            QObject::tr("Add, change or list goals to save for"));
    addKind(std::type_identity<budgeting::Nontrack>{},
            QObject::tr("Add, change or list free spending (non-tracked)"));
    addKind(std::type_identity<budgeting::Wage>{}, QObject::tr("Add, change or list wages"));
}

} // namespace kiv::app
