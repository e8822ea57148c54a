// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"
#include "workbench/surveys/set_aside_text.h"

namespace kiv::desktop {

/// What is set aside today, as pages show it.
struct ShownEnvelopes {
    workbench::Envelopes all;
    accounting::GeneralLedger ledger;
    navigation::CurrencyDisplayOptions displayAs{};
};
/// Asks for it. The transactions of all items are looked through, so ask once.
[[nodiscard]] ShownEnvelopes shownEnvelopes(workbench::Document &document);

/// How a household knows a transaction: by its day. The ledger must outlive it.
[[nodiscard]] workbench::PostingName daysIn(const accounting::GeneralLedger &ledger);

/// What is free at each bank account: the columns, and the rows with the account's key.
[[nodiscard]] QStringList freeColumns();
[[nodiscard]] std::vector<Row> freeRows(const ShownEnvelopes &shown);

/// The lines under their accounts, and what is still due. The key of a row is where it belongs
/// and then the item, as in "7/bill/Rent"; see itemPart().
[[nodiscard]] QStringList setAsideColumns();
[[nodiscard]] std::vector<Row> setAsideRows(const ShownEnvelopes &shown);
/// The item in such a key, in the words of the page of items: "bill/Rent".
[[nodiscard]] QString itemPart(const QString &key);
/// What is to be said of all of it: what is free, and what needs care.
[[nodiscard]] QStringList setAsideSentences(const ShownEnvelopes &shown);

/// What is set aside for an item now: "$50.00"; with the accounts if there are several.
[[nodiscard]] QString nowText(const ShownEnvelopes &shown,
                              const budgeting::BudgetItemIdentifier &item);
/// How that comes about: each part with its reason, under the account.
[[nodiscard]] QStringList partColumns();
[[nodiscard]] std::vector<Row> partRows(const ShownEnvelopes &shown,
                                        const budgeting::BudgetItemIdentifier &item);

} // namespace kiv::desktop
