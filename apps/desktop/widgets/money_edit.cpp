// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/money_edit.h"

#include "workbench/entry/sum_text.h"
#include "workbench/errors.h"

namespace kiv::desktop {

MoneyEdit::MoneyEdit(QWidget *parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
}

void MoneyEdit::setMoney(const numira::Money &money)
{
    setText(workbench::typedText(money, m_currency));
}

workbench::Amount MoneyEdit::amount() const
{
    workbench::Amount amount;
    workbench::readSum(text(), amount);
    return amount;
}

void MoneyEdit::focusOutEvent(QFocusEvent *event)
{
    // What cannot be read stays as it is: it is refused when it is used.
    if (workbench::isSum(text())) {
        try {
            setMoney(amount().in(m_currency));
        } catch (const foundation::Error &) {
            // See above.
        }
    }
    QLineEdit::focusOutEvent(event);
}

} // namespace kiv::desktop
