// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/explain/explanation.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/exchange_rates.h"

#include <array>

namespace kiv::workbench {

const char *wordOf(LineRole role) noexcept
{
    static constexpr std::array names{"adds", "times", "over", "of", "tells"};
    return names[static_cast<std::size_t>(role) - 1];
}

QString ExplainedLine::valueText(navigation::CurrencyDisplayOptions displayAs) const
{
    if (amount)
        return amountText(amount->rounded(), displayAs);
    if (!factor)
        return {};
    const QString sign = role == LineRole::Over ? QStringLiteral("÷ %1") : QStringLiteral("× %1");
    return sign.arg(rateText(*factor));
}

QString Explanation::heading(navigation::CurrencyDisplayOptions displayAs) const
{
    const auto *amount = std::get_if<numira::Money>(&figure);
    return amount ? QStringLiteral("%1: %2").arg(title, amountText(amount->rounded(), displayAs))
                  : title;
}

} // namespace kiv::workbench
