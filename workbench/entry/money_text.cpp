// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/money_text.h"

#include "workbench/entry/user_locale.h"

#include "foundation/presentation.h"
#include "numira/local_text.h"

namespace kiv::workbench {

QString amountText(const numira::Money &amount, navigation::CurrencyDisplayOptions displayAs)
{
    using enum navigation::CurrencyDisplayOptions;
    const QString code = foundation::toQString(amount.code());
    if (displayAs == Symbol)
        return foundation::presentationText(amount);
    if (displayAs == SymbolAndCode)
        return foundation::presentationText(amount) + u' ' + code;
    if (hasNumberLocale())
        return QString::fromStdString(numira::toLocalTextWithCode(amount));
    return foundation::toQString(amount) + u' ' + code;
}

} // namespace kiv::workbench
