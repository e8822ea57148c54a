// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/budgeting.h"

#include "budgeting/budget.h"

#include <QtCore/QRegularExpression>

namespace kiv::test {

/// Accounts, transactions and a budget, each on a line:
///
///     1 asset USD Checking
///     4/1 asset USD Cash, with account 1 above it
///     2026-01-05 4<1 5.00 USD !* text (debit, credit, and the sides' marks: - ! *)
///     2026-01-06 4<1 5.00 USD = 4.00 EUR -- text (the credit in another currency)
///     bill 1200 USD yearly 2026-04-01 Rent
///     debt 50 USD monthly 2026-04-01 300 Car (a debt or a goal with its total)
struct Books {
    explicit Books(QAnyStringView text)
    {
        for (const QString &line : text.toString().split(u'\n', Qt::SkipEmptyParts)) {
            const auto partsOf = [&line](const char *form) {
                return QRegularExpression(QLatin1String(form)).match(line).capturedTexts();
            };
            if (const QStringList account = partsOf("^(\\d+)(?:/(\\d+))? ([a-z]+) (\\S{3}) (.*)$");
                !account.isEmpty())
                addAccount(account);
            else if (const QStringList transaction =
                         partsOf("^(\\S{10}) (\\d+)<(\\d+) (\\S+) (\\S{3})"
                                 "(?: = (\\S+) (\\S{3}))? ([-!*])([-!*]) ?(.*)$");
                     !transaction.isEmpty())
                addTransaction(transaction);
            else
                addItem(partsOf("^([a-z-]+) (\\S+) (\\S{3}) ([a-z ]+) ([0-9-]{10}) "
                                "(?:([0-9.]+) )?(.*)$"));
        }
    }

    std::set<accounting::Account> accounts;
    std::vector<accounting::Transaction> transactions;
    budgeting::Budget budget;

private:
    template <typename Kind>
    static Kind named(const QString &name)
    {
        constexpr int kindsMax = 100; // more than any of them has
        for (int value = 0; value < kindsMax; ++value) {
            if (toQString(Kind(value)) == name)
                return Kind(value);
        }
        qFatal("'%s' is none that there is.", qPrintable(name));
    }
    static numira::Money amount(const QString &number, const QString &currency)
    {
        return money(currency.toLatin1(), number.toLatin1());
    }

    void addAccount(const QStringList &part)
    {
        const auto parent = part[2].isEmpty() ? std::nullopt : std::optional(no(part[2].toUInt()));
        accounts.insert({named<accounting::AccountTypes>(part[3]),
                         {no(part[1].toUInt()), part[5], parent},
                         amount(QStringLiteral("0"), part[4]),
                         false});
    }
    void addTransaction(const QStringList &part)
    {
        const auto status = [](const QString &mark) {
            return accounting::TransactionStatuses(QStringLiteral("-!*").indexOf(mark));
        };
        const numira::Money debit = amount(part[4], part[5]);
        transactions.push_back(
            accounting::Transaction(day(part[1].toLatin1()), no(part[2].toUInt()),
                                    no(part[3].toUInt()), debit, part[10],
                                    txn(std::uint16_t(transactions.size() + 1)))
                .withStatuses(status(part[8]), status(part[9]))
                .withSideAmounts(debit, part[6].isEmpty() ? debit : amount(part[6], part[7])));
    }
    void addItem(const QStringList &part)
    {
        const numira::Money total = amount(part.at(part.at(6).isEmpty() ? 2 : 6), part.at(3));
        budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            if (presentationText(budgeting::ItemTraits<Item>::type) == part[1])
                budget.items<Item>().add(item<Item>(part[7].toUtf8(), amount(part[2], part[3]),
                                                    named<budgeting::EventFrequency>(part[4]),
                                                    day(part[5].toLatin1()), total));
        });
    }
};

} // namespace kiv::test
