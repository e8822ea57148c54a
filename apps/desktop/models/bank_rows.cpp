// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/bank_rows.h"

#include "models/account_rows.h"

namespace kiv::desktop {

using accounting::AccountNumber;
using banking::BankName;

namespace {

QString openText(bool isClosed)
{
    return isClosed ? QObject::tr("closed") : QObject::tr("open", "the state of an account");
}

/// The targets of all rows by their keys, in the order of the rows.
std::vector<std::pair<QString, BankTarget>> targets(const banking::BankMap &banks,
                                                    const workbench::AccountIndex &index)
{
    std::vector<std::pair<QString, BankTarget>> all;
    for (const auto &[name, bank] : banks) {
        all.emplace_back(keyOf(name), BankTarget{name, std::nullopt, {}, bank.isClosed()});
        for (const auto &[number, kind] : bank.accounts()) {
            const accounting::Account *account = index.find(number);
            const bool isFirst = banks.find(number) == name;
            all.emplace_back(isFirst ? bankKeyOf(number)
                                     : bankKeyOf(number) + u'/' + name.institution(),
                             BankTarget{name, number, kind, account && account->isClosed()});
        }
    }
    return all;
}

Row rowOf(const QString &key, const BankTarget &target, const workbench::AccountIndex &index,
          const QString &difference, navigation::CurrencyDisplayOptions displayAs)
{
    const QString bank = target.bank.institution();
    if (!target.account)
        return {
            key, {{bank}, {QObject::tr("bank")}, Cell{}, {openText(target.isClosed)}}, false, true};
    const accounting::Account *account = index.find(*target.account);
    const QString name = index.plainName(*target.account);
    return {key,
            {{QStringLiteral("    ") + name, QObject::tr("%1 at %2").arg(name, bank)},
             {banking::presentationText(target.kind)},
             account ? amountCell(account->balance(), displayAs) : Cell{},
             difference.isEmpty()
                 ? Cell{openText(target.isClosed)}
                 : Cell{QStringLiteral("%1, %2").arg(openText(target.isClosed), difference),
                        {},
                        false,
                        Colour::Warning}}};
}

} // namespace

QString keyOf(const BankName &bank)
{
    return QStringLiteral("bank/") + bank.institution();
}

QString bankKeyOf(AccountNumber account)
{
    return QStringLiteral("account/") + keyOf(account);
}

QStringList bankColumns()
{
    return {QObject::tr("Bank or account"), QObject::tr("Kind"), QObject::tr("Balance"),
            QObject::tr("State")};
}

std::vector<Row> bankRows(workbench::Document &document)
{
    const workbench::AccountIndex index = document.requests().accounts();
    const auto displayAs = document.requests().displayAs();
    const std::map<AccountNumber, QString> differences = differenceTexts(document);
    std::vector<Row> rows;
    for (const auto &[key, target] : targets(document.requests().banks(), index)) {
        const auto found = target.account ? differences.find(*target.account) : differences.end();
        rows.push_back(rowOf(key, target, index,
                             found == differences.end() ? QString() : found->second, displayAs));
    }
    return rows;
}

std::optional<BankTarget> bankTarget(workbench::Document &document, const QString &key)
{
    const auto all = targets(document.requests().banks(), document.requests().accounts());
    const auto found = std::ranges::find(all, key, &std::pair<QString, BankTarget>::first);
    return found == all.end() ? std::nullopt : std::optional(found->second);
}

} // namespace kiv::desktop
