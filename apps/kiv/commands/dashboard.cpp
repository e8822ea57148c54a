// SPDX-License-Identifier: GPL-3.0-or-later
// dashboard
#include "commands/commands.h"

#include "output/json.h"
#include "output/set_aside_json.h"

#include "workbench/outlook/outlook_text.h"
#include "workbench/requests/item_figures.h"

#include "adviser/budget_health.h"
#include "budgeting/budget_totals.h"
#include "foundation/clock.h"

namespace kiv::app {

using navigation::Navigator;

namespace {

QJsonObject totalsJson(const budgeting::BudgetTotals &totals)
{
    return {{QStringLiteral("every"), budgeting::toQString(totals.frequency())},
            {QStringLiteral("wages"), toJson(totals.wages().rounded())},
            {QStringLiteral("bills"), toJson(totals.bills().rounded())},
            {QStringLiteral("debts"), toJson(totals.debts().rounded())},
            {QStringLiteral("goals"), toJson(totals.goals().rounded())},
            {QStringLiteral("nontracks"), toJson(totals.nontracks().rounded())},
            {QStringLiteral("remaining"), toJson(totals.remaining().rounded())}};
}

QJsonObject healthJson(const adviser::BudgetHealth &health)
{
    QJsonArray reasons;
    for (const adviser::HealthReason &reason : health.reasons()) {
        reasons.append(QJsonObject{{QStringLiteral("sound"), reason.isSound},
                                   {QStringLiteral("text"), reason.text}});
    }
    return {{QStringLiteral("grade"), adviser::toQString(health.grade())},
            {QStringLiteral("reasons"), reasons}};
}

QJsonObject aheadJson(const workbench::LowestAhead &ahead)
{
    return {{QStringLiteral("text"), ahead.text},
            {QStringLiteral("lowest"), moneyJson(ahead.lowest)},
            {QStringLiteral("lowestOn"), toJson(ahead.lowestOn)},
            {QStringLiteral("because"),
             ahead.because.isEmpty() ? QJsonValue() : QJsonValue(ahead.because)},
            {QStringLiteral("nextWage"), toJson(ahead.nextWage)}};
}

struct Dashboard {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        // Not the Navigator's totals, which fail as a whole when one exchange rate is missing.
        const budgeting::Budget budget = call.requests.present().budget;
        const numira::Currency currency = call.requests.preferredCurrency();
        const auto convertible = workbench::convertibleBudget(budget, currency);
        const budgeting::BudgetTotals monthly(convertible.budget, currency,
                                              budgeting::EventFrequency::Monthly);
        const QJsonObject totals = totalsJson(monthly);
        const adviser::BudgetHealth health(monthly);
        const QStringList notices = workbench::leftOutTexts(convertible, budget, currency);
        const auto answer = call.requests.ask(&Navigator::showProcessBudgetItems,
                                              &Navigator::onPrepareShowProcessBudgetItems);
        QJsonArray due;
        for (const auto &item : std::get<std::vector<budgeting::BudgetItemAmountDue>>(answer))
            due.append(toJson(item));
        const workbench::LowestAhead ahead =
            workbench::lowestAhead(call.requests, foundation::today());
        const auto within = qint64{std::get<std::chrono::days>(answer).count()};

        Report report(
            QJsonObject{{QStringLiteral("totals"), totals},
                        {QStringLiteral("health"), healthJson(health)},
                        {QStringLiteral("dueWithinDays"), within},
                        {QStringLiteral("due"), due},
                        {QStringLiteral("ahead"), aheadJson(ahead)},
                        {QStringLiteral("notices"), QJsonArray::fromStringList(notices)}});
        report.heading(QObject::tr("Every month"))
            .list({{QObject::tr("Wages"), QStringLiteral("wages")},
                   {QObject::tr("Bills"), QStringLiteral("bills")},
                   {QObject::tr("Debts"), QStringLiteral("debts")},
                   {QObject::tr("Goals"), QStringLiteral("goals")},
                   {QObject::tr("Non-tracked"), QStringLiteral("nontracks")},
                   {QObject::tr("Remaining"), QStringLiteral("remaining")}},
                  totals)
            .heading(QObject::tr("Due within %n days", nullptr, static_cast<int>(within)))
            .table({{QObject::tr("Due"), QStringLiteral("due"), dayText},
                    {QObject::tr("Item"), QStringLiteral("name")},
                    {QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                    {QObject::tr("Amount"), QStringLiteral("amount")}},
                   due, QObject::tr("Nothing is due."));
        if (!ahead.text.isEmpty())
            report.heading(QObject::tr("What is to come")).line(ahead.text);
        report.heading(
            QObject::tr("Budget health: %1").arg(adviser::presentationText(health.grade())));
        for (const adviser::HealthReason &reason : health.reasons())
            report.line(reason.text);
        for (const QString &notice : notices)
            report.line(notice);
        return report;
    }
};

} // namespace

void addDashboardCommands(CommandGroup &root)
{
    root.add("dashboard", QObject::tr("Show totals, due items and budget health"),
             CommandKind::Query, Dashboard{});
}

} // namespace kiv::app
