// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"
#include "workbench/requests/due_list.h"

namespace kiv::desktop {

/// What is due now, as pages show it.
struct ShownDue {
    workbench::DueList list;
    std::chrono::days within{}; ///< so many days ahead are looked at
    QDate today;
    std::map<accounting::AccountNumber, QString> payers; ///< open accounts that can pay, by name
    navigation::CurrencyDisplayOptions displayAs{};
};

/// Asks for it. `said` has the accounts that were chosen for items.
[[nodiscard]] ShownDue shownDue(workbench::Document &document, const workbench::SaidAccounts &said);

/// The columns of the page of what is due, and its rows. An item's key is its identifier, see
/// keyOf().
[[nodiscard]] QStringList dueColumns();
[[nodiscard]] std::vector<Row> dueRows(const ShownDue &due);

/// The key of an item, such as "bill:Rent".
[[nodiscard]] QString keyOf(const budgeting::BudgetItemIdentifier &item);

/// "To pay until 3 December: $1,234.50. To come in: $20.00." A list per currency.
[[nodiscard]] QString dueSummary(const ShownDue &due);
/// Names the currencies without a rate; empty if there are none.
[[nodiscard]] QString lackingRatesText(const std::set<numira::Currency> &currencies);

} // namespace kiv::desktop
