// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QVariant>
#include <QtWidgets/QComboBox>

#include <utility>
#include <vector>

namespace kiv::desktop {

/// Lets a box offer these texts with their data. The same list again changes nothing: screen
/// readers drop a part of the news when there is much at once.
inline void offer(QComboBox &box, const std::vector<std::pair<QString, QVariant>> &items)
{
    bool isSame = box.count() == static_cast<int>(items.size());
    for (int row = 0; isSame && row < box.count(); ++row)
        isSame =
            std::pair(box.itemText(row), box.itemData(row)) == items[static_cast<std::size_t>(row)];
    if (isSame)
        return;
    box.clear();
    for (const auto &[text, data] : items)
        box.addItem(text, data);
}

} // namespace kiv::desktop
