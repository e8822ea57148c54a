// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/comparison.h"
#include "support/navigation.h"

/// A survey in one line, short enough to be written down in a test.
namespace kiv::test {

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
