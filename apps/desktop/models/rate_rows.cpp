// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/rate_rows.h"

#include "foundation/presentation.h"

namespace kiv::desktop {

using conversion::RateOrigin;
using conversion::RateSource;

QStringList rateColumns()
{
    return {QObject::tr("Currency"), QObject::tr("Rate"), QObject::tr("Date"), QObject::tr("Age"),
            QObject::tr("Source")};
}

std::vector<Row> rateRows(const workbench::ListedRates &listed, QDate today)
{
    std::vector<Row> rows;
    const QString base = foundation::toQString(listed.base);
    for (const auto &[currency, rate] : listed.rates.rates()) {
        if (currency == listed.base)
            continue; // always 1
        const RateOrigin &origin = listed.rates.origins().at(currency);
        const auto age = static_cast<int>(origin.day.daysTo(today));
        const QString code = foundation::toQString(currency);
        rows.push_back(
            {code,
             {{code},
              {QObject::tr("1 %1 = %2 %3").arg(base, workbench::rateText(rate), code)},
              dayCell(origin.day),
              {age > 0 ? QObject::tr("%n days old", nullptr, age) : QObject::tr("of today")},
              {origin.source == RateSource::Typed ? QObject::tr("typed")
                                                  : QObject::tr("fetched")}}});
    }
    for (const numira::Currency &currency : listed.lacking) {
        const QString code = foundation::toQString(currency);
        const Cell lacking{QObject::tr("not converted"), {}, false, Colour::Warning};
        rows.push_back({code, {{code}, lacking, {}, {}, {}}});
    }
    std::ranges::sort(rows, {}, &Row::key);
    return rows;
}

} // namespace kiv::desktop
