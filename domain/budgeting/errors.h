// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/identifiers.h"

#include "foundation/error.h"

namespace kiv::budgeting {

/// An error about a budget item.
class KIV_BUDGETING_EXPORT BudgetItemError : public foundation::Error {
public:
    /// `message` is for the user; `cause` is the error behind it, if any.
    BudgetItemError(BudgetSource source, const QString &message,
                    const std::exception &cause = std::exception());
    BudgetItemError(const BudgetItemError &) noexcept;
    ~BudgetItemError() override;
    /// The item that was refused.
    [[nodiscard]] const BudgetSource &source() const noexcept { return m_source; }

private:
    BudgetSource m_source;
};

} // namespace kiv::budgeting
