// SPDX-License-Identifier: GPL-3.0-or-later
// outlook
#include "commands/commands.h"

#include "output/chart_text.h"
#include "output/json.h"
#include "output/set_aside_json.h"
#include "program/program.h"

#include "workbench/outlook/looking_ahead.h"
#include "workbench/outlook/outlook_chart.h"
#include "workbench/outlook/outlook_text.h"

#include "foundation/presentation.h"

namespace kiv::app {

using outlook::Curve;
using workbench::LookingAhead;
using workbench::OutlookQuestion;

namespace {

/// "900 on 2026-12-05": an amount that goes out on a day, or comes in if it is negative.
OutlookQuestion::Once readOnce(const QString &text, const numira::Currency &currency)
{
    const qsizetype at = text.indexOf(QStringLiteral(" on "));
    if (at < 0)
        throw workbench::EntryError(
            QObject::tr("'%1' is not of the form 'AMOUNT on DAY', such as '900 on 2026-12-05'.")
                .arg(text));
    Amount amount;
    QDate day;
    readValue(text.left(at).trimmed(), amount);
    workbench::readValue(text.mid(at + 4).trimmed(), day);
    return {day, amount.in(currency)};
}

QJsonValue causeJson(const LookingAhead &ahead, const Curve &curve, std::size_t place,
                     const AccountIndex &index)
{
    const auto cause = ahead.outlook.cause(curve, place);
    return cause ? QJsonValue(workbench::nameOf(*cause, index)) : QJsonValue();
}

QJsonObject curveJson(const LookingAhead &ahead, const Curve &curve,
                      const std::optional<numira::Money> &floor, const AccountIndex &index)
{
    const std::size_t lowest = curve.lowest();
    const std::optional<std::size_t> below =
        floor && floor->code() == curve.start.code() ? curve.firstBelow(*floor) : std::nullopt;
    QJsonArray days;
    for (std::size_t place = 0; place < curve.ends.size(); ++place)
        days.append(toJson(curve.ends[place]));
    return {
        {QStringLiteral("start"), toJson(curve.start)},
        {QStringLiteral("lowest"), toJson(curve.ends[lowest])},
        {QStringLiteral("lowestOn"), toJson(ahead.outlook.day(lowest))},
        {QStringLiteral("because"), causeJson(ahead, curve, lowest, index)},
        {QStringLiteral("belowFloorOn"), below ? toJson(ahead.outlook.day(*below)) : QJsonValue()},
        {QStringLiteral("end"), toJson(curve.ends.back())},
        {QStringLiteral("days"), days}};
}

struct ShowOutlook {
    workbench::OutlookDays days;
    std::optional<Amount> floor;
    std::vector<QString> without;
    std::vector<QString> with;
    bool isListed = false;
    bool hasChart = false;

    void declare(Arguments &arguments)
    {
        arguments
            .optional("--days", days,
                      QObject::tr("How many days to look ahead (default: 92; at most 3,660)"))
            .optional("--floor", floor,
                      QObject::tr("Tell the first day on which less than this is there"))
            .several("--without", without,
                     QObject::tr("As if there were no such budget item (repeatable)"))
            .several("--with", with,
                     QObject::tr("Something more, as in '900 on 2026-12-05'; negative if it comes "
                                 "in (repeatable)"))
            .flag("--payments", isListed, QObject::tr("List what is paid and received"))
            .flag("--chart", hasChart, QObject::tr("Draw a chart on the terminal"))
            .exclusive("--chart", "--json")
            .dated(QObject::tr("First day (default: today)"));
    }

    Report run(Call &call) const
    {
        const numira::Currency preferred = call.requests.preferredCurrency();
        OutlookQuestion question;
        question.first = call.date();
        question.days = days;
        const BudgetView view(call.requests);
        for (const QString &name : without)
            question.without.insert(view.findTyped(name));
        for (const QString &text : with)
            question.with.push_back(readOnce(text, preferred));
        const LookingAhead ahead = lookAhead(call.document.present(), question, preferred);
        return told(call, ahead,
                    floor ? std::optional(workbench::outlookFloor(*floor, preferred))
                          : std::nullopt);
    }

private:
    static void addChart(Report &report, const interchange::Chart &chart, Call &call)
    {
        constexpr qsizetype barsMax = 20;
        const int columns = call.program.terminal().width().value_or(80);
        for (const QString &line :
             chartText(workbench::outlookBars(chart, barsMax), columns, call.document.displayAs()))
            report.line(line);
        report.line(QString());
    }

    [[nodiscard]] Report told(Call &call, const LookingAhead &ahead,
                              const std::optional<numira::Money> &least) const
    {
        const auto index = std::make_shared<const AccountIndex>(call.requests.accounts());
        const auto displayAs = call.document.displayAs();
        QJsonArray accounts;
        for (const auto &[number, curve] : ahead.outlook.accounts) {
            QJsonObject row = curveJson(ahead, curve, least, *index);
            row.insert(QStringLiteral("account"), toJson(number));
            accounts.append(row);
        }
        QJsonArray payments;
        for (const outlook::Payment &one : ahead.outlook.payments)
            payments.append(
                QJsonObject{{QStringLiteral("date"), toJson(one.day)},
                            {QStringLiteral("due"), toJson(one.due)},
                            {QStringLiteral("name"), workbench::nameOf(one, *index)},
                            {QStringLiteral("kind"),
                             one.item ? QJsonValue(kindWord(one.item->type)) : QJsonValue()},
                            {QStringLiteral("transaction"), toJson(one.entry)},
                            {QStringLiteral("from"), toJson(one.from)},
                            {QStringLiteral("to"), toJson(one.to)},
                            {QStringLiteral("amount"), toJson(one.amount)}});
        const QStringList notices = noticesOf(ahead);
        Report report(QJsonObject{
            {QStringLiteral("first"), toJson(ahead.outlook.first)},
            {QStringLiteral("together"),
             ahead.together ? QJsonValue(curveJson(ahead, *ahead.together, least, *index))
                            : QJsonValue()},
            {QStringLiteral("nextWage"), toJson(ahead.nextWage.value_or(QDate()))},
            {QStringLiteral("free"), moneyJson(ahead.free)},
            {QStringLiteral("accounts"), accounts},
            {QStringLiteral("payments"), payments},
            {QStringLiteral("notices"), QJsonArray::fromStringList(notices)}});
        for (const QString &sentence : sentencesOf(ahead, least, *index, displayAs))
            report.line(sentence);
        if (hasChart && ahead.together)
            addChart(report, outlookChart(ahead, *ahead.together, {}, least, *index, displayAs),
                     call);
        report.table({{QObject::tr("Account"), QStringLiteral("account"), accountText(index)},
                      {QObject::tr("Now"), QStringLiteral("start")},
                      {QObject::tr("Lowest"), QStringLiteral("lowest")},
                      {QObject::tr("On"), QStringLiteral("lowestOn"), dayText},
                      {QObject::tr("Because of"), QStringLiteral("because")},
                      {QObject::tr("At the end"), QStringLiteral("end")}},
                     accounts, QObject::tr("No bank has an open account."));
        if (isListed)
            report.table(
                {{QObject::tr("Date"), QStringLiteral("date"), dayText},
                 {QObject::tr("What"), QStringLiteral("name")},
                 {QObject::tr("From"), QStringLiteral("from"), accountText(index)},
                 {QObject::tr("To", "an account"), QStringLiteral("to"), accountText(index)},
                 {QObject::tr("Amount"), QStringLiteral("amount")}},
                payments, QObject::tr("Nothing is expected."));
        for (const QString &notice : notices)
            report.line(notice);
        return report;
    }
};

} // namespace

void addOutlookCommands(CommandGroup &root)
{
    root.add("outlook", QObject::tr("Look ahead: the lowest day, and what can be spent until then"),
             CommandKind::Query, ShowOutlook{});
}

} // namespace kiv::app
