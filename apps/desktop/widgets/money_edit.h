// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"

#include <QtWidgets/QLineEdit>

namespace kiv::desktop {

/// A field for an amount. It reads sums, such as "12+3.5", and shows the result when it is
/// left.
class MoneyEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit MoneyEdit(QWidget *parent = nullptr);

    /// The currency of an amount that is typed without one.
    void setCurrency(const numira::Currency &currency) { m_currency = currency; }
    /// None before there is one.
    [[nodiscard]] const numira::Currency &currency() const noexcept { return m_currency; }
    void setMoney(const numira::Money &money);
    /// What is typed. Throws an EntryError if that is no amount.
    [[nodiscard]] workbench::Amount amount() const;

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    numira::Currency m_currency;
};

} // namespace kiv::desktop
