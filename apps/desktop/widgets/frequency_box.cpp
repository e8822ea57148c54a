// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/frequency_box.h"

namespace kiv::desktop {

using budgeting::EventFrequency;

FrequencyBox::FrequencyBox(QWidget *parent) : QComboBox(parent)
{
    const auto add = [this](int value) {
        addItem(budgeting::presentationText(static_cast<EventFrequency>(value)), value);
    };
    constexpr int last = static_cast<int>(EventFrequency::EveryTenYears);
    for (int value = static_cast<int>(EventFrequency::Daily); value <= last; ++value)
        add(value);
    add(static_cast<int>(EventFrequency::None)); // the rare case comes last
    setFrequency(EventFrequency::Monthly);
}

void FrequencyBox::setFrequency(EventFrequency frequency)
{
    setCurrentIndex(findData(static_cast<int>(frequency)));
}

EventFrequency FrequencyBox::frequency() const
{
    return static_cast<EventFrequency>(currentData().toInt());
}

} // namespace kiv::desktop
