// SPDX-License-Identifier: GPL-3.0-or-later
// envelopes
#include "commands/commands.h"

#include "output/json.h"
#include "output/set_aside_json.h"

#include "workbench/outlook/item_outlook.h"
#include "workbench/surveys/set_aside_text.h"

#include "foundation/presentation.h"

namespace kiv::app {

using budgeting::BudgetItemIdentifier;
using foundation::presentationText;
using storage::BudgetStorage;
using workbench::Envelopes;
using workbench::ItemOutlook;
using workbench::SetAside;
using workbench::SetAsideLine;

namespace {

QJsonObject envelopesJson(const SetAside &account, const accounting::GeneralLedger &ledger,
                          navigation::CurrencyDisplayOptions displayAs)
{
    QJsonArray lines;
    for (const SetAsideLine &line : account.lines)
        lines.append(lineJson(line, account, displayAs));
    const banking::BankAccount &own = account.account;
    return {{QStringLiteral("bank"), own.bank.institution()},
            {QStringLiteral("account"), toJson(own.account.number)},
            {QStringLiteral("reconciledOn"), toJson(account.reconciledOn.value_or(QDate()))},
            {QStringLiteral("start"), toJson(account.start)},
            {QStringLiteral("months"), account.months},
            {QStringLiteral("balance"), toJson(account.balance)},
            {QStringLiteral("setAside"), toJson(account.total)},
            {QStringLiteral("free"), toJson(account.free())},
            {QStringLiteral("paid"), toJson(account.paid)},
            {QStringLiteral("lines"), lines},
            {QStringLiteral("notices"),
             QJsonArray::fromStringList(noticesOf(account, ledger, displayAs))}};
}

void addLines(Report &report, const QJsonObject &account, const QString &title)
{
    report.heading(title).list(
        {{QObject::tr("Balance"), QStringLiteral("balance")},
         {QObject::tr("Set aside"), QStringLiteral("setAside")},
         {QObject::tr("Free"), QStringLiteral("free")},
         {QObject::tr("Last reconciled on"), QStringLiteral("reconciledOn"), dayText}},
        account);
    addSetAside(report, account[QLatin1String("lines")].toArray(), {});
}

// ---- goals and debts -----------------------------------------------------------

QJsonObject outlookJson(const ItemOutlook &outlook)
{
    QJsonObject json = itemJson(outlook.item);
    const workbench::ItemProgress &progress = outlook.progress;
    json.insert(QStringLiteral("amount"), toJson(progress.part));
    json.insert(QStringLiteral("of"), toJson(progress.whole));
    json.insert(QStringLiteral("percent"),
                progress.percent ? QJsonValue(*progress.percent) : QJsonValue());
    json.insert(QStringLiteral("reached"), outlook.isEnded);
    if (outlook.item.type == budgeting::BudgetItemTypes::Goal)
        return json;
    const std::optional<workbench::Payoff> &payoff = outlook.payoff;
    json.insert(QStringLiteral("payments"),
                payoff ? QJsonValue(static_cast<qint64>(payoff->payments.size())) : QJsonValue());
    json.insert(QStringLiteral("paidOffOn"), payoff ? toJson(payoff->end()) : QJsonValue());
    return json;
}

QString outlookText(const ItemOutlook &outlook)
{
    if (!outlook.shouldEnd())
        return outlook.sentence;
    return outlook.sentence + u' ' +
           QObject::tr("To end it, use kiv %1 finish.").arg(kindWord(outlook.item.type));
}

struct Outlooks {
    QJsonArray goals;
    QJsonArray debts;
    QStringList sentences;
};

Outlooks outlooksOf(const BudgetStorage::Data &data, navigation::CurrencyDisplayOptions displayAs)
{
    Outlooks all;
    for (const ItemOutlook &outlook : workbench::outlooksOf(data, displayAs)) {
        const bool isGoal = outlook.item.type == budgeting::BudgetItemTypes::Goal;
        (isGoal ? all.goals : all.debts).append(outlookJson(outlook));
        all.sentences += outlookText(outlook);
    }
    return all;
}

// ---- the command ---------------------------------------------------------------

struct ShowEnvelopes {
    std::optional<QString> account;
    std::optional<QDate> day;
    bool isOpened = false;

    void declare(Arguments &arguments)
    {
        arguments
            .optional("ACCOUNT", account,
                      QObject::tr("Only this bank account: number, name or path (default: all)"))
            .optional("--on,--date", day, QObject::tr("Day of the balances (default: today)"))
            .flag("--items", isOpened, QObject::tr("Tell each item, and why it has so much"));
    }
    Report run(Call &call) const
    {
        const BudgetStorage::Data data = call.document.present();
        const auto displayAs = call.document.displayAs();
        const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
        Envelopes all = workbench::envelopes(data, call.document.keptReconciliations(),
                                             day.value_or(call.date()));
        QStringList notices = sharedNoticesOf(all, data.generalLedger, displayAs);
        if (account)
            notices = keepOne(call.requests, *index, all, data, displayAs);
        const Outlooks outlook = account ? Outlooks() : outlooksOf(data, displayAs);

        QJsonArray rows;
        QStringList told;
        for (const SetAside &one : all.accounts) {
            rows.append(envelopesJson(one, data.generalLedger, displayAs));
            told += noticesOf(one, data.generalLedger, displayAs);
        }
        QJsonArray due;
        for (const budgeting::BudgetItemAmountDue &one : all.dueYet)
            due.append(toJson(one));
        Report report(
            QJsonObject{{QStringLiteral("on"), toJson(all.day)},
                        {QStringLiteral("accounts"), rows},
                        {QStringLiteral("dueUntil"), toJson(all.dueUntil)},
                        {QStringLiteral("due"), due},
                        {QStringLiteral("goals"), outlook.goals},
                        {QStringLiteral("debts"), outlook.debts},
                        {QStringLiteral("notices"), QJsonArray::fromStringList(notices)}});
        addAccounts(report, rows, index);
        if (!rows.isEmpty())
            report
                .heading(QObject::tr("Still due until %1, of what is paid monthly")
                             .arg(presentationText(all.dueUntil)))
                .table({{QObject::tr("Due"), QStringLiteral("due"), dayText},
                        {QObject::tr("Item"), QStringLiteral("name")},
                        {QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                        {QObject::tr("Amount"), QStringLiteral("amount")}},
                       due, QObject::tr("Nothing is due."));
        if (const QString free = freeText(all, displayAs); !account && !free.isEmpty())
            report.line(free);
        for (const QString &sentence : outlook.sentences + told + notices)
            report.line(sentence);
        const auto isTooMuch = [](const SetAside &one) { return one.free().isNegative(); };
        if (!all.stranded.empty() || std::ranges::any_of(all.accounts, isTooMuch))
            report.line(
                QObject::tr("To set nothing aside at an account any more, use kiv survey drop."));
        return report;
    }

private:
    void addAccounts(Report &report, const QJsonArray &rows,
                     const std::shared_ptr<const AccountIndex> &index) const
    {
        if (isOpened) {
            for (const QJsonValue row : rows) {
                const accounting::AccountNumber number(
                    static_cast<std::uint32_t>(row[QLatin1String("account")].toInteger()));
                addLines(report, row.toObject(),
                         QStringLiteral("%1, %2").arg(index->plainName(number),
                                                      row[QLatin1String("bank")].toString()));
            }
        } else if (!rows.isEmpty()) {
            report.table(
                {{QObject::tr("Account"), QStringLiteral("account"), accountText(index)},
                 {QObject::tr("Balance"), QStringLiteral("balance")},
                 {QObject::tr("Set aside"), QStringLiteral("setAside")},
                 {QObject::tr("Free"), QStringLiteral("free")},
                 {QObject::tr("Paid since"), QStringLiteral("paid")},
                 {QObject::tr("Last reconciled"), QStringLiteral("reconciledOn"), dayText}},
                rows, QString());
        }
        if (rows.isEmpty() && !account)
            report.line(QObject::tr("No bank has an open account for which money is set aside."));
    }

    /// Drops all but the account that was asked for, and returns what is to be said of it.
    [[nodiscard]] QStringList keepOne(Requests &requests, const AccountIndex &index, Envelopes &all,
                                      const BudgetStorage::Data &data,
                                      navigation::CurrencyDisplayOptions displayAs) const
    {
        const accounting::Account &found = index.find(*account);
        const accounting::AccountNumber number = found.code().number();
        const auto isOther = [number](const auto &one) {
            return one.account.account.number != number;
        };
        std::erase_if(all.accounts, isOther);
        std::erase_if(all.stranded, isOther);
        std::erase_if(all.shared, [&all](const BudgetItemIdentifier &item) {
            return all.accounts.empty() ||
                   std::ranges::find(all.accounts.front().lines, item, &SetAsideLine::item) ==
                       all.accounts.front().lines.end();
        });
        QStringList notices = sharedNoticesOf(all, data.generalLedger, displayAs);
        if (all.accounts.empty())
            notices.prepend(whyNone(requests, found, *account));
        return notices;
    }

    [[nodiscard]] static QString whyNone(Requests &requests, const accounting::Account &found,
                                         const QString &typed)
    {
        const banking::BankAccount kept = requests.bankAccount(found.code().number(), typed);
        const QString name = workbench::plainNameOf(found);
        if (found.isClosed())
            return QObject::tr("%1 is closed.").arg(name);
        if (banking::isLiabilityAccount(kept.account.type))
            return QObject::tr("%1 is owed; nothing is set aside of it.").arg(name);
        return QObject::tr("%1 has no envelopes of its own; the account above it counts its money.")
            .arg(name);
    }
};

} // namespace

void addEnvelopeCommands(CommandGroup &root)
{
    root.add("envelopes",
             QObject::tr("Show what is set aside at the bank accounts, what is free, and why"),
             CommandKind::Query, ShowEnvelopes{});
}

} // namespace kiv::app
