// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"
#include "storage/internal/rows.h"

/// The tables of everything but the ledger. Writing throws ContentFault for
/// what a file cannot hold; reading throws ContentFault, and what the domain's
/// own rules throw.
namespace kiv::storage::internal {

void writeItems(const ImageDatabase &database, Seal &seal, const budgeting::Budget &budget);
[[nodiscard]] budgeting::Budget readItems(const ImageDatabase &database, Seal &seal);

void writeItemAccounts(const ImageDatabase &database, Seal &seal,
                       const BudgetStorage::BudgetAccountCodes &codes);
[[nodiscard]] BudgetStorage::BudgetAccountCodes readItemAccounts(const ImageDatabase &database,
                                                                 Seal &seal);

void writeBanks(const ImageDatabase &database, Seal &seal, const banking::BankMap &banks);
[[nodiscard]] banking::BankMap readBanks(const ImageDatabase &database, Seal &seal);

void writeSurveys(const ImageDatabase &database, Seal &seal,
                  const surveying::CompletedSurveys &surveys);
[[nodiscard]] surveying::CompletedSurveys readSurveys(const ImageDatabase &database, Seal &seal);

void writeItemTags(const ImageDatabase &database, Seal &seal, const tagging::BudgetItemTags &tags);
[[nodiscard]] tagging::BudgetItemTags readItemTags(const ImageDatabase &database, Seal &seal);

} // namespace kiv::storage::internal
