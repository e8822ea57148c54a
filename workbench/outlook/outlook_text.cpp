// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/outlook/outlook_text.h"

#include "workbench/entry/money_text.h"

#include "foundation/presentation.h"

namespace kiv::workbench {

using foundation::presentationText;

QString nameOf(const outlook::Payment &payment, const AccountIndex &index)
{
    if (payment.item)
        return payment.item->source.name();
    if (!payment.entry)
        return QObject::tr("what was asked about");
    return QObject::tr("#%1, to %2")
        .arg(accounting::presentationText(*payment.entry), index.plainName(payment.to));
}

QString lowestText(const LookingAhead &ahead, const outlook::Curve &curve,
                   const AccountIndex &index, navigation::CurrencyDisplayOptions displayAs,
                   std::optional<std::size_t> days)
{
    const std::size_t lowest = curve.lowest(days);
    const QString day = presentationText(ahead.outlook.day(lowest));
    const QString amount = amountText(curve.ends[lowest], displayAs);
    if (const auto cause = ahead.outlook.cause(curve, lowest))
        return QObject::tr("Lowest on %1: %2, because of %3.")
            .arg(day, amount, nameOf(*cause, index));
    return QObject::tr("Lowest on %1: %2.").arg(day, amount);
}

LowestAhead lowestAhead(Requests &requests, QDate first)
try {
    const LookingAhead ahead = lookAhead(requests.present(), {first}, requests.preferredCurrency());
    if (!ahead.together)
        return {noticesOf(ahead).join(u' ')};
    const outlook::Curve &all = *ahead.together;
    std::optional<std::size_t> days;
    QString wage =
        QObject::tr("No wage comes within %n days.", nullptr, static_cast<int>(all.ends.size()));
    if (ahead.nextWage) {
        days = static_cast<std::size_t>(first.daysTo(*ahead.nextWage));
        wage = QObject::tr("The next wage comes on %1.").arg(presentationText(*ahead.nextWage));
    }
    const AccountIndex index = requests.accounts();
    const std::size_t lowest = all.lowest(days);
    const auto cause = ahead.outlook.cause(all, lowest);
    return {lowestText(ahead, all, index, requests.displayAs(), days) + u' ' + wage,
            all.ends[lowest], ahead.outlook.day(lowest), cause ? nameOf(*cause, index) : QString(),
            ahead.nextWage.value_or(QDate())};
} catch (const Refusal &refusal) {
    return {refusal.message()};
}

QStringList sentencesOf(const LookingAhead &ahead, const std::optional<numira::Money> &floor,
                        const AccountIndex &index, navigation::CurrencyDisplayOptions displayAs)
{
    if (!ahead.together)
        return {};
    const outlook::Curve &all = *ahead.together;
    QStringList told{lowestText(ahead, all, index, displayAs)};
    if (floor) {
        const QString least = amountText(*floor, displayAs);
        const auto below = all.firstBelow(*floor);
        told += below ? QObject::tr("Below %1 for the first time on %2.")
                            .arg(least, presentationText(ahead.outlook.day(*below)))
                      : QObject::tr("Never below %1.").arg(least);
    }
    const QString free = amountText(*ahead.free, displayAs);
    if (ahead.nextWage)
        told += QObject::tr("Free until the next wage on %1: %2.")
                    .arg(presentationText(*ahead.nextWage), free);
    else
        told += QObject::tr("Free until the end, without a wage: %1.").arg(free);
    return told;
}

QStringList noticesOf(const LookingAhead &ahead)
{
    QStringList notices;
    for (const outlook::LeftOut &one : ahead.outlook.leftOut) {
        const QString rate =
            QObject::tr("there is no exchange rate between %1 and %2")
                .arg(foundation::toQString(one.rate.first), foundation::toQString(one.rate.second));
        notices +=
            one.item
                ? QObject::tr("The outlook leaves '%1' out: %2.").arg(one.item->source.name(), rate)
                : QObject::tr("The outlook leaves an entry out: %1.").arg(rate);
    }
    for (const budgeting::BudgetItemIdentifier &item : ahead.unpaid)
        notices += QObject::tr("The outlook leaves '%1' out: no open account can pay it.")
                       .arg(item.source.name());
    for (const budgeting::BudgetItemIdentifier &item : ahead.closed)
        notices += QObject::tr("The outlook leaves '%1' out: its account is closed.")
                       .arg(item.source.name());
    for (const auto &[from, to] : ahead.lacking)
        notices += QObject::tr("All together is without the accounts in %1: there is no exchange "
                               "rate between %1 and %2.")
                       .arg(foundation::toQString(from), foundation::toQString(to));
    return notices;
}

} // namespace kiv::workbench
