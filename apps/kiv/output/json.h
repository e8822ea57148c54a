// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/budget_view.h"

#include "banking/bank_map.h"
#include "budgeting/due.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

/// The shapes in which the command tells programs about a budget. Amounts are
/// plain decimals in text next to their currency's code, dates are ISO 8601,
/// accounts and transactions are named by their numbers.
namespace kiv::app {

/// {"amount": "2500.00", "currency": "USD"}
[[nodiscard]] QJsonObject toJson(const numira::Money &money);
/// "2026-03-31"; null when there is none.
[[nodiscard]] QJsonValue toJson(const QDate &date);
[[nodiscard]] QJsonValue toJson(accounting::AccountNumber number);
[[nodiscard]] QJsonValue toJson(const std::optional<accounting::AccountNumber> &number);
[[nodiscard]] QJsonValue toJson(const std::optional<accounting::TransactionNumber> &number);
/// {number, name, type, parent, open, balance, path}
[[nodiscard]] QJsonObject accountJson(const accounting::AccountCode &code,
                                      accounting::AccountTypes type, bool isOpen,
                                      const numira::Money &balance, const QString &path);
[[nodiscard]] QJsonObject toJson(const accounting::Account &account,
                                 const workbench::AccountIndex &index);
/// {number, date, debit, credit, amount, description, debitStatus,
/// creditStatus}, with debitAmount and creditAmount where the sides are kept in
/// another currency than the amount's, and refundOf for a refund.
[[nodiscard]] QJsonObject toJson(const accounting::Transaction &transaction);
/// {kind, name, amount, every, next}, with borrowed for a debt and target for a
/// goal.
[[nodiscard]] QJsonObject toJson(const budgeting::BudgetedMoney &item);
/// The same with the item's tags, and bankAccount (a number) and bank where it is
/// tied to one.
[[nodiscard]] QJsonObject toJson(const budgeting::BudgetedMoney &item,
                                 const workbench::BudgetView &view);
/// {kind, name, amount, due}
[[nodiscard]] QJsonObject toJson(const budgeting::BudgetItemAmountDue &due);
/// {name, open, accounts: [{number, name, type, balance}]}
[[nodiscard]] QJsonObject toJson(const banking::Bank &bank, const workbench::AccountIndex &index);

} // namespace kiv::app
