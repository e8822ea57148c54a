// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include "budgeting/identifiers.h"

/// The sentences with which the workbench refuses, one function for each.
namespace kiv::workbench::internal {

// ---- what a person types ----------------------------------------------------

[[nodiscard]] EntryError notUtf8();
[[nodiscard]] EntryError emptyName();
[[nodiscard]] EntryError notADate(const QString &text);
[[nodiscard]] EntryError notAnAmount(const QString &text);
[[nodiscard]] EntryError amountTooLarge(const QString &text);
[[nodiscard]] EntryError tooManyDigits(const QString &text, const QString &currency,
                                       unsigned digitsMax);
[[nodiscard]] EntryError notACurrency(const QString &text, const QStringList &similar);
[[nodiscard]] EntryError notAPercentage(const QString &text);

// ---- what the budget does not hold ------------------------------------------
// `similar` are names that may be meant, see similarTo().

[[nodiscard]] Refusal noSuchAccount(const QString &text, const QStringList &similar);
[[nodiscard]] Refusal ambiguousAccount(const QString &name, const QStringList &numbers);
[[nodiscard]] Refusal noSuchBank(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal notABankAccount(const QString &account);
[[nodiscard]] Refusal noSuchItem(budgeting::BudgetItemTypes kind, const QString &name,
                                 const QStringList &similar);
/// Of no kind at all.
[[nodiscard]] Refusal noSuchItem(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal ambiguousItem(const QString &name, const QStringList &kinds);
[[nodiscard]] Refusal noSuchTransaction(const QString &number);
[[nodiscard]] Refusal noSuchVersion(const QString &number, qsizetype count);
[[nodiscard]] Refusal versionDamaged(const QString &path, const QString &reason);

// ---- files -------------------------------------------------------------------

[[nodiscard]] Refusal fileExists(const QString &path);
[[nodiscard]] Refusal unsavedChanges(const QString &path);

} // namespace kiv::workbench::internal
