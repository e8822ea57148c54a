// SPDX-License-Identifier: GPL-3.0-or-later
// find
#include "commands/commands.h"
#include "commands/transaction_listing.h"

#include "output/json.h"

#include "workbench/search/own_change.h"
#include "workbench/search/transaction_filter.h"

namespace kiv::app {

namespace {

struct Find {
    std::vector<QString> words;

    void declare(Arguments &arguments)
    {
        arguments
            .severalRequired(
                "WORDS", words,
                QObject::tr(
                    "Words of the payee, the reason or an account; amounts like '>50' or "
                    "50..80; days like march, 2026-03 or today; is:reconciled, not:cleared; "
                    "account:NAME, item:NAME, payee:NAME. After --, -WORD excludes"))
            .dated(QObject::tr("Day that counts as today"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const workbench::TransactionFilter filter(
            QStringList(words.begin(), words.end()).join(u' '), index, call.date());
        std::vector<accounting::Transaction> found = call.requests.transactions();
        const auto of = static_cast<qint64>(found.size());
        std::erase_if(found, [&filter](const auto &each) { return !filter.matches(each); });
        const auto count = static_cast<qint64>(found.size());
        workbench::OwnChange change(index);
        for (const accounting::Transaction &transaction : found)
            change.add(transaction);
        QJsonArray sums;
        for (const numira::Money &sum : change.sums())
            sums.append(toJson(sum));
        const TransactionListing listing(std::move(found), call.requests.accounts());
        Report report(QJsonObject{{QStringLiteral("filter"), workbench::filterText(filter.parts())},
                                  {QStringLiteral("count"), count},
                                  {QStringLiteral("of"), of},
                                  {QStringLiteral("together"), sums}},
                      QStringLiteral("transactions"), listing.rows());
        return report.table(listing.columns(), listing.rows(), QObject::tr("No transaction fits."))
            .line(QObject::tr("%1 of %2, together %3.")
                      .arg(QString::number(count), QString::number(of),
                           amountsText(sums, call.document.displayAs())));
    }
};

} // namespace

void addFindCommand(CommandGroup &root)
{
    root.add("find", QObject::tr("Search the transactions"), CommandKind::Query, Find{});
}

} // namespace kiv::app
