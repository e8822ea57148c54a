// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include "numira/currency.h"

#include <QtCore/QDate>

/// Why a figure cannot be explained.
namespace kiv::workbench::internal {

[[nodiscard]] Refusal noExchangeRate(const numira::Currency &from, const numira::Currency &to);
[[nodiscard]] Refusal notConverted(const QString &transaction);
[[nodiscard]] Refusal doesNotRecur(const QString &item);
[[nodiscard]] Refusal notSetAside(const QString &item, const QString &account);
[[nodiscard]] Refusal noEnvelopes();
[[nodiscard]] Refusal owedIsNotRefused(const QString &account);
[[nodiscard]] Refusal noIncome();
[[nodiscard]] EntryError notInOutlook(QDate day, QDate first, QDate last);
[[nodiscard]] Refusal notWatched(const QString &account);
[[nodiscard]] Refusal notAddedUp();

} // namespace kiv::workbench::internal
