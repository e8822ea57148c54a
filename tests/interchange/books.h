// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/budgeting.h"

#include "budgeting/budget.h"
#include "foundation/presentation.h"

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
        for (const QString &line : text.toString().split(u'\n', Qt::SkipEmptyParts))
            if (!takeAccount(line) && !takeTransaction(line) && !takeItem(line))
                qFatal("'%s' says nothing.", qPrintable(line));
    }

    std::set<accounting::Account> accounts;
    std::vector<accounting::Transaction> transactions;
    budgeting::Budget budget;

private:
    static QStringList parts(const char *form, const QString &line)
    {
        return QRegularExpression(QLatin1String(form)).match(line).capturedTexts();
    }

    static numira::Money amount(const QString &number, const QString &currency)
    {
        return money(currency.toLatin1().constData(), number.toLatin1().constData());
    }

    bool takeAccount(const QString &line)
    {
        const QStringList part = parts("^(\\d+)(?:/(\\d+))? ([a-z]+) ([A-Z]{3}) (.*)$", line);
        if (part.isEmpty())
            return false;
        int type = 0;
        while (part[3] != accounting::toQString(accounting::AccountTypes(type)))
            ++type;
        const auto parent = part[2].isEmpty() ? std::nullopt : std::optional(no(part[2].toUInt()));
        accounts.insert({accounting::AccountTypes(type),
                         {no(part[1].toUInt()), part[5], parent},
                         amount(QStringLiteral("0"), part[4]),
                         false});
        return true;
    }

    bool takeTransaction(const QString &line)
    {
        const QStringList part =
            parts("^(\\S{10}) (\\d+)<(\\d+) (\\S+) (\\S{3})(?: = (\\S+) (\\S{3}))?"
                  " ([-!*])([-!*]) ?(.*)$",
                  line);
        if (part.isEmpty())
            return false;
        const numira::Money debit = amount(part[4], part[5]);
        const auto status = [&](int at) {
            return accounting::TransactionStatuses(QStringLiteral("-!*").indexOf(part[at]));
        };
        transactions.push_back(
            accounting::Transaction(day(part[1].toLatin1()), no(part[2].toUInt()),
                                    no(part[3].toUInt()), debit, part[10],
                                    txn(std::uint16_t(transactions.size() + 1)))
                .withStatuses(status(8), status(9))
                .withSideAmounts(debit, part[6].isEmpty() ? debit : amount(part[6], part[7])));
        return true;
    }

    bool takeItem(const QString &line)
    {
        const QStringList part =
            parts("^(bill|debt|goal|non-tracked|wage) (\\S+) ([A-Z]{3}) ([a-z ]+)"
                  " ([0-9-]{10}) (?:([0-9.]+) )?(.*)$",
                  line);
        if (part.isEmpty())
            return false;
        int period = 0;
        while (part[4] != budgeting::toQString(budgeting::EventFrequency(period)))
            ++period;
        const QString total = part[6].isEmpty() ? part[2] : part[6];
        budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            if (budgeting::presentationText(budgeting::ItemTraits<Item>::type) == part[1])
                budget.items<Item>().add(item<Item>(
                    part[7].toUtf8(), amount(part[2], part[3]), budgeting::EventFrequency(period),
                    day(part[5].toLatin1()), amount(total, part[3])));
        });
        return true;
    }
};

} // namespace kiv::test
