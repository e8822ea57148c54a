// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/comparison.h"
#include "support/navigation.h"

namespace kiv::test {

/// The books with
/// 6 Rent, a monthly bill of 10; 7 Tax, a yearly bill of 120 due 2026-03-31;
/// 8 Work, a wage; 9 Trip, a goal of 100 under Checking, to which 10 a month go.
struct SurveyBooks : Books {
    surveying::CompletedSurveys completed;

    SurveyBooks()
    {
        add<Bill>("Rent");
        items.add(item<Bill>("Tax", usd("120"), EventFrequency::Yearly, day("2026-03-31")),
                  *generator);
        add<Wage>("Work");
        add<Goal>("Trip");
        putBelow(9, "Trip [Budget Item]", 1);
    }
    void putBelow(std::uint32_t number, const char *name, std::uint32_t parent)
    {
        ledger.recode(code(number, name), code(number, name, no(parent)));
    }
    accounting::TransactionNumber post(std::uint32_t debit, std::uint32_t credit,
                                       const char *amount = "7", const char *date = "2026-03-15")
    {
        return ledger.post(transfer(no(debit), no(credit), usd(amount), day(date)));
    }
};

// A survey in one line, short enough to be written down in a test.

/// "Rent -1 +2, Tax -3", without the keys that have no changes.
template <typename Changes, typename Name>
QString told(const Changes &changes, const Name &name)
{
    QStringList all;
    for (const auto &[key, entries] : changes) {
        QString one = name(key);
        for (const auto &entry : entries) {
            one += QLatin1String(entry.isIncrease() ? " +" : " -") +
                   presentationText(entry.transaction().number().value_or(txn(0)));
        }
        if (!entries.empty())
            all.append(one);
    }
    return all.join(u", ");
}

/// "balance; changes by item; by account; what is set aside".
inline QString told(const surveying::MappingSurvey &survey)
{
    QStringList aside;
    for (const auto &[id, amount] : survey.distributions())
        aside.append(id.source.name() + u' ' + dump(amount.distributed()).chopped(4));
    const auto itemName = [](const auto &id) { return id.source.name(); };
    const auto accountName = [](const auto &code) { return code.name(); };
    return QStringLiteral("%1; %2; %3; %4")
        .arg(dump(survey.expectedBalance()).chopped(4), told(survey.budgetItemChanges(), itemName),
             told(survey.accountChanges(), accountName), aside.join(u", "));
}

} // namespace kiv::test
