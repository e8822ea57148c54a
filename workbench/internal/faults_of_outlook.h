// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include <QtCore/QDate>

/// The errors of looking ahead, one function for each.
namespace kiv::workbench::internal {

/// Something is asked about a day that is not looked at.
[[nodiscard]] Refusal behindOutlook(QDate day, QDate last);
[[nodiscard]] Refusal outlookTooLarge();
/// An amount of zero is asked about.
[[nodiscard]] Refusal nothingAsked();
/// No watched account holds money.
[[nodiscard]] Refusal nobodyToPay();
/// The item recurs never, has no amount, or is neither a debt nor a goal.
[[nodiscard]] Refusal notPaidRegularly(const QString &item);
[[nodiscard]] Refusal moreNotPositive();

} // namespace kiv::workbench::internal
