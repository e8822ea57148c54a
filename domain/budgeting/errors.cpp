// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/errors.h"

namespace kiv::budgeting {

BudgetItemError::BudgetItemError(BudgetSource source, const QString &message,
                                 const std::exception &cause)
    : foundation::Error(message, cause), m_source(std::move(source))
{
}

BudgetItemError::BudgetItemError(const BudgetItemError &) noexcept = default;
BudgetItemError::~BudgetItemError() = default;

} // namespace kiv::budgeting
