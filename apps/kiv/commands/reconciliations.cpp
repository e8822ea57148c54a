// SPDX-License-Identifier: GPL-3.0-or-later
// reconciliations, reconciliation last
#include "commands/commands.h"

#include "output/json.h"

#include "foundation/presentation.h"

namespace kiv::app {

using navigation::Navigator;
using workbench::JudgedReconciliation;

namespace {

QJsonObject transactionJson(const surveying::ReconciledTransaction &transaction)
{
    return {{QStringLiteral("number"), qint64{transaction.number.integer()}},
            {QStringLiteral("date"), toJson(transaction.day)},
            {QStringLiteral("debit"), toJson(transaction.debit)},
            {QStringLiteral("credit"), toJson(transaction.credit)},
            {QStringLiteral("amount"), toJson(transaction.amount)}};
}

/// The words that programs get for how a transaction differs.
QString wordFor(surveying::Departure departure)
{
    switch (departure) {
    case surveying::Departure::Gone:
        return QStringLiteral("removed");
    case surveying::Departure::Changed:
        return QStringLiteral("changed");
    case surveying::Departure::Unreconciled:
        break;
    }
    return QStringLiteral("unmarked");
}

QString holdsText(const QJsonValue &holds)
{
    return holds.toBool() ? QObject::tr("holds") : QObject::tr("broken");
}

struct ListReconciliations {
    std::optional<QString> account;

    void declare(Arguments &arguments)
    {
        arguments.optional(
            "ACCOUNT", account,
            QObject::tr("Only those of this account: number, name or path (default: all)"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        std::optional<accounting::AccountNumber> wanted;
        if (account)
            wanted = index.find(*account).code().number();
        QJsonArray rows;
        std::map<accounting::AccountNumber, QString> reasons;
        for (const JudgedReconciliation &one : call.document.reconciliations()) {
            const accounting::AccountNumber number = one.account.account.number;
            if (wanted && number != *wanted)
                continue;
            rows.append(rowJson(one, index, call.document));
            if (!one.holds())
                reasons.try_emplace(number, call.document.sentence(one));
        }
        Report report{QJsonValue(rows)};
        report.table({{QObject::tr("Bank"), QStringLiteral("bank")},
                      {QObject::tr("Account"), QStringLiteral("path"), plainText},
                      {QObject::tr("Day of the statement"), QStringLiteral("on"), dayText},
                      {QObject::tr("Balance"), QStringLiteral("balance")},
                      {QObject::tr("Transactions"), QStringLiteral("transactions")},
                      {QString(), QStringLiteral("holds"), holdsText}},
                     rows, QObject::tr("There are no reconciliations."));
        for (const auto &[_, reason] : reasons)
            report.line(reason);
        return report;
    }

private:
    [[nodiscard]] static QJsonObject rowJson(const JudgedReconciliation &one,
                                             const AccountIndex &index,
                                             workbench::Document &document)
    {
        const accounting::AccountNumber number = one.account.account.number;
        QJsonObject json{{QStringLiteral("bank"), one.account.bank.institution()},
                         {QStringLiteral("account"), toJson(number)},
                         {QStringLiteral("path"), index.path(number)},
                         {QStringLiteral("on"), toJson(one.day)},
                         {QStringLiteral("balance"), toJson(one.balance)},
                         {QStringLiteral("transactions"), static_cast<qint64>(one.transactions)},
                         {QStringLiteral("holds"), one.holds()},
                         {QStringLiteral("difference"), QJsonValue()}};
        if (const auto &fault = one.fault) {
            json[QStringLiteral("difference")] = QJsonObject{
                {QStringLiteral("kind"), wordFor(fault->departure)},
                {QStringLiteral("then"), transactionJson(fault->then)},
                {QStringLiteral("now"), fault->now ? transactionJson(*fault->now) : QJsonValue()},
                {QStringLiteral("text"), document.sentence(one)}};
        }
        return json;
    }
};

struct LastReconciliation {
    QString account;

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const accounting::AccountCode code = index.find(account).code();
        const auto answer =
            call.requests.ask(&Navigator::lookedUpLastReconciliation,
                              &Navigator::onLookUpLastReconciliation, code.number());
        const auto &last = std::get<1>(answer);
        QJsonObject json{{QStringLiteral("account"), toJson(code.number())},
                         {QStringLiteral("currency"), foundation::toQString(std::get<0>(answer))},
                         {QStringLiteral("on"), QJsonValue()},
                         {QStringLiteral("balance"), QJsonValue()}};
        if (!last || !last->reconciledOn) {
            return Report(json).line(
                QObject::tr("%1 was never reconciled.").arg(index.label(code.number())));
        }
        const QDate on = *last->reconciledOn;
        json[QStringLiteral("on")] = toJson(on);
        json[QStringLiteral("balance")] = toJson(last->amount);
        return Report(json).line(
            QObject::tr("%1 was reconciled on %2 with a balance of %3.")
                .arg(index.label(code.number()), foundation::presentationText(on),
                     amountText(toJson(last->amount), call.document.displayAs())));
    }
};

} // namespace

void addReconciliationCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("reconciliations",
             QObject::tr("Check whether the books still are as they were reconciled"), Query,
             ListReconciliations{});
    CommandGroup reconciliation =
        root.group("reconciliation", QObject::tr("Show the last reconciliation"));
    reconciliation.add("last", QObject::tr("Show the last reconciliation of an account"), Query,
                       LastReconciliation{});
}

} // namespace kiv::app
