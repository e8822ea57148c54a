// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/reports/grouping.h"

#include "workbench/entry/description.h"

#include <QtCore/QHash>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using accounting::Transaction;
using interchange::GroupsOf;
using interchange::SpanLength;

namespace {

/// Each account counts under one name or several, whatever the transaction.
GroupsOf byAccounts(std::map<AccountNumber, QStringList> names)
{
    return [names = std::move(names)](const Transaction &,
                                      const Account &account) -> const QStringList & {
        return names.at(account.code().number());
    };
}

GroupsOf byPaths(const AccountIndex &index, bool isCategory)
{
    std::map<AccountNumber, QStringList> names;
    for (const Account &account : index.accounts()) {
        const AccountNumber number = account.code().number();
        const QString path = index.plainPath(number);
        // The root says the same as the kind.
        names[number] = {isCategory ? path.section(u':', 1, 1) : path};
    }
    return byAccounts(std::move(names));
}

GroupsOf byTags(Requests &requests, const AccountIndex &index)
{
    std::map<AccountNumber, QStringList> names;
    for (const Account &account : index.accounts())
        names[account.code().number()] = {QString()};
    const BudgetView view(requests);
    view.budget().forEach([&](const budgeting::BudgetedMoney &item) {
        const budgeting::BudgetItemIdentifier id = identify(item);
        QStringList tags;
        for (const tagging::Tag &tag : view.tags(id))
            tags += tag.name();
        if (tags.isEmpty())
            return;
        if (const auto number = requests.accountOf(id))
            names[*number] = tags;
    });
    return byAccounts(std::move(names));
}

GroupsOf byPayees()
{
    // Descriptions recur, and the same one is asked for twice.
    auto payees = std::make_shared<QHash<QString, QStringList>>();
    return [payees](const Transaction &transaction, const Account &) -> const QStringList & {
        QStringList &names = (*payees)[transaction.description().value_or(QString())];
        if (names.isEmpty())
            names = {Description::of(transaction.description()).payee};
        return names;
    };
}

GroupsOf groupsOf(Grouping grouping, Requests &requests, const AccountIndex &index)
{
    switch (grouping) {
    case Grouping::Payee:
        return byPayees();
    case Grouping::Tag:
        return byTags(requests, index);
    case Grouping::Category:
    case Grouping::Account:
        break;
    }
    return byPaths(index, grouping == Grouping::Category);
}

} // namespace

QString wordOf(Grouping grouping)
{
    switch (grouping) {
    case Grouping::Payee:
        return QStringLiteral("payee");
    case Grouping::Tag:
        return QStringLiteral("tag");
    case Grouping::Account:
        return QStringLiteral("account");
    case Grouping::Category:
        break;
    }
    return QStringLiteral("category");
}

QString presentationText(Grouping grouping)
{
    switch (grouping) {
    case Grouping::Payee:
        return QObject::tr("By payee");
    case Grouping::Tag:
        return QObject::tr("By tag");
    case Grouping::Account:
        return QObject::tr("By account");
    case Grouping::Category:
        break;
    }
    return QObject::tr("By category");
}

void readValue(const QString &text, Grouping &value)
{
    QStringList words;
    for (const Grouping grouping :
         {Grouping::Category, Grouping::Payee, Grouping::Tag, Grouping::Account}) {
        words += wordOf(grouping);
        if (text == words.last()) {
            value = grouping;
            return;
        }
    }
    throw notAChoice(text, words);
}

void readValue(const QString &text, SpanChoice &value)
{
    // In the order of the lengths.
    const QStringList words{QStringLiteral("week"),    QStringLiteral("two-weeks"),
                            QStringLiteral("payday"),  QStringLiteral("month"),
                            QStringLiteral("quarter"), QStringLiteral("year")};
    const qsizetype at = words.indexOf(text);
    if (at < 0)
        throw notAChoice(text, words);
    value.length = static_cast<SpanLength>(at);
}

interchange::Period reportPeriod(SpanLength length, std::optional<QDate> from, QDate to,
                                 const std::vector<QDate> &paydays)
{
    if (from)
        return {*from, to, length, paydays};
    switch (length) {
    case SpanLength::Week:
        return {to.addDays(-7 * 11), to, length};
    case SpanLength::TwoWeeks:
        return {to.addDays(-14 * 11), to, length};
    case SpanLength::Payday: {
        const auto end = std::ranges::upper_bound(paydays, to);
        const auto count = std::min<std::ptrdiff_t>(end - paydays.begin(), 12);
        return {count > 0 ? *(end - count) : to, to, length, paydays};
    }
    case SpanLength::Quarter:
        return {to.addMonths(-3 * 11), to, length};
    case SpanLength::Year:
        return {to.addYears(-11), to, length};
    case SpanLength::Month:
    case SpanLength::Whole:
        break;
    }
    const QDate month = to.addMonths(-11);
    return {QDate(month.year(), month.month(), 1), to, length};
}

interchange::Groups groupsBy(Grouping grouping, const interchange::Period &period,
                             Requests &requests, const AccountIndex &index,
                             const interchange::TransactionSource &transactions)
{
    return interchange::groupsOf(period, index.accounts(), transactions,
                                 groupsOf(grouping, requests, index),
                                 grouping == Grouping::Account ? interchange::Grouped::Accounts
                                                               : interchange::Grouped::Flows);
}

} // namespace kiv::workbench
