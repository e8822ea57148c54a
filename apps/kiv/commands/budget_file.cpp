// SPDX-License-Identifier: GPL-3.0-or-later
// new, info, save, save-as
#include "commands/commands.h"

#include "commands/whether_encrypted.h"
#include "output/json.h"

#include "workbench/document/demonstration.h"

#include "foundation/presentation.h"

#include <QtCore/QFileInfo>

namespace kiv::app {

using navigation::Navigator;

namespace {

QJsonObject fileJson(const Document &document)
{
    return {{QStringLiteral("file"), document.file()}};
}

struct New {
    QString file;
    WhetherEncrypted encryption;

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("New file; .budget is added if it is missing"))
            .file()
            .exclusive("FILE", "--file");
        encryption.declare(arguments);
    }
    Report run(Call &call) const
    {
        const QString path = call.fileToMake(file);
        call.document.refuseUnsaved();
        Document::refuseExisting(path);
        encryption.choose(call);
        call.requests.navigator().onConfirmedNewBudgetEmpty();
        call.document.create(path, QObject::tr("Created the budget"));
        return Report(fileJson(call.document))
            .line(QObject::tr("Created the empty budget '%1'.").arg(call.document.file()));
    }
};

struct Demonstrate {
    QString file;
    WhetherEncrypted encryption;

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("New file; .budget is added if it is missing"))
            .file()
            .exclusive("FILE", "--file")
            .dated(QObject::tr("Last day of its year (default: today)"));
        encryption.declare(arguments);
    }
    Report run(Call &call) const
    {
        const QString path = call.fileToMake(file);
        call.document.refuseUnsaved();
        Document::refuseExisting(path);
        encryption.choose(call);
        workbench::makeDemonstration(call.document, call.date());
        call.document.create(path, QObject::tr("Created the demonstration"));
        return Report(fileJson(call.document))
            .line(QObject::tr("Created the demonstration '%1': a year of a household until %2.")
                      .arg(call.document.file(), foundation::presentationText(call.date())));
    }
};

struct SaveAs {
    QString file;

    void declare(Arguments &arguments)
    {
        arguments.required("FILE", file,
                           QObject::tr("New file; .budget is added if it is missing"));
    }
    Report run(Call &call) const
    {
        call.document.create(file, QObject::tr("Saved under a new name"));
        return Report(fileJson(call.document))
            .line(QObject::tr("Saved the budget as '%1'.").arg(call.document.file()));
    }
};

struct Save {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        if (call.document.keeping() == Document::Keeping::AtOnce)
            return Report().line(QObject::tr("Every change is saved at once; nothing is pending."));
        if (call.document.file().isEmpty())
            throw noFileNamed();
        call.document.writeNow();
        return Report(fileJson(call.document))
            .line(QObject::tr("All changes are saved in '%1'.").arg(call.document.file()));
    }
};

QJsonArray totals(const std::vector<accounting::Transaction> &transactions,
                  const numira::Money &(accounting::Transaction::*side)() const noexcept)
{
    std::map<numira::Currency, numira::Money> sums;
    for (const accounting::Transaction &transaction : transactions) {
        const numira::Money &amount = std::invoke(side, transaction);
        sums[amount.code()] += amount;
    }
    QJsonArray json;
    for (const auto &[currency, sum] : sums)
        json.append(toJson(sum));
    return json;
}

struct Info {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const std::vector<accounting::Transaction> transactions = call.requests.transactions();
        const budgeting::Budget budget = BudgetView(call.requests).budget();
        QJsonObject items;
        budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            items.insert(QLatin1String(budgeting::ItemTraits<Item>::word),
                         static_cast<qint64>(budget.items<Item>().size()));
        });
        QJsonObject json = fileJson(call.document);
        json.insert(QStringLiteral("encrypted"), call.document.isEncrypted());
        json.insert(QStringLiteral("bytes"), QFileInfo(call.document.file()).size());
        json.insert(QStringLiteral("accounts"), static_cast<qint64>(index.accounts().size()));
        json.insert(QStringLiteral("transactions"), static_cast<qint64>(transactions.size()));
        json.insert(QStringLiteral("banks"), static_cast<qint64>(call.requests.banks().size()));
        json.insert(QStringLiteral("items"), items);
        json.insert(QStringLiteral("debits"),
                    totals(transactions, &accounting::Transaction::debitAmount));
        json.insert(QStringLiteral("credits"),
                    totals(transactions, &accounting::Transaction::creditAmount));

        const auto amounts = [displayAs = call.document.displayAs()](const QJsonValue &value) {
            return amountsText(value.toArray(), displayAs);
        };
        const auto yesOrNo = [](const QJsonValue &isEncrypted) {
            return isEncrypted.toBool() ? QObject::tr("yes") : QObject::tr("no");
        };
        const auto counts = [](const QJsonValue &value) {
            QStringList texts;
            const QJsonObject object = value.toObject();
            for (auto count = object.begin(); count != object.end(); ++count)
                texts += wordText(count.key()) + u' ' + QString::number(count.value().toInteger());
            return texts.join(QStringLiteral(", "));
        };
        return Report(json).list(
            {{QObject::tr("File"), QStringLiteral("file")},
             {QObject::tr("Encrypted"), QStringLiteral("encrypted"), yesOrNo},
             {QObject::tr("Bytes"), QStringLiteral("bytes")},
             {QObject::tr("Accounts"), QStringLiteral("accounts")},
             {QObject::tr("Transactions"), QStringLiteral("transactions")},
             {QObject::tr("Banks"), QStringLiteral("banks")},
             {QObject::tr("Items"), QStringLiteral("items"), counts},
             {QObject::tr("Sum of debits"), QStringLiteral("debits"), amounts},
             {QObject::tr("Sum of credits"), QStringLiteral("credits"), amounts}},
            json);
    }
};

} // namespace

void addBudgetFileCommands(CommandGroup &root)
{
    root.add("new", QObject::tr("Create an empty budget file"), CommandKind::Standalone, New{});
    root.add("demo", QObject::tr("Create the budget of a made-up household, to try things out"),
             CommandKind::Standalone, Demonstrate{});
    root.add("info", QObject::tr("Show what the budget contains"), CommandKind::Query, Info{});
    root.add("save", QObject::tr("In a shell, write the changes now"), CommandKind::Standalone,
             Save{});
    root.add("save-as", QObject::tr("Save the budget under another name"), CommandKind::Query,
             SaveAs{});
}

} // namespace kiv::app
