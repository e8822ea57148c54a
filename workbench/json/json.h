// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/budget_view.h"

#include "banking/bank_map.h"
#include "budgeting/due.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

/// The JSON forms of a budget's values. Amounts are plain decimals in text next to their
/// currency's code, dates are ISO 8601. Accounts and transactions are referred to by
/// number.
namespace kiv::workbench {

/// {"amount": "2500.00", "currency": "USD"}
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const numira::Money &money);
/// "2026-03-31"; null if the date is invalid.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonValue toJson(const QDate &date);
/// A whole number.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonValue toJson(accounting::AccountNumber number);
/// A whole number; null without one.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonValue
toJson(const std::optional<accounting::AccountNumber> &number);
/// A whole number; null without one.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonValue
toJson(const std::optional<accounting::TransactionNumber> &number);
/// {number, name, type, parent, open, balance, path}
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject accountJson(const accounting::AccountCode &code,
                                                           accounting::AccountTypes type,
                                                           bool isOpen,
                                                           const numira::Money &balance,
                                                           const QString &path);
/// As accountJson().
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const accounting::Account &account,
                                                      const AccountIndex &index);
/// {number, date, debit, credit, amount, description, debitStatus, creditStatus}. With
/// debitAmount and creditAmount if a side is in another currency, and refundOf for a
/// refund.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const accounting::Transaction &transaction);
/// The JSON form of a transaction with the paths of its accounts as debitPath and
/// creditPath, for people.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject withPaths(QJsonObject transaction,
                                                         const AccountIndex &index);
/// {kind, name, amount, every, next}; with borrowed for a debt and target for a goal.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const budgeting::BudgetedMoney &item);
/// The same with the item's tags, and with bank and bankAccount (a number) if it is
/// linked to one.
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const budgeting::BudgetedMoney &item,
                                                      const BudgetView &view);
/// {kind, name, amount, due}
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const budgeting::BudgetItemAmountDue &due);
/// {name, open, accounts: [{number, name, type, balance}]}
[[nodiscard]] KIV_WORKBENCH_EXPORT QJsonObject toJson(const banking::Bank &bank,
                                                      const AccountIndex &index);

} // namespace kiv::workbench
