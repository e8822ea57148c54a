// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/event_frequency.h"

#include <QtWidgets/QComboBox>

namespace kiv::desktop {

/// A field for how often an item recurs; at first monthly.
class FrequencyBox final : public QComboBox {
    Q_OBJECT

public:
    explicit FrequencyBox(QWidget *parent = nullptr);

    void setFrequency(budgeting::EventFrequency frequency);
    [[nodiscard]] budgeting::EventFrequency frequency() const;
};

} // namespace kiv::desktop
