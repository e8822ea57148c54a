// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QComboBox>

namespace numira {
class Currency;
}

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
