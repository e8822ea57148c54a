// SPDX-License-Identifier: GPL-3.0-or-later
// dashboard
#include "commands/commands.h"

#include "output/json.h"

#include "adviser/budget_health.h"
#include "budgeting/budget_totals.h"

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
    return {{QStringLiteral("grade"), adviser::presentationText(health.grade())},
            {QStringLiteral("reasons"), reasons}};
}

struct Dashboard {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const auto answer =
            call.session.ask(&Navigator::showDashboard, &Navigator::onPrepareShowDashboard);
        const QJsonObject totals = totalsJson(std::get<budgeting::BudgetTotals>(answer));
        const QJsonObject health = healthJson(std::get<adviser::BudgetHealth>(answer));
        QJsonArray due;
        for (const auto &item : std::get<std::vector<budgeting::BudgetItemAmountDue>>(answer))
            due.append(toJson(item));
        const auto within = qint64{std::get<std::chrono::days>(answer).count()};

        Report report(QJsonObject{{QStringLiteral("totals"), totals},
                                  {QStringLiteral("health"), health},
                                  {QStringLiteral("dueWithinDays"), within},
                                  {QStringLiteral("due"), due}});
        report.heading(QObject::tr("Every month"))
            .list({{QObject::tr("Wages"), QStringLiteral("wages")},
                   {QObject::tr("Bills"), QStringLiteral("bills")},
                   {QObject::tr("Debts"), QStringLiteral("debts")},
                   {QObject::tr("Goals"), QStringLiteral("goals")},
                   {QObject::tr("Non-tracked"), QStringLiteral("nontracks")},
                   {QObject::tr("Remaining"), QStringLiteral("remaining")}},
                  totals)
            .heading(QObject::tr("Due within %1 days").arg(within))
            .table({{QObject::tr("Due"), QStringLiteral("due")},
                    {QObject::tr("Item"), QStringLiteral("name")},
                    {QObject::tr("Kind"), QStringLiteral("kind")},
                    {QObject::tr("Amount"), QStringLiteral("amount")}},
                   due, QObject::tr("Nothing is due."))
            .heading(QObject::tr("Budget health: %1")
                         .arg(health.value(QLatin1String("grade")).toString()));
        for (const QJsonValue &reason : health.value(QLatin1String("reasons")).toArray())
            report.line(reason[QLatin1String("text")].toString());
        return report;
    }
};

} // namespace

void addDashboardCommands(CommandGroup &root)
{
    root.add("dashboard", "Show totals, what is due and the budget's health", CommandKind::Query,
             Dashboard{});
}

} // namespace kiv::app
