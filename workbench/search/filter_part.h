// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QString>

#include <cstdint>
#include <vector>

namespace kiv::workbench {

/// What a part of a search looks at.
enum class FilterKind : std::uint8_t {
    Words = 0,   ///< payee, reason, and the plain names of both accounts: market
    Amount = 1,  ///< >50, <20, 50..80 or =12.30
    Days = 2,    ///< march, march 2026, 2026-03, 2026-03-05, 2026-03-01..2026-03-15, today
    Mark = 3,    ///< is:reconciled, is:cleared or is:open
    Account = 4, ///< account:Checking
    Item = 5,    ///< item:Groceries
    Payee = 6    ///< payee:Market
};

/// A part of a search, as a choice that can be shown and toggled.
struct KIV_WORKBENCH_EXPORT FilterPart {
    /// What it asks for.
    FilterKind kind = FilterKind::Words;
    QString value;           ///< without key, quotes and sign: "reconciled", ">50", "My Bank"
    bool isExcluded = false; ///< finds what the part does not fit

    /// The part as it is typed: `not:reconciled`, `-"weekly shopping"`.
    [[nodiscard]] QString text() const;

    friend bool operator==(const FilterPart &, const FilterPart &) = default;
};

/// The parts as they are typed, with blanks between them.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString filterText(const std::vector<FilterPart> &parts);

/// Takes a search apart. filterText() of the result is the same search. Throws an EntryError
/// that names a part that cannot be understood; whether accounts exist is not checked.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<FilterPart> filterParts(const QString &text);

} // namespace kiv::workbench
