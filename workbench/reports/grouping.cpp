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

GroupsOf byTags(const BudgetView &view, const interchange::ItemAccounts &itemAccounts,
                const AccountIndex &index)
{
    std::map<AccountNumber, QStringList> names;
    for (const Account &account : index.accounts())
        names[account.code().number()] = {QString()};
    for (const auto &[item, account] : itemAccounts) {
        QStringList tags;
        for (const tagging::Tag &tag : view.tags(item))
            tags += tag.name();
        if (!tags.isEmpty())
            names[account] = tags;
    }
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
    for (const Grouping grouping : groupings) {
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

namespace {

/// Where twelve spans up to the day begin.
QDate usualBegin(SpanLength length, QDate to, const std::vector<QDate> &paydays)
{
    switch (length) {
    case SpanLength::Week:
        return to.addDays(qint64{-7} * 11);
    case SpanLength::TwoWeeks:
        return to.addDays(qint64{-14} * 11);
    case SpanLength::Payday: {
        const auto end = std::ranges::upper_bound(paydays, to);
        const auto count = std::min<std::ptrdiff_t>(end - paydays.begin(), 12);
        return count > 0 ? *(end - count) : to;
    }
    case SpanLength::Quarter:
        return to.addMonths(-3 * 11);
    case SpanLength::Year:
        return to.addYears(-11);
    case SpanLength::Month:
    case SpanLength::Whole:
        break;
    }
    const QDate month = to.addMonths(-11);
    return {month.year(), month.month(), 1};
}

} // namespace

interchange::Period reportPeriod(SpanLength length, std::optional<QDate> from, QDate to,
                                 const std::vector<QDate> &paydays,
                                 const std::set<Account> &accounts)
{
    if (!from) {
        from = usualBegin(length, to, paydays);
        const QDate earliest = interchange::firstDayOf(accounts, *from);
        if (earliest.isValid() && earliest <= to)
            from = std::max(*from, earliest);
    }
    return {*from, to, length, paydays};
}

GroupsOf groupNames(Grouping grouping, const BudgetView &view,
                    const interchange::ItemAccounts &itemAccounts, const AccountIndex &index)
{
    switch (grouping) {
    case Grouping::Payee:
        return byPayees();
    case Grouping::Tag:
        return byTags(view, itemAccounts, index);
    case Grouping::Category:
    case Grouping::Account:
        break;
    }
    return byPaths(index, grouping == Grouping::Category);
}

QString unnamedText(Grouping grouping)
{
    return grouping == Grouping::Tag ? QObject::tr("(no tag)") : QObject::tr("(no payee)");
}

} // namespace kiv::workbench
