// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_bank_ledgers.h"
#include "storage/budget_storage.h"

#include <array>
#include <memory>

namespace kiv::bench {

/// Items in a book; each owns an account, and there are four bank accounts.
inline constexpr int itemsInBook = 300;
/// As many transactions as a ledger holds.
inline constexpr int fullBook = 65'535;
/// By which costs are measured: hardly anything first, and room for one more
/// transaction last.
inline constexpr std::array bookSizes{1, 1'000, 8'000, fullBook - 1};

/// The bank account in which most transactions of a book take part.
inline constexpr std::uint32_t busyAccount = 1;

/// Ten years of a household's transactions (as many as asked for, at least one),
/// between 304 accounts. The same count gives the same book, on every machine.
[[nodiscard]] std::unique_ptr<navigation::internal::BudgetBankLedgers> makeBook(int transactions);

/// The book of that size, made once for all benchmarks of a program.
[[nodiscard]] const navigation::internal::BudgetBankLedgers &book(int transactions);

[[nodiscard]] banking::BankName bankOfBook();
[[nodiscard]] QDate lastDayOfBook();

[[nodiscard]] storage::BudgetStorage::Data
dataOf(const navigation::internal::BudgetBankLedgers &whole);

} // namespace kiv::bench
