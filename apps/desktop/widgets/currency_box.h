// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/currency.h"

#include <QtWidgets/QComboBox>

namespace kiv::desktop {

/// A field for one of all currencies, by their codes.
class CurrencyBox final : public QComboBox {
    Q_OBJECT

public:
    explicit CurrencyBox(QWidget *parent = nullptr);

    void setCurrency(const numira::Currency &currency);
    [[nodiscard]] numira::Currency currency() const;
};

} // namespace kiv::desktop
