// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"

namespace kiv::desktop {

/// A list of things that have no page of their own.
struct OverviewSection {
    QString id;    ///< in places
    QString title; ///< in the list of sections
    QString none;  ///< says that there is nothing, and what to do
    QStringList columns;
    std::function<std::vector<Row>(workbench::Document &)> rows;
};

/// Surveys, exchange rates, settings.
[[nodiscard]] std::vector<OverviewSection> overviewSections();

} // namespace kiv::desktop
