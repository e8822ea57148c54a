// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/chart.h"
#include "interchange/figures.h"
#include "interchange/groups.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// Gives the element that shows a chart. `id` is unique on the page.
using DrawChart = std::function<QString(const Chart &chart, const QString &id)>;

/// What a page is called, what its groups are, and how charts are drawn.
struct PageTexts {
    QString title;          ///< of the page
    QString grouping;       ///< in a few words, as a heading: "By category"
    QString filter;         ///< which transactions it is about, as typed; empty for all
    QStringList notes = {}; ///< sentences below the title, such as exchange rates
    DrawChart draw = toSvg; ///< a drawing within the page
};

/// The groups as one HTML page to read, print or send, with the figures above and below them
/// if there are any. It loads nothing and runs no script. Charts are SVG, with their figures
/// in tables. Items and their accounts have the items' names. `ahead` is what is to come, day by
/// day, and stands first.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toHtml(const Figures *figures, const Groups &groups,
                                                       const PageTexts &texts,
                                                       const std::optional<Chart> &ahead = {});

} // namespace kiv::interchange
