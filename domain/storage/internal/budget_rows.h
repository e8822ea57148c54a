// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"
#include "storage/internal/rows.h"

/// The tables of everything but the ledger. Writing throws ContentFault for
/// what a file cannot hold; reading throws ContentFault, and what the domain's
/// own rules throw.
namespace kiv::storage::internal {

void writeItems(RowSink &sink, const budgeting::Budget &budget);
[[nodiscard]] budgeting::Budget readItems(RowSource &source);

void writeItemAccounts(RowSink &sink, const BudgetStorage::BudgetAccountCodes &codes);
[[nodiscard]] BudgetStorage::BudgetAccountCodes readItemAccounts(RowSource &source);

void writeBanks(RowSink &sink, const banking::BankMap &banks);
[[nodiscard]] banking::BankMap readBanks(RowSource &source);

void writeSurveys(RowSink &sink, const surveying::CompletedSurveys &surveys);
[[nodiscard]] surveying::CompletedSurveys readSurveys(RowSource &source);

void writeItemTags(RowSink &sink, const tagging::BudgetItemTags &tags);
[[nodiscard]] tagging::BudgetItemTags readItemTags(RowSource &source);

} // namespace kiv::storage::internal
