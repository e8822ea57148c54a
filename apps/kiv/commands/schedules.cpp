// SPDX-License-Identifier: GPL-3.0-or-later
// debt|goal schedule
#include "commands/schedules.h"

#include "output/json.h"

#include "workbench/outlook/payoff.h"
#include "workbench/requests/budget_view.h"

namespace kiv::app {

using workbench::Payoff;

namespace {

/// The payments of a debt or a goal, with more a month if that is asked.
struct ShowSchedule {
    budgeting::BudgetItemTypes kind;
    QString name{};
    std::optional<Amount> more{};

    void declare(Arguments &arguments)
    {
        arguments.required("NAME", name, QObject::tr("Name"))
            .optional("--more", more, QObject::tr("So much more a month"))
            .dated(QObject::tr("Day on which late payments count (default: today)"));
    }

    Report run(Call &call) const
    {
        const storage::BudgetStorage::Data data = call.document.present();
        const BudgetView view(data);
        const budgeting::BudgetedMoney &item = view.find(name, kind);
        const auto displayAs = call.document.displayAs();
        const Payoff present = workbench::payoffOf(data, item, call.date());
        QStringList told = sentencesOf(present, displayAs);
        if (!more)
            return reportOf(present, {}, told);
        const numira::Money raise = more->in(present.left.code());
        const Payoff faster = workbench::payoffOf(data, item, call.date(), raise);
        if (present.left.isPositive())
            told += workbench::sparedText(present, faster, raise, displayAs);
        return reportOf(present, faster, told);
    }

private:
    static QJsonValue endOf(const Payoff &payoff)
    {
        return payoff.payments.empty() ? QJsonValue() : QJsonValue(toJson(payoff.end()));
    }

    static Report reportOf(const Payoff &present, const std::optional<Payoff> &faster,
                           const QStringList &told)
    {
        QJsonArray rows;
        for (const workbench::ScheduledPayment &one : faster.value_or(present).payments)
            rows.append(QJsonObject{{QStringLiteral("date"), toJson(one.day)},
                                    {QStringLiteral("amount"), toJson(one.amount)},
                                    {QStringLiteral("interest"), toJson(one.interest)},
                                    {QStringLiteral("left"), toJson(one.left)}});
        QJsonObject json{
            {QStringLiteral("name"), present.item.source.name()},
            {QStringLiteral("left"), toJson(present.left)},
            {QStringLiteral("end"), endOf(present)},
            {QStringLiteral("interestPercent"),
             present.interest ? QJsonValue(present.interest->hundredths / 100.0) : QJsonValue()},
            {QStringLiteral("payments"), rows}};
        if (faster)
            json.insert(QStringLiteral("endWithMore"), endOf(*faster));
        Report report(json);
        for (const QString &sentence : told)
            report.line(sentence);
        std::vector<Column> columns{{QObject::tr("Date"), QStringLiteral("date"), dayText},
                                    {QObject::tr("Amount"), QStringLiteral("amount")}};
        if (present.interest)
            columns.push_back({QObject::tr("Interest"), QStringLiteral("interest")});
        columns.push_back({QObject::tr("Left"), QStringLiteral("left")});
        if (!rows.isEmpty())
            report.table(columns, rows, {});
        return report;
    }
};

} // namespace

void addScheduleCommand(CommandGroup &group, budgeting::BudgetItemTypes kind)
{
    group.add("schedule", QObject::tr("List the payments to come until nothing is left"),
              CommandKind::Query, ShowSchedule{kind});
}

} // namespace kiv::app
