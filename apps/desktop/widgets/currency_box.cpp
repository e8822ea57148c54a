// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/currency_box.h"

#include "numira/currency.h"

namespace kiv::desktop {

CurrencyBox::CurrencyBox(QWidget *parent) : QComboBox(parent)
{
    std::map<QString, QString> texts; // in the order of the codes
    for (const numira::Currency &currency : numira::activeCurrencies()) {
        const QString code = QString::fromStdString(numira::toStdString(currency));
        const auto symbol = numira::currencySymbol(currency);
        texts[code] = symbol ? tr("%1 (%2)").arg(code, QString::fromStdString(*symbol)) : code;
    }
    for (const auto &[code, text] : texts)
        addItem(text, code);
}

void CurrencyBox::setCurrency(const numira::Currency &currency)
{
    setCurrentIndex(findData(QString::fromStdString(numira::toStdString(currency))));
}

numira::Currency CurrencyBox::currency() const
{
    return numira::toCurrency(currentData().toString().toStdString());
}

} // namespace kiv::desktop
