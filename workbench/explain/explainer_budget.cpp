// SPDX-License-Identifier: GPL-3.0-or-later
// The budget's health, and a day that is to come.
#include "workbench/explain/explainer.h"

#include "workbench/internal/faults_of_explanations.h"
#include "workbench/outlook/outlook_text.h"
#include "workbench/requests/item_figures.h"

#include "adviser/income_shares.h"
#include "budgeting/item_traits.h"
#include "foundation/presentation.h"

#include <algorithm>

namespace kiv::workbench {

using accounting::AccountNumber;
using adviser::IncomeShare;
using budgeting::BudgetItemTypes;
using foundation::presentationText;
using numira::Currency;
using numira::Money;

namespace {

/// What the items of this kind come to a month, a line for each.
void addItems(Explanation &made, const budgeting::Budget &budget, BudgetItemTypes kind,
              LineRole role, const Currency &currency)
{
    budget.forEach([&](const budgeting::BudgetedMoney &item) {
        const Money monthly = budgeting::accumulateOver(budgeting::EventFrequency::Monthly,
                                                        item.amount(), item.period());
        if (budgeting::toBudgetItemTypes(item) == kind && !monthly.isZero())
            made.lines.push_back({role,
                                  role == LineRole::Of
                                      ? QObject::tr("of the income: %1").arg(item.source().name())
                                      : item.source().name(),
                                  monthly.convertedTo(currency)});
    });
}

Explanation explained(const IncomeShare &share, const budgeting::Budget &budget,
                      const Currency &currency)
{
    Explanation made{
        adviser::presentationText(share), numira::Decimal::fromText(share.percent), {}};
    for (const BudgetItemTypes kind : adviser::kindsOf(share.part))
        addItems(made, budget, kind, LineRole::Adds, currency);
    addItems(made, budget, BudgetItemTypes::Wage, LineRole::Of, currency);
    return made;
}

struct Shares {
    ConvertibleBudget convertible;
    std::vector<IncomeShare> shares;

    Shares(const budgeting::Budget &budget, const Currency &currency)
        : convertible(convertibleBudget(budget, currency))
    {
        const budgeting::BudgetTotals totals(convertible.budget, currency,
                                             budgeting::EventFrequency::Monthly);
        if (!totals.wages().isPositive())
            throw internal::noIncome();
        shares = adviser::incomeShares(totals);
    }
};

} // namespace

std::vector<Explanation> Explainer::health() const
{
    const Shares judged(m_data.budget, m_preferred);
    std::vector<Explanation> all;
    for (const IncomeShare &share : judged.shares) {
        all.push_back(explained(share, judged.convertible.budget, m_preferred));
        for (const QString &text : leftOutTexts(judged.convertible, m_data.budget, m_preferred))
            all.back().lines.push_back({LineRole::Tells, text});
    }
    return all;
}

Explanation Explainer::health(const QString &name) const
{
    QStringList names;
    const Shares judged(m_data.budget, m_preferred);
    for (const IncomeShare &share : judged.shares)
        names += adviser::toQString(share.part);
    const qsizetype at = names.indexOf(name);
    if (at < 0)
        throw notAChoice(name, names);
    return health().at(static_cast<std::size_t>(at));
}

Explanation Explainer::outlook(QDate day, std::optional<AccountNumber> account) const
{
    const qint64 place = m_today.daysTo(day);
    if (place < 0 || place >= outlookDaysMax)
        throw internal::notInOutlook(day, m_today, m_today.addDays(outlookDaysMax - 1));
    const LookingAhead ahead =
        lookAhead(m_data, {m_today, static_cast<int>(place + 1), {}}, m_preferred);
    const QString name = account ? m_index.plainName(*account) : QString();
    const outlook::Curve *curve = nullptr;
    if (!account) {
        if (!ahead.together)
            throw internal::notAddedUp();
        curve = &*ahead.together;
    } else if (const auto found = ahead.outlook.accounts.find(*account);
               found != ahead.outlook.accounts.end()) {
        curve = &found->second;
    } else {
        throw internal::notWatched(name);
    }
    const QString when = presentationText(day);
    Explanation made{account
                         ? QObject::tr("%1 at the end of %2, as it is expected").arg(name, when)
                         : QObject::tr("All money at the end of %1, as it is expected").arg(when),
                     curve->ends.back(),
                     {}};
    Money rest = curve->ends.back();
    const auto add = [&](const QString &text, const Money &amount, QDate on,
                         std::optional<accounting::TransactionNumber> entry = {}) {
        made.lines.push_back({LineRole::Adds, text, amount, {}, on, entry});
        rest -= amount;
    };
    if (place == 0)
        add(QObject::tr("With all that was entered until today"), curve->start, day);
    else
        add(QObject::tr("At the end of the day before"),
            curve->ends[static_cast<std::size_t>(place - 1)], day.addDays(-1));
    for (const outlook::Change &change : curve->changes) {
        const outlook::Payment &payment = ahead.outlook.payments[change.payment];
        if (payment.day == day)
            add(nameOf(payment, m_index), change.amount, payment.due, payment.entry);
    }
    // Each amount of another currency is rounded by itself.
    if (!rest.isZero())
        add(QObject::tr("Rounding of converted amounts"), Money(rest), {});
    for (const QString &notice : noticesOf(ahead))
        made.lines.push_back({LineRole::Tells, notice});
    return made;
}

Explanation Explainer::leftAfter(const DueList &list, std::size_t place) const
{
    const DueLine &asked = list.lines.at(place);
    const AccountNumber account = asked.account.value();
    const QString name = m_index.plainName(account);
    Money left = m_data.generalLedger.ledger(account).balance();
    Explanation made{QObject::tr("%1 when %2 is paid").arg(name, asked.due.id.source.name()),
                     asked.after.value(),
                     {{LineRole::Adds, QObject::tr("Balance of %1").arg(name), left, {}, m_today}}};
    for (std::size_t at = 0; at <= place; ++at) {
        const DueLine &line = list.lines[at];
        if (line.account != account || !line.after)
            continue;
        made.lines.push_back(
            {LineRole::Adds, line.due.id.source.name(), *line.after - left, {}, line.due.id.dueOn});
        left = *line.after;
    }
    return made;
}

} // namespace kiv::workbench
