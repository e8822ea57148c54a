// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/outlook/outlook_chart.h"

#include <memory>

namespace kiv::desktop {

/// What is to come, as the page shows it. A curve's key is its account's, see keyOf(), or
/// allTogether.
struct ShownOutlook {
    workbench::LookingAhead ahead;
    std::optional<numira::Money> floor; ///< in the currency of all together
    std::shared_ptr<const workbench::AccountIndex> index;
    navigation::CurrencyDisplayOptions displayAs{};
};

/// The key of the curve of all accounts together.
inline const QString allTogether = QStringLiteral("all");

/// The curve of this key; null if there is none.
[[nodiscard]] const outlook::Curve *curveOf(const ShownOutlook &shown, const QString &key);
/// Its chart.
[[nodiscard]] interchange::Chart chartOf(const ShownOutlook &shown, const QString &key);

/// The columns of the table of curves, and its rows.
[[nodiscard]] QStringList curveColumns();
[[nodiscard]] std::vector<Row> curveRows(const ShownOutlook &shown);

/// The columns of what is paid and received, and the rows of one curve: of an account what
/// changes it, with what is there then. A row's key is the payment's place.
[[nodiscard]] QStringList paymentColumns();
[[nodiscard]] std::vector<Row> paymentRows(const ShownOutlook &shown, const QString &curve);

} // namespace kiv::desktop
