// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/outlook_rows.h"

#include "models/account_rows.h"

#include "workbench/outlook/outlook_text.h"

#include "foundation/presentation.h"

namespace kiv::desktop {

using outlook::Curve;

namespace {

QString titleOf(const ShownOutlook &shown, const QString &key)
{
    return key == allTogether ? QObject::tr("All together")
                              : shown.index->plainName(accounting::AccountNumber(key.toUInt()));
}

Row rowOf(const ShownOutlook &shown, const QString &key, const Curve &curve)
{
    const std::size_t lowest = curve.lowest();
    const auto cause = shown.ahead.outlook.cause(curve, lowest);
    Row row{key,
            {{titleOf(shown, key)},
             amountCell(curve.start, shown.displayAs),
             amountCell(curve.ends[lowest], shown.displayAs),
             dayCell(shown.ahead.outlook.day(lowest)),
             {cause ? workbench::nameOf(*cause, *shown.index) : QString()},
             amountCell(curve.ends.back(), shown.displayAs)}};
    row.isBold = key == allTogether;
    return row;
}

Cell dayOf(const outlook::Payment &payment)
{
    if (payment.due == payment.day)
        return dayCell(payment.day);
    return {QObject::tr("%1, due on %2")
                .arg(foundation::presentationText(payment.day),
                     foundation::presentationText(payment.due)),
            {},
            false,
            Colour::Warning};
}

} // namespace

const Curve *curveOf(const ShownOutlook &shown, const QString &key)
{
    if (key == allTogether)
        return shown.ahead.together ? &*shown.ahead.together : nullptr;
    const auto found = shown.ahead.outlook.accounts.find(accounting::AccountNumber(key.toUInt()));
    return found == shown.ahead.outlook.accounts.end() ? nullptr : &found->second;
}

interchange::Chart chartOf(const ShownOutlook &shown, const QString &key)
{
    const Curve *curve = curveOf(shown, key);
    return curve ? workbench::outlookChart(shown.ahead, *curve, titleOf(shown, key), shown.floor,
                                           *shown.index, shown.displayAs)
                 : interchange::Chart();
}

QStringList curveColumns()
{
    return {QObject::tr("Account"), QObject::tr("Now"),        QObject::tr("Lowest"),
            QObject::tr("On"),      QObject::tr("Because of"), QObject::tr("At the end")};
}

std::vector<Row> curveRows(const ShownOutlook &shown)
{
    std::vector<Row> rows;
    if (shown.ahead.together)
        rows.push_back(rowOf(shown, allTogether, *shown.ahead.together));
    for (const auto &[number, curve] : shown.ahead.outlook.accounts)
        rows.push_back(rowOf(shown, keyOf(number), curve));
    return rows;
}

QStringList paymentColumns()
{
    return {QObject::tr("What"),   QObject::tr("Date"),
            QObject::tr("From"),   QObject::tr("To", "an account"),
            QObject::tr("Amount"), QObject::tr("Balance then")};
}

std::vector<Row> paymentRows(const ShownOutlook &shown, const QString &key)
{
    std::vector<Row> rows;
    const Curve *curve = curveOf(shown, key);
    if (!curve)
        return rows;
    numira::Money then = curve->start;
    auto change = curve->changes.begin();
    const std::vector<outlook::Payment> &payments = shown.ahead.outlook.payments;
    for (std::size_t place = 0; place < payments.size(); ++place) {
        const outlook::Payment &payment = payments[place];
        numira::Money amount = payment.amount;
        bool isChange = false;
        for (; change != curve->changes.end() && change->payment == place; ++change) {
            then += change->amount;
            amount = change->amount;
            isChange = true;
        }
        if (!isChange && key != allTogether)
            continue;
        rows.push_back({QString::number(place),
                        {{workbench::nameOf(payment, *shown.index)},
                         dayOf(payment),
                         {shown.index->plainName(payment.from)},
                         {shown.index->plainName(payment.to)},
                         amountCell(amount, shown.displayAs),
                         amountCell(then, shown.displayAs)}});
    }
    return rows;
}

} // namespace kiv::desktop
