// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include <QtCore/QVariant>
#include <QtWidgets/QComboBox>

#include <algorithm>
#include <ranges>
#include <utility>
#include <vector>

namespace kiv::desktop {

using Offers = std::vector<std::pair<QString, QVariant>>; ///< texts and their data

/// Lets a box offer these texts with their data. The same list again changes nothing: screen
/// readers drop a part of the news when there is much at once.
inline void offer(QComboBox &box, const Offers &items)
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

/// Behind what comes first, the accounts of these numbers, by their names.
inline void offer(QComboBox &box, Offers items, const workbench::AccountIndex &accounts,
                  const std::ranges::range auto &numbers)
{
    const auto first = static_cast<std::ptrdiff_t>(items.size());
    for (const accounting::AccountNumber number : numbers)
        items.emplace_back(accounts.plainName(number), number.integer());
    const auto isBefore = [](const QString &one, const QString &other) {
        return QString::localeAwareCompare(one, other) < 0;
    };
    std::ranges::stable_sort(items | std::views::drop(first), isBefore, &Offers::value_type::first);
    offer(box, items);
}

} // namespace kiv::desktop
